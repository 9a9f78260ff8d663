// Other programs, chance, and the clock.
#include "fixture.h"

#include <QFile>
#include <QProcess>

namespace cserko::test {

namespace {

using testing::HasSubstr;

QString beside_the_test(const QString& program) {
#ifdef Q_OS_WIN
  return QCoreApplication::applicationDirPath() + '/' + program + ".exe";
#else
  return QCoreApplication::applicationDirPath() + '/' + program;
#endif
}

class Programs : public QtMachine {
 protected:
  QStringList started_with(const Text& rest) {
    machine->start_process(machine->application_folder() + u"qt_started.exe " + rest, ProcessWindow::Normal);
    const QString file = QString::fromStdU16String(rest);
    // There is a moment in which the file is there and nothing in it.
    EXPECT_TRUE(wait_for([&] { return QFileInfo(real_).size() > 0; }));
    QFile written(real_);
    return written.open(QIODevice::ReadOnly) ? QString::fromUtf8(written.readAll()).split('\n') : QStringList();
  }
  QTemporaryDir out_;
  QString real_ = out_.filePath("mit kapott - a feladat.txt");
};

TEST_F(Programs, TheRestOfTheLineIsOneArgumentBlanksIncluded) {
  EXPECT_EQ(started_with(real_.toStdU16String()), QStringList{real_});
}

TEST_F(Programs, APathOfTheApplicationFolderIsGivenAsTheRealOne) {
  const Text page = machine->application_folder() + u"cserko\\help\\Lóugrás  - A feladat.txt";
  real_ = machine->qt_files().real_path(page);
  QDir().mkpath(QFileInfo(real_).path());
  EXPECT_EQ(started_with(page), QStringList{real_});
}

TEST_F(Programs, AProgramElsewhereIsStartedByItsWholePathBlanksIncluded) {
  const QTemporaryDir elsewhere;
  const QString folder = elsewhere.filePath("két szavas mappa");
  ASSERT_TRUE(QDir().mkpath(folder));
  const QString tool = folder + "/eszköz.exe";
  ASSERT_TRUE(QFile::copy(beside_the_test("qt_started"), tool));
  EXPECT_TRUE(machine->program_exists(tool.toStdU16String()));
  EXPECT_FALSE(machine->program_exists((folder + "/más.exe").toStdU16String()));
  EXPECT_FALSE(machine->program_exists(folder.toStdU16String())) << "a folder is no program";
  machine->start_process((tool + ' ' + real_).toStdU16String(), ProcessWindow::Normal);
  EXPECT_TRUE(wait_for([&] { return QFile::exists(real_); }));
}

TEST_F(Programs, AProgramElsewhereIsNotTakenForOneOfTheSuite) {
  EXPECT_THROW(machine->start_process(u"c:\\eszközök\\qt_started.exe " + real_.toStdU16String(), ProcessWindow::Normal),
               std::runtime_error);
  EXPECT_THROW(machine->start_process(u"/nincs/qt_started", ProcessWindow::Normal), std::runtime_error);
}

TEST_F(Programs, AProgramThatIsNotThereIsAClearError) {
  try {
    machine->start_process(machine->application_folder() + u"portál.exe klki", ProcessWindow::Normal);
    FAIL() << "nothing was thrown";
  } catch (const std::runtime_error& error) {
    EXPECT_THAT(error.what(), HasSubstr("portál"));
  }
}

#ifndef Q_OS_WIN // where a program does not start without the libraries beside it, and says nothing but in its box
TEST_F(Programs, TheSuiteWithoutItsPackTellsThePersonAndWaits) {
  const QTemporaryDir elsewhere;
  const QString suite = elsewhere.filePath("cserko");
  ASSERT_TRUE(QFile::copy(beside_the_test("cserko"), suite));
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.remove("CSERKO_PACK_DIR");
  process.setProcessEnvironment(environment);
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(suite, QStringList());
  QString told;
  while (!told.contains("adatcsomagja hiányzik") && process.waitForReadyRead(10000))
    told += QString::fromUtf8(process.readAll());
  EXPECT_TRUE(told.contains("adatcsomagja hiányzik")) << told.toStdString();
  EXPECT_FALSE(process.waitForFinished(500)) << "nobody has closed the box";
  process.kill();
  process.waitForFinished();
}
#endif

TEST_F(Programs, ThereIsNoRegistryHere) {
#ifndef Q_OS_WIN
  EXPECT_EQ(machine->registry_value(u"SOFTWARE\\Microsoft", u"Path"), std::nullopt);
#endif
}

TEST_F(Programs, ChanceIsFromZeroToBelowOne) {
  for (int draw = 0; draw < 10000; ++draw) {
    const double number = machine->random();
    ASSERT_GE(number, 0);
    ASSERT_LT(number, 1);
  }
}

TEST_F(Programs, AGivenSeedMakesChanceTheSameEachTime) {
  qputenv("CSERKO_SEED", "42");
  std::vector<double> first;
  machine.reset();
  machine = std::make_unique<QtPlatform>();
  for (int draw = 0; draw < 5; ++draw) first.push_back(machine->random());
  machine.reset();
  machine = std::make_unique<QtPlatform>();
  std::vector<double> second;
  for (int draw = 0; draw < 5; ++draw) {
    // Seeding again, as every procedure that draws does, must not start the same numbers over.
    machine->seed_random();
    second.push_back(machine->random());
  }
  qunsetenv("CSERKO_SEED");
  EXPECT_EQ(first, second);
}

TEST_F(Programs, TheClockNeverGoesBack) {
  std::int64_t last = machine->now();
  for (int look = 0; look < 1000; ++look) {
    const std::int64_t now = machine->now();
    ASSERT_GE(now, last);
    last = now;
  }
  const TimeOfDay time = machine->time_of_day();
  EXPECT_TRUE(time.hour >= 0 && time.hour < 24 && time.minute >= 0 && time.minute < 60);
}

TEST_F(Programs, AScreenIsToldInTwips) {
  const QSize pixels = QGuiApplication::primaryScreen()->availableGeometry().size();
  EXPECT_EQ(machine->screen_size(), (Size{pixels.width() * 15.0, pixels.height() * 15.0}));
}

} // namespace
} // namespace cserko::test
