#include "data/pack/picture.h"
#include "data/pack/record_checks.h"
#include "data/pack/table.h"
#include "data/word_tool/add_word.h"
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
  const AddedWord first = add_word(folder_.path(), apple(), picture("a.svg", red_square()));
  EXPECT_EQ(first.faults, QStringList());
  const AddedWord second =
      add_word(folder_.path(), pear(), picture("b.svg", svg("<circle cx=\"16\" cy=\"16\" r=\"9\" fill=\"#00aa00\"/>")));
  EXPECT_EQ(second.text_file, in_folder("1.wms"));
  EXPECT_EQ(files(), (QStringList{"0.wmf", "0.wms", "1.wmf", "1.wms"}));
  EXPECT_EQ(read_file(in_folder("0.wms")), record_bytes(apple()));
  EXPECT_EQ(folder_faults(folder_.path()), QStringList());
}

TEST_F(WordTool, DrawsAnSvgOfGradientsIntoPixels) {
  const QByteArray gradient =
      svg("<defs><linearGradient id=\"g\"><stop offset=\"0\" stop-color=\"#f00\"/><stop offset=\"1\" "
          "stop-color=\"#00f\"/></linearGradient></defs><path fill=\"url(#g)\" d=\"M8 8h16v16H8z\"/>");
  EXPECT_EQ(add_word(folder_.path(), apple(), picture("a.svg", gradient)).faults, QStringList());
  EXPECT_EQ(files(), (QStringList{"0.png", "0.wms"}));
  EXPECT_GT(QImage(in_folder("0.png")).width(), 1000);
}

TEST_F(WordTool, TakesPhotosAsTheyAreAndMakesLargeOnesSmaller) {
  const QByteArray small = pixels({300, 200}, "JPEG");
  EXPECT_EQ(add_word(folder_.path(), apple(), picture("a.jpeg", small)).faults, QStringList());
  EXPECT_EQ(read_file(in_folder("0.jpg")), small);
  EXPECT_EQ(add_word(folder_.path(), pear(), picture("b.png", pixels({3000, 2000}, "PNG"))).faults, QStringList());
  EXPECT_EQ(QImage(in_folder("1.png")).size(), QSize(1200, 800));
}

TEST_F(WordTool, TakesAMetafile) {
  SquarePicture square(red_square());
  const QByteArray bytes = square.metafile();
  EXPECT_EQ(add_word(folder_.path(), apple(), picture("a.wmf", bytes)).faults, QStringList());
  EXPECT_EQ(read_file(in_folder("0.wmf")), bytes);
}

TEST_F(WordTool, WritesNothingForAFaultyRecordOrPicture) {
  WordRecord faulty = apple();
  faulty.syllables = "alm-a-a";
  EXPECT_FALSE(add_word(folder_.path(), faulty, picture("a.svg", red_square())).faults.isEmpty());
  for (const char* name : {"a.wmf", "a.png", "a.jpg", "a.svg", "a.gif"})
    EXPECT_FALSE(add_word(folder_.path(), apple(), picture(name, "no picture at all")).faults.isEmpty()) << name;
  EXPECT_FALSE(add_word(folder_.path(), apple(), pictures_.filePath("absent.png")).faults.isEmpty());
  EXPECT_FALSE(add_word(in_folder("absent"), apple(), picture("a.svg", red_square())).faults.isEmpty());
  EXPECT_EQ(files(), QStringList());
}

TEST_F(WordTool, RefusesAWordThatIsThereAlready) {
  const QString square = picture("a.svg", red_square());
  ASSERT_TRUE(add_word(folder_.path(), apple(), square).faults.isEmpty());
  EXPECT_EQ(add_word(folder_.path(), apple(), square).faults.size(), 1);
  WordRecord same_definition = pear();
  same_definition.definition = apple().definition;
  EXPECT_EQ(add_word(folder_.path(), same_definition, square).faults.size(), 1);
  EXPECT_EQ(files().size(), 2);
}

TEST_F(WordTool, NeverOverwrites) {
  write_if_changed(in_folder("0.png"), "kept");
  write_if_changed(in_folder("1.wms"), "kept");
  const AddedWord added = add_word(folder_.path(), apple(), picture("a.svg", red_square()));
  EXPECT_EQ(added.text_file, in_folder("2.wms"));
  EXPECT_EQ(read_file(in_folder("0.png")), "kept");
  EXPECT_EQ(read_file(in_folder("1.wms")), "kept");
}

TEST_F(WordTool, SaysByItsExitStatusHowItWent) {
  const auto run = [&](const QStringList& arguments) {
    QProcess tool;
    tool.start(CSERKO_SZO, arguments);
    EXPECT_TRUE(tool.waitForFinished(60000));
    return tool.exitCode();
  };
  QStringList all{"--folder", folder_.path(), "--picture", picture("a.svg", red_square()), "--name", "alma"};
  all << "--english"
      << "apple"
      << "--syllables"
      << "al-ma"
      << "--definition" << apple().definition;
  all << "--true" << apple().truth << "--false" << apple().falsehood;
  EXPECT_EQ(run({"--name", "alma"}), 2);
  EXPECT_EQ(run({"--check", folder_.path()}), 1); // nothing in it yet
  EXPECT_EQ(run(all), 0);
  EXPECT_EQ(run(all), 1); // there already
  EXPECT_EQ(run({"--check", folder_.path()}), 0);
}

} // namespace
} // namespace cserko
