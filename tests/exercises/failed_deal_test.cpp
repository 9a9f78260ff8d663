// A deal that fails ends the puzzle before it: nothing of the old word and nothing half dealt can be played or seen,
// and the next deal that succeeds goes on as if nothing had been.
#include "exercises/boards/frm_képmemória.h"
#include "exercises/letters/frm_cserkó.h"
#include "exercises/sentences/frm_igazhamis.h"
#include "exercises/sentences/frm_mondatkép.h"
#include "exercises/syllables/frm_szótagoló.h"
#include "exercises/template/frm_template.h"
#include "tests/exercises/exercise_fixture.h"

namespace cserko {
namespace {

class FailedDealTest : public ExerciseTest {
 protected:
  FailedDealTest() {
    for (const TextView name : {u"alma", u"kutya", u"ház", u"medve", u"szilva", u"béka", u"róka", u"utolsó"}) {
      const Text word(name);
      put({.név = word,
           .szótagolt = word,
           .angol = u"the " + word,
           .meghatározás = u"mi " + word,
           .igaz = u"igaz " + word,
           .hamis = u"hamis " + word});
    }
  }
  template<class W> W& begun() {
    start();
    put_answer_sounds();
    W& window = open<W>();
    EXPECT_TRUE(window.has_puzzle());
    return window;
  }
  /// Asks for a new puzzle when no record is left to draw.
  template<class W> void fail(W& window, MenuItem& new_task) {
    const Records all = session().képek;
    session().képek = Records();
    then_close_message();
    hand::click(new_task);
    EXPECT_EQ(messages_shown, 1);
    EXPECT_FALSE(window.has_puzzle());
    EXPECT_TRUE(window.visible());
    session().képek = all;
    forget_commands();
  }
  /// No word of the pack is as long.
  void ask_for_twelve_letters() {
    auto& dialog = session().window<frm_cserkó_beáll>();
    dialog.udbetszám.set_value(12);
    dialog.opt_betszám[0].set_value(true);
  }
};

TEST_F(FailedDealTest, ScrambledWordGivesTheOldWordAwayNoMore) {
  auto& window = begun<frm_cserkó>();
  ask_for_twelve_letters();
  then_close_message();
  hand::click(window.mnu_fájl_újfeladat);
  EXPECT_EQ(messages_shown, 1);
  EXPECT_FALSE(window.has_puzzle());
  EXPECT_EQ(window.betű.count(), 1);
  EXPECT_FALSE(window.betű[0].Visible);
  for (Button* button : {&window.cmd_kész, &window.cmd_egybetűtfelfed, &window.cmd_rendez, &window.cmd_újrakever}) {
    EXPECT_FALSE(button->Enabled) << utf8(button->Name);
    hand::click(*button);
  }
  // The keys and the frame have no letter to touch.
  for (const int code : {key::space, key::left, key::enter}) hand::key(window, code);
  hand::press(window.kép, 100, 100);
  hand::press(window.kép, 100, 100, MouseButton::Right);
  EXPECT_FALSE(window.betű[0].Visible);
  EXPECT_FALSE(window.betű[0].Border);
  EXPECT_EQ(picture(window.kép), "(none)");
  EXPECT_FALSE(window.lbl_megoldás.Visible);

  session().window<frm_cserkó_beáll>().opt_betszám[1].set_value(true);
  hand::click(window.mnu_fájl_újfeladat);
  EXPECT_TRUE(window.has_puzzle());
  EXPECT_TRUE(window.cmd_kész.Enabled);
  EXPECT_TRUE(window.betű[0].Visible);
}

TEST_F(FailedDealTest, ScrambledWordsTaskLineKeepsItsTextWhereTheDealBehindItFails) {
  auto& window = begun<frm_cserkó>();
  const Text task = window.lbl_feladat.Caption;
  ask_for_twelve_letters();
  then_close_message();
  input::mouse_down(window.lbl_feladat, {MouseButton::Middle, shift::shift | shift::control | shift::alt, 10, 10});
  EXPECT_EQ(utf8(window.lbl_feladat.Caption), utf8(task));
}

TEST_F(FailedDealTest, PictureMemoryShowsNoCardAndNoTime) {
  put_app_file(u"cserko\\képmem.ini", u" 5 \r\n 12 \r\n 2 \r\n 12 \r\n");
  auto& window = begun<frm_képmemória>();
  machine.advance(5000);
  ASSERT_EQ(utf8(window.időkijelző.Caption), "00:00:05");
  // Three words are enough for some of the cards.
  const Records all = session().képek;
  for (int i = 4; i <= 8; ++i) machine.files().take(Text(HeadlessPlatform::folder) + u"kepek\\" + to_text(i) + u".wms");
  session().képek = Records();
  session().képek.load(machine.files(), session().alapkönyvtár);
  then_close_message();
  hand::click(window.mnu_fájl_új_játék);
  EXPECT_EQ(messages_shown, 1);
  EXPECT_FALSE(window.has_puzzle());
  window.kép.each([](const PictureBox& card) {
    EXPECT_FALSE(card.Visible) << card.Index;
    EXPECT_EQ(utf8(card.Tag), "") << card.Index;
  });
  machine.advance(5000);
  EXPECT_EQ(utf8(window.időkijelző.Caption), "00:00:00");

  session().képek = all;
  hand::click(window.mnu_fájl_új_játék);
  EXPECT_TRUE(window.has_puzzle());
  machine.advance(3000);
  EXPECT_EQ(utf8(window.időkijelző.Caption), "00:00:03");
}

TEST_F(FailedDealTest, SyllabifierHasNoRowAndNoAnswer) {
  auto& window = begun<frm_szótagoló>();
  session().window<dlg_szótagoló>().chk_egyszótagúak_kizárva.set_value(1);
  then_close_message();
  then_in<dlg_szótagoló>([](dlg_szótagoló& dialog) { hand::click(dialog.OKButton); });
  std::swap(machine.script.front(), machine.script.back());
  hand::click(window.mnu_fájl_beállítások);
  EXPECT_EQ(messages_shown, 1);
  EXPECT_FALSE(window.has_puzzle());
  EXPECT_EQ(picture(window.kép), "(none)");
  EXPECT_EQ(window.betű.count(), 1);
  EXPECT_FALSE(window.betű[0].Visible);
  forget_commands();
  hand::click(window.cmd_kész);
  hand::key(window, key::enter);
  EXPECT_EQ(commands(), "");
}

TEST_F(FailedDealTest, SentenceToPictureHasAnEmptyRing) {
  auto& window = begun<frm_mondatkép>();
  // Three definitions fill a part of the ring.
  const Records all = session().képek;
  for (int i = 4; i <= 8; ++i) machine.files().take(Text(HeadlessPlatform::folder) + u"kepek\\" + to_text(i) + u".wms");
  session().képek = Records();
  session().képek.load(machine.files(), session().alapkönyvtár);
  then_close_message();
  hand::click(window.mnu_újjáték);
  EXPECT_FALSE(window.has_puzzle());
  EXPECT_EQ(pictures(window.pic_feladványkép), no_pictures(6));
  forget_commands();
  for (int i = 0; i < 6; ++i) hand::click(window.pic_feladványkép[i]);
  EXPECT_EQ(commands(), "");
  session().képek = all;
  hand::click(window.mnu_újjáték);
  EXPECT_TRUE(window.has_puzzle());
}

TEST_F(FailedDealTest, TrueOrFalseHasNoStatements) {
  auto& window = begun<frm_igazhamis>();
  fail(window, window.mnu_file_új_játék);
  EXPECT_EQ(captions(window.lbl_állítás), nothing(2));
  EXPECT_EQ(picture(window.kép), "(none)");
  for (int i = 0; i < 2; ++i) hand::click(window.lbl_állítás[i]);
  EXPECT_EQ(commands(), "");
  hand::click(window.mnu_file_új_játék);
  EXPECT_TRUE(window.has_puzzle());
}

TEST_F(FailedDealTest, TheTemplateHasNoNames) {
  auto& window = begun<frm_template>();
  fail(window, window.mnu_fájl_új_játék);
  EXPECT_EQ(captions(window.lbl_név), nothing(2));
  EXPECT_EQ(picture(window.kép), "(none)");
  for (int i = 0; i < 2; ++i) hand::click(window.lbl_név[i]);
  EXPECT_EQ(commands(), "");
  hand::click(window.mnu_fájl_új_játék);
  EXPECT_TRUE(window.has_puzzle());
}

} // namespace
} // namespace cserko
