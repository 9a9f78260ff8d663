// The About panel: its version, its place, and what it does with what the registry holds.
#include "feedback/névjegy.h"
#include "tests/suite/suite_fixture.h"

#include <cstdio>

namespace cserko {
namespace {

class AboutPanelTest : public SuiteTest {
 protected:
  AboutPanelTest() { start(); }
  void registry(TextView key, TextView name, TextView value) { machine.registry[{Text(key), Text(name)}] = value; }
};

TEST_F(AboutPanelTest, TheVersionIsThreeNumbersAndAWord) {
  const std::string caption = utf8(load<Névjegy>().lblVersion.Caption);
  unsigned major = 0;
  unsigned minor = 0;
  unsigned revision = 0;
  int read = 0;
  ASSERT_EQ(std::sscanf(caption.c_str(), "%u.%u.%u%n", &major, &minor, &revision, &read), 3) << caption;
  EXPECT_EQ(caption.substr(static_cast<std::size_t>(read)), " verzió");
}

TEST_F(AboutPanelTest, StandsInTheMiddleOfTheScreen) {
  const auto& about = load<Névjegy>();
  const Size screen = machine.screen_size();
  EXPECT_EQ(about.Top, screen.height / 2 - about.Height / 2);
  EXPECT_EQ(about.Left, screen.width / 2 - about.Width / 2);
}

TEST_F(AboutPanelTest, EnterAndEscapeCloseIt) {
  for (const int code : {key::enter, key::escape}) {
    auto& about = open<Névjegy>();
    hand::key(about, code);
    EXPECT_FALSE(session().loaded<Névjegy>()) << code;
  }
}

TEST_F(AboutPanelTest, ThePathOfTheToolComesBeforeTheSharedFolder) {
  registry(u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", u"PATH", u"c:\\tools\\info.exe");
  registry(u"SOFTWARE\\Microsoft\\Shared Tools Location", u"MSINFO", u"c:\\shared");
  machine.programs = {u"c:\\shared\\MSINFO32.EXE"};
  hand::click(open<Névjegy>().cmdSysInfo);
  ASSERT_EQ(machine.processes.size(), 1U);
  EXPECT_EQ(utf8(machine.processes[0].command_line), "c:\\tools\\info.exe");
  EXPECT_TRUE(machine.messages.empty());
}

TEST_F(AboutPanelTest, AToolThatCannotBeStartedIsReportedAndThePanelStays) {
  registry(u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", u"PATH", u"c:\\tools\\info.exe");
  machine.processes_fail = true;
  auto& about = open<Névjegy>();
  hand::click(about.cmdSysInfo);
  expected_errors = 1;
  EXPECT_TRUE(about.visible());
}

} // namespace
} // namespace cserko
