// Tekergő: solved words, win and loss, the pictures with their panel and marks, menu and clock.
#include "feedback/névjegy.h"
#include "tests/exercises/winder_fixture.h"

namespace cserko {
namespace {

class WinderWordsTest : public WinderTest {
 protected:
  frmverembeállítások& dialog() { return load<frmverembeállítások>(); }
  /// A board with these letters in the middle row and a picture in slot 5; solved words vanish without a pause.
  frmverem& play(std::string_view letters, TextView word, int from = 0) {
    auto& window = empty_game();
    dialog().udváridmegfejt.set_value(0);
    put_row(window, letters, from);
    show(window, 5, word);
    return window;
  }
  /// A key without an action, which looks for words all the same.
  static void look_for_words(frmverem& window) { hand::key(window, 'Q'); }
  static bool solved(frmverem& window) {
    look_for_words(window);
    return !window.kép[5].Visible;
  }
  /// So many letters on a board that is empty otherwise.
  static void leave_letters(frmverem& window, int count) {
    empty_board(window);
    for (int i = 0; i < count; ++i) window.betű[i].Caption = u"q";
  }
};

TEST_F(WinderWordsTest, AWordIsFoundAtAnyColumnAndVanishesWithoutASound) {
  for (const int from : {0, 3, 6}) {
    start_numbering();
    auto& window = play("a|l|m|a", u"alma", from);
    EXPECT_TRUE(solved(window)) << from;
    EXPECT_EQ(row(window), " | | | | | | | | | ");
    EXPECT_EQ(window.kép[5].Tag, u" ");
    EXPECT_EQ(window.kép[5].ToolTipText, u" ");
    EXPECT_FALSE(window.képnév[5].Visible);
    EXPECT_EQ(heard(), "");
    end_session();
  }
}

TEST_F(WinderWordsTest, NotAcrossTheEndsOfTheRow) {
  auto& window = play("m|a", u"alma");
  put_row(window, "a|l", 8);
  EXPECT_FALSE(solved(window));
}

TEST_F(WinderWordsTest, AnEmptyCellCutsAWord) { EXPECT_FALSE(solved(play("a|l| |m|a", u"alma"))); }

TEST_F(WinderWordsTest, ADigraphMatchesOnlyInOneCell) {
  auto& window = play("s|z|é|k", u"szék");
  EXPECT_FALSE(solved(window));
  put_row(window, "sz|é|k| ");
  EXPECT_TRUE(solved(window));
}

TEST_F(WinderWordsTest, InEnglishEveryCharacterHasItsCell) {
  auto& window = play("sz|é|k", u"szék");
  window.nyelv(4);
  EXPECT_FALSE(solved(window));
  put_row(window, "s|z|é|k");
  EXPECT_TRUE(solved(window));
}

TEST_F(WinderWordsTest, AHiddenPictureIsNotSolved) {
  auto& window = play("a|l|m|a", u"alma");
  window.kép[5].Visible = false;
  look_for_words(window);
  EXPECT_EQ(row(window).substr(0, 7), "a|l|m|a");
}

TEST_F(WinderWordsTest, OneWordIsSolvedAtATimeTheLowestSlotFirst) {
  auto& window = play("l|ó|h|á|z", u"ház");
  show(window, 2, u"ló");
  look_for_words(window);
  EXPECT_FALSE(window.kép[2].Visible);
  EXPECT_TRUE(window.kép[5].Visible);
  look_for_words(window);
  EXPECT_FALSE(window.kép[5].Visible);
}

TEST_F(WinderWordsTest, TheColumnsOfASolvedWordCloseFromAboveElseFromBelowElseStayEmpty) {
  auto& window = play("l|ó|k", u"lók", 3);
  put_column(window, 3, 6, u"ab");
  put_column(window, 3, 9, u"c");
  put_column(window, 4, 9, u"de");
  EXPECT_TRUE(solved(window));
  EXPECT_EQ(column(window, 3), ".......abc.......");
  EXPECT_EQ(column(window, 4), "........de.......");
  EXPECT_EQ(column(window, 5), ".................");
}

TEST_F(WinderWordsTest, TheLettersBeforeAWordAreThoseOfTheRowAsOneText) {
  // "s" and "z" side by side count as one letter, so the columns from the third on are taken, which is intended.
  auto& window = play("s|z|x|l|ó|k", u"ló");
  EXPECT_TRUE(solved(window));
  EXPECT_EQ(row(window), "s|z| | |ó|k| | | | ");
}

TEST_F(WinderWordsTest, TheFirstPlaceAsPlainTextCounts) {
  // "szár" is spelt out before it stands in its letters.
  auto& window = play("s|z|á|r|x|sz|á|r", u"szár");
  EXPECT_TRUE(solved(window));
  EXPECT_EQ(row(window), " | | |r|x|sz|á|r| | ");
}

TEST_F(WinderWordsTest, ASolvedWordIsShownAloneWithItsPictureThreeTimesAsLargeAndHeardTwice) {
  auto& window = play("a|l|m|a", u"alma", 2);
  dialog().udváridmegfejt.set_value(2);
  dialog().chbxképnevek.set_value(1);
  show(window, 9, u"ház");
  window.képnév[9].Visible = true;
  const Rect place = place_of(window.kép[5]);
  const Rect third = place_of(window.kép[3]);
  int frames = 0;
  std::string sound_before;
  machine.during_frame = [&] {
    if (++frames == 1) sound_before = heard();
    const PictureBox& picture = window.kép[5];
    EXPECT_EQ(picture.Left, third.left);
    EXPECT_EQ(picture.Top, third.top);
    EXPECT_EQ(picture.Width, 3 * place.width);
    EXPECT_EQ(picture.Height, 3 * (place.height + window.képnév[5].Height));
    EXPECT_FALSE(window.kép[9].Visible);
    EXPECT_FALSE(window.képnév[9].Visible);
    window.betű.each([&](const Label& cell) { EXPECT_EQ(cell.Visible, cell.Index >= 82 && cell.Index <= 85); });
    // The child can only watch.
    hand::key(window, 'X');
    hand::close(window);
    hand::click(window.újjáték);
  };
  const auto start = machine.now();
  EXPECT_TRUE(solved(window));
  EXPECT_GE(machine.now() - start, 2000);
  EXPECT_LT(machine.now() - start, 2100);
  EXPECT_EQ(sound_before, solved_sound);
  EXPECT_EQ(heard(), solved_sound);
  EXPECT_EQ(place_of(window.kép[5]), place);
  EXPECT_TRUE(window.kép[9].Visible);
  EXPECT_TRUE(window.képnév[9].Visible);
  window.betű.each([](const Label& cell) { EXPECT_TRUE(cell.Visible); });
  EXPECT_EQ(highlights(window), (std::vector<int>{4}));
  EXPECT_EQ(row(window), " | | | | | | | | | ");
}

TEST_F(WinderWordsTest, APictureThatCannotBeDrawnIsShownLargeAsItsWord) {
  auto& window = play("a|l|m|a", u"alma");
  dialog().udváridmegfejt.set_value(1);
  window.kép[5].Picture = nullptr;
  machine.during_frame = [&] {
    EXPECT_EQ(drawn(window.kép[5]).texts(), (std::vector<Text>{u"alma"}));
    EXPECT_EQ(drawn(window.kép[5]).size().width, window.kép[5].Width);
  };
  EXPECT_TRUE(solved(window));
}

TEST_F(WinderWordsTest, NamesStayHiddenBehindASolutionWhereTheyAreNotWanted) {
  auto& window = play("a|l|m|a", u"alma");
  dialog().udváridmegfejt.set_value(1);
  show(window, 9, u"ház");
  EXPECT_TRUE(solved(window));
  EXPECT_FALSE(window.képnév[9].Visible);
}

// Win and loss.

TEST_F(WinderWordsTest, FewerThanFifteenLettersWinAtAnyKeyExactlyFifteenDoNot) {
  auto& window = deal();
  leave_letters(window, 15);
  look_for_words(window);
  EXPECT_EQ(congratulations, 0);
  leave_letters(window, 14);
  then_close_congratulation();
  look_for_words(window);
  EXPECT_EQ(congratulations, 1);
  EXPECT_EQ(pictures(window), 10);
  EXPECT_TRUE(window.has_puzzle());
}

TEST_F(WinderWordsTest, AfterAWinTheCursorIsShownWithTheNextMoveOnly) {
  auto& window = deal();
  leave_letters(window, 3);
  then_close_congratulation();
  look_for_words(window);
  EXPECT_EQ(highlights(window), (std::vector<int>{}));
  EXPECT_EQ(window.kurzor(), 4);
  hand::key(window, key::right);
  EXPECT_EQ(highlights(window), (std::vector<int>{5}));
}

TEST_F(WinderWordsTest, AClickOnTheCursorsOwnColumnShowsItAgain) {
  auto& window = deal();
  leave_letters(window, 3);
  then_close_congratulation();
  look_for_words(window);
  hand::click(window.cell(4, 3));
  EXPECT_EQ(highlights(window), (std::vector<int>{4}));
}

TEST_F(WinderWordsTest, ADealOfTooFewLettersIsWonByTheFirstKey) {
  for (const TextView word : {u"ló", u"kő", u"tű", u"fa", u"só", u"vaj"}) put({.név = Text(word)});
  put_settings(u"verem.ini", {u" 4 ", u" 5 "});
  start();
  auto& window = open();
  EXPECT_LT(window.letters_on_board(), 15);
  then_close_congratulation();
  hand::key(window, key::control);
  EXPECT_EQ(congratulations, 1);
}

TEST_F(WinderWordsTest, NoPictureComesDuringTheCongratulationAndTheTimerStartsAfreshBehindIt) {
  auto& window = deal();
  machine.advance(60000);
  leave_letters(window, 3);
  then_in<frm_gratuláció>([&](frm_gratuláció& panel) {
    machine.advance(200000);
    EXPECT_EQ(window.letters_on_board(), 3);
    hand::click(panel.cmd_ok);
  });
  look_for_words(window);
  machine.advance(64999);
  EXPECT_EQ(pictures(window), 10);
  machine.advance(1);
  EXPECT_EQ(pictures(window), 11);
}

TEST_F(WinderWordsTest, WithoutAFreeSlotTheGameIsLostAndAskedOnce) {
  auto& window = deal();
  machine.advance(8 * 65000);
  EXPECT_EQ(pictures(window), 18);
  then_in<frmveremigennem>([&](frmveremigennem& question) {
    EXPECT_EQ(utf8(question.Label1.Caption), "Ez nem volt az igazi. Majd a következő! Megpróbálod még egyszer?");
    machine.advance(500000);
    hand::click(question.Command1);
  });
  machine.advance(65000);
  EXPECT_EQ(pictures(window), 10) << "a new game";
  EXPECT_FALSE(session().loaded<frmveremigennem>());
  EXPECT_TRUE(session().loaded<frmverembeállítások>());
  EXPECT_EQ(highlights(window), (std::vector<int>{})) << "the cursor comes with the next move";
}

TEST_F(WinderWordsTest, NoAfterALossClosesTheGameAndSavesNothing) {
  deal();
  then_answer(false);
  machine.advance(9 * 65000);
  EXPECT_EQ(questions, 1);
  EXPECT_FALSE(session().loaded<frmverem>());
  EXPECT_FALSE(session().loaded<frmveremigennem>());
  EXPECT_EQ(settings(u"verem.ini"), "(none)");
}

TEST_F(WinderWordsTest, ClosingTheQuestionMeansNo) {
  deal();
  then_in<frmveremigennem>([](frmveremigennem& question) { hand::close(question); });
  machine.advance(9 * 65000);
  EXPECT_FALSE(session().loaded<frmverem>());
  EXPECT_FALSE(session().loaded<frmveremigennem>());
}

TEST_F(WinderWordsTest, TheQuestionIsAnsweredByKeysToo) {
  auto& window = deal();
  then_in<frmveremigennem>([](frmveremigennem& question) { hand::key(question, key::enter); });
  machine.advance(9 * 65000);
  EXPECT_EQ(pictures(window), 10);
  then_in<frmveremigennem>([](frmveremigennem& question) { hand::key(question, key::escape); });
  machine.advance(9 * 65000);
  EXPECT_FALSE(session().loaded<frmverem>());
}

// Pictures.

TEST_F(WinderWordsTest, APictureIsShownLargeWithItsWordAndTheTimerPauses) {
  auto& window = deal();
  show(window, 5, u"alma");
  window.kép[5].Picture = machine.load_picture(u"c:\\cserko\\kepek\\1.wmf");
  machine.advance(60000);
  const int before = pictures(window);
  then_in<üzenet>([&](üzenet& panel) {
    EXPECT_EQ(utf8(panel.üzenet_szöveg.Caption), "alma");
    EXPECT_EQ(picture(panel.üzenet_kép), picture_path(0));
    EXPECT_EQ(window.Timer1.Interval, 0);
    machine.advance(200000);
    hand::click(panel.Command1);
  });
  hand::click(window.kép[5]);
  EXPECT_EQ(window.Timer1.Interval, 65000);
  machine.advance(64999);
  EXPECT_EQ(pictures(window), before) << "the interval begins anew";
  machine.advance(1);
  EXPECT_EQ(pictures(window), before + 1);
}

TEST_F(WinderWordsTest, TabLeadsToThePicturesAndEnterOpensThePanel) {
  auto& window = empty_game();
  show(window, 5, u"alma");
  show(window, 7, u"ház");
  input::focus(window.kép[5]);
  hand::key(window, key::tab);
  ASSERT_EQ(window.focus(), &window.kép[7]);
  then_in<üzenet>([&](üzenet& panel) {
    EXPECT_EQ(utf8(panel.üzenet_szöveg.Caption), "ház");
    machine.advance(panel.KeyPause);
    hand::key(panel, key::enter);
  });
  hand::key(window, key::enter);
  EXPECT_EQ(highlights(window), (std::vector<int>{4})) << "the arrows and the space bar stay with the board";
  put_row(window, "a|b|c|d|e|f|g|h|i|j");
  hand::key(window, key::space);
  EXPECT_EQ(row(window), "j|a|b|c|d|e|f|g|h|i");
}

class WinderMarksTest : public WinderWordsTest {
 protected:
  frmverem& marked_game() {
    auto& window = empty_game();
    dialog().chb_betűkiemelés.set_value(1);
    put_row(window, "sz|é|k|s|z|e|ly|l|y|a");
    show(window, 5, u"szél");
    show(window, 0, u"alma");
    return window;
  }
  /// The letters of the middle row that are bold and red.
  static std::string marks(const frmverem& window) {
    std::string all;
    for (int column = 0; column < 10; ++column) {
      const Label& cell = window.cell(column, 8);
      EXPECT_EQ(cell.Font.bold, cell.ForeColor == (Color{255, 0, 0}));
      EXPECT_TRUE(cell.Font.bold || cell.ForeColor == black);
      if (cell.Font.bold) all += utf8(cell.Caption) + " ";
    }
    return all;
  }
  static void point_at(PictureBox& slot) { hand::move(slot, 100, 100, MouseButton::None); }
};

TEST_F(WinderMarksTest, TheLettersOfThePictureUnderThePointerAreBoldAndRed) {
  auto& window = marked_game();
  point_at(window.kép[5]);
  EXPECT_EQ(marks(window), "sz é l ") << "whole letters only";
  point_at(window.kép[0]);
  EXPECT_EQ(marks(window), "l a ");
  hand::move(window.cell(3, 3), 100, 100, MouseButton::None);
  EXPECT_EQ(marks(window), "");
  point_at(window.kép[5]);
  input::mouse_move(window, {});
  EXPECT_EQ(marks(window), "");
}

TEST_F(WinderMarksTest, TheNameIsReadFromTheLabelBelowThePicture) {
  auto& window = marked_game();
  window.képnév[5].Caption = u"lyé";
  point_at(window.kép[5]);
  EXPECT_EQ(marks(window), "é ly ");
}

TEST_F(WinderMarksTest, AKeyTakesTheMarksAway) {
  auto& window = marked_game();
  point_at(window.kép[5]);
  hand::key(window, key::right);
  EXPECT_EQ(marks(window), "");
}

TEST_F(WinderMarksTest, TheFirstSlotIsTakenForHighlightedAtTheBeginning) {
  auto& window = marked_game();
  point_at(window.kép[0]);
  EXPECT_EQ(marks(window), "") << "which is intended";
}

TEST_F(WinderMarksTest, NothingIsMarkedUnlessItIsWanted) {
  auto& window = marked_game();
  dialog().chb_betűkiemelés.set_value(0);
  point_at(window.kép[5]);
  EXPECT_EQ(marks(window), "");
}

TEST_F(WinderMarksTest, TabMarksTheLettersOfThePictureThatItComesTo) {
  auto& window = marked_game();
  show(window, 7, u"lyuk");
  input::focus(window.kép[5]);
  hand::key(window, key::tab);
  EXPECT_EQ(marks(window), "k ly ");
  window.kép[7].Visible = false;
  look_for_words(window);
  EXPECT_NE(window.focus(), &window.kép[7]);
  EXPECT_EQ(marks(window), "") << "a focus that has to leave marks nothing";
}

TEST_F(WinderMarksTest, TurnedOffInTheSettingsTheMarksAreWiped) {
  auto& window = marked_game();
  point_at(window.kép[5]);
  then_in<frmverembeállítások>([](frmverembeállítások& d) {
    hand::click(d.chb_betűkiemelés);
    hand::click(d.CancelButton);
  });
  hand::click(window.mnubeállításokdlg);
  EXPECT_EQ(marks(window), "");
  EXPECT_EQ(dialog().chb_betűkiemelés.value(), 0);
}

// Menu and end.

TEST_F(WinderWordsTest, SettingsHelpAndAboutPauseTheTimer) {
  auto& window = deal();
  const auto expect_pause = [&](const std::function<void()>& deed) {
    hand::click(window.újjáték);
    machine.advance(60000);
    deed();
    EXPECT_EQ(window.Timer1.Interval, 65000);
    machine.advance(64999);
    EXPECT_EQ(pictures(window), 10);
    machine.advance(1);
    EXPECT_EQ(pictures(window), 11);
  };
  expect_pause([&] {
    then_in<frmverembeállítások>([&](frmverembeállítások& d) {
      machine.advance(200000);
      hand::click(d.CancelButton);
    });
    hand::click(window.mnubeállításokdlg);
  });
  expect_pause([&] {
    then_in<Névjegy>([&](Névjegy& panel) {
      machine.advance(200000);
      hand::close(panel);
    });
    hand::click(window.mnusúgónévjegy);
  });
  expect_pause([&] { hand::click(window.mnusúgósúgó); });
  EXPECT_EQ(help_page(), help_command("Tekergő  - A feladat.mht"));
}

TEST_F(WinderWordsTest, TheTimerGoesOnWhereTheHelpDoesNotOpen) {
  auto& window = deal();
  const int interval = window.Timer1.Interval;
  machine.advance(60000);
  machine.processes_fail = true;
  hand::click(window.mnusúgósúgó);
  expected_errors = 1;
  EXPECT_EQ(window.Timer1.Interval, interval);
  machine.advance(interval);
  EXPECT_EQ(pictures(window), 11);
}

TEST_F(WinderWordsTest, F1OpensTheHelp) {
  auto& window = deal();
  hand::key(window, key::f1);
  EXPECT_EQ(help_page(), help_command("Tekergő  - A feladat.mht"));
}

TEST_F(WinderWordsTest, MenuEscapeAndCloseControlSaveTheSettings) {
  put_words();
  start();
  const std::string saved = " 8 \r\n 10 \r\n 5 \r\n 2 \r\n 2 \r\n 0 \r\n 0 \r\n";
  const auto expect_saved = [&](const std::function<void(frmverem&)>& way) {
    way(open());
    EXPECT_FALSE(session().loaded<frmverem>());
    EXPECT_EQ(settings(u"verem.ini"), saved);
    EXPECT_TRUE(session().loaded<frmverembeállítások>());
    machine.files().take(u"c:\\pomzu\\cserko\\verem.ini");
  };
  expect_saved([](frmverem& window) { hand::click(window.kilép); });
  expect_saved([](frmverem& window) { hand::key(window, key::escape); });
  expect_saved([](frmverem& window) { hand::close(window); });
}

TEST_F(WinderWordsTest, TheProgramMayEndDuringASolution) {
  auto& window = play("a|l|m|a", u"alma");
  dialog().udváridmegfejt.set_value(3);
  machine.during_frame = [&] { machine.end_process(); };
  look_for_words(window);
  EXPECT_TRUE(machine.ended());
}

} // namespace
} // namespace cserko
