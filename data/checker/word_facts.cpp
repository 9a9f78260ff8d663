#include "data/checker/word_facts.h"

#include "core/kszöveg.h"
#include "data/pack/table.h"

#include <QDir>
#include <QFont>
#include <QFontInfo>
#include <QFontMetricsF>

namespace cserko {
namespace {

constexpr int kMeasureSize = 1000;                 // pixels: so large that rounding to pixels does not matter
constexpr const char* kSerif = "Liberation Serif"; // the metric twin of the suite's font
constexpr std::array<const char*, 4> kDirections{"bal", "fel", "jobb", "le"};

QFontMetricsF serif_metrics() {
  QFont font(kSerif);
  font.setPixelSize(kMeasureSize);
  if (QFontInfo(font).family() != kSerif) throw PackError(QString("the font %1 is not installed").arg(kSerif));
  return QFontMetricsF(font);
}

WordFacts facts_of(const WordRecord& record, const QFontMetricsF& metrics) {
  WordFacts facts{record, letter_facts(record.name), letter_facts(record.english), letter_facts(record.syllables), 0,
                  0};
  facts.syllables = static_cast<int>(record.syllables.count('-')) + 1;
  facts.width = metrics.horizontalAdvance(record.name) / kMeasureSize;
  return facts;
}

std::vector<std::array<QString, 2>> read_pairs(const QString& path) {
  std::vector<std::array<QString, 2>> pairs;
  for (const QString& raw : from_code_page(read_file(path)).split('\n', Qt::SkipEmptyParts)) {
    const QString line = raw.trimmed();
    const qsizetype hyphen = line.indexOf('-');
    if (hyphen < 1 || hyphen + 1 == line.size()) throw PackError(path + ": not a pair: " + line);
    pairs.push_back({line.left(hyphen), line.mid(hyphen + 1)});
  }
  return pairs;
}

} // namespace

LetterFacts letter_facts(const QString& text) {
  kszöveg cut(text.toStdU16String());
  LetterFacts facts{text, {}, QString::fromStdU16String(cut.VesszősSzöveg())};
  for (int i = 1; i <= cut.MAGYARBETŰKSZÁMA(); ++i) facts.letters << QString::fromStdU16String(cut.szóbetűje(i));
  return facts;
}

Pack read_pack(const QString& folder) {
  Pack pack;
  const QFontMetricsF metrics = serif_metrics();
  pack.m_width = metrics.horizontalAdvance('m') / kMeasureSize;
  pack.line_height = metrics.height() / kMeasureSize;
  const QDir records(folder + "/kepek");
  const qsizetype count = records.entryList({"*.wms"}, QDir::Files).size();
  for (int i = 0; i < count; ++i) {
    const QString path = records.filePath(QString("%1.wms").arg(i));
    const auto record = read_record(read_file(path));
    if (!record) throw PackError(path + ": fewer than eight lines");
    pack.words.push_back(facts_of(*record, metrics));
  }
  pack.pairs = read_pairs(folder + QStringLiteral("/betűpár.kvl"));
  const QDir directions(folder + "/irkep");
  for (size_t i = 0; i < kDirections.size(); ++i)
    pack.direction_pictures[i] =
        static_cast<int>(directions.entryList({QString("*_%1.wmf").arg(kDirections[i])}, QDir::Files).size());
  return pack;
}

} // namespace cserko
