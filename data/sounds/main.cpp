// sound-builder TABLE SOUND_FONT PACK: makes every sound file of the data pack and the factory lists of event sounds.

#include "../wordlist/pack_file.h"
#include "../wordlist/settings_lines.h"
#include "render.h"
#include "sound_table.h"
#include "wave_file.h"

#include <fluidsynth.h>
#include <fstream>
#include <iostream>
#include <map>

namespace {

using namespace cserko;

std::string names_of(const std::vector<Sound>& sounds, SoundRole role) {
  std::string names;
  for (const Sound& sound : sounds)
    if (sound.role == role) names += text_line(sound.name + ".wav");
  return names;
}

void write_lists(const std::vector<Sound>& sounds, const std::filesystem::path& pack) {
  constexpr int check_boxes = 5; // every kind of event sound is on until the user says otherwise
  std::string praise;
  for (int i = 0; i < check_boxes; ++i) praise += number_line(1);
  write_pack_file(pack, "cserko/grathang.ini", praise + names_of(sounds, SoundRole::Praise));
  write_pack_file(pack, "cserko/helyeshang.ini", names_of(sounds, SoundRole::Success));
  write_pack_file(pack, "cserko/hibahang.ini", names_of(sounds, SoundRole::Error));
}

void build(const std::filesystem::path& table, const std::filesystem::path& sound_font,
           const std::filesystem::path& pack) {
  std::ifstream stream(table);
  if (!stream) throw std::runtime_error("cannot read " + table.string());
  const std::vector<Sound> sounds = read_sound_table(stream);
  for (const Sound& sound : sounds) {
    const Samples samples = finish(render(sound, sound_font), sound.seconds, sound.peak);
    write_pack_file(pack, path_in_pack(sound), wave_file(samples));
  }
  write_lists(sounds, pack);
  std::map<std::string, std::set<std::string>> folders;
  for (const Sound& sound : sounds) {
    const std::filesystem::path path = path_in_pack(sound);
    folders[path.parent_path().string()].insert(path.filename().string());
  }
  for (const auto& [folder, names] : folders)
    if (!folder.empty()) remove_other_files(pack, folder, ".wav", names);
}

} // namespace

int main(int argc, char** argv) {
  if (argc != 4) {
    std::cerr << "usage: sound-builder TABLE SOUND_FONT PACK\n";
    return 2;
  }
  // Its warnings are about sound devices and drivers, and none is used here.
  fluid_set_log_function(FLUID_WARN, nullptr, nullptr);
  try {
    build(argv[1], argv[2], argv[3]);
  } catch (const std::exception& error) {
    std::cerr << "sound-builder: " << error.what() << '\n';
    return 1;
  }
  return 0;
}
