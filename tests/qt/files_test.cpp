// The system's paths on a real disk.
#include "platform/qt/files.h"
#include "platform/qt/qt_text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

namespace cserko::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class RealFiles : public testing::Test {
 protected:
  RealFiles() {
    QDir(pack()).mkpath("kepek");
    QDir(user()).mkpath("cserko");
    files.emplace(pack(), user());
  }

  QString pack() const { return folder_.filePath("pack"); }
  QString user() const { return folder_.filePath("user"); }

  static void put(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(bytes);
  }
  static QByteArray content(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("nincs ilyen");
  }

  std::optional<QtFiles> files;

 private:
  QTemporaryDir folder_;
};

TEST_F(RealFiles, TheFixedRootIsTheUsersFolder) {
  files->write(u"c:\\pomzu\\cserk.pmz", "1");
  files->write(u"c:\\pomzu\\cserko\\főablak.ini", "2");
  EXPECT_EQ(content(user() + "/cserk.pmz"), "1");
  EXPECT_EQ(content(user() + "/cserko/főablak.ini"), "2");
}

TEST_F(RealFiles, TheApplicationFolderIsThePack) {
  put(pack() + "/kepek/alma.wms", "alma");
  EXPECT_EQ(files->read(u"c:\\cserko\\kepek\\alma.wms"), "alma");
  EXPECT_TRUE(files->exists(u"c:\\cserko\\kepek\\alma.wms"));
}

TEST_F(RealFiles, DoubledBackslashesDoNoHarm) {
  put(pack() + "/cserko/lóugrás.ini", "3");
  EXPECT_EQ(files->read(u"c:\\cserko\\\\cserko\\lóugrás.ini"), "3");
}

TEST_F(RealFiles, NamesAreFoundWithoutRegardToCase) {
  put(pack() + "/Hangok/Moving.WAV", "hang");
  EXPECT_EQ(files->read(u"c:\\cserko\\hangok\\moving.wav"), "hang");
  EXPECT_TRUE(files->exists(u"C:\\CSERKO\\HANGOK\\MOVING.wav"));
}

TEST_F(RealFiles, TheExactNameWinsOverOneThatDiffersInCase) {
  put(pack() + "/kepek/Alma.wms", "nagy");
  put(pack() + "/kepek/alma.wms", "kicsi");
  if (content(pack() + "/kepek/Alma.wms") != "nagy") GTEST_SKIP() << "the file system ignores case itself";
  EXPECT_EQ(files->read(u"c:\\cserko\\kepek\\alma.wms"), "kicsi");
  EXPECT_EQ(files->read(u"c:\\cserko\\kepek\\Alma.wms"), "nagy");
}

TEST_F(RealFiles, AccentsInPartsOnTheDiskAreFoundByComposedNames) {
  const QString in_parts = QString("árvíztűrő.wms").normalized(QString::NormalizationForm_D);
  put(pack() + "/kepek/" + in_parts, "víz");
  EXPECT_EQ(files->read(u"c:\\cserko\\kepek\\árvíztűrő.wms"), "víz");
  EXPECT_THAT(files->list(u"c:\\cserko\\kepek\\*.wms"), ElementsAre(u"árvíztűrő.wms"));
}

TEST_F(RealFiles, AFileThatIsNewIsFoundThoughItsFolderWasReadBefore) {
  EXPECT_FALSE(files->exists(u"c:\\cserko\\kepek\\KÖRTE.wms"));
  put(pack() + "/kepek/körte.wms", "körte");
  // Folders carry their time in steps of some milliseconds: the next step is waited for.
  QFile folder(pack() + "/kepek");
  QFile stamp(pack() + "/kepek/bélyeg");
  const QDateTime before = QFileInfo(folder.fileName()).lastModified();
  while (QFileInfo(folder.fileName()).lastModified() == before) {
    ASSERT_TRUE(stamp.open(QIODevice::WriteOnly));
    stamp.close();
    ASSERT_TRUE(stamp.remove());
  }
  EXPECT_TRUE(files->exists(u"c:\\cserko\\kepek\\KÖRTE.wms"));
}

