// Proves that the data pack is right and that every exercise can be played on it; writes what it counted.
#include "data/checker/exercise_check.h"
#include "data/checker/language_checks.h"
#include "data/checker/report.h"
#include "data/checker/suspicious_pairs.h"
#include "data/pack/picture.h"
#include "data/pack/record_checks.h"
#include "data/pack/table.h"

#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>
#include <cstdio>

using namespace cserko;

namespace {

constexpr int kFewestRecords = 500;
constexpr int kPairLines = 31;
constexpr int kPairPictureSide = 160; // pixels, before they are drawn together
constexpr int kFewestPraisePictures = 20, kFewestPages = 20, kFewestMotifs = 12;
constexpr double kMostSameOpening = 0.08; // share of the sentences of one kind that may begin with the same word

std::vector<WordRecord> table_records(const QString& path) {
  std::vector<WordRecord> records;
  for (const TableRow& row :
       read_table(path, {"number", "name", "english", "syllables", "definition", "true", "false", "icon"}))
    records.push_back({row.cells[1], row.cells[2], row.cells[3], row.cells[4], row.cells[5], row.cells[6]});
  return records;
}

// The pack's own names are stricter than a user's: one word in small letters, which every exercise takes.
QStringList name_faults(const std::vector<WordRecord>& records) {
  QStringList faults;
  for (const WordRecord& record : records)
    if (record.name != record.name.toLower() || record.name.contains(' ') || record.name.contains('-'))
      faults << record.name + ": not one word in small letters";
  return faults;
}

// How a sentence begins: with its first word, or, behind an article, its first two.
QString opening_of(const QString& sentence) {
  const QString first = sentence.section(' ', 0, 0).toLower();
  const bool article = first == "a" || first == "az" || first == "egy";
  return article ? sentence.section(' ', 0, 1).toLower() : first;
}

QStringList opening_faults(const std::vector<WordRecord>& records) {
  std::map<QString, std::map<QString, int>> kinds;
  for (const WordRecord& record : records) {
    ++kinds["definitions"][opening_of(record.definition)];
    ++kinds["true statements"][opening_of(record.truth)];
    ++kinds["false statements"][opening_of(record.falsehood)];
  }
  QStringList faults;
  for (const auto& [kind, openings] : kinds)
    for (const auto& [word, count] : openings)
      if (count > kMostSameOpening * static_cast<double>(records.size()))
        faults << QString("%1 of the %2 begin with \"%3\"").arg(count).arg(kind, word);
  return faults;
}

// The built files must say what the table says, or the table was changed without building.
QStringList stale_faults(const std::vector<WordRecord>& records, const QString& folder) {
  QStringList faults;
  const qsizetype files = QDir(folder).entryList({"*.wms"}, QDir::Files).size();
  if (files != static_cast<qsizetype>(records.size())) faults << "the table and the built records differ in number";
  for (size_t i = 0; i < records.size(); ++i) {
    const QString path = QString("%1/%2.wms").arg(folder).arg(i);
    if (!QFile::exists(path) || read_file(path) != record_bytes(records[i]))
      faults << path + ": not what the table says";
  }
  return faults;
}

void require_count(const QString& folder, const QString& pattern, int fewest, QStringList& faults) {
  const qsizetype count = QDir(folder).entryList({pattern}, QDir::Files).size();
  if (count < fewest)
    faults << QString("%1: %2 files %3, at least %4 are needed").arg(folder).arg(count).arg(pattern).arg(fewest);
}

QStringList question_faults(const QString& folder) {
  QStringList faults;
  for (const QString& name : QDir(folder).entryList({"*.swm"}, QDir::Files)) {
    const QString question = from_code_page(read_file(folder + "/" + name)).section("\r\n", 0, 0);
    if (question.isEmpty() || question.contains('?')) faults << name + ": needs a question without its mark";
  }
  return faults;
}

QStringList part_faults(const QString& pack_folder, const Pack& pack) {
  QStringList faults;
  require_count(pack_folder + QStringLiteral("/dicskép"), "*.wmf", kFewestPraisePictures, faults);
  require_count(pack_folder + "/cserko/kifest", "*.kif", kFewestPages, faults);
  require_count(pack_folder + "/irkep", "*.swm", kFewestMotifs, faults);
  faults += question_faults(pack_folder + "/irkep");
  if (pack.pairs.size() != kPairLines)
    faults << QString("betűpár.kvl: %1 lines, %2 are needed").arg(pack.pairs.size()).arg(kPairLines);
  return faults;
}

// Pairs that a child could mix up, as words and as pictures.
QStringList pair_faults(const std::vector<WordRecord>& records, const QString& folder, Exceptions& excused) {
  std::vector<QImage> pictures;
  pictures.reserve(records.size());
  for (size_t i = 0; i < records.size(); ++i) {
    const QString path = QString("%1/%2.wmf").arg(folder).arg(i);
    pictures.push_back(QFile::exists(path) ? draw_metafile(read_file(path), kPairPictureSide) : QImage());
  }
  return suspicious_definitions(records, excused) + suspicious_pictures(records, pictures, excused);
}

struct Paths {
  QString pack, table, exceptions, report;
  DictionaryPaths dictionaries;
};

QStringList check(const Paths& paths) {
  Exceptions spelling(paths.exceptions + "/spelling.tsv", {"language", "word"});
  Exceptions syllables(paths.exceptions + "/syllables.tsv", {"syllables"});
  Exceptions settings(paths.exceptions + "/settings.tsv", {"window", "setting"});
  Exceptions pairs(paths.exceptions + "/pairs.tsv", {"kind", "names"});
  const std::vector<WordRecord> records = table_records(paths.table);
  const Pack pack = read_pack(paths.pack);
  QStringList faults;
  if (records.size() < kFewestRecords)
    faults << QString("%1 records, at least %2 are needed").arg(records.size()).arg(kFewestRecords);
  faults += stale_faults(records, paths.pack + "/kepek");
  faults += folder_review({paths.pack + "/kepek"}).all();
  faults += name_faults(records) + opening_faults(records);
  faults += spelling_faults(records, paths.dictionaries, spelling);
  faults += syllable_faults(records, paths.dictionaries, syllables);
  faults += pair_faults(records, paths.pack + "/kepek", pairs);
  faults += part_faults(paths.pack, pack);
  const std::vector<ExerciseFilter> filters = exercise_filters(pack);
  std::vector<ExerciseOutcome> outcomes;
  outcomes.reserve(filters.size());
  for (const ExerciseFilter& filter : filters) outcomes.push_back(count_combinations(filter));
  for (const ExerciseOutcome& outcome : outcomes) faults += unplayable(outcome, settings);
  faults += spelling.faults() + syllables.faults() + settings.faults() + pairs.faults();
  const QString report = pack_report(paths.pack, pack, outcomes, {&spelling, &syllables, &settings, &pairs});
  std::fputs(summary_of(report).toUtf8().constData(), stdout);
  if (!paths.report.isEmpty()) write_if_changed(paths.report, report.toUtf8());
  return faults;
}

} // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  QCommandLineParser parser;
  parser.setApplicationDescription(
      "Checks the data pack; exit status 1 and one line for each fault when it is not right.");
  parser.addHelpOption();
  parser.addOptions({{"pack", "The built pack.", "folder"},
                     {"table", "The word table.", "file"},
                     {"exceptions", "The folder of reviewed exceptions.", "folder"},
                     {"hungarian", "The Hungarian spelling dictionary, without its endings.", "path"},
                     {"english", "The English spelling dictionary, without its endings.", "path"},
                     {"hyphenation", "The Hungarian hyphenation patterns.", "file"},
                     {"report", "Where to write what was counted, as Markdown.", "file"}});
  parser.process(application);
  QStringList faults;
  try {
    faults = check({parser.value("pack"),
                    parser.value("table"),
                    parser.value("exceptions"),
                    parser.value("report"),
                    {parser.value("hungarian"), parser.value("english"), parser.value("hyphenation")}});
  } catch (const PackError& error) {
    faults << error.what();
  }
  for (const QString& fault : faults) std::fprintf(stderr, "%s\n", fault.toUtf8().constData());
  if (!faults.isEmpty()) std::fprintf(stderr, "pack-checker: %lld faults\n", static_cast<long long>(faults.size()));
  return faults.isEmpty() ? 0 : 1;
}
