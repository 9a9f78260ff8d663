#include "drawing.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace cserko::test {
namespace {

struct Outcome {
  int status = -1;
  QString error;
};

Outcome run(const QStringList& arguments) {
  QProcess process;
  process.start(QStringLiteral(PICTURE_RENDER), arguments);
  EXPECT_TRUE(process.waitForFinished());
  return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
          QString::fromUtf8(process.readAllStandardError())};
}

class PictureRender : public testing::Test {
 protected:
  PictureRender() {
    QFile file(in());
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(Wmf().window(200, 100).fills(kRed).rectangle(0, 0, 100, 100).file());
  }
  QString in() const { return folder_.filePath(QString::fromUtf8("kép egy.wmf")); }
  QString out() const { return folder_.filePath("out.png"); }

 private:
  QTemporaryDir folder_;
};

} // namespace

TEST_F(PictureRender, HeightFollowsTheAspect) {
  EXPECT_EQ(run({in(), out(), "80"}).status, 0);
  const QImage image(out());
  EXPECT_EQ(image.size(), QSize(80, 40));
  EXPECT_TRUE(has_color(image, 20, 20, kRed));
  EXPECT_TRUE(has_color(image, 60, 20, kWhite)) << "white paper";
}

TEST_F(PictureRender, GivenHeightIsFilled) {
  EXPECT_EQ(run({in(), out(), "80", "90"}).status, 0);
  const QImage image(out());
  EXPECT_EQ(image.size(), QSize(80, 90));
  EXPECT_TRUE(near_rect(ink(image), QRect(0, 0, 40, 90), 0));
}

TEST_F(PictureRender, SaysInOneLineWhyNothingWasDrawn) {
  QFile junk(in() + ".junk");
  ASSERT_TRUE(junk.open(QIODevice::WriteOnly));
  junk.write("Ez nem kép.");
  junk.close();
  for (const QStringList& arguments :
       {QStringList{in() + ".none", out(), "80"}, QStringList{junk.fileName(), out(), "80"},
        QStringList{in(), out() + "/x/y.png", "80"}}) {
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.error.count('\n'), 1) << outcome.error.toStdString();
    EXPECT_TRUE(outcome.error.startsWith("picture-render: "));
    EXPECT_FALSE(QFile::exists(out()));
  }
}

TEST_F(PictureRender, WrongArgumentsShowTheUsage) {
  for (const QStringList& arguments :
       {QStringList{}, QStringList{in()}, QStringList{in(), out()}, QStringList{in(), out(), "0"},
        QStringList{in(), out(), "-5"}, QStringList{in(), out(), "80x"}, QStringList{in(), out(), "9000"},
        QStringList{in(), out(), "80", "0"}, QStringList{in(), out(), "80", "90", "100"}}) {
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_TRUE(outcome.error.startsWith("usage: picture-render")) << outcome.error.toStdString();
  }
}

} // namespace cserko::test