TEST_F(RealFiles, ReadingWhatIsNotThereGivesNothing) {
  EXPECT_EQ(files->read(u"c:\\cserko\\kepek\\nincs.wms"), std::nullopt);
  EXPECT_EQ(files->read(u"d:\\máshol\\valami.txt"), std::nullopt);
  EXPECT_FALSE(files->exists(u"c:\\cserko\\kepek"));
}

TEST_F(RealFiles, ListingTakesThePatternWithoutRegardToCase) {
  put(pack() + "/kepek/alma.wms", "1");
  put(pack() + "/kepek/CICA.WMS", "2");
  put(pack() + "/kepek/alma.wmf", "3");
  put(pack() + "/kepek/mappa.wms/x", "4");
  EXPECT_THAT(files->list(u"c:\\cserko\\kepek\\*.wms"), UnorderedElementsAre(u"alma.wms", u"CICA.WMS"));
  EXPECT_THAT(files->list(u"c:\\cserko\\kepek\\*.*"), UnorderedElementsAre(u"alma.wms", u"CICA.WMS", u"alma.wmf"));
}

TEST_F(RealFiles, NothingOutsideThePackAndTheUsersFolderIsReadWrittenOrDeleted) {
  const QString secret = user() + "/../titok.wav";
  put(secret, "titok");
  put(pack() + "/hangok/a.wav", "hang");
  put(user() + "/cserko/a.ini", "1");
  for (const Text& path : {Text(u"c:\\pomzu\\..\\titok.wav"), Text(u"c:\\pomzu\\cserko\\..\\..\\titok.wav"),
                           Text(u"c:\\cserko\\hangok\\..\\..\\titok.wav"), Text(u"c:\\cserko\\hangok\\../../titok.wav"),
                           secret.toStdU16String()}) {
    EXPECT_FALSE(files->exists(path)) << to_utf8(path);
    EXPECT_EQ(files->read(path), std::nullopt) << to_utf8(path);
    EXPECT_EQ(files->real_path(path), QString()) << to_utf8(path);
    EXPECT_THROW(files->write(path, "x"), FileError) << to_utf8(path);
    EXPECT_THROW(files->remove(path), FileError) << to_utf8(path);
  }
  EXPECT_THAT(files->list(u"c:\\pomzu\\..\\*.wav"), IsEmpty());
  EXPECT_THROW(files->make_folder(u"c:\\pomzu\\..\\mappa"), FileError);
  EXPECT_EQ(content(secret), "titok");
  EXPECT_EQ(files->read(u"c:\\cserko\\kepek\\..\\hangok\\a.wav"), "hang") << "within the folders a path is a path";
}

TEST_F(RealFiles, AFolderThatIsNotThereHasNoFiles) {
  EXPECT_THAT(files->list(u"c:\\cserko\\nincs\\*.wms"), IsEmpty());
  EXPECT_THAT(files->list(u"d:\\*.*"), IsEmpty());
}

TEST_F(RealFiles, WritingOverAFileKeepsTheNameItHasOnTheDisk) {
  put(user() + "/cserko/Főablak.INI", "régi");
  files->write(u"c:\\pomzu\\cserko\\főablak.ini", "új");
  EXPECT_EQ(content(user() + "/cserko/Főablak.INI"), "új");
  EXPECT_EQ(QDir(user() + "/cserko").entryList(QDir::Files).size(), 1);
}

TEST_F(RealFiles, ANewFileKeepsItsAccents) {
  files->write(u"c:\\pomzu\\cserko\\betűnézegető.ini", "1");
  EXPECT_EQ(QDir(user() + "/cserko").entryList(QDir::Files), QStringList("betűnézegető.ini"));
}

TEST_F(RealFiles, WritingMakesTheFolderThatIsMissing) {
  files->write(u"c:\\pomzu\\új\\mappa\\a.txt", "1");
  EXPECT_EQ(content(user() + "/új/mappa/a.txt"), "1");
}

