#include "fixture.h"

namespace cserko {
namespace {

class Focus : public PlatformTest {
 protected:
  Label label{window, u"lbl", {0, 0, 900, 300}, u"&Név"};
  TextBox text{window, u"txt", {0, 400, 900, 300}};
  OptionButton option_a{window, u"opt", {0, 800, 900, 300}, u"a"};
  OptionButton option_b{window, u"opt", {0, 1200, 900, 300}, u"b", true};
  Button button{window, u"cmd", {0, 1600, 900, 300}, u"&Újrakever"};
};

TEST_F(Focus, TheFirstControlHasItWhenTheWindowComesUp) {
  show();
  EXPECT_EQ(window.focus(), &text);
}

TEST_F(Focus, TabGoesRoundInOrderOfCreationWithOneStopForAGroupOfOptions) {
  show();
  std::vector<Element*> order;
  for (int i = 0; i < 4; ++i) {
    hand::key(window, key::tab);
    order.push_back(window.focus());
  }
  EXPECT_EQ(order, (std::vector<Element*>{&option_b, &button, &text, &option_b}));
  hand::key(window, key::tab, shift::shift);
  EXPECT_EQ(window.focus(), &text);
  hand::key(window, key::tab, shift::shift);
  EXPECT_EQ(window.focus(), &button);
}

TEST_F(Focus, AltAndTheMarkOfALabelLeadToTheTextBoxBehindIt) {
  const Label words(window, u"lbl", {0, 2000, 900, 300}, u"&Eper");
  show();
  input::focus(button);
  hand::key(window, 'E', shift::alt);
  EXPECT_EQ(window.focus(), &button) << "no box stands behind that label";
  hand::key(window, 'N', shift::alt);
  EXPECT_EQ(window.focus(), &text);
  input::focus(button);
  text.Enabled = false;
  hand::key(window, 'N', shift::alt);
  EXPECT_EQ(window.focus(), &button);
}

TEST_F(Focus, TabPassesOverWhatCannotBeUsed) {
  show();
  option_b.TabStop = false;
  button.Enabled = false;
  EXPECT_EQ(input::next_focus(window, false), &text);
  button.Enabled = true;
  button.Visible = false;
  EXPECT_EQ(input::next_focus(window, false), &text);
  text.Visible = false;
  EXPECT_EQ(input::next_focus(window, false), nullptr);
}

TEST_F(Focus, LeavingComesBeforeArriving) {
  show();
  text.LostFocus = noting("lost");
  button.GotFocus = noting("got");
  input::focus(button);
  EXPECT_EQ(log, (Log{"lost", "got"}));
  input::focus(button);
  EXPECT_EQ(log.size(), 2U) << "it has it already";
}

TEST_F(Focus, IsNotTakenByWhatIsHiddenDisabledOrOfNoSuchKind) {
  show();
  button.Enabled = false;
  window.set_focus(&button);
  EXPECT_EQ(window.focus(), &text);
  window.set_focus(&label);
  EXPECT_EQ(window.focus(), &text);
}

TEST_F(Focus, AHandlerThatMovesItOnHasTheLastWord) {
  show();
  text.LostFocus = [this] { window.set_focus(&option_b); };
  button.GotFocus = noting("got");
  window.set_focus(&button);
  EXPECT_EQ(window.focus(), &option_b);
  EXPECT_EQ(log, Log{});
}

// Keys.

class Keys : public Focus {};

TEST_F(Keys, ThePreviewingWindowSeesThemBeforeTheFocusedElement) {
  window.KeyPreview = true;
  text.KeyDown = [this](KeyEvent& event) { log.push_back("text " + std::to_string(event.code)); };
  show();
  hand::key(window, 'A');
  EXPECT_EQ(log, (Log{"window KeyDown 65", "text 65", "window KeyUp 65"}));
}

TEST_F(Keys, WithoutPreviewTheFocusedElementComesFirst) {
  text.KeyDown = [this](KeyEvent& event) { log.push_back("text " + std::to_string(event.code)); };
  show();
  hand::key(window, 'A');
  EXPECT_EQ(log, (Log{"text 65", "window KeyDown 65", "window KeyUp 65"}));
}

TEST_F(Keys, AHandlerKeepsAKeyByMakingItsCodeZero) {
  window.KeyPreview = true;
  window.on_key = [](KeyEvent& event) { event.code = 0; };
  text.KeyDown = [this](KeyEvent&) { log.push_back("text"); };
  show();
  hand::type(window, u"x");
  EXPECT_EQ(log, (Log{"window KeyDown 88", "window KeyUp 88"}));
  EXPECT_EQ(text.text(), u"");
}

TEST_F(Keys, AKeyThatClosesTheWindowGoesNoFurther) {
  window.KeyPreview = true;
  window.on_key = [this](KeyEvent&) { platform.hide(window); };
  text.KeyDown = [this](KeyEvent&) { log.push_back("text"); };
  button.Default = true;
  button.Click = noting("click");
  show();
  hand::key(window, key::enter);
  EXPECT_EQ(log, Log{"window KeyDown 13"});
}

TEST_F(Keys, AMenuShortcutMayAskForCtrl) {
  MenuItem again(window, u"mnu_fájl_újrakezd", u"&Újrakezdi", 'U', shift::control);
  again.Click = noting("again");
  show();
  hand::key(window, 'U');
  hand::key(window, 'U', shift::control | shift::shift);
  hand::key(window, 'U', shift::control | shift::alt);
  EXPECT_EQ(std::count(log.begin(), log.end(), "again"), 0);
  hand::key(window, 'U', shift::control);
  EXPECT_EQ(std::count(log.begin(), log.end(), "again"), 1);
}

TEST_F(Keys, AMenuShortcutWinsOverEverything) {
  MenuItem help(window, u"mnu_súgó_súgó", u"&Súgó", key::f1);
  help.Click = noting("help");
  window.KeyPreview = true;
  show();
  hand::key(window, key::f1);
  EXPECT_EQ(log, (Log{"help", "window KeyUp 112"}));
  hand::key(window, key::f1, shift::shift);
  EXPECT_EQ(log[2], "window KeyDown 112") << "with Shift it is another key";
  help.Enabled = false;
  hand::key(window, key::f1);
  EXPECT_EQ(log[4], "window KeyDown 112");
}

TEST_F(Keys, AltAndTheMarkedLetterChoosesAControl) {
  button.Click = noting("click");
  show();
  hand::key(window, 0xDA, shift::alt); // Ú
  EXPECT_EQ(log[1], "click");
  EXPECT_EQ(window.focus(), &button);
  log.clear();
  hand::key(window, 0xDA);
  EXPECT_EQ(log, (Log{"window KeyDown 218", "window KeyUp 218"})) << "without Alt it is only a letter";
  hand::key(window, 'N', shift::alt);
  EXPECT_EQ(log.size(), 4U) << "a label is not chosen";
}

TEST_F(Keys, SpaceAndEnterPressTheFocusedButton) {
  int clicks = 0;
  button.Click = [&] { ++clicks; };
  show();
  input::focus(button);
  hand::key(window, key::space);
  hand::key(window, key::enter);
  EXPECT_EQ(clicks, 2);
}

TEST_F(Keys, EnterPressesTheDefaultButtonUnlessAnotherButtonHasTheFocus) {
  Button ok(window, u"OKButton", {0, 2000, 900, 300}, u"OK");
  ok.Default = true;
  ok.Click = noting("ok");
  button.Click = noting("other");
  show();
  hand::key(window, key::enter);
  EXPECT_EQ(log[1], "ok");
  log.clear();
  input::focus(button);
  hand::key(window, key::enter);
  EXPECT_EQ(log[1], "other");
}

TEST_F(Keys, EscapePressesTheCancelButton) {
  Button cancel(window, u"CancelButton", {0, 2000, 900, 300}, u"Mégsem");
  cancel.Cancel = true;
  cancel.Click = noting("cancel");
  show();
  input::focus(button);
  hand::key(window, key::escape);
  EXPECT_EQ(log[1], "cancel");
  cancel.Enabled = false;
  log.clear();
  hand::key(window, key::escape);
  EXPECT_EQ(log, (Log{"window KeyDown 27", "window KeyUp 27"}));
}

TEST_F(Keys, ArrowsChooseAmongTheOptionsOfOneGroupGoingRound) {
  Frame frame(window, u"frame", {0, 2000, 3000, 900});
  OptionButton elsewhere(frame, u"opt", {0, 0, 900, 300}, u"c");
  OptionButton off(window, u"opt", {0, 3000, 900, 300}, u"d");
  off.Enabled = false;
  show();
  input::focus(option_b);
  hand::key(window, key::down);
  EXPECT_TRUE(option_a.value()) << "round to the first, over the disabled one";
  EXPECT_EQ(window.focus(), &option_a);
  hand::key(window, key::left);
  EXPECT_TRUE(option_b.value());
  EXPECT_FALSE(elsewhere.value());
}

TEST_F(Keys, SpaceTicksTheFocusedCheckBox) {
  CheckBox box(window, u"chk", {0, 2000, 900, 300}, u"Hang");
  show();
  input::focus(box);
  hand::key(window, key::space);
  EXPECT_EQ(box.value(), 1);
}

TEST_F(Keys, SpaceAndEnterClickWhatCanBeChosen) {
  PictureBox box(window, u"kép", {0, 2000, 900, 900});
  Label choice(window, u"lbl_válasz", {0, 3000, 900, 300}, u"igen");
  choice.Choosable = true;
  box.Click = noting("picture");
  choice.Click = noting("label");
  show();
  input::focus(box);
  hand::key(window, key::space);
  EXPECT_EQ(log[1], "picture");
  log.clear();
  hand::key(window, key::tab);
  EXPECT_EQ(window.focus(), &choice);
  hand::key(window, key::enter);
  EXPECT_EQ(log[3], "label");
}

TEST_F(Keys, EnterIsTheDefaultButtonsAlsoOnWhatCanBeChosen) {
  PictureBox box(window, u"kép", {0, 2000, 900, 900});
  box.Click = noting("picture");
  button.Default = true;
  button.Click = noting("button");
  show();
  input::focus(box);
  hand::key(window, key::enter);
  EXPECT_EQ(log[1], "button");
}

TEST_F(Keys, ADisabledWindowHearsNone) {
  window.KeyPreview = true;
  show();
  window.Enabled = false;
  hand::key(window, 'A');
  EXPECT_EQ(log, Log{});
}

// Text boxes and their up-downs.

TEST_F(Keys, TypingFillsTheFocusedTextBox) {
  show();
  hand::type(window, u"Ősz 2");
  EXPECT_EQ(text.text(), u"Ősz 2");
  hand::key(window, key::backspace);
  EXPECT_EQ(text.text(), u"Ősz ");
  EXPECT_EQ(log.front(), "window KeyDown 213") << "letters have the code of their capital";
}

TEST_F(Keys, ALockedTextBoxTakesNothingAndALimitedOneNoMoreThanItHolds) {
  show();
  text.MaxLength = 3;
  hand::type(window, u"abcdef");
  EXPECT_EQ(text.text(), u"abc");
  text.Locked = true;
  hand::write(text, u"x");
  EXPECT_EQ(text.text(), u"abc");
}

class Stepper : public PlatformTest {
 protected:
  TextBox buddy{window, u"txtbetszám", {0, 0, 900, 300}};
  UpDown updown{window, u"udbetszám", {900, 0, 200, 300}, buddy, {4, 12, 2}, 10};
  Button other{window, u"cmd", {0, 900, 900, 300}, u"OK"};
};

TEST_F(Stepper, StepsByItsIncrementWithinItsRange) {
  show();
  hand::step(updown, 1);
  EXPECT_EQ(updown.value(), 12);
  hand::step(updown, 1);
  EXPECT_EQ(updown.value(), 12);
  for (int i = 0; i < 10; ++i) hand::step(updown, -1);
  EXPECT_EQ(updown.value(), 4);
  EXPECT_EQ(buddy.text(), u"4");
  updown.Enabled = false;
  hand::step(updown, 1);
  EXPECT_EQ(updown.value(), 4);
}

TEST_F(Stepper, ArrowKeysInTheBuddyStepToo) {
  show();
  input::focus(buddy);
  hand::key(window, key::down);
  EXPECT_EQ(updown.value(), 8);
  hand::key(window, key::up);
  EXPECT_EQ(updown.value(), 10);
}

TEST_F(Stepper, TakesATypedNumberThatItsRangeAllows) {
  show();
  hand::write(buddy, u"7");
  EXPECT_EQ(updown.value(), 7);
  hand::write(buddy, u"99");
  EXPECT_EQ(updown.value(), 7) << "not yet: the user may still be typing";
  EXPECT_EQ(buddy.text(), u"99");
}

TEST_F(Stepper, LeavingTheBuddyMendsWhatIsNoNumberOfTheRange) {
  show();
  hand::write(buddy, u"99");
  hand::key(window, key::tab);
  EXPECT_EQ(updown.value(), 12);
  EXPECT_EQ(buddy.text(), u"12");
  hand::write(buddy, u"sok");
  hand::key(window, key::tab);
  EXPECT_EQ(updown.value(), 12);
  EXPECT_EQ(buddy.text(), u"12");
  hand::write(buddy, u"99999999999999999999");
  hand::key(window, key::tab);
  EXPECT_EQ(updown.value(), 12);
  EXPECT_EQ(buddy.text(), u"12");
}

TEST_F(Stepper, AFinishedBuddyWithoutAnUpDownStaysAsItIs) {
  TextBox plain(window, u"txt", {0, 400, 900, 300}, u"abc");
  show();
  input::finish_typing(plain);
  EXPECT_EQ(plain.text(), u"abc");
}

TEST_F(Stepper, TheFocusTakenAwayByTheProgramMendsTheBuddyToo) {
  other.Click = [this] { log.push_back(to_utf8(buddy.text())); };
  show();
  hand::write(buddy, u"99");
  hand::click(other);
  EXPECT_EQ(log, Log{"12"});
}

TEST_F(Stepper, EnterOnTheDefaultButtonFindsTheBuddyMended) {
  other.Default = true;
  other.Click = [this] { log.push_back(to_utf8(buddy.text())); };
  show();
  hand::write(buddy, u"1");
  hand::key(window, key::enter);
  EXPECT_EQ(log, (Log{"window KeyDown 13", "4", "window KeyUp 13"}));
}

TEST_F(Stepper, EnterDoesNotPressADefaultButtonThatTheMendedNumberHasDisabled) {
  other.Default = true;
  other.Click = [this] { log.push_back("pressed"); };
  updown.Change = [this] { other.Enabled = updown.value() != updown.Min; };
  show();
  hand::write(buddy, u"1");
  hand::key(window, key::enter);
  EXPECT_EQ(updown.value(), updown.Min);
  EXPECT_EQ(log, (Log{"window KeyDown 13", "window KeyUp 13"}));
}

TEST_F(Stepper, ABuddyMayHaveWiderLimitsThanItsUpDown) {
  updown.TextLimits = {1, 20};
  show();
  hand::write(buddy, u"15");
  EXPECT_EQ(updown.value(), 10) << "beyond its range";
  hand::key(window, key::tab);
  EXPECT_EQ(buddy.text(), u"15");
  EXPECT_EQ(updown.value(), 12);
  hand::write(buddy, u"25");
  hand::key(window, key::tab);
  EXPECT_EQ(buddy.text(), u"20");
  hand::write(buddy, u"betű");
  hand::key(window, key::tab);
  EXPECT_EQ(buddy.text(), u"1") << "a text without a number counts as 0";
  EXPECT_EQ(updown.value(), 4);
  hand::write(buddy, u" 6 betű");
  hand::key(window, key::tab);
  EXPECT_EQ(buddy.text(), u"6");
  EXPECT_EQ(updown.value(), 6);
}

TEST_F(Stepper, ALabelShowsTheNumberOfAnUpDownThatTakesTheFocusItself) {
  Label shown(window, u"labszóhossz", {0, 1500, 900, 300});
  UpDown length(window, u"udszóhossz", {900, 1500, 200, 300}, shown, {5, 14, 1}, 14);
  int changes = 0;
  length.Change = [&] { ++changes; };
  show();
  EXPECT_EQ(shown.Caption, u"14");
  input::focus(length);
  EXPECT_EQ(window.focus(), &length);
  hand::key(window, key::down);
  hand::step(length, -1);
  EXPECT_EQ(shown.Caption, u"12");
  hand::key(window, key::up);
  EXPECT_EQ(length.value(), 13);
  EXPECT_EQ(changes, 3);
  input::focus(updown);
  EXPECT_EQ(window.focus(), &length) << "one with a buddy leaves the focus to that";
}

TEST_F(Stepper, ASelectedTextIsReplacedByWhatIsTyped) {
  show();
  input::focus(buddy);
  buddy.select_all();
  hand::type(window, u"5");
  EXPECT_EQ(buddy.text(), u"5");
  hand::type(window, u"5");
  EXPECT_EQ(buddy.text(), u"55") << "only the first key replaces";
  buddy.select_all();
  hand::key(window, key::backspace);
  EXPECT_EQ(buddy.text(), u"");
}

// Keys and what they type.

TEST_F(Keys, SignsOfNoCodeAreTypedAndReachNoHandler) {
  window.KeyPreview = true;
  show();
  input::focus(text);
  hand::type(window, u"50% & 'igen' (nem)!");
  EXPECT_EQ(text.text(), u"50% & 'igen' (nem)!");
  for (const int code : {int{'%'}, int{'&'}, int{'\''}, int{'('}, int{')'}, int{'!'}, 0})
    EXPECT_EQ(std::count(log.begin(), log.end(), "window KeyDown " + std::to_string(code)), 0) << code;
  EXPECT_EQ(window.focus(), &text);
}

TEST_F(Keys, CommaPeriodAndMinusHaveCodesAndTypeTheirSigns) {
  show();
  input::focus(text);
  hand::type(window, u",-.");
  EXPECT_EQ(text.text(), u",-.");
  EXPECT_EQ(log, (Log{"window KeyDown 188", "window KeyUp 188", "window KeyDown 189", "window KeyUp 189",
                      "window KeyDown 190", "window KeyUp 190"}));
}

TEST_F(Keys, TheKeysOfCommaPeriodAndMinusTypeAnotherSignWithShift) {
  show();
  input::focus(text);
  for (const int held : {shift::none, shift::shift})
    for (const int code : {key::comma, key::period, key::minus}) hand::key(window, code, held);
  EXPECT_EQ(text.text(), u",.-?:_");
}

TEST_F(Keys, TheTabKeyGoesByTheIndexFirst) {
  Button help(window, u"cmd_súgó", {0, 2000, 900, 300}, u"Súgó");
  Button last(window, u"cmd", {0, 2400, 900, 300}, u"x");
  help.TabIndex = 1;
  show();
  input::focus(last);
  hand::key(window, key::tab);
  EXPECT_EQ(window.focus(), &help);
  hand::key(window, key::tab);
  EXPECT_EQ(window.focus(), &text);
  hand::key(window, key::tab, shift::shift);
  EXPECT_EQ(window.focus(), &help);
}

TEST_F(Keys, AKeyThatIsHeldDownPressesOnce) {
  int clicks = 0;
  button.Click = [&] { ++clicks; };
  show();
  input::focus(button);
  for (const int code : {key::space, key::enter}) {
    input::key_down(window, {.code = code});
    for (int i = 0; i < 5; ++i) input::key_down(window, {.code = code, .repeated = true});
  }
  EXPECT_EQ(clicks, 2);
  button.Default = true;
  input::focus(text);
  input::key_down(window, {.code = key::enter, .repeated = true});
  EXPECT_EQ(clicks, 2);
  input::key_down(window, {.code = key::enter});
  EXPECT_EQ(clicks, 3);
}

// Panels that come up under hammering hands.

class Panel : public Focus {
 protected:
  Panel() {
    window.KeyPause = 700;
    button.Default = button.Cancel = true;
    button.Click = [this] { ++clicks; };
    platform.advance(5000);
  }

