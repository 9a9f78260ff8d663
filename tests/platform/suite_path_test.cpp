// Where a path of the suite may lead.
#include "platform/suite_path.h"

#include <gtest/gtest.h>

namespace cserko {
namespace {

std::string led_to(TextView path) {
  const auto found = suite_path(path);
  return found ? to_utf8(found->text()) : "(nowhere)";
}

TEST(SuitePaths, LeadBelowOneOfTheTwoFolders) {
  EXPECT_EQ(led_to(u"c:\\cserko\\kepek\\1.wms"), "c:\\cserko\\kepek\\1.wms");
  EXPECT_EQ(led_to(u"c:\\pomzu\\cserk.pmz"), "c:\\pomzu\\cserk.pmz");
  EXPECT_EQ(led_to(u"C:\\CSERKO\\Kepek"), "c:\\cserko\\Kepek")
      << "the folder has one name, what lies below keeps its own";
  EXPECT_EQ(suite_path(u"c:\\pomzu\\a")->root, SuitePath::Root::User);
  EXPECT_EQ(suite_path(u"c:\\cserko\\a")->root, SuitePath::Root::Application);
}

TEST(SuitePaths, MayNameAFolderItself) {
  EXPECT_EQ(led_to(u"c:\\pomzu"), "c:\\pomzu");
  EXPECT_EQ(led_to(u"c:\\cserko\\"), "c:\\cserko");
}

TEST(SuitePaths, TakeEitherSeparatorAndDoubledOnesForOne) {
  EXPECT_EQ(led_to(u"c:\\cserko\\\\hangok\\a.wav"), "c:\\cserko\\hangok\\a.wav");
  EXPECT_EQ(led_to(u"c:/cserko/hangok/a.wav"), "c:\\cserko\\hangok\\a.wav");
  EXPECT_EQ(led_to(u"c:\\cserko/\\hangok\\/a.wav"), "c:\\cserko\\hangok\\a.wav");
}

TEST(SuitePaths, CarryOutDots) {
  EXPECT_EQ(led_to(u"c:\\cserko\\hangok\\.\\a.wav"), "c:\\cserko\\hangok\\a.wav");
  EXPECT_EQ(led_to(u"c:\\cserko\\hangok\\..\\kepek\\1.wms"), "c:\\cserko\\kepek\\1.wms");
  EXPECT_EQ(led_to(u"c:\\cserko\\hangok\\..\\..\\pomzu\\a"), "c:\\pomzu\\a");
}

TEST(SuitePaths, LeadNowhereOutside) {
  for (const TextView path : {u"c:\\cserko\\hangok\\..\\..\\titok.wav",
                              u"c:\\cserko\\hangok\\../../titok.wav",
                              u"c:\\cserko\\..\\..\\..\\a",
                              u"c:\\cserko\\..",
                              u"c:\\..\\cserko\\a",
                              u"..\\cserko\\a",
                              u"c:\\",
                              u"c:",
                              u"",
                              u"cserko\\a",
                              u"d:\\cserko\\a",
                              u"\\\\gép\\cserko\\a",
                              u"//c:/cserko/a",
                              u"/etc/passwd",
                              u"c:\\cserkox\\a",
                              u"c:\\windows\\a.wav",
                              u"c:\\cserko\\hangok\\d:\\titok.wav",
                              u"c:\\cserko\\hangok\\a.wav:titok",
                              u"c:\\cserko\\hangok\\.. \\a",
                              u"c:\\cserko\\hangok\\...\\a",
                              u"c:\\cserko\\ \\a"})
    EXPECT_EQ(led_to(path), "(nowhere)") << to_utf8(path);
  EXPECT_EQ(led_to(Text(u"c:\\cserko\\a") + u'\0' + u"b"), "(nowhere)");
}

TEST(SuitePaths, KeepDotsAndBlanksInsideNames) {
  EXPECT_EQ(led_to(u"c:\\cserko\\cserko\\help\\Lóugrás  - A feladat.mht"),
            "c:\\cserko\\cserko\\help\\Lóugrás  - A feladat.mht");
  EXPECT_EQ(led_to(u"c:\\cserko\\dicskép\\*.*"), "c:\\cserko\\dicskép\\*.*");
  EXPECT_EQ(led_to(u"c:\\cserko\\hangok\\..a.wav"), "c:\\cserko\\hangok\\..a.wav");
}

} // namespace
} // namespace cserko
