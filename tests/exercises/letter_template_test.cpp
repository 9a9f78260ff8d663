// The model of a letter exercise: two languages, a coupled range, the row of letters, the hint, the panel.
#include "exercises/template/frm_letter_template.h"
#include "tests/exercises/exercise_fixture.h"
#include "tests/exercises/letter_row_checks.h"

#include <algorithm>

namespace cserko {
namespace {

class LetterTemplateTest : public ExerciseTest {
 protected:
  LetterTemplateTest() {
    put({{.név = u"asztal", .angol = u"table"},
         {.név = u"kutya", .angol = u"puppy"},
         {.név = u"szék", .angol = u"chair"},
         {.név = u"utolsó", .angol = u"last"}});
  }
  /// Chance for a puzzle: the record, the letter that is replaced among `letters`, the one of the alphabet in its
  /// place.
  void script(int index, int place, int letters, int in_alphabet) {
    machine.script_random({record(index), drawing(place, letters), drawing(in_alphabet, 25)});
  }
  frm_letter_template& deal(int index, int place, int letters, int in_alphabet) {
    start();
    put_answer_sounds();
    script(index, place, letters, in_alphabet);
    return open<frm_letter_template>();
  }
  static std::string row(const frm_letter_template& window) { return letters_of(window.betű); }
};

TEST_F(LetterTemplateTest, OneLetterOfTheWordIsReplaced) {
  const auto& window = deal(0, 1, 5, 0);
  EXPECT_EQ(row(window), "a|a|t|a|l") << "the digraph was one letter";
  EXPECT_EQ(picture(window.kép), picture_path(0));
}

TEST_F(LetterTemplateTest, NeverByItself) {
  start();
  machine.script_random({record(0), drawing(0, 5), drawing(0, 25), drawing(1, 25)});
  EXPECT_EQ(row(open<frm_letter_template>()), "b|sz|t|a|l");
}

TEST_F(LetterTemplateTest, EveryLetterStandsUnderThePicture) {
  const auto& window = deal(0, 1, 5, 0);
  EXPECT_GE(window.betű[0].Left, window.kép.Left);
  const Label& last = window.betű[4];
  EXPECT_LE(last.Left + last.Width, window.kép.Left + window.kép.Width);
  EXPECT_LE(last.Top + last.Height, window.inner_height());
}

TEST_F(LetterTemplateTest, TheReplacedLetterIsRightAndTheNextWordComes) {
  auto& window = deal(0, 1, 5, 0);
  machine.script_random({0.0});
  script(1, 0, 4, 3);
  hand::click(window.betű[1]);
  EXPECT_EQ(commands(), good_sound);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "asztal");
  EXPECT_EQ(picture(window.pic_eredmény[0]), picture_path(0));
  EXPECT_EQ(row(window), "d|u|ty|a");
}

TEST_F(LetterTemplateTest, AnotherLetterIsWrong) {
  auto& window = deal(0, 1, 5, 0);
  machine.script_random({0.0});
  hand::click(window.betű[0]);
  EXPECT_EQ(commands(), bad_sound);
  EXPECT_EQ(row(window), "a|a|t|a|l");
  EXPECT_EQ(captions(window.lbl_eredmény), nothing(3));
}

TEST_F(LetterTemplateTest, AClickOnThePictureIsAHint) {
  auto& window = deal(0, 1, 5, 0);
  std::string said;
  then_in<üzenet>([&](üzenet& panel) {
    said = utf8(panel.üzenet_szöveg.Caption);
    hand::click(panel.Command1);
  });
  hand::click(window.kép);
  EXPECT_EQ(said, "asztal");
}

TEST_F(LetterTemplateTest, InEnglishWordsAreCutAndCountedByCharacters) {
  auto& window = deal(0, 1, 5, 0);
  then_in<dlg_letter_template>([this](dlg_letter_template& dialog) {
    hand::click(dialog.opt_nyelv[1]);
    script(2, 1, 5, 0);
    hand::click(dialog.OKButton);
  });
  hand::click(window.mnu_fájl_beáll);
  EXPECT_EQ(row(window), "c|a|a|i|r");
  EXPECT_EQ(settings(u"letter_template.ini"), " 4 \r\n 10 \r\nFalse\r\nTrue\r\n");
}

TEST_F(LetterTemplateTest, TheSettingsAreReadAndHungarianIsOnWhereNoLanguageIs) {
  put_settings(u"letter_template.ini", {u" 11 ", u" 12 ", u"False", u"False"});
  auto& dialog = (start(), load<dlg_letter_template>());
  EXPECT_EQ(dialog.ud_minbetűszám.value(), 11);
  EXPECT_EQ(dialog.ud_maxbetűszám.value(), 12);
  EXPECT_FALSE(dialog.english());
  EXPECT_TRUE(dialog.opt_nyelv[0].value());
}

TEST_F(LetterTemplateTest, TheOptionsStandInTheTabOrderOfTheirGroup) {
  start();
  const auto dialog = designed<dlg_letter_template>();
  const auto& all = dialog->elements();
  const auto at = [&](const Element& element) { return std::find(all.begin(), all.end(), &element); };
  EXPECT_LT(at(dialog->opt_nyelv[0]), at(dialog->opt_nyelv[1]));
  EXPECT_LT(at(dialog->opt_nyelv[1]), at(dialog->ud_minbetűszám));
  EXPECT_EQ(dialog->opt_nyelv.chosen(), 0);
}

TEST_F(LetterTemplateTest, WhereNoWordHasTheLengthNothingIsPlayable) {
  put_settings(u"letter_template.ini", {u" 12 ", u" 16 ", u"True", u"False"});
  start();
  put_answer_sounds();
  then_close_message();
  auto& window = open<frm_letter_template>();
  EXPECT_NE(message.find("betűk számát"), std::string::npos) << message;
  hand::click(window.kép);
  EXPECT_FALSE(window.betű[0].Visible);
  EXPECT_EQ(picture(window.kép), "(none)");
  EXPECT_EQ(commands(), "");
  hand::click(window.mnu_fájl_kilép);
  EXPECT_FALSE(session().loaded<frm_letter_template>());
  EXPECT_FALSE(session().loaded<dlg_letter_template>());
}

TEST_F(LetterTemplateTest, IsPlayedByKeysAlone) {
  auto& window = deal(0, 1, 5, 0);
  window.set_focus(&window.betű[0]);
  hand::key(window, key::right);
  ASSERT_EQ(window.focus(), &window.betű[1]);
  hand::key(window, key::space);
  EXPECT_EQ(utf8(window.lbl_eredmény[0].Caption), "asztal");
}

} // namespace
} // namespace cserko