  int clicks = 0;
};

TEST_F(Panel, SpaceAndEnterAreNotHeardAtOnce) {
  show();
  input::focus(button);
  hand::key(window, key::space);
  platform.advance(100);
  hand::key(window, key::enter);
  EXPECT_EQ(clicks, 0);
  platform.advance(700);
  hand::key(window, key::space);
  EXPECT_EQ(clicks, 1);
  hand::key(window, key::space);
  EXPECT_EQ(clicks, 2) << "once heard, they are heard";
}

TEST_F(Panel, WhoHammersIsNotHeardUntilTheHandRests) {
  show();
  input::focus(button);
  for (int i = 0; i < 50; ++i) {
    hand::key(window, key::space);
    platform.advance(200);
  }
  EXPECT_EQ(clicks, 0);
  platform.advance(500);
  hand::key(window, key::enter);
  EXPECT_EQ(clicks, 1);
}

TEST_F(Panel, AKeyHeldFromBeforeIsNotHeardUntilItIsLetGo) {
  show();
  input::focus(button);
  for (int i = 0; i < 100; ++i) {
    input::key_down(window, {.code = key::space, .repeated = true});
    platform.advance(30);
  }
  EXPECT_EQ(clicks, 0);
  platform.advance(700);
  hand::key(window, key::space);
  EXPECT_EQ(clicks, 1);
}

TEST_F(Panel, TheMouseAndEscapeAreHeardAtOnce) {
  show();
  hand::click(button);
  hand::key(window, key::escape);
  EXPECT_EQ(clicks, 2);
}

TEST_F(Panel, ItComesUpAnewEachTime) {
  show();
  platform.advance(1000);
  platform.hide(window);
  show();
  input::focus(button);
  hand::key(window, key::space);
  EXPECT_EQ(clicks, 0);
}

// What is hidden.

TEST_F(Keys, AHiddenElementDoesNotKeepTheFocus) {
  Label first(window, u"first", {0, 0, 900, 300}, u"a");
  Label second(window, u"second", {0, 400, 900, 300}, u"b");
  Label third(window, u"third", {0, 800, 900, 300}, u"c");
  first.Choosable = second.Choosable = third.Choosable = true;
  second.Click = [&] { second.Visible = false; };
  second.LostFocus = noting("lost");
  third.GotFocus = noting("got");
  show();
  input::focus(second);
  hand::key(window, key::space);
  EXPECT_EQ(window.focus(), &third) << "as the Tab key would go on";
  EXPECT_EQ(log, (Log{"window KeyDown 32", "lost", "got", "window KeyUp 32"}));
  third.Visible = false;
  hand::key(window, 'X');
  EXPECT_EQ(window.focus(), &text) << "round to the first control";
}

TEST_F(Keys, WhatIsHiddenAndShownWithinOneEventKeepsTheFocus) {
  Label letter(window, u"letter", {0, 400, 900, 300}, u"b");
  letter.Choosable = true;
  letter.LostFocus = noting("lost");
  letter.Click = [&] {
    letter.Visible = false;
    letter.Visible = true;
  };
  show();
  input::focus(letter);
  hand::key(window, key::space);
  EXPECT_EQ(window.focus(), &letter);
}

// Lists and scroll bars.

TEST_F(Keys, ArrowsMoveTheSelectionOfTheFocusedList) {
  ListBox list(window, u"lst", {0, 2000, 900, 900});
  list.Items = {u"a", u"b"};
  int clicks = 0;
  list.Click = [&] { ++clicks; };
  show();
  input::focus(list);
  hand::key(window, key::down);
  hand::key(window, key::down);
  hand::key(window, key::down);
  EXPECT_EQ(list.list_index(), 1);
  EXPECT_EQ(clicks, 2) << "at the end nothing is selected anew";
  hand::select(list, u"a");
  EXPECT_EQ(clicks, 3);
  EXPECT_THROW(hand::select(list, u"nincs"), OutOfReach);
}

TEST_F(Keys, ScrollingStaysWithinTheRange) {
  ScrollBar bar(window, u"bar", {0, 2000, 900, 200}, 0, 10);
  show();
  hand::scroll(bar, 99);
  EXPECT_EQ(bar.value(), 10);
  hand::key(window, key::left);
  EXPECT_EQ(bar.value(), 9);
}

} // namespace
} // namespace cserko
