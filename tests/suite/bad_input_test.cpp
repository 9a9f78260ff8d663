// Data packs and disks that are not as they should be: the suite says what is wrong, and nothing is lost.
#include "core/codepage.h"
#include "core/frm_főablak.h"
#include "feedback/frm_hangbeáll.h"
#include "feedback/frm_zenebeáll.h"
#include "tests/suite/scrambled_fixture.h"

namespace cserko {
namespace {

using namespace std::string_literals;

class BadInputTest : public ScrambledTest {
 protected:
  void put_record(TextView name, std::string_view bytes) {
    machine.files().put(Text(app) + u"kepek\\" + Text(name), bytes);
  }
  /// Runs the whole program: the person waits in the main window, then leaves.
  void run_and_leave() {
    then([this](Window& window) {
      machine.advance(30000);
      hand::key(window, key::escape);
    });
    session().Main();
    EXPECT_TRUE(machine.ended());
  }
};

// Records.

TEST_F(BadInputTest, WithoutAFolderOfRecordsTheProgramStartsAndEnds) {
  assemble();
  run_and_leave();
  EXPECT_EQ(session().képek.képszám, 0);
  EXPECT_EQ(utf8(session().képek[0].wms), "c:\\cserko\\kepek\\");
  EXPECT_EQ(utf8(session().képek[0].név), "");
}

TEST_F(BadInputTest, WithAnEmptyFolderOfRecordsTheExerciseOpens) {
  machine.files().put_folder(Text(app) + u"kepek");
  assemble();
  then_in<frm_főablak>([](frm_főablak& main) {
    hand::click(main.cmd_játék[0]);
    hand::key(main, key::escape);
  });
  then_in<frm_cserkó>([](frm_cserkó& exercise) { hand::click(exercise.mnu_fájl_kilép); });
  session().Main();
  EXPECT_TRUE(machine.ended());
}

TEST_F(BadInputTest, RecordsOfEveryKindOfDamageAreLoadedAndPlayed) {
  put_record(u"1.wms", "1\r\nkos\r\n");                                    // cut short
  put_record(u"2.wms", "");                                                // empty
  put_record(u"3.wms", std::string(10 << 20, 'x'));                        // 10 MB on one line
  put_record(u"4.wms", "1\n\x81\x83\x88\x90\x98\n3\n4\n5\n6\n7\n8");       // outside the code page, LF
  put_record(u"5.wms", "1\rhal\rx\rfish\rhal\rEgy hal.\rIgaz.\rHamis.\r"); // CR
  put_record(u"6.wms", "1\r\n\0\x01\x02\r\n3\r\n\r\n\r\n"s);               // binary
  put_record(u"7.WMS", "1\r\nutols\xF3\r\n");
  start();
  ASSERT_EQ(session().képek.képszám, 6);
  EXPECT_EQ(utf8(session().képek[0].név), "kos");
  EXPECT_EQ(utf8(session().képek[0].angol), "");
  EXPECT_EQ(utf8(session().képek[4].hamis), "Hamis.");
  EXPECT_EQ(utf8(session().képek[6].név), "utolsó");
  auto& window = open<frm_cserkó>();
  for (int i = 0; i < 100; ++i) window.beáll();
  EXPECT_TRUE(machine.errors.empty());
}

TEST_F(BadInputTest, AnUnreadableRecordKeepsItsPlaceAndIsEmpty) {
  put_words({u"alma", u"körte", u"szilva"});
  machine.files().make_unreadable(Text(app) + u"kepek\\2.wms");
  start();
  EXPECT_EQ(session().képek.képszám, 2);
  EXPECT_EQ(utf8(session().képek[1].név), "");
  EXPECT_EQ(utf8(session().képek[1].wms), "c:\\cserko\\kepek\\2.wms");
  EXPECT_EQ(utf8(session().képek[2].név), "szilva");
}

TEST_F(BadInputTest, MoreRecordsThanTheIndexCanNameLeaveTheLastOutAndSaySo) {
  const std::string content = to_cp1250(u"1\r\nkos\r\nx\r\nram\r\nkos\r\n");
  constexpr int count = 32768 + 7;
  for (int i = 0; i < count; ++i) put_record(to_text(i) + u".wms", content);
  assemble();
  session().képadatok_betöltése();
  EXPECT_EQ(session().képek.képszám, 32767);
  EXPECT_EQ(utf8(session().képek[32767].wms), "c:\\cserko\\kepek\\32767.wms");
  expected_errors = 1;
  ASSERT_EQ(machine.errors.size(), 1U);
  EXPECT_NE(utf8(machine.errors[0]).find(" 7 "), std::string::npos) << utf8(machine.errors[0]);
}

TEST_F(BadInputTest, AsManyRecordsAsTheIndexCanNameAreAllUsedInSilence) {
  for (int i = 0; i < 32768; ++i) put_record(to_text(i) + u".wms", "1\r\nkos\r\n");
  assemble();
  session().képadatok_betöltése();
  EXPECT_EQ(session().képek.képszám, 32767);
  EXPECT_EQ(session().képek.left_out(), 0);
}

// Pictures.

TEST_F(BadInputTest, APackWithoutAnyPictureIsPlayed) {
  put_word({u"kos", {}, {}, false});
  put_word({u"utolsó", {}, {}, false});
  start();
  open<frm_főablak>();
  machine.advance(120000);
  auto& window = open<frm_cserkó>();
  lay(window, {u"k", u"o", u"s"});
  hand::click(window.cmd_kész);
  EXPECT_EQ(drawn(window.kép).texts(), std::vector<Text>{u"kos"});
}

// Sound, help, word list.

TEST_F(BadInputTest, WithoutASoundDeviceAWholeSessionIsSilentAndComplete) {
  machine.media().refuse(u"", 5);
  put_words({u"kos", u"utolsó"});
  put_settings(u"zenebeáll.ini", {u" 1 ", u"a.mid"});
  put_sounds({u"a.wav"});
  assemble();
  then_in<frm_főablak>([this](frm_főablak& main) {
    machine.advance(5000);
    hand::click(main.cmd_játék[0]);
    hand::key(main, key::escape);
  });
  then_in<frm_cserkó>([](frm_cserkó& exercise) {
    hand::drag(exercise.betű[0], 300, 300);
    hand::click(exercise.mnu_fájl_kilép);
  });
  session().Main();
  EXPECT_TRUE(machine.ended());
  EXPECT_TRUE(machine.messages.empty());
}

TEST_F(BadInputTest, WithoutAHelpViewerTheFailureIsReportedAndTheWindowStays) {
  auto& window = deal({u"kos", u"utolsó"});
  machine.processes_fail = true;
  hand::click(window.mnu_súgó_súgó);
  expected_errors = 1;
  EXPECT_EQ(machine.errors.size(), 1U);
  EXPECT_TRUE(window.visible());
  lay(window, {u"k", u"o", u"s"});
  hand::click(window.cmd_kész);
  EXPECT_TRUE(window.lbl_megoldás.Visible);
}

TEST_F(BadInputTest, AnEmptyWordListMakesEveryOtherAnswerUnknown) {
  auto& window = deal({u"kos", u"utolsó"});
  machine.files().put(Text(app) + u"ms.skt", "");
  lay(window, {u"s", u"o", u"k"});
  EXPECT_NE(answer(window).find("sajnos nem szerepel"), std::string::npos);
}

// Settings files of every dialog.

TEST_F(BadInputTest, BinarySettingsFilesLeaveTheDesignOfEveryDialog) {
  std::string noise;
  for (int i = 0; i < 5000; ++i) noise.push_back(static_cast<char>(i * 113 + i / 7));
  for (const TextView name : {u"kiscserko.ini", u"főablak.ini", u"zenebeáll.ini"})
    machine.files().put(Text(user_folder) + Text(name), noise);
  machine.files().put(u"c:\\pomzu\\cserk.pmz", noise);
  for (const TextView name : {u"grathang.ini", u"helyeshang.ini", u"hibahang.ini"})
    machine.files().put(Text(app) + u"cserko\\" + Text(name), noise);
  put_words({u"kos", u"utolsó"});
  assemble();
  run_and_leave();
  EXPECT_EQ(dialog().udbetszám.value(), 12);
}

TEST_F(BadInputTest, ALoopWithoutAnEndEndsItsTestAndDoesNotHangIt) {
  struct Endless : PlainWindow {
    explicit Endless(Session& s) : PlainWindow(s, u"endless") {
      button.Click = [this] {
        while (platform().random() >= 0) ++rounds;
      };
    }
    Button button{*this, u"button", {0, 0, 500, 500}, u"x"};
    int rounds = 0;
  };
  start();
  auto& window = open<Endless>();
  for (int i = 0; i < 3000000; ++i) machine.random(); // of other events
  EXPECT_THROW(hand::click(window.button), Stuck);
  EXPECT_GE(window.rounds, 1000000);
}

// Names with a path in them.

class CraftedNamesTest : public BadInputTest {
 protected:
  CraftedNamesTest() {
    for (const TextView path : {u"c:\\titok\\a.wav", u"c:\\titok\\a.mid", u"c:\\titok.wav", u"c:\\titok.mid"})
      machine.files().put(Text(path), "titok");
    put_words({u"kos", u"utolsó"});
    put_sounds({u"b.wav"});
    put_app_file(u"dysmid\\b.mid");
  }
  /// Ways out of the folder of the sounds or tunes, each line ending so.
  static Text crafted(const Text& ending) {
    Text lines;
    for (const TextView way : {u"..\\..\\titok\\a", u"../../titok/a", u"..\\/..\\/titok", u"c:\\titok\\a",
                               u"..\\..\\..\\..\\titok\\a", u".. \\..\\titok\\a"})
      lines += Text(way) + ending + u"\r\n";
    return lines;
  }
  void expect_untouched() {
    for (const TextView path : {u"c:\\titok\\a.wav", u"c:\\titok\\a.mid", u"c:\\titok.wav", u"c:\\titok.mid"}) {
      const auto& all = machine.files().all();
      EXPECT_NE(std::find(all.begin(), all.end(), path), all.end()) << utf8(path);
    }
    for (const Text& title : machine.media().played) EXPECT_EQ(utf8(title).find("titok"), std::string::npos);
  }
};

TEST_F(CraftedNamesTest, ASoundListLeadsNowhereOutside) {
  put_app_file(u"cserko\\hibahang.ini", crafted(u".wav") + u"b.wav\r\n");
  start();
  auto& dialog = open<frm_hangbeáll>();
  EXPECT_EQ(dialog.Lst_hibahang.Items, std::vector<Text>{u"b.wav"}) << "what is not there is gone from the list";
  expect_untouched();
}

TEST_F(CraftedNamesTest, APlaylistLeadsNowhereOutside) {
  machine.files().put(Text(user_folder) + u"zenebeáll.ini", to_cp1250(u" 1 \r\n" + crafted(u".mid") + u"b.mid\r\n"));
  start();
  auto& dialog = open<frm_zenebeáll>();
  for (int i = 0; i < dialog.list_playlist.count(); ++i) hand::select(dialog.list_playlist, i);
  ASSERT_EQ(machine.media().played.size(), 1U);
  EXPECT_TRUE(machine.media().played[0].ends_with(u"b.mid"));
  expect_untouched();
}

TEST_F(CraftedNamesTest, NamesInRecordsAreWordsAndNoPaths) {
  for (int line = 2; line <= 8; ++line) {
    Text content;
    for (int i = 1; i <= 8; ++i) content += (i == line ? Text(u"..\\..\\titok\\a.wav") : Text(u"kos")) + u"\r\n";
    put_record(to_text(100 + line) + u".wms", to_cp1250(content));
  }
  start();
  auto& window = open<frm_cserkó>();
  for (int i = 0; i < 50; ++i) window.beáll();
  for (int i = 0; i <= session().képek.képszám; ++i) {
    for (const Text& path : {session().képek[i].wms, session().képek[i].wmf}) {
      EXPECT_TRUE(path.starts_with(u"c:\\cserko\\kepek\\")) << utf8(path);
      EXPECT_EQ(path.find(u".."), Text::npos) << utf8(path);
    }
  }
  expect_untouched();
}

TEST_F(BadInputTest, AFullDiskLosesNoSettingsWhereverTheyAreWritten) {
  const std::vector<std::pair<Text, std::string>> before{
      {Text(user_folder) + u"kiscserko.ini", " 6 \r\nFalse\r\nTrue\r\nFalse\r\n 0 \r\n 1 \r\n 1 \r\n"},
      {Text(user_folder) + u"főablak.ini", " 0 \r\n 1 \r\n 0 \r\n"},
      {Text(user_folder) + u"zenebeáll.ini", " 1 \r\na.mid\r\n"},
      {Text(app) + u"cserko\\grathang.ini", " 1 \r\n 1 \r\n 1 \r\n 1 \r\n 1 \r\na.wav\r\n"},
      {Text(app) + u"cserko\\hibahang.ini", "a.wav\r\n"},
      {u"c:\\pomzu\\cserk.pmz", " 0 \r\n 1 \r\n"}};
  for (const auto& [path, bytes] : before) machine.files().put(path, bytes);
  put_sounds({u"a.wav"});
  auto& exercise = deal({u"kos", u"utolsó"});
  machine.files().free_space = 0;
  then_in<frm_cserkó_beáll>([](frm_cserkó_beáll& d) { hand::click(d.OKButton); });
  hand::click(exercise.mnu_fájl_beálítások);
  hand::close(exercise);
  hand::click(open<frm_hangbeáll>().cmd_ok);
  hand::click(open<frm_zenebeáll>().cmd_ok);
  hand::click(open<frm_főablak_beállítások>().OKButton);
  hand::key(open<frm_főablak>(), key::escape);
  EXPECT_TRUE(machine.ended());
  for (const auto& [path, bytes] : before) EXPECT_EQ(file(path), bytes) << utf8(path);
  EXPECT_GE(machine.errors.size(), 4U) << "each loss is told";
  expected_errors = machine.errors.size();
}

TEST_F(BadInputTest, AnEmptyFolderOfPraisePicturesDoesNotStopTheCongratulation) {
  auto& window = deal({u"kos", u"hal", u"utolsó"});
  lay(window, {u"k", u"o", u"s"});
  hand::click(window.cmd_kész);
  then([this](Window& panel) {
    machine.advance(panel.KeyPause);
    hand::key(panel, key::enter);
  });
  machine.advance(3000);
  EXPECT_FALSE(window.lbl_megoldás.Visible);
}

} // namespace
} // namespace cserko
