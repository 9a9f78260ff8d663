// dictionary-builder AFFIXES DICTIONARY OUT: takes the plain words of the spelling dictionary out of it, one a line,
// UTF-8. It is a step of its own because it takes most of the time and does not depend on the pictures.

#include "spelling.h"

#include <fstream>
#include <iostream>

int main(int argc, char** argv) {
  using namespace cserko;
  if (argc != 4) {
    std::cerr << "usage: dictionary-builder AFFIXES DICTIONARY OUT\n";
    return 2;
  }
  try {
    const std::vector<Text> words = dictionary_words(argv[1], argv[2]);
    std::ofstream out(argv[3], std::ios::binary);
    for (const Text& word : words) out << to_utf8(word) << '\n';
    out.close();
    if (!out) throw std::runtime_error(std::string("cannot write ") + argv[3]);
  } catch (const std::exception& error) {
    std::cerr << "dictionary-builder: " << error.what() << '\n';
    return 1;
  }
  return 0;
}
