// The record files by their names: listed once, read once.
#include "exercises/shared/record_files.h"
#include "tests/exercises/exercise_fixture.h"

namespace cserko {
namespace {

class RecordFilesTest : public ExerciseTest {
 protected:
  RecordFiles& files() {
    if (!files_) files_.emplace(start());
    return *files_;
  }
  std::string word(int index, int line) { return utf8(files().word(index, line)); }
  std::string word(TextView name, int line) { return utf8(files().word(Text(name), line)); }

 private:
  std::optional<RecordFiles> files_;
};

TEST_F(RecordFilesTest, NamesTheTextFilesOfTheFolderInItsOrderWithoutTheirEnding) {
  put_app_file(u"kepek\\12.wms", u"x\r\nalma\r\n");
  put_app_file(u"kepek\\12.wmf");
  put_app_file(u"kepek\\Őz.WMS", u"x\r\nőz\r\n");
  put_app_file(u"kepek\\3.txt");
  ASSERT_EQ(files().count(), 2);
  EXPECT_EQ(utf8(files().names()[0]), "12");
  EXPECT_EQ(utf8(files().names()[1]), "Őz");
}

TEST_F(RecordFilesTest, TheWordIsALineOfTheFileInLowerCase) {
  put({.név = u"ÁRVÍZTŰRŐ", .angol = u"Flood"});
  EXPECT_EQ(word(0, 2), "árvíztűrő");
  EXPECT_EQ(word(0, 4), "flood");
}

TEST_F(RecordFilesTest, AFileIsFoundByItsNumberWhateverItsPlaceInTheList) {
  put_app_file(u"kepek\\7.wms", u"x\r\nhét\r\nx\r\nseven\r\n");
  put_app_file(u"kepek\\1.wms", u"x\r\negy\r\nx\r\none\r\n");
  EXPECT_EQ(word(u"7", 2), "hét");
  EXPECT_EQ(word(u"1", 4), "one");
  EXPECT_EQ(utf8(files().picture(u"7")), "c:\\cserko\\kepek\\7.wmf");
}

TEST_F(RecordFilesTest, NamesAreComparedWithoutCase) {
  put_app_file(u"kepek\\Őz.wms", u"x\r\nőz\r\n");
  EXPECT_EQ(word(u"őZ", 2), "őz");
}

TEST_F(RecordFilesTest, WhatCannotBeReadHasAnEmptyWord) {
  put_app_file(u"kepek\\1.wms", u"x\r\nrövid");
  put_app_file(u"kepek\\2.wms", u"x\r\nzárt\r\n");
  machine.files().make_unreadable(u"c:\\cserko\\kepek\\2.wms");
  EXPECT_EQ(word(0, 2), "rövid") << "the last line may lack its end";
  EXPECT_EQ(word(0, 4), "");
  EXPECT_EQ(word(1, 2), "");
  EXPECT_EQ(word(u"3", 2), "");
  EXPECT_THROW(files().word(2, 2), std::out_of_range);
}

TEST_F(RecordFilesTest, ReadsEachFileOnceForALineAndListsOnce) {
  put({{.név = u"alma", .angol = u"apple"}, {.név = u"kutya", .angol = u"dog"}});
  files().names();
  put({.név = u"hal"});
  EXPECT_EQ(files().count(), 2) << "what comes later is not seen";
  const int before = machine.files().reads();
  for (int time = 0; time < 3; ++time) {
    EXPECT_EQ(word(0, 2), "alma");
    EXPECT_EQ(word(u"1", 2), "alma");
  }
  EXPECT_EQ(machine.files().reads(), before + 1);
  EXPECT_EQ(word(0, 4), "apple");
  EXPECT_EQ(machine.files().reads(), before + 2);
}

TEST_F(RecordFilesTest, AFolderWithoutFilesHasNone) {
  EXPECT_EQ(files().count(), 0);
  EXPECT_EQ(word(u"1", 2), "");
}

TEST_F(RecordFilesTest, AnEndlessLineIsCutOff) {
  put({.név = Text(3 * Records::longest_field, u'a')});
  EXPECT_EQ(files().word(0, 2).size(), Records::longest_field);
}

} // namespace
} // namespace cserko