TEST_F(RealFiles, WritingWhereTheSystemHasNoFolderSaysWhichPath) {
  try {
    files->write(u"d:\\máshol\\a.txt", "1");
    FAIL() << "nothing was thrown";
  } catch (const FileError& error) {
    EXPECT_THAT(error.what(), HasSubstr("d:\\máshol\\a.txt"));
  }
}

TEST_F(RealFiles, AWriteThatCannotHappenIsAnErrorThatNamesThePath) {
  put(user() + "/foglalt", "ez fájl, nem mappa");
  try {
    files->write(u"c:\\pomzu\\foglalt\\a.txt", "1");
    FAIL() << "nothing was thrown";
  } catch (const FileError& error) {
    EXPECT_THAT(error.what(), HasSubstr("c:\\pomzu\\foglalt\\a.txt"));
  }
  EXPECT_EQ(content(user() + "/foglalt"), "ez fájl, nem mappa");
}

#ifdef Q_OS_UNIX
TEST_F(RealFiles, AWriteThatBreaksOffLeavesTheOldFileWholeAndNothingBeside) {
  put(user() + "/cserko/kiscserko.ini", "régi");
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  // A file may hold no more than this from now on, as on a disk that is full.
  const rlimit tight{64 * 1024, before.rlim_max};
  const auto old_handler = std::signal(SIGXFSZ, SIG_IGN);
  setrlimit(RLIMIT_FSIZE, &tight);
  EXPECT_THROW(files->write(u"c:\\pomzu\\cserko\\kiscserko.ini", std::string(1024 * 1024, 'x')), FileError);
  setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, old_handler);
  EXPECT_EQ(content(user() + "/cserko/kiscserko.ini"), "régi");
  EXPECT_EQ(QDir(user() + "/cserko").entryList(QDir::Files | QDir::Hidden), QStringList("kiscserko.ini"));
}
#endif

TEST_F(RealFiles, MakingAFolderThatExistsIsFine) {
  files->make_folder(u"c:\\pomzu\\cserko\\");
  files->make_folder(u"c:\\pomzu\\cserko\\kifest");
  files->make_folder(u"c:\\pomzu\\cserko\\kifest");
  EXPECT_TRUE(QFileInfo(user() + "/cserko/kifest").isDir());
}

TEST_F(RealFiles, AFolderThatCannotBeMadeIsAnError) {
  put(user() + "/foglalt", "fájl");
  EXPECT_THROW(files->make_folder(u"c:\\pomzu\\foglalt\\mappa"), FileError);
  EXPECT_THROW(files->make_folder(u"d:\\mappa"), FileError);
}

TEST_F(RealFiles, RemovingFindsTheNameWithoutRegardToCase) {
  put(user() + "/cserko/temp.bmp", "kép");
  files->remove(u"c:\\pomzu\\cserko\\TEMP.BMP");
  EXPECT_FALSE(QFileInfo::exists(user() + "/cserko/temp.bmp"));
  EXPECT_THROW(files->remove(u"c:\\pomzu\\cserko\\temp.bmp"), FileError);
}

#ifdef Q_OS_WIN
TEST_F(RealFiles, APackIsLeftAloneWhetherItCanBeWrittenOrNot) {
  files->write(u"c:\\cserko\\cserko\\helyeshang.ini", "hang");
  EXPECT_EQ(content(user() + "/alkalmazas/cserko/helyeshang.ini"), "hang");
  EXPECT_EQ(content(pack() + "/cserko/helyeshang.ini"), "nincs ilyen");
}
#else
TEST_F(RealFiles, AWritablePackIsWrittenInPlace) {
  files->write(u"c:\\cserko\\cserko\\helyeshang.ini", "hang");
  EXPECT_EQ(content(pack() + "/cserko/helyeshang.ini"), "hang");
}
#endif

