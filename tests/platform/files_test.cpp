#include "platform/headless/headless_platform.h"

#include <gtest/gtest.h>

namespace cserko {
namespace {

class MemoryFilesTest : public testing::Test {
 protected:
  MemoryFiles files;
};

TEST_F(MemoryFilesTest, NamesAreComparedWithoutCaseAndWithSingleBackslashes) {
  files.put(u"c:\\Cserko\\cserko\\Moving.wav", "x");
  EXPECT_TRUE(files.exists(u"C:\\cserko\\\\cserko\\moving.WAV"));
  EXPECT_EQ(files.read(u"c:\\cserko\\cserko\\moving.wav"), "x");
  EXPECT_FALSE(files.exists(u"c:\\cserko\\cserko")) << "a folder is no file";
  EXPECT_EQ(files.read(u"c:\\cserko\\nincs.txt"), std::nullopt);
}

TEST_F(MemoryFilesTest, AFolderIsListedByPatternInOrderOfInsertion) {
  files.put(u"c:\\cserko\\k\\2.wms", "");
  files.put(u"c:\\cserko\\k\\10.WMS", "");
  files.put(u"c:\\cserko\\k\\1.wmf", "");
  files.put(u"c:\\cserko\\k\\sub\\3.wms", "");
  files.put(u"c:\\cserko\\k\\1.wms", "");
  files.put(u"c:\\cserko\\k\\2.wms", "again");
  EXPECT_EQ(files.list(u"c:\\cserko\\k\\*.wms"), (std::vector<Text>{u"2.wms", u"10.WMS", u"1.wms"}));
  EXPECT_EQ(files.list(u"c:\\cserko\\k\\?.wm*"), (std::vector<Text>{u"2.wms", u"1.wmf", u"1.wms"}));
  EXPECT_TRUE(files.list(u"c:\\cserko\\nincs\\*.*").empty());
}

TEST_F(MemoryFilesTest, WritingNeedsTheFolder) {
  EXPECT_THROW(files.write(u"c:\\pomzu\\cserko\\a.ini", "x"), FileError);
  EXPECT_THROW(files.make_folder(u"c:\\pomzu\\cserko"), FileError) << "one folder at a time";
  files.make_folder(u"c:\\pomzu\\");
  files.make_folder(u"c:\\pomzu\\cserko\\");
  files.make_folder(u"c:\\POMZU\\cserko");
  files.write(u"c:\\pomzu\\cserko\\a.ini", "x");
  files.write(u"c:\\pomzu\\cserko\\A.INI", "y");
  EXPECT_EQ(files.read(u"c:\\pomzu\\cserko\\a.ini"), "y");
  EXPECT_EQ(files.all().size(), 1U);
}

TEST_F(MemoryFilesTest, AFullDiskLeavesTheOldFileWhole) {
  files.put(u"c:\\pomzu\\a.ini", "old");
  files.free_space = 5;
  EXPECT_THROW(files.write(u"c:\\pomzu\\a.ini", "longer"), FileError);
  EXPECT_EQ(files.read(u"c:\\pomzu\\a.ini"), "old");
  files.write(u"c:\\pomzu\\a.ini", "12345");
  EXPECT_EQ(*files.free_space, 3U) << "the old bytes are free again";
}

TEST_F(MemoryFilesTest, ReadOnlyPlacesRefuseEverythingBelow) {
  files.put(u"c:\\pomzu\\cserko\\a.ini", "old");
  files.make_unwritable(u"c:\\pomzu\\");
  EXPECT_THROW(files.write(u"c:\\pomzu\\cserko\\a.ini", "new"), FileError);
  EXPECT_THROW(files.write(u"c:\\pomzu\\cserko\\b.ini", "new"), FileError);
  EXPECT_THROW(files.remove(u"c:\\pomzu\\cserko\\a.ini"), FileError);
  EXPECT_THROW(files.make_folder(u"c:\\pomzu\\other"), FileError);
  EXPECT_EQ(files.read(u"c:\\pomzu\\cserko\\a.ini"), "old");
  files.make_writable(u"c:\\pomzu");
  files.write(u"c:\\pomzu\\cserko\\a.ini", "new");
  EXPECT_EQ(files.read(u"c:\\pomzu\\cserko\\a.ini"), "new");
}

TEST_F(MemoryFilesTest, AnUnreadableFileExistsAndCannotBeRead) {
  files.put(u"c:\\cserko\\a.wms", "x");
  files.make_unreadable(u"c:\\cserko\\A.wms");
  EXPECT_TRUE(files.exists(u"c:\\cserko\\a.wms"));
  EXPECT_EQ(files.read(u"c:\\cserko\\a.wms"), std::nullopt);
}

TEST_F(MemoryFilesTest, DeletingKeepsTheOthersInTheirPlaces) {
  for (const TextView name : {u"c:\\cserko\\1.x", u"c:\\cserko\\2.x", u"c:\\cserko\\3.x"})
    files.put(Text(name), to_utf8(name));
  files.remove(u"c:\\cserko\\2.x");
  EXPECT_THROW(files.remove(u"c:\\cserko\\2.x"), FileError);
  EXPECT_EQ(files.read(u"c:\\cserko\\3.x"), "c:\\cserko\\3.x");
  EXPECT_EQ(files.list(u"c:\\cserko\\*.x"), (std::vector<Text>{u"1.x", u"3.x"}));
}

TEST_F(MemoryFilesTest, NothingOutsideTheTwoFoldersIsReadWrittenOrDeleted) {
  files.put(u"c:\\titok\\a.wav", "x");
  files.put(u"c:\\cserko\\hangok\\b.wav", "b");
  for (const Text& path : {Text(u"c:\\titok\\a.wav"), Text(u"c:\\cserko\\hangok\\..\\..\\titok\\a.wav"),
                           Text(u"c:\\cserko\\hangok\\../../titok/a.wav")}) {
    EXPECT_FALSE(files.exists(path)) << to_utf8(path);
    EXPECT_EQ(files.read(path), std::nullopt) << to_utf8(path);
    EXPECT_THROW(files.write(path, "y"), FileError) << to_utf8(path);
    EXPECT_THROW(files.remove(path), FileError) << to_utf8(path);
  }
  EXPECT_TRUE(files.list(u"c:\\cserko\\..\\titok\\*.*").empty());
  EXPECT_THROW(files.make_folder(u"c:\\cserko\\..\\más"), FileError);
  EXPECT_EQ(files.all(), (std::vector<Text>{u"c:\\titok\\a.wav", u"c:\\cserko\\hangok\\b.wav"}));
  EXPECT_EQ(files.read(u"c:\\cserko\\kepek\\..\\hangok\\b.wav"), "b");
}

TEST_F(MemoryFilesTest, ErrorsNameTheFile) {
  try {
    files.remove(u"c:\\pomzu\\cserko\\árvíz.ini");
    FAIL();
  } catch (const FileError& error) {
    EXPECT_NE(std::string(error.what()).find("árvíz.ini"), std::string::npos);
  }
}

// Pictures.

TEST(HeadlessPictures, LoadWhenTheyExistAndAreNotBroken) {
  HeadlessPlatform platform;
  platform.files().put(u"c:\\cserko\\kepek\\1.WMF", "");
  platform.files().put(u"c:\\cserko\\kepek\\1.wms", "");
  const PicturePtr picture = platform.load_picture(u"c:\\cserko\\kepek\\1.wmf");
  ASSERT_NE(picture, nullptr);
  EXPECT_EQ(picture->path(), u"c:\\cserko\\kepek\\1.wmf");
  EXPECT_EQ(platform.load_picture(u"c:\\cserko\\kepek\\2.wmf"), nullptr);
  EXPECT_EQ(platform.load_picture(u"c:\\cserko\\kepek\\1.wms"), nullptr) << "a text is no picture";
  platform.break_picture(u"c:\\cserko\\kepek\\1.wmf");
  EXPECT_EQ(platform.load_picture(u"c:\\cserko\\kepek\\1.wmf"), nullptr);
  EXPECT_EQ(platform.picture_loads, 4);
}

TEST(HeadlessPictures, HaveTheSizeOfThePixelsThatTheyWereGiven) {
  HeadlessPlatform platform;
  platform.set_picture(u"c:\\cserko\\a.bmp", {2, 1, {black, white}});
  EXPECT_EQ(platform.load_picture(u"c:\\cserko\\a.bmp")->natural_size(), (Size{30, 15}));
}

// Text extents.

TEST(HeadlessText, CharactersHaveAFixedShareOfTheSize) {
  const HeadlessPlatform platform;
  const Font font{u"Times New Roman", 10, false};
  EXPECT_DOUBLE_EQ(platform.measure(font, u"alma").width, 3 * 100 + 160);
  EXPECT_DOUBLE_EQ(platform.measure(font, u"alma").height, 230);
  EXPECT_DOUBLE_EQ(platform.measure(font, u"").width, 0);
  EXPECT_DOUBLE_EQ(platform.measure(font, u"").height, 230);
  EXPECT_DOUBLE_EQ(platform.measure({u"Times New Roman", 20, false}, u"alma").width, 2 * 460);
}

TEST(HeadlessText, EveryKindOfLineEndBreaksALine) {
  const HeadlessPlatform platform;
  const Font font{u"Times New Roman", 10, false};
  EXPECT_DOUBLE_EQ(platform.measure(font, u"a\rbbb\nc\r\nd").width, 300);
  EXPECT_DOUBLE_EQ(platform.measure(font, u"a\rbbb\nc\r\nd").height, 4 * 230);
  EXPECT_DOUBLE_EQ(platform.measure(font, u"a\r").height, 2 * 230);
}

TEST(HeadlessText, WrapsAtBlanksAndInsideWordsThatAreTooLong) {
  const HeadlessPlatform platform;
  const Font font{u"Times New Roman", 10, false};
  const Size two = platform.measure_wrapped(font, u"kis kutya", 600);
  EXPECT_DOUBLE_EQ(two.height, 2 * 230);
  EXPECT_DOUBLE_EQ(two.width, 500) << "the blank at the break counts for nothing";
  EXPECT_DOUBLE_EQ(platform.measure_wrapped(font, u"kis kutya", 900).height, 230);
  EXPECT_DOUBLE_EQ(platform.measure_wrapped(font, u"abcdefgh", 300).height, 3 * 230);
  EXPECT_DOUBLE_EQ(platform.measure_wrapped(font, u"ab", 1).height, 2 * 230) << "at least one character a row";
  EXPECT_DOUBLE_EQ(platform.measure_wrapped(font, u"a\r\rb", 900).height, 3 * 230);
  EXPECT_DOUBLE_EQ(platform.measure_wrapped(font, u"", 900).height, 230);
}

} // namespace
} // namespace cserko
