// Every command that stands in the README is run here: what it says can be typed.
#include "data/pack/record.h"
#include "data/pack/table.h"
#include "tests/data/samples.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace cserko {
namespace {

const QString source = QStringLiteral(CSERKO_SOURCE_DIR);

// Commands are the lines of the fenced blocks, continued by a backslash and without their remarks, and what stands in
// single quotes of code and begins as a command does.
QStringList readme_commands() {
  QString text = QString::fromUtf8(read_file(source + "/README.md"));
  text.replace("\\\n", " ");
  QStringList commands;
  static const QRegularExpression block("```\n(.*?)```", QRegularExpression::DotMatchesEverythingOption);
  for (auto match = block.globalMatch(text); match.hasNext();)
    for (const QString& line : match.next().captured(1).split('\n', Qt::SkipEmptyParts))
      commands << line.section(" #", 0, 0).simplified();
  static const QRegularExpression quoted("`((?:make|cmake|build/release/cserko-szó|cserko-szó) [^`]+)`");
  for (auto match = quoted.globalMatch(text); match.hasNext();) commands << match.next().captured(1);
  commands.removeDuplicates();
  return commands;
}

struct Outcome {
  int code;
  QString said;
};

class Readme : public testing::Test {
 protected:
  Readme() : environment_(QProcessEnvironment::systemEnvironment()) {}

  QString in_folder(const QString& name) { return folder_.filePath(name); }
  Outcome run(const QString& program, const QStringList& arguments, const QString& folder) {
    QProcess process;
    process.setProcessEnvironment(environment_);
    process.setWorkingDirectory(folder);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(300000)) << program.toStdString();
    return {process.exitCode(), QString::fromUtf8(process.readAll())};
  }

  // A pack with the texts of all its words; the pictures are looked at elsewhere.
  void make_pack() {
    for (const TableRow& row : read_table(source + "/data/words.tsv", {"number", "name", "english", "syllables",
                                                                       "definition", "true", "false", "icon"}))
      write_if_changed(
          in_folder("pack/kepek/" + row.cells[0] + ".wms"),
          record_bytes({row.cells[1], row.cells[2], row.cells[3], row.cells[4], row.cells[5], row.cells[6]}));
    environment_.insert("CSERKO_PACK_DIR", in_folder("pack"));
    environment_.insert("CSERKO_USER_DIR", in_folder("user"));
  }

  QTemporaryDir folder_;
  QProcessEnvironment environment_;
};

TEST_F(Readme, HasOnlyCommandsThatAreRunHere) {
  int word_tool = 0, make = 0, install = 0, packages = 0;
  for (const QString& command : readme_commands()) {
    const bool of_word_tool = command.startsWith(QStringLiteral("build/release/cserko-szó ")) ||
                              command.startsWith(QStringLiteral("cserko-szó "));
    word_tool += of_word_tool ? 1 : 0;
    make += command.startsWith("make ") ? 1 : 0;
    install += command == "cmake --install build/release" ? 1 : 0;
    // The judges of the packages try this one, without changing the machine.
    packages += command == "sudo apt install ./cserko_*.deb ./cserko-data_*.deb" ? 1 : 0;
    EXPECT_TRUE(of_word_tool || command.startsWith("make ") || command.startsWith("sudo apt ") ||
                command == "cmake --install build/release")
        << command.toStdString();
  }
  EXPECT_GE(word_tool, 3);
  EXPECT_GE(make, 6);
  EXPECT_EQ(install, 1);
  EXPECT_EQ(packages, 1);
}

// One after the other, as a reader types them: the word is added, then the words are looked through.
TEST_F(Readme, CommandsOfTheWordToolWork) {
  make_pack();
  write_if_changed(in_folder(QStringLiteral("szamóca.svg")), red_square());
  const qsizetype words = QDir(in_folder("pack/kepek")).entryList({"*.wms"}).size();
  int added = 0;
  for (const QString& command : readme_commands()) {
    const qsizetype tool = command.indexOf(QStringLiteral("cserko-szó "));
    if (tool < 0) continue;
    QStringList arguments = QProcess::splitCommand(command.mid(tool)).mid(1);
    const bool adds = arguments.contains("--name");
    if (!adds) {
      // Among its words alone: the texts above have no pictures.
      const QString number = QString::number(words);
      QDir().mkpath(in_folder("one/kepek"));
      for (const char* ending : {".wms", ".wmf"})
        QFile::copy(in_folder("pack/kepek/" + number + ending), in_folder(QString("one/kepek/0") + ending));
      environment_.insert("CSERKO_PACK_DIR", in_folder("one"));
      arguments.replaceInStrings(QStringLiteral("FOLDER"), in_folder("one/kepek"));
    }
    const Outcome outcome = run(CSERKO_SZO, arguments, folder_.path());
    EXPECT_EQ(outcome.code, 0) << command.toStdString() << '\n' << outcome.said.toStdString();
    if (!adds) continue;
    ++added;
    EXPECT_EQ(QDir(in_folder("pack/kepek")).entryList({"*.wms"}).size(), words + added);
    EXPECT_FALSE(outcome.said.contains(QStringLiteral("Figyelmeztetés"))) << outcome.said.toStdString();
  }
  EXPECT_EQ(added, 1);
}

// Dry, since they build and test everything that stands here: the targets are there and their recipes can be read. The
// test run itself is one of them.
TEST_F(Readme, TargetsOfMakeAreThere) {
  for (const char* screen : {"DISPLAY", "WAYLAND_DISPLAY", "MAKEFLAGS", "MAKELEVEL"}) environment_.remove(screen);
  for (const QString& command : readme_commands()) {
    if (!command.startsWith("make ")) continue;
    const Outcome outcome = run("make", QStringList{"--dry-run"} + command.split(' ').mid(1), source);
    EXPECT_EQ(outcome.code, 0) << command.toStdString() << '\n' << outcome.said.toStdString();
    EXPECT_FALSE(outcome.said.trimmed().isEmpty()) << command.toStdString();
  }
  EXPECT_NE(run("make", {"--dry-run", "nothing-of-that-name"}, source).code, 0);
}

} // namespace
} // namespace cserko
