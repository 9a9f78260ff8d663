#include "data/pack/language.h"

#include "data/pack/table.h"

#include <QFile>
#include <QRegularExpression>
#include <cstdlib>
#include <hunspell/hunspell.hxx>
#include <hyphen.h>
#include <vector>

namespace cserko {
namespace {

void require(const QString& path) {
  if (!QFile::exists(path)) throw PackError(path + ": missing");
}

} // namespace

struct Spelling::Library {
  Library(const QByteArray& affix_file, const QByteArray& word_file)
      : dictionary(affix_file.constData(), word_file.constData()), utf8(dictionary.get_dict_encoding() == "UTF-8") {}
  Hunspell dictionary;
  bool utf8;
};

Spelling::Spelling(const QString& affix_file, const QString& word_file) {
  require(affix_file);
  require(word_file);
  library_ = std::make_unique<Library>(affix_file.toUtf8(), word_file.toUtf8());
  if (!library_->utf8 && library_->dictionary.get_dict_encoding() != "ISO8859-1")
    throw PackError(word_file + ": written in a character set that is not read here");
}

Spelling::~Spelling() = default;

bool Spelling::accepts(const QString& word) const {
  return library_->dictionary.spell((library_->utf8 ? word.toUtf8() : word.toLatin1()).toStdString());
}

struct Hyphenation::Library {
  HyphenDict* patterns = nullptr;
};

Hyphenation::Hyphenation(const QString& pattern_file) {
  require(pattern_file);
  library_ = std::make_unique<Library>();
  library_->patterns = hnj_hyphen_load(pattern_file.toUtf8().constData());
  if (!library_->patterns) throw PackError(pattern_file + ": not a hyphenation dictionary");
}

Hyphenation::~Hyphenation() { hnj_hyphen_free(library_->patterns); }

QString Hyphenation::hyphenated(const QString& word) const {
  const QByteArray bytes = word.toUtf8();
  const int size = static_cast<int>(bytes.size());
  std::vector<char> breaks(static_cast<size_t>(size) + 5), result(static_cast<size_t>(size) * 2 + 5);
  char** replacements = nullptr;
  int *positions = nullptr, *cuts = nullptr;
  hnj_hyphen_hyphenate3(library_->patterns, bytes.constData(), size, breaks.data(), result.data(), &replacements,
                        &positions, &cuts, 1, 1, 1, 1);
  if (replacements)
    for (int i = 0; i < size - 1; ++i) std::free(replacements[i]);
  std::free(replacements);
  std::free(positions);
  std::free(cuts);
  return QString::fromUtf8(result.data()).replace('=', '-');
}

QStringList spelling_words(const QString& text) {
  static const QRegularExpression between("[^\\p{L}'-]+");
  QStringList words;
  for (QString word : text.split(between, Qt::SkipEmptyParts)) {
    while (word.endsWith('-')) word.chop(1);
    while (word.startsWith('-')) word.remove(0, 1);
    if (!word.isEmpty()) words << word;
  }
  return words;
}

} // namespace cserko
