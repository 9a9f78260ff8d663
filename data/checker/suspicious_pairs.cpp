#include "data/checker/suspicious_pairs.h"

#include "data/pack/record_checks.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <algorithm>
#include <cmath>
#include <numeric>

namespace cserko {
namespace {

constexpr int kStem = 5;            // letters of a word that are compared: endings differ, and so do most other words
constexpr int kShortestWord = 3;    // letters; shorter ones say nothing of a thing
constexpr int kFewestShared = 3;    // content words of two definitions
constexpr double kMostShared = 0.5; // of the shorter definition
constexpr int kSide = 40;           // pixels to which pictures are drawn together: small differences vanish
constexpr int kPlainStep = 24;      // of 255, between neighbours: what is a line
constexpr double kMostLikeness = 0.8;

// Words that say nothing of a thing itself.
const QSet<QString>& empty_words() {
  static const QSet<QString> words = [] {
    const QStringList all =
        QStringLiteral("egy hogy nem vagy mint meg van vannak lehet ezt ezzel ebben ezen erre azt akkor amely amelyet "
                       "amelyen amelyben ami amit aki akik rajta benne belőle vele neki sok két három négy kis nagy "
                       "szokott szoktuk szoktak való után alatt előtt között fölött mellett minden ilyen olyan csak "
                       "már még úgy itt ott")
            .split(' ');
    return QSet<QString>(all.begin(), all.end());
  }();
  return words;
}

QStringList words_of(const QString& text) {
  static const QRegularExpression between("[^\\p{L}-]+");
  return text.toLower().split(between, Qt::SkipEmptyParts);
}

QSet<QString> content_words(const QString& definition) {
  QSet<QString> words;
  for (const QString& word : words_of(definition))
    if (word.size() >= kShortestWord && !empty_words().contains(word)) words << word.left(kStem);
  return words;
}

// What is known of one record's definition.
struct Definition {
  QSet<QString> words;
  QSet<int> names; // indexes of the other records that it names
};

// By what a text's word must begin with to name the record, so that not every name is tried on every text.
QMultiHash<QString, int> by_beginning(const std::vector<WordRecord>& records) {
  QMultiHash<QString, int> result;
  for (size_t i = 0; i < records.size(); ++i) result.insert(records[i].name.toLower().left(2), static_cast<int>(i));
  return result;
}

std::vector<Definition> read_definitions(const std::vector<WordRecord>& records) {
  const QMultiHash<QString, int> names = by_beginning(records);
  std::vector<Definition> definitions;
  definitions.reserve(records.size());
  for (size_t i = 0; i < records.size(); ++i) {
    Definition definition{content_words(records[i].definition), {}};
    for (const QString& word : words_of(records[i].definition))
      for (const int other : names.values(word.left(2)))
        if (other != static_cast<int>(i) && is_form_of(records[static_cast<size_t>(other)].name, word))
          definition.names << other;
    definitions.push_back(std::move(definition));
  }
  return definitions;
}

// A row of the table excuses all pairs among its names.
bool excuses(Exceptions& excused, const QString& kind, const QString& first, const QString& second) {
  for (const QStringList& row : excused.rows()) {
    const QStringList names = row[1].split(' ');
    if (row[0] == kind && names.contains(first) && names.contains(second)) return excused.excuse(row);
  }
  return false;
}

qsizetype shared_words(const QSet<QString>& a, const QSet<QString>& b) { return QSet<QString>(a).intersect(b).size(); }

// Content words in common besides the name that one of them says.
qsizetype shared_besides_name(const Definition& naming, const Definition& named, const WordRecord& record) {
  QSet<QString> words = naming.words;
  words.remove(record.name.toLower().left(kStem));
  return shared_words(words, named.words);
}

QString why_suspicious(const std::vector<WordRecord>& records, const std::vector<Definition>& definitions, size_t i,
                       size_t j) {
  const Definition &a = definitions[i], &b = definitions[j];
  const qsizetype shared = shared_words(a.words, b.words);
  const auto shorter = static_cast<double>(std::min(a.words.size(), b.words.size()));
  if (shared >= kFewestShared && static_cast<double>(shared) >= kMostShared * shorter)
    return QString("the definitions share %1 content words").arg(shared);
  const bool a_names_b = a.names.contains(static_cast<int>(j)), b_names_a = b.names.contains(static_cast<int>(i));
  if (a_names_b && b_names_a) return "the definitions name each other's records";
  if (a_names_b && shared_besides_name(a, b, records[j]) > 0)
    return "the first definition names the second record and shares more with it";
  if (b_names_a && shared_besides_name(b, a, records[i]) > 0)
    return "the second definition names the first record and shares more with it";
  return {};
}

// Where a picture has lines: 1 at each pixel that differs plainly from its neighbour, smoothed, around 0 and
// brought to length 1, so that the product of two of these is their likeness.
std::vector<float> lines_of(const QImage& picture) {
  const QImage grey = picture.scaled(kSide, kSide, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                          .convertToFormat(QImage::Format_RGB32);
  const auto step = [&](int x, int y, int u, int v) {
    const QRgb p = grey.pixel(x, y), q = grey.pixel(u, v);
    return std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) + std::abs(qBlue(p) - qBlue(q)) >
           3 * kPlainStep;
  };
  std::vector<float> lines(static_cast<size_t>(kSide) * kSide, 0);
  for (int y = 0; y + 1 < kSide; ++y)
    for (int x = 0; x + 1 < kSide; ++x)
      lines[static_cast<size_t>(y) * kSide + static_cast<size_t>(x)] = step(x, y, x + 1, y) || step(x, y, x, y + 1);
  std::vector<float> smooth(lines.size(), 0);
  for (int y = 1; y + 1 < kSide; ++y)
    for (int x = 1; x + 1 < kSide; ++x)
      for (int v = -1; v <= 1; ++v)
        for (int u = -1; u <= 1; ++u)
          smooth[static_cast<size_t>(y) * kSide + static_cast<size_t>(x)] +=
              lines[static_cast<size_t>(y + v) * kSide + static_cast<size_t>(x + u)];
  // Pictures full of lines have many in common by chance: what counts is more or fewer than in the middle.
  const float middle = std::accumulate(smooth.begin(), smooth.end(), 0.0F) / static_cast<float>(smooth.size());
  float square = 0;
  for (float& value : smooth) {
    value -= middle;
    square += value * value;
  }
  for (float& value : smooth) value /= std::max(std::sqrt(square), 1e-6F);
  return smooth;
}

double product(const std::vector<float>& a, const std::vector<float>& b) {
  float sum = 0;
  for (size_t i = 0; i < a.size(); ++i) sum += a[i] * b[i];
  return static_cast<double>(sum);
}

} // namespace

QStringList suspicious_definitions(const std::vector<WordRecord>& records, Exceptions& excused) {
  const std::vector<Definition> definitions = read_definitions(records);
  QStringList faults;
  for (size_t i = 0; i < records.size(); ++i)
    for (size_t j = i + 1; j < records.size(); ++j)
      if (const QString why = why_suspicious(records, definitions, i, j);
          !why.isEmpty() && !excuses(excused, "definition", records[i].name, records[j].name))
        faults << QString("%1, %2: %3: \"%4\" \"%5\"")
                      .arg(records[i].name, records[j].name, why, records[i].definition, records[j].definition);
  return faults;
}

QStringList suspicious_pictures(const std::vector<WordRecord>& records, const std::vector<QImage>& pictures,
                                Exceptions& excused) {
  std::vector<std::vector<float>> lines;
  lines.reserve(pictures.size());
  for (const QImage& picture : pictures)
    lines.push_back(picture.isNull() ? std::vector<float>(static_cast<size_t>(kSide) * kSide, 0) : lines_of(picture));
  QStringList faults;
  for (size_t i = 0; i < lines.size(); ++i)
    for (size_t j = i + 1; j < lines.size(); ++j)
      if (const double alike = product(lines[i], lines[j]);
          alike >= kMostLikeness && !excuses(excused, "picture", records[i].name, records[j].name))
        faults << QString("%1, %2: the pictures are one drawing but for colours (%3)")
                      .arg(records[i].name, records[j].name)
                      .arg(alike, 0, 'f', 2);
  return faults;
}

double likeness(const QImage& a, const QImage& b) { return product(lines_of(a), lines_of(b)); }

} // namespace cserko
