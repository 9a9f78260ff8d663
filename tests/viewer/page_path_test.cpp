// Which page a command line names.
#include "tests/viewer/samples.h"
#include "viewer/page_path.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace cserko::test {
namespace {

TEST(PagePath, KeepsTheBlanksOfOneArgument) {
  const QTemporaryDir folder;
  const QString path = put_file(folder.path(), "Lóugrás  - A feladat.mht", "x");
  EXPECT_EQ(page_path({path}), path);
}

TEST(PagePath, JoinsTheWordsOfTheCommandLine) {
  const QTemporaryDir folder;
  const QString path = put_file(folder.path(), "Cserkó - A feladat.mht", "x");
  EXPECT_EQ(page_path(path.split(' ')), path);
}

TEST(PagePath, FindsTheFileWhoseBlanksWereSqueezed) {
  const QTemporaryDir folder;
  put_file(folder.path(), "Lóugrás  - Beállítások.mht", "x");
  const QString path = put_file(folder.path(), "Lóugrás  - A feladat.mht", "x");
  EXPECT_EQ(page_path({folder.filePath("Lóugrás"), "-", "A", "feladat.mht"}), path);
}

TEST(PagePath, PrefersTheFileOfThatVeryName) {
  const QTemporaryDir folder;
  put_file(folder.path(), "a  b.mht", "x");
  const QString path = put_file(folder.path(), "a b.mht", "x");
  EXPECT_EQ(page_path({path}), path);
}

TEST(PagePath, GivesBackWhatDoesNotExist) {
  const QTemporaryDir folder;
  EXPECT_EQ(page_path({folder.filePath("a"), "b.mht"}), folder.filePath("a b.mht"));
  EXPECT_EQ(page_path({}), "");
}

} // namespace
} // namespace cserko::test
