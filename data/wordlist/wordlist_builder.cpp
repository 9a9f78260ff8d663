// wordlist-builder DICTIONARY UNSUITABLE PACK [NAMES]: makes ms.skt of the words that dictionary-builder found and of
// the names of the pictures.

#include "pack_file.h"
#include "word_list.h"

#include <fstream>
#include <iostream>

namespace {

using namespace cserko;

std::ifstream open(const std::string& path) {
  std::ifstream stream(path);
  if (!stream) throw std::runtime_error("cannot read " + path);
  return stream;
}

void build(int argc, char** argv) {
  std::ifstream dictionary = open(argv[1]);
  std::vector<Text> words;
  for (std::string word; std::getline(dictionary, word);) words.push_back(from_utf8(word));
  std::ifstream patterns = open(argv[2]);
  const UnsuitableWords unsuitable(patterns);
  std::vector<Text> names;
  if (argc == 5) {
    std::ifstream table = open(argv[4]);
    names = picture_names(table);
  }
  write_pack_file(argv[3], "ms.skt", word_list_bytes(words, unsuitable, names));
}

} // namespace

int main(int argc, char** argv) {
  if (argc != 4 && argc != 5) {
    std::cerr << "usage: wordlist-builder DICTIONARY UNSUITABLE PACK [NAMES]\n";
    return 2;
  }
  try {
    build(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "wordlist-builder: " << error.what() << '\n';
    return 1;
  }
  return 0;
}
