#include "data/pack/record_checks.h"

#include "core/kszöveg.h"
#include "data/pack/drawn_metafile.h"
#include "data/pack/record_folders.h"
#include "data/pack/table.h"

#include <QDir>
#include <QHash>
#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <vector>

namespace cserko {
namespace {

constexpr int kFewestWords = 3, kMostWords = 14; // of a sentence
constexpr int kLongestSentence = 110;            // characters; more cannot be read from a small panel
constexpr int kShortName = 4;                    // letters
constexpr int kPictureSide = 64;                 // pixels, enough to see whether anything is drawn

const QString vowels = QStringLiteral("aáeéiíoóöőuúüű");

std::vector<QString> letters_of(const QString& word) {
  kszöveg text(word.toStdU16String());
  std::vector<QString> letters;
  for (int i = 1; i <= text.MAGYARBETŰKSZÁMA(); ++i) letters.push_back(QString::fromStdU16String(text.szóbetűje(i)));
  return letters;
}

bool long_double(const QString& letter) {
  static const QStringList all{"ccs", "ggy", "lly", "nny", "ssz", "tty", "zzs"};
  return all.contains(letter);
}

QStringList words_of(const QString& text) {
  static const QRegularExpression between("[^\\p{L}-]+");
  return text.split(between, Qt::SkipEmptyParts);
}

// Endings lengthen a last a or e: alma, almát; kefe, kefét.
QStringList stems_of(const QString& name) {
  QString lengthened = name;
  if (name.endsWith('a')) lengthened.back() = QChar(u'á');
  if (name.endsWith('e')) lengthened.back() = QChar(u'é');
  return lengthened == name ? QStringList{name} : QStringList{name, lengthened};
}

// A short name is the start of many words that have nothing to do with it (kar, karika), so for these only the common
// endings count.
bool common_ending(const QString& ending) {
  static const QStringList all =
      QString(
          "|t|at|ot|et|öt|k|ak|ok|ek|ök|a|e|ja|je|ban|ben|ba|be|ból|ből|on|en|ön|n|ra|re|ról|ről|nál|nél|hoz|hez|höz|"
          "tól|től|nak|nek|val|vel|s|as|os|es|ös|i|kat|ket|okat|eket|akat|öket|ai|ei|jai|jei|ban|ként|ig|ért")
          .split('|');
  if (all.contains(ending)) return true;
  return ending.size() == 3 &&
         (ending.endsWith("al") || ending.endsWith("el")); // kézzel: the v becomes the last letter
}

void check_characters(const QString& field, const QString& text, QStringList& faults) {
  if (text.trimmed().isEmpty()) {
    faults << field + " hiányzik.";
    return;
  }
  if (text != text.trimmed() || text.contains("  ")) faults << field + " elején, végén vagy közepén fölös szóköz van.";
  for (QChar character : text)
    if (character.category() == QChar::Other_Control) faults << field + " vezérlőjelet tartalmaz.";
  try {
    to_code_page(text);
  } catch (const PackError&) {
    faults << field + " olyan jelet tartalmaz, amely nincs az 1250-es kódlapon: " + text;
  }
}

void check_names(const WordRecord& record, QStringList& faults) {
  static const QRegularExpression hungarian("^[a-záéíóöőúüűA-ZÁÉÍÓÖŐÚÜŰ]+([ -][a-záéíóöőúüűA-ZÁÉÍÓÖŐÚÜŰ]+)*$");
  static const QRegularExpression english("^[a-zA-Z]+([ '-][a-zA-Z]+)*$");
  if (!hungarian.match(record.name).hasMatch())
    faults << "A magyar név csak a magyar ábécé betűiből állhat: " + record.name;
  if (!english.match(record.english).hasMatch()) faults << "Az angol név csak angol betűkből állhat: " + record.english;
  if (!syllables_fit_name(record.name, record.syllables))
    faults << QString("A szótagolt alak nem rakható ki a névből: %1, %2.").arg(record.name, record.syllables);
}

void check_sentence(const QString& field, const QString& sentence, QStringList& faults) {
  if (sentence.isEmpty()) return; // told already
  if (!sentence.front().isUpper()) faults << field + " nagybetűvel kezdődjön: " + sentence;
  if (!sentence.endsWith('.') && !sentence.endsWith('!')) faults << field + " végéről hiányzik a pont: " + sentence;
  const qsizetype words = words_of(sentence).size();
  if (words < kFewestWords || words > kMostWords)
    faults << QString("%1 %2–%3 szóból álljon: %4").arg(field).arg(kFewestWords).arg(kMostWords).arg(sentence);
  if (sentence.size() > kLongestSentence)
    faults << QString("%1 legfeljebb %2 betűs legyen: %3").arg(field).arg(kLongestSentence).arg(sentence);
}

void check_statements(const WordRecord& record, QStringList& faults) {
  const auto plain = [](const QString& text) {
    QStringList words = words_of(text.toLower());
    words.removeAll("nem");
    words.removeAll("sem");
    words.sort();
    return words;
  };
  if (plain(record.truth) == plain(record.falsehood))
    faults << "A hamis állítás ne az igaz legyen egy \"nem\" szóval: " + record.falsehood;
}

struct Twins {
  QHash<QString, QString> first_seen;
  void see(const QString& key, const QString& where, const QString& what, QStringList& faults) {
    if (first_seen.contains(key))
      faults << QString("%1: %2 ugyanaz, mint itt: %3.").arg(where, what, first_seen[key]);
    else
      first_seen.insert(key, where);
  }
};

QString picture_fault(const QString& path) {
  if (path.isEmpty()) return "nincs hozzá kép.";
  const QByteArray bytes = read_file(path);
  const bool drawn =
      path.endsWith(".wmf") ? !draw_metafile(bytes, kPictureSide).isNull() : !QImage::fromData(bytes).isNull();
  return drawn ? QString() : "a képe nem rajzolható ki.";
}

} // namespace

bool syllables_fit_name(const QString& name, const QString& syllables) {
  const std::vector<QString> letters = letters_of(name);
  qsizetype at = 0;
  bool split_done = false;
  const auto take = [&](const QString& text) {
    if (QStringView(syllables).mid(at, text.size()) != text) return false;
    at += text.size();
    return true;
  };
  for (size_t i = 0; i < letters.size(); ++i) {
    const QString& letter = letters[i];
    const bool splits = !split_done && long_double(letter);
    if (splits) split_done = true;
    const QString half = letter.mid(1);
    const bool split_here = splits && i > 0 && take(half + "-" + half);
    if (!split_here && !take(letter)) return false;
    if (i + 1 < letters.size()) take("-");
  }
  return at == syllables.size();
}

bool one_vowel_each(const QString& syllables) {
  static const QRegularExpression between("[- ]");
  for (const QString& syllable : syllables.toLower().split(between)) {
    const auto count = std::count_if(syllable.begin(), syllable.end(), [](QChar c) { return vowels.contains(c); });
    if (count != 1) return false;
  }
  return true;
}

bool names_itself(const QString& name, const QString& text) {
  for (const QString& stem : stems_of(name.toLower()))
    for (const QString& word : words_of(text.toLower()))
      if (word.startsWith(stem) && (stem.size() > kShortName || common_ending(word.mid(stem.size())))) return true;
  return false;
}

bool is_form_of(const QString& name, const QString& word) {
  for (const QString& stem : stems_of(name.toLower()))
    if (word.startsWith(stem) && common_ending(word.mid(stem.size()))) return true;
  return false;
}

QStringList record_faults(const WordRecord& record) {
  QStringList faults;
  check_characters("A magyar név", record.name, faults);
  check_characters("Az angol név", record.english, faults);
  check_characters("A szótagolt név", record.syllables, faults);
  check_characters("A meghatározás", record.definition, faults);
  check_characters("Az igaz állítás", record.truth, faults);
  check_characters("A hamis állítás", record.falsehood, faults);
  if (faults.isEmpty()) check_names(record, faults);
  return faults;
}

QStringList style_remarks(const WordRecord& record) {
  QStringList remarks;
  if (!one_vowel_each(record.syllables))
    remarks << "Minden szótagban pontosan egy magánhangzónak kell lennie: " + record.syllables;
  check_sentence("A meghatározás", record.definition, remarks);
  check_sentence("Az igaz állítás", record.truth, remarks);
  check_sentence("A hamis állítás", record.falsehood, remarks);
  if (names_itself(record.name, record.definition))
    remarks << QString("A meghatározás elárulja a szót: %1, %2").arg(record.name, record.definition);
  check_statements(record, remarks);
  return remarks;
}

Review folder_review(const QStringList& folder_paths) {
  for (const QString& path : folder_paths)
    if (!QDir(path).exists()) return {{path + ": nincs ilyen mappa."}, {}};
  const RecordFolders folders(folder_paths);
  const QStringList texts = folders.names("*.wms");
  if (texts.isEmpty()) return {{folders.first() + ": nincs benne egyetlen szó sem."}, {}};
  Review review;
  Twins names, definitions, pictures;
  for (int i = 0; i < texts.size(); ++i) {
    const QString base = QString::number(i), where = base + ".wms", path = folders.find(where);
    if (path.isEmpty()) {
      review.faults
          << QString("%1: hiányzik; a fájlok száma %2, a számozás 0-tól folytonos.").arg(where).arg(texts.size());
      continue;
    }
    const auto record = read_record(read_file(path));
    if (!record) {
      review.faults << where + ": nyolc sorból kell állnia.";
      continue;
    }
    const QStringList faults = record_faults(*record);
    for (const QString& fault : faults) review.faults << where + ": " + fault;
    // What is not even there has no style.
    for (const QString& remark : faults.isEmpty() ? style_remarks(*record) : QStringList())
      review.remarks << where + ": " + remark;
    const QString picture = folders.picture(base);
    if (const QString fault = picture_fault(picture); !fault.isEmpty())
      review.faults << where + ": " + fault;
    else
      pictures.see(QString::fromLatin1(read_file(picture).toHex()), where, "a kép", review.remarks);
    names.see(record->name.toLower(), where, "a név", review.faults);
    definitions.see(record->definition, where, "a meghatározás", review.remarks);
  }
  for (const QString& picture : folders.names("*.wmf"))
    if (folders.find(QFileInfo(picture).completeBaseName() + ".wms").isEmpty())
      review.faults << picture + ": nincs hozzá szöveg.";
  return review;
}

} // namespace cserko
