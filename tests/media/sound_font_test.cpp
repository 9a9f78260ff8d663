#include "platform/qt/sound_font.h"
#include "tests/media/sdl_fixture.h"

namespace cserko {
namespace {

using namespace test;

class SoundFont : public testing::Test {
 protected:
  void SetUp() override {
    qputenv("XDG_DATA_HOME", home_.path().toUtf8());
    qputenv("XDG_DATA_DIRS", home_.filePath("none").toUtf8());
  }
  void TearDown() override {
    for (const char* name : {"XDG_DATA_HOME", "XDG_DATA_DIRS", sound_font_variable}) qunsetenv(name);
  }

  QString add(const QString& name, const QByteArray& kind = "sfbk") const {
    QString path = home_.filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("RIFF\x10\0\0\0", 8);
    file.write(kind + "LIST");
    return path;
  }

  QTemporaryDir home_;
};

TEST_F(SoundFont, TheSystemsDefaultFontComesBeforeOthers) {
  add("sounds/sf3/Aaa.sf3");
  const QString usual = add("sounds/sf3/default-GM.sf3");
  EXPECT_EQ(find_sound_font(), usual.toStdString());
}

TEST_F(SoundFont, AFileThatIsNoFontIsPassedOver) {
  add("sounds/sf2/default-GM.sf2", "WAVE");
  const QString font = add("soundfonts/Árnyalt hangok.sf2");
  EXPECT_EQ(find_sound_font(), font.toStdString());
}

TEST_F(SoundFont, TheEnvironmentOverridesEverything) {
  add("sounds/sf2/default-GM.sf2");
  qputenv(sound_font_variable, "/nowhere/mine.sf2");
  EXPECT_EQ(find_sound_font(), "/nowhere/mine.sf2");
  EXPECT_FALSE(is_sound_font(find_sound_font()));
}

TEST_F(SoundFont, WithoutAnyFontThePathIsEmpty) { EXPECT_EQ(find_sound_font(), ""); }

} // namespace
} // namespace cserko