TEST_F(RealFiles, AReadOnlyPackIsLeftAloneAndReadThroughTheUsersOwnFiles) {
  QtFiles read_only(":/pack", user());
  const Text alma = u"c:\\cserko\\kepek\\alma.wms";
  EXPECT_EQ(read_only.read(alma), "a csomag\n");
  read_only.write(alma, "a gyereké");
  EXPECT_EQ(read_only.read(alma), "a gyereké");
  EXPECT_EQ(content(":/pack/kepek/alma.wms"), "a csomag\n");
  EXPECT_EQ(content(read_only.real_path(alma)), "a gyereké");
}

TEST_F(RealFiles, APathStandsForAPlaceInEachFolderTheFirstIsWritten) {
  const QtFiles read_only(":/pack", user());
  EXPECT_EQ(read_only.real_paths(u"c:\\cserko\\kepek\\cica.wms"),
            QStringList({user() + "/alkalmazas/kepek/cica.wms", ":/pack/kepek/Cica.wms"}));
#ifdef Q_OS_WIN
  EXPECT_EQ(files->real_paths(u"c:\\cserko\\kepek"), QStringList({user() + "/alkalmazas/kepek", pack() + "/kepek"}));
#else
  EXPECT_EQ(files->real_paths(u"c:\\cserko\\kepek"), QStringList(pack() + "/kepek"));
#endif
  EXPECT_EQ(files->real_paths(u"c:\\cserko\\..\\..\\x"), QStringList());
}

TEST_F(RealFiles, ListingAReadOnlyPackTellsEachNameOnce) {
  QtFiles read_only(":/pack", user());
  read_only.write(u"c:\\cserko\\kepek\\ALMA.wms", "1");
  read_only.write(u"c:\\cserko\\kepek\\zebra.wms", "2");
  EXPECT_THAT(read_only.list(u"c:\\cserko\\kepek\\*.wms"),
              UnorderedElementsAre(u"ALMA.wms", u"zebra.wms", u"Cica.wms"));
}

TEST_F(RealFiles, WhatIsFoundInAReadOnlyPackIgnoresCaseToo) {
  const QtFiles read_only(":/pack", user());
  EXPECT_EQ(read_only.read(u"c:\\cserko\\KEPEK\\cica.WMS"), "a csomag\n");
}

TEST_F(RealFiles, AUsersFileInsideAFolderOfThePackHidesNothingElse) {
  QtFiles read_only(":/pack", user());
  read_only.write(u"c:\\cserko\\kepek\\zebra.wms", "2");
  EXPECT_TRUE(read_only.exists(u"c:\\cserko\\kepek\\alma.wms"));
  read_only.remove(u"c:\\cserko\\kepek\\zebra.wms");
  EXPECT_FALSE(read_only.exists(u"c:\\cserko\\kepek\\zebra.wms"));
}

TEST_F(RealFiles, TheEnvironmentChoosesBothFolders) {
  qputenv("CSERKO_PACK_DIR", pack().toUtf8());
  qputenv("CSERKO_USER_DIR", (user() + "/").toUtf8());
  EXPECT_EQ(QtFiles::find_pack(), pack());
  EXPECT_EQ(QtFiles::find_user_folder(), user());
}

TEST_F(RealFiles, APackWithoutRecordsIsAPack) {
  QDir(pack() + "/kepek").removeRecursively();
  ASSERT_TRUE(QDir().mkpath(pack()));
  qputenv("CSERKO_PACK_DIR", pack().toUtf8());
  EXPECT_EQ(QtFiles::find_pack(), pack());
}

TEST_F(RealFiles, ManyFilesAreReadAsTheyAre) {
  // Bytes of every value, line ends and zeros included.
  std::string bytes;
  for (int value = 0; value < 1024; ++value) bytes.push_back(static_cast<char>(value));
  files->write(u"c:\\pomzu\\cserko\\bájtok", bytes);
  EXPECT_EQ(files->read(u"c:\\pomzu\\cserko\\bájtok"), bytes);
  files->write(u"c:\\pomzu\\cserko\\bájtok", "");
  EXPECT_EQ(files->read(u"c:\\pomzu\\cserko\\bájtok"), "");
}

} // namespace
} // namespace cserko::test
