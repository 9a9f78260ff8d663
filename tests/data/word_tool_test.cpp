#include "data/pack/picture.h"
#include "data/pack/record_checks.h"
#include "data/pack/table.h"
#include "data/word_tool/add_word.h"
#include "platform/qt/files.h"
#include "tests/data/samples.h"

#include <QBuffer>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

namespace cserko {
namespace {

class WordTool : public testing::Test {
 protected:
  QString picture(const QString& name, const QByteArray& bytes) {
    QString path = pictures_.filePath(name);
    write_if_changed(path, bytes);
    return path;
  }
  static QByteArray pixels(const QSize& size, const char* format) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return buffer.data();
  }
  AddedWord add(const WordRecord& record, const QString& picture_path, const WordRules& rules = {}) {
    return add_word({folder_.path()}, record, picture_path, rules);
  }
  QStringList files() { return QDir(folder_.path()).entryList(QDir::Files, QDir::Name); }
  QString in_folder(const QString& name) { return folder_.filePath(name); }
  static WordRecord pear() {
    WordRecord record = apple();
    record.name = QStringLiteral("körte");
    record.syllables = QStringLiteral("kör-te");
    record.definition = QStringLiteral("Sárga, lédús gyümölcs, alul szélesebb.");
    return record;
  }
  QTemporaryDir folder_, pictures_;
};

TEST_F(WordTool, WritesTheNextNumberedPair) {
  const AddedWord first = add(apple(), picture("a.svg", red_square()));
  EXPECT_EQ(first.review.faults, QStringList());
  const AddedWord second = add(pear(), picture("b.svg", svg("<circle cx=\"16\" cy=\"16\" r=\"9\" fill=\"#00aa00\"/>")));
  EXPECT_EQ(second.text_file, in_folder("1.wms"));
  EXPECT_EQ(files(), (QStringList{"0.wmf", "0.wms", "1.wmf", "1.wms"}));
  EXPECT_EQ(read_file(in_folder("0.wms")), record_bytes(apple()));
  EXPECT_EQ(folder_review({folder_.path()}).all(), QStringList());
}

TEST_F(WordTool, DrawsAnSvgOfGradientsIntoPixels) {
  const QByteArray gradient =
      svg("<defs><linearGradient id=\"g\"><stop offset=\"0\" stop-color=\"#f00\"/><stop offset=\"1\" "
          "stop-color=\"#00f\"/></linearGradient></defs><path fill=\"url(#g)\" d=\"M8 8h16v16H8z\"/>");
  EXPECT_EQ(add(apple(), picture("a.svg", gradient)).review.faults, QStringList());
  EXPECT_EQ(files(), (QStringList{"0.png", "0.wms"}));
  EXPECT_GT(QImage(in_folder("0.png")).width(), 1000);
}

TEST_F(WordTool, TakesPhotosAsTheyAreAndMakesLargeOnesSmaller) {
  const QByteArray small = pixels({300, 200}, "JPEG");
  EXPECT_EQ(add(apple(), picture("a.jpeg", small)).review.faults, QStringList());
  EXPECT_EQ(read_file(in_folder("0.jpg")), small);
  EXPECT_EQ(add(pear(), picture("b.png", pixels({3000, 2000}, "PNG"))).review.faults, QStringList());
  EXPECT_EQ(QImage(in_folder("1.png")).size(), QSize(1200, 800));
}

TEST_F(WordTool, TakesAMetafile) {
  SquarePicture square(red_square());
  const QByteArray bytes = square.metafile();
  EXPECT_EQ(add(apple(), picture("a.wmf", bytes)).review.faults, QStringList());
  EXPECT_EQ(read_file(in_folder("0.wmf")), bytes);
}

TEST_F(WordTool, WritesNothingForAFaultyRecordOrPicture) {
  WordRecord faulty = apple();
  faulty.syllables = "alm-a-a";
  EXPECT_FALSE(add(faulty, picture("a.svg", red_square())).review.faults.isEmpty());
  for (const char* name : {"a.wmf", "a.png", "a.jpg", "a.svg", "a.gif"})
    EXPECT_FALSE(add(apple(), picture(name, "no picture at all")).review.faults.isEmpty()) << name;
  EXPECT_FALSE(add(apple(), pictures_.filePath("absent.png")).review.faults.isEmpty());
  EXPECT_FALSE(add_word({in_folder("absent")}, apple(), picture("a.svg", red_square())).review.faults.isEmpty());
  EXPECT_EQ(files(), QStringList());
}

TEST_F(WordTool, RefusesAWordThatIsThereAlready) {
  const QString square = picture("a.svg", red_square());
  ASSERT_TRUE(add(apple(), square).review.faults.isEmpty());
  EXPECT_EQ(add(apple(), square).review.faults.size(), 1);
  EXPECT_EQ(files().size(), 2);
}

TEST_F(WordTool, SaysWhatCouldBeBetterAndObeysOnlyOnRequest) {
  ASSERT_TRUE(add(apple(), picture("a.svg", red_square())).review.faults.isEmpty());
  WordRecord clumsy = pear();
  clumsy.definition = apple().definition;
  clumsy.truth = QStringLiteral("Sárga.");
  const QString bar = picture("b.svg", svg("<path fill=\"#00ff00\" d=\"M8 12h16v8H8z\"/>"));
  WordRules strict;
  strict.strict = true;
  strict.word_list = "alma\r\n";
  const AddedWord refused = add(clumsy, bar, strict);
  EXPECT_EQ(refused.review.remarks.size(), 3); // the list does not know it, the definition is there, one word is short
  EXPECT_EQ(refused.review.faults, QStringList());
  EXPECT_EQ(refused.text_file, QString());
  EXPECT_EQ(files().size(), 2);
  const AddedWord added = add(clumsy, bar);
  EXPECT_EQ(added.review.remarks.size(), 2);
  EXPECT_EQ(added.text_file, in_folder("1.wms"));
}

TEST_F(WordTool, LooksTheNameUpInTheWordList) {
  const QString square = picture("a.svg", red_square());
  WordRules rules;
  for (const char* list : {"alma\r\nbanán\r\n", "agy\r\nalma\r\n"}) {
    rules.word_list = list;
    EXPECT_EQ(add_word({in_folder(".")}, apple(), picture("no.svg", "none"), rules).review.remarks, QStringList());
  }
  for (const char* list : {"almafa\r\n", "birsalma\r\n"}) {
    rules.word_list = list;
    EXPECT_EQ(add_word({in_folder(".")}, apple(), picture("no.svg", "none"), rules).review.remarks.size(), 1) << list;
  }
}

// A pack inside the program is read-only for everybody, also for a user who may write anywhere.
TEST_F(WordTool, AReadOnlyPackGetsItsWordsInTheUsersFolder) {
  const QtFiles files(":/pack", folder_.path());
  const Text records = Text(logical_application_folder) + u"kepek\\";
  const QStringList folders = files.real_paths(records);
  ASSERT_EQ(folders.size(), 2);
  QDir().mkpath(folders.first());
  write_if_changed(folders.first() + "/0.jpg", "the number is taken");
  const AddedWord added = add_word(folders, apple(), picture("a.png", pixels({300, 200}, "PNG")));
  EXPECT_EQ(added.review.faults, QStringList());
  EXPECT_TRUE(added.text_file.startsWith(folder_.path())) << added.text_file.toStdString();
  EXPECT_EQ(files.list(records + u"*.wms").size(), 3U);
  EXPECT_EQ(files.read(records + u"1.wms"), record_bytes(apple()).toStdString());
  EXPECT_EQ(files.real_paths(records + u"1.png").first(), added.picture);
}

TEST_F(WordTool, NeverOverwrites) {
  write_if_changed(in_folder("0.png"), "kept");
  write_if_changed(in_folder("1.wms"), "kept");
  const AddedWord added = add(apple(), picture("a.svg", red_square()));
  EXPECT_EQ(added.text_file, in_folder("2.wms"));
  EXPECT_EQ(read_file(in_folder("0.png")), "kept");
  EXPECT_EQ(read_file(in_folder("1.wms")), "kept");
}

// The tool itself, started as a user does.
class WordToolCommand : public WordTool {
 protected:
  struct Outcome {
    int code;
    QString said;
  };
  Outcome run(const QStringList& arguments) {
    QProcess tool;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("CSERKO_PACK_DIR", pack());
    environment.insert("CSERKO_USER_DIR", folder_.filePath("user"));
    tool.setProcessEnvironment(environment);
    tool.setProcessChannelMode(QProcess::MergedChannels);
    tool.start(CSERKO_SZO, arguments);
    EXPECT_TRUE(tool.waitForFinished(60000));
    return {tool.exitCode(), QString::fromUtf8(tool.readAll())};
  }
  QString pack() const { return folder_.filePath("pack"); }
  QStringList words(const WordRecord& record) {
    return {"--name",       record.name,
            "--english",    record.english,
            "--syllables",  record.syllables,
            "--definition", record.definition,
            "--true",       record.truth,
            "--false",      record.falsehood,
            "--picture",    picture("a.svg", red_square())};
  }
};

TEST_F(WordToolCommand, SaysByItsExitStatusHowItWent) {
  const QStringList all = words(apple()) + QStringList{"--folder", folder_.path()};
  EXPECT_EQ(run({"--name", "alma"}).code, 2);
  EXPECT_EQ(run({"--check", folder_.path()}).code, 1); // nothing in it yet
  EXPECT_EQ(run(all).code, 0);
  EXPECT_EQ(run(all).code, 1); // there already
  EXPECT_EQ(run({"--check", folder_.path()}).code, 0);
  EXPECT_EQ(run({"--check", folder_.path(), "more"}).code, 2);
}

TEST_F(WordToolCommand, SaysInHungarianWhatIsWrong) {
  const Outcome unknown = run({"--word", "alma"});
  EXPECT_EQ(unknown.code, 2);
  EXPECT_TRUE(unknown.said.contains(QStringLiteral("Ismeretlen kapcsoló: word."))) << unknown.said.toStdString();
  const Outcome open_ended = run({"--name"});
  EXPECT_EQ(open_ended.code, 2);
  EXPECT_TRUE(open_ended.said.contains(QStringLiteral("Hiányzik az érték: --name."))) << open_ended.said.toStdString();
  QStringList no_picture = words(apple()) + QStringList{"--folder", folder_.path()};
  no_picture[no_picture.indexOf("--picture") + 1] = in_folder("alma.svg");
  const Outcome refused = run(no_picture);
  EXPECT_EQ(refused.code, 1);
  EXPECT_TRUE(refused.said.contains(QStringLiteral("alma.svg: nincs ilyen kép."))) << refused.said.toStdString();
  const Outcome help = run({"--help"});
  EXPECT_EQ(help.code, 0);
  EXPECT_TRUE(help.said.contains(QStringLiteral("Használat:"))) << help.said.toStdString();
  for (const char* english : {"Usage", "ptions:", "rguments", "Displays"})
    EXPECT_FALSE(help.said.contains(english)) << help.said.toStdString();
}

TEST_F(WordToolCommand, WritesWhereTheProgramReads) {
  QDir().mkpath(pack() + "/kepek");
  EXPECT_EQ(run(words(apple())).code, 0);
  EXPECT_TRUE(QFile::exists(pack() + "/kepek/0.wms"));
  EXPECT_EQ(run({"--check"}).code, 0);
}

TEST_F(WordToolCommand, WarnsAndWritesUnlessItIsToBeStrict) {
  QDir().mkpath(pack() + "/kepek");
  write_if_changed(pack() + "/ms.skt", to_code_page(QStringLiteral("körte\r\n")));
  WordRecord clumsy = apple();
  clumsy.truth = " Piros  héja van";
  const Outcome refused = run(words(clumsy) + QStringList{"--strict"});
  EXPECT_EQ(refused.code, 1);
  EXPECT_EQ(refused.said.count(QStringLiteral("Figyelmeztetés: ")), 2) << refused.said.toStdString();
  const Outcome added = run(words(clumsy));
  EXPECT_EQ(added.code, 0);
  EXPECT_EQ(added.said.count(QStringLiteral("Figyelmeztetés: ")), 2) << added.said.toStdString();
  EXPECT_EQ(read_record(read_file(pack() + "/kepek/0.wms"))->truth, QStringLiteral("Piros héja van"));
}

} // namespace
} // namespace cserko
