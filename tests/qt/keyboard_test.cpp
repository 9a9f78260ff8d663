// Keys on real windows: every key means what it means on every machine, and means it once.
#include "fixture.h"

#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>

namespace cserko::test {

namespace {

using testing::ElementsAre;

class Keyboard : public QtMachine {
 protected:
  static std::vector<int> codes(const NotingWindow& window) {
    std::vector<int> result;
    for (const KeyEvent& event : window.keys) result.push_back(event.code);
    return result;
  }
  /// A key that no keyboard simulation has, as the window system would send it.
  void send(const Window& window, int code, const QString& text) {
    QWidget* focused = view(window).focusWidget();
    QKeyEvent down(QEvent::KeyPress, code, Qt::NoModifier, text);
    QApplication::sendEvent(focused != nullptr ? focused : &view(window), &down);
  }
};

TEST_F(Keyboard, AKeyReachesTheWindowOnce) {
  NotingWindow window(*machine);
  show(window);
  key(window, Qt::Key_A);
  key(window, Qt::Key_Left);
  key(window, Qt::Key_Escape);
  key(window, Qt::Key_F5);
  EXPECT_THAT(codes(window), ElementsAre(65, key::left, key::escape, 116));
}

TEST_F(Keyboard, AModifierReachesTheWindowOnce) {
  NotingWindow window(*machine);
  PictureBox outer(window, u"pic", {300, 300, 3000, 3000});
  Label inner(outer, u"lbl", {300, 300, 900, 900});
  inner.Choosable = true;
  show(window);
  click(inner);
  QTest::keyPress(view(window).windowHandle(), Qt::Key_Alt);
  QTest::keyRelease(view(window).windowHandle(), Qt::Key_Alt);
  EXPECT_THAT(codes(window), ElementsAre(key::alt));
}

TEST_F(Keyboard, KeysThatATextBoxDoesNotWantReachTheWindowOnceAsWell) {
  NotingWindow window(*machine);
  TextBox box(window, u"txt", {300, 300, 1500, 450});
  show(window);
  window.set_focus(&box);
  machine->sync_all();
  for (const Qt::Key code : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_F2, Qt::Key_Down}) key(window, code);
  EXPECT_THAT(codes(window), ElementsAre(key::enter, key::escape, key::f1 + 1, key::down));
}

TEST_F(Keyboard, HungarianLettersArriveWithCodeAndCharacter) {
  NotingWindow window(*machine);
  show(window);
  send(window, 0x150, "ő");
  ASSERT_EQ(window.keys.size(), 1U);
  EXPECT_EQ(window.keys[0].code, 213);
  EXPECT_EQ(window.keys[0].character, u'ő');
}

TEST_F(Keyboard, TypingFillsTheTextBoxAndRunsItsChange) {
  NotingWindow window(*machine);
  TextBox box(window, u"txt", {300, 300, 1500, 450});
  std::vector<Text> changes;
  box.Change = [&] { changes.push_back(box.text()); };
  show(window);
  type(window, "abc");
  EXPECT_EQ(box.text(), u"abc");
  EXPECT_THAT(changes, ElementsAre(u"a", u"ab", u"abc"));
}

TEST_F(Keyboard, AKeyThatTheWindowKeepsIsNotTyped) {
  NotingWindow window(*machine);
  TextBox box(window, u"txt", {300, 300, 1500, 450});
  window.KeyPreview = true;
  window.on_key = [](KeyEvent& event) {
    if (event.character == u'x') event.code = 0;
  };
  show(window);
  type(window, "axb");
  EXPECT_EQ(box.text(), u"ab");
}

TEST_F(Keyboard, ATextBoxThatIsLockedOrLimitedStaysSo) {
  NotingWindow window(*machine);
  TextBox locked(window, u"txt_a", {300, 300, 1500, 450}, u"zárt");
  TextBox limited(window, u"txt_b", {300, 1200, 1500, 450});
  locked.Locked = true;
  limited.MaxLength = 3;
  show(window);
  type(window, "x");
  window.set_focus(&limited);
  machine->sync_all();
  type(window, "abcdef");
  EXPECT_EQ(locked.text(), u"zárt");
  EXPECT_EQ(limited.text(), u"abc");
  EXPECT_EQ(static_cast<QLineEdit&>(widget(limited)).text(), "abc");
}

TEST_F(Keyboard, TabGoesRoundInTheOrderOfCreation) {
  NotingWindow window(*machine);
  Button first(window, u"cmd_a", {300, 2000, 1500, 600}, u"Egy");
  Button second(window, u"cmd_b", {300, 300, 1500, 600}, u"Kettő");
  Button third(window, u"cmd_c", {300, 1200, 1500, 600}, u"Három");
  third.Enabled = false;
  show(window);
  EXPECT_EQ(window.focus(), &first);
  key(window, Qt::Key_Tab);
  EXPECT_EQ(window.focus(), &second);
  EXPECT_TRUE(widget(second).hasFocus());
  key(window, Qt::Key_Tab);
  EXPECT_EQ(window.focus(), &first);
  key(window, Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(window.focus(), &second);
}

TEST_F(Keyboard, AButtonIsPressedOnceByASpace) {
  NotingWindow window(*machine);
  Button button(window, u"cmd", {300, 300, 1500, 600}, u"Rendben");
  CheckBox box(window, u"chk", {300, 1200, 1500, 450}, u"Hanggal");
  int clicks = 0;
  button.Click = [&] { ++clicks; };
  show(window);
  key(window, Qt::Key_Space);
  EXPECT_EQ(clicks, 1);
  key(window, Qt::Key_Return);
  EXPECT_EQ(clicks, 2);
  key(window, Qt::Key_Tab);
  key(window, Qt::Key_Space);
  EXPECT_TRUE(box.ticked());
}

TEST_F(Keyboard, ArrowsMoveAmongOptions) {
  NotingWindow window(*machine);
  OptionButton first(window, u"opt_a", {300, 300, 1500, 450}, u"Egyik", true);
  OptionButton second(window, u"opt_b", {300, 900, 1500, 450}, u"Másik");
  show(window);
  key(window, Qt::Key_Down);
  EXPECT_TRUE(second.value());
  EXPECT_EQ(window.focus(), &second);
}

TEST_F(Keyboard, ArrowsMoveInAList) {
  NotingWindow window(*machine);
  ListBox list(window, u"lst", {300, 300, 3000, 2400});
  list.Items = {u"alma", u"béka", u"cica"};
  list.set_list_index(0);
  show(window);
  key(window, Qt::Key_Down);
  EXPECT_EQ(list.list_index(), 1);
  key(window, Qt::Key_Up);
  EXPECT_EQ(list.list_index(), 0);
}

TEST_F(Keyboard, ReachingAListSelectsNothing) {
  NotingWindow window(*machine);
  ListBox list(window, u"lst", {300, 300, 3000, 2400});
  list.Items = {u"alma", u"béka", u"cica"};
  int clicks = 0;
  list.Click = [&] { ++clicks; };
  show(window);
  EXPECT_TRUE(widget(list).hasFocus());
  EXPECT_EQ(list.list_index(), -1);
  EXPECT_EQ(clicks, 0);
  key(window, Qt::Key_Down);
  EXPECT_EQ(list.list_index(), 0);
  EXPECT_EQ(clicks, 1);
}

TEST_F(Keyboard, ArrowsMoveAScrollBar) {
  NotingWindow window(*machine);
  ScrollBar bar(window, u"hs", {300, 300, 3000, 300}, 0, 20);
  show(window);
  key(window, Qt::Key_Right);
  EXPECT_EQ(bar.value(), 1);
  key(window, Qt::Key_PageDown);
  EXPECT_EQ(bar.value(), 11);
  key(window, Qt::Key_Left);
  EXPECT_EQ(bar.value(), 10);
  key(window, Qt::Key_PageUp);
  EXPECT_EQ(bar.value(), 0);
  key(window, Qt::Key_End);
  EXPECT_EQ(bar.value(), 20);
}

TEST_F(Keyboard, EscapeAndEnterPressTheButtonsMadeForThem) {
  NotingWindow window(*machine);
  TextBox box(window, u"txt", {300, 300, 1500, 450});
  Button ok(window, u"cmd_ok", {300, 1200, 1500, 600}, u"Rendben");
  Button cancel(window, u"cmd_mégse", {300, 2000, 1500, 600}, u"Mégse");
  ok.Default = true;
  cancel.Cancel = true;
  int oks = 0;
  int cancels = 0;
  ok.Click = [&] { ++oks; };
  cancel.Click = [&] { ++cancels; };
  show(window);
  key(window, Qt::Key_Return);
  key(window, Qt::Key_Escape);
  EXPECT_EQ(oks, 1);
  EXPECT_EQ(cancels, 1);
}

TEST_F(Keyboard, AltAndTheMarkedLetterPressAButtonOnce) {
  NotingWindow window(*machine);
  Button button(window, u"cmd", {300, 300, 1500, 600}, u"&Kilépés");
  int clicks = 0;
  button.Click = [&] { ++clicks; };
  show(window);
  QTest::keyClick(view(window).windowHandle(), 'k', Qt::AltModifier);
  EXPECT_EQ(clicks, 1);
}

TEST_F(Keyboard, AShortcutChoosesItsMenuEntryOnce) {
  NotingWindow window(*machine);
  MenuItem file(window, u"mnu_fájl", u"&Fájl");
  MenuItem start(file, u"mnu_fájl_újjáték", u"&Új játék", key::f1 + 1);
  int chosen = 0;
  start.Click = [&] { ++chosen; };
  show(window);
  key(window, Qt::Key_F2);
  EXPECT_EQ(chosen, 1);
}

TEST_F(Keyboard, TheFocusStaysWhereTheSuiteHasItWhenThatIsDisabled) {
  NotingWindow window(*machine);
  Button button(window, u"cmd", {300, 300, 1500, 600}, u"Rendben");
  TextBox box(window, u"txt", {300, 1200, 1500, 450});
  show(window);
  button.Enabled = false;
  machine->sync_all();
  type(window, "x");
  EXPECT_EQ(window.focus(), &button);
  EXPECT_EQ(box.text(), u"");
}

TEST_F(Keyboard, TheMenuBarKeepsTheKeyboardWhileItHasIt) {
  NotingWindow window(*machine);
  MenuItem file(window, u"mnu_fájl", u"&Fájl");
  MenuItem start(file, u"mnu_a", u"&Új játék");
  TextBox box(window, u"txt", {300, 1200, 1500, 450});
  show(window);
  auto* bar = view(window).findChild<QMenuBar*>();
  ASSERT_NE(bar, nullptr);
  bar->setFocus(Qt::MenuBarFocusReason);
  machine->sync_all();
  EXPECT_TRUE(bar->hasFocus());
  window.keys.clear();
  key(window, Qt::Key_Right);
  EXPECT_TRUE(window.keys.empty());
}

TEST_F(Keyboard, KeysGoingUpReachTheWindow) {
  struct UpWindow : NotingWindow {
    using NotingWindow::NotingWindow;
    void KeyUp(KeyEvent& event) override { ups.push_back(event.code); }
    std::vector<int> ups;
  } window(*machine);
  Label outer(window, u"lbl", {300, 300, 900, 900});
  outer.Choosable = true;
  show(window);
  click(outer);
  key(window, Qt::Key_B);
  EXPECT_THAT(window.ups, ElementsAre(66));
}

TEST_F(Keyboard, LeavingATextBoxBringsTheNumberOfItsUpDownBack) {
  NotingWindow window(*machine);
  TextBox box(window, u"txt", {300, 300, 900, 450});
  UpDown updown(window, u"ud", {1200, 300, 300, 450}, box, {1, 9, 1}, 4);
  Button button(window, u"cmd", {300, 1200, 1500, 600}, u"Rendben");
  show(window);
  type(window, "x");
  EXPECT_NE(box.text(), u"4");
  key(window, Qt::Key_Tab);
  EXPECT_EQ(box.text(), u"4");
  EXPECT_EQ(updown.value(), 4);
}

} // namespace
} // namespace cserko::test
