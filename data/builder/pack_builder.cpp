// Draws the pictures of the data pack and writes its records.
#include "data/builder/builder.h"
#include "data/pack/table.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <cstdio>

using namespace cserko;

namespace {

struct Job {
  const char* name;
  void (*run)(const BuildPaths&);
};

constexpr Job kJobs[] = {
    {"words", build_words},
    {"praise", build_praise_pictures},
    {"directions", build_directions},
    {"colouring", build_colouring},
    {"look", build_look},
    {"scene", build_scene},
    {"contact", build_contact_sheet},
    {"program-icons", build_program_icons},
};

} // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication application(argc, argv);
  QCommandLineParser parser;
  parser.setApplicationDescription(
      "Builds one part of the data pack (words, praise, directions, colouring, look or scene), a contact sheet of its "
      "pictures (contact), or the icons of the program (program-icons).");
  parser.addHelpOption();
  parser.addOptions({{"icons", "The icon set's icons.json.", "file"},
                     {"table", "The table of this part.", "file"},
                     {"output", "The folder (contact: the picture file) to write.", "path"}});
  parser.addPositionalArgument("part", "What to build.");
  parser.process(application);
  const QStringList parts = parser.positionalArguments();
  for (const Job& job : kJobs) {
    if (parts != QStringList{job.name}) continue;
    try {
      job.run({parser.value("icons"), parser.value("table"), parser.value("output")});
      return 0;
    } catch (const PackError& error) {
      std::fprintf(stderr, "pack-builder: %s\n", error.what());
      return 1;
    }
  }
  parser.showHelp(2);
}
