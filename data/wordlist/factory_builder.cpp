// factory-builder SETTINGS PAIRS PACK: makes the factory settings and betűpár.kvl.

#include "factory_files.h"
#include "pack_file.h"

#include <fstream>
#include <iostream>

namespace {

std::ifstream open(const std::string& path) {
  std::ifstream stream(path);
  if (!stream) throw std::runtime_error("cannot read " + path);
  return stream;
}

} // namespace

int main(int argc, char** argv) {
  using namespace cserko;
  if (argc != 4) {
    std::cerr << "usage: factory-builder SETTINGS PAIRS PACK\n";
    return 2;
  }
  try {
    std::ifstream settings = open(argv[1]);
    for (const auto& [name, bytes] : factory_settings(settings)) write_pack_file(argv[3], "cserko/" + name, bytes);
    std::ifstream pairs = open(argv[2]);
    write_pack_file(argv[3], "betűpár.kvl", letter_pairs(pairs));
  } catch (const std::exception& error) {
    std::cerr << "factory-builder: " << error.what() << '\n';
    return 1;
  }
  return 0;
}
