// tune-builder PACK TUNE...: makes the MIDI files of the data pack and the factory playlist, in the order of the tunes.

#include "../wordlist/pack_file.h"
#include "../wordlist/settings_lines.h"
#include "midi_file.h"

#include <fstream>
#include <iostream>

namespace {

using namespace cserko;

std::string build(const std::filesystem::path& pack, const std::filesystem::path& path) {
  std::ifstream stream(path);
  if (!stream) throw TuneError("cannot be read");
  const Tune tune = read_tune(stream);
  std::string name = path.stem().string() + ".mid";
  write_pack_file(pack, "dysmid/" + name, midi_file(tune.title, tune.tempo, arrange(tune)));
  return name;
}

} // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::cerr << "usage: tune-builder PACK TUNE...\n";
    return 2;
  }
  const std::filesystem::path pack = argv[1];
  std::string playlist = number_line(0); // silent until the user asks for music
  std::set<std::string> names;
  for (int i = 2; i < argc; ++i) {
    try {
      const std::string name = build(pack, argv[i]);
      playlist += text_line(name);
      names.insert(name);
    } catch (const std::exception& error) {
      std::cerr << "tune-builder: " << argv[i] << ": " << error.what() << '\n';
      return 1;
    }
  }
  try {
    write_pack_file(pack, "cserko/zenebeáll.ini", playlist);
    remove_other_files(pack, "dysmid", ".mid", names);
  } catch (const std::exception& error) {
    std::cerr << "tune-builder: " << error.what() << '\n';
    return 1;
  }
  return 0;
}
