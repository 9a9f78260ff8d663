// cserko-szó: adds a user's own word to a folder of words, or checks such a folder.
#include "data/pack/record_checks.h"
#include "data/pack/table.h"
#include "data/word_tool/add_word.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <cstdio>

using namespace cserko;

namespace {

constexpr int kRefused = 1, kWrongUse = 2;

void say(FILE* stream, const QString& text) { std::fprintf(stream, "%s\n", text.toUtf8().constData()); }

int check_folder(const QString& folder) {
  const QStringList faults = folder_faults(folder);
  for (const QString& fault : faults) say(stderr, fault);
  if (faults.isEmpty()) say(stdout, "A mappa minden szava rendben van.");
  return faults.isEmpty() ? 0 : kRefused;
}

int add(const QCommandLineParser& given) {
  const QStringList needed{"folder", "name", "english", "syllables", "definition", "true", "false", "picture"};
  for (const QString& option : needed)
    if (given.value(option).isEmpty()) {
      say(stderr, QString("Hiányzik: --%1. A használat: cserko-szó --help").arg(option));
      return kWrongUse;
    }
  const auto text = [&](const char* option) { return given.value(option).normalized(QString::NormalizationForm_C); };
  const WordRecord record{text("name"),       text("english"), text("syllables"),
                          text("definition"), text("true"),    text("false")};
  const AddedWord added = add_word(given.value("folder"), record, given.value("picture"));
  for (const QString& fault : added.faults) say(stderr, fault);
  if (!added.faults.isEmpty()) return kRefused;
  say(stdout, QString("Elkészült: %1 és %2").arg(added.text_file, added.picture));
  return 0;
}

} // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("cserko-szó"));
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral(
      "Saját szót ad Cserkó szavaihoz, vagy átnézi a szavak mappáját.\n\n"
      "Példa: cserko-szó --folder kepek --name alma --english apple --syllables al-ma --definition \"Kerek, ropogós "
      "gyümölcs.\" --true \"Fán terem.\" --false \"Négy kereke van.\" --picture alma.svg"));
  parser.addOptions(
      {{"folder", QStringLiteral("A szavak mappája."), QStringLiteral("mappa")},
       {"name", QStringLiteral("A szó magyarul."), QStringLiteral("szó")},
       {"english", QStringLiteral("A szó angolul."), QStringLiteral("szó")},
       {"syllables", QStringLiteral("A szó szótagolva, kötőjelekkel."), QStringLiteral("szó")},
       {"definition", QStringLiteral("Meghatározás, amely nem nevezi meg a dolgot."), QStringLiteral("mondat")},
       {"true", QStringLiteral("Igaz állítás a képről."), QStringLiteral("mondat")},
       {"false", QStringLiteral("Hamis állítás a képről."), QStringLiteral("mondat")},
       {"picture", QStringLiteral("A kép: SVG, PNG, JPEG vagy WMF."), QStringLiteral("fájl")},
       {"check", QStringLiteral("Új szó helyett ezt a mappát nézi át."), QStringLiteral("mappa")}});
  parser.addHelpOption();
  parser.process(application);
  try {
    return parser.isSet("check") ? check_folder(parser.value("check")) : add(parser);
  } catch (const PackError& error) {
    say(stderr, error.what());
    return kRefused;
  }
}
