// cserko-szó: adds a user's own word to those of the program, or looks the words through.
#include "data/pack/table.h"
#include "data/word_tool/add_word.h"
#include "data/word_tool/picture_file.h"
#include "platform/qt/command_line.h"
#include "platform/qt/files.h"

#include <QDir>
#include <QGuiApplication>
#include <cstdio>
#include <memory>
#ifdef Q_OS_WIN
#include <windows.h>
#endif

using namespace cserko;

namespace {

constexpr int kRefused = 1;
const QString kRemark = QStringLiteral("Figyelmeztetés: ");

void say(FILE* stream, const QString& text) { std::fprintf(stream, "%s\n", text.toUtf8().constData()); }

QString pointing_to_help(const QString& what) {
  return QStringLiteral("%1 A használat: %2 --help").arg(what, program_name());
}

// Where the program on this machine reads its words: the pack, behind a folder of the user's where the pack is
// read-only.
QtFiles program_files() { return {QtFiles::find_pack(), QtFiles::find_user_folder()}; }

QStringList program_folders() {
  if (QtFiles::find_pack().isEmpty())
    throw PackError(
        QStringLiteral("A Cserkó szavai nincsenek meg ezen a gépen; a mappa a --folder kapcsolóval adható meg."));
  return program_files().real_paths(Text(logical_application_folder) + u"kepek");
}

// The folders to look through; the user's own is not there before its first word.
int check(const QStringList& given) {
  QStringList folders = given;
  if (given.isEmpty())
    for (const QString& folder : program_folders())
      if (QDir(folder).exists()) folders << folder;
  const Review review = folder_review(folders);
  for (const QString& remark : review.remarks) say(stderr, kRemark + remark);
  for (const QString& fault : review.faults) say(stderr, fault);
  if (!review.faults.isEmpty()) return kRefused;
  say(stdout, "A mappa minden szava használható.");
  return 0;
}

QStringList folders_to_write(const QCommandLineParser& given) {
  if (given.isSet("folder")) return {given.value("folder")};
  QStringList folders = program_folders();
  QDir().mkpath(folders.first());
  return folders;
}

WordRules rules(const QCommandLineParser& given) {
  WordRules result;
  result.strict = given.isSet("strict");
  if (const auto list = program_files().read(Text(logical_application_folder) + u"ms.skt"))
    result.word_list = QByteArray::fromStdString(*list);
  return result;
}

int add(const QCommandLineParser& given) {
  const QStringList needed{"name", "english", "syllables", "definition", "true", "false", "picture"};
  for (const QString& option : needed)
    if (given.value(option).isEmpty()) {
      say(stderr, pointing_to_help(QString("Hiányzik: --%1.").arg(option)));
      return wrong_use;
    }
  // Blanks at the ends and doubled ones are nobody's intention.
  const auto text = [&](const char* option) {
    return given.value(option).normalized(QString::NormalizationForm_C).simplified();
  };
  const WordRecord record{text("name"),       text("english"), text("syllables"),
                          text("definition"), text("true"),    text("false")};
  const AddedWord added = add_word(folders_to_write(given), record, given.value("picture"), rules(given));
  for (const QString& remark : added.review.remarks) say(stderr, kRemark + remark);
  for (const QString& fault : added.review.faults) say(stderr, fault);
  if (added.text_file.isEmpty()) return kRefused;
  say(stdout, QString("Elkészült: %1 és %2").arg(added.text_file, added.picture));
  return 0;
}

void describe(QCommandLineParser& parser) {
  parser.setApplicationDescription(
      QStringLiteral(
          "Saját szót ad a Cserkó szavaihoz, vagy átnézi a szavakat.\n\n"
          "Példa: %1 --name szamóca --english \"wild strawberry\" --syllables sza-mó-ca --definition \"Apró, piros "
          "erdei gyümölcs.\" --true \"Közel terem a földhöz.\" --false \"Négy kereke van.\" --picture szamóca.%2")
          .arg(program_name(), picture_kinds().section(',', 0, 0).toLower()));
  parser.addOptions(
      {{"folder", QStringLiteral("Ide írja a szót; enélkül oda, ahonnan ezen a gépen a Cserkó olvas."),
        QStringLiteral("mappa")},
       {"name", QStringLiteral("A szó magyarul."), QStringLiteral("szó")},
       {"english", QStringLiteral("A szó angolul."), QStringLiteral("szó")},
       {"syllables", QStringLiteral("A szó szótagolva, kötőjelekkel."), QStringLiteral("szó")},
       {"definition", QStringLiteral("Meghatározás, amely nem nevezi meg a dolgot."), QStringLiteral("mondat")},
       {"true", QStringLiteral("Igaz állítás a képről."), QStringLiteral("mondat")},
       {"false", QStringLiteral("Hamis állítás a képről."), QStringLiteral("mondat")},
       {"picture", QStringLiteral("A kép: %1.").arg(picture_kinds()), QStringLiteral("fájl")},
       {"strict", QStringLiteral("Ha figyelmeztetés van, nem írja ki a szót.")},
       {"check", QStringLiteral("Új szó helyett átnézi a Cserkó szavait vagy a megadott mappát.")}});
  parser.addPositionalArgument("mappa", QStringLiteral("Csak a --check mellett: az átnézendő mappa."), "[mappa]");
}

const QString kExitCodes =
    QStringLiteral("Kilépési kód: 0, ha a szó elkészült, vagy az átnézett szavak mind használhatók; 1, ha a szó nem\n"
                   "használható vagy nem írható ki; 2, ha a parancssor nem érthető.\n");

} // namespace

int main(int argc, char** argv) {
#ifdef Q_OS_WIN
  SetConsoleOutputCP(CP_UTF8);
#else
  // Nothing is shown: it runs without a screen too.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
  const std::unique_ptr<QCoreApplication> application(asks_about_program(argc, argv) ? new QCoreApplication(argc, argv)
                                                                                     : new QGuiApplication(argc, argv));
  QCommandLineParser parser;
  describe(parser);
  read_command_line(parser, kExitCodes);
  try {
    const QStringList folders = parser.positionalArguments();
    if (folders.size() > (parser.isSet("check") ? 1 : 0)) {
      say(stderr, pointing_to_help(QString("Fölösleges: %1.").arg(folders.last())));
      return wrong_use;
    }
    return parser.isSet("check") ? check(folders) : add(parser);
  } catch (const PackError& error) {
    say(stderr, error.what());
    return kRefused;
  }
}
