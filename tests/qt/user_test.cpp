// What a user does with lists, windows and the mouse, in windows of the real machine.
#include "platform/element_array.h"
#include "tests/qt/fixture.h"

#include <QAccessible>
#include <QListWidget>
#include <QMenuBar>

namespace cserko::test {

namespace {

using ::testing::ElementsAre;

class User : public QtMachine {
 protected:
  QPoint entry(const ListBox& list, int row) {
    const auto& native = static_cast<QListWidget&>(widget(list));
    return native.viewport()->mapTo(native.window(), native.visualItemRect(native.item(row)).center());
  }
  void tap(const ListBox& list, int row, Qt::KeyboardModifiers held = {}) {
    QTest::mouseClick(view(list.window()).windowHandle(), Qt::LeftButton, held, entry(list, row));
  }
  /// What the widget shows as selected.
  std::vector<int> shown(const ListBox& list) const {
    const auto& native = static_cast<QListWidget&>(widget(list));
    std::vector<int> rows;
    for (int row = 0; row < native.count(); ++row) {
      if (native.item(row)->isSelected()) rows.push_back(row);
    }
    return rows;
  }
};

TEST_F(User, TapsTurnTheEntriesOfAListOver) {
  NotingWindow window(*machine);
  ListBox list(window, u"lst", {300, 300, 3000, 2400});
  list.MultiSelect = true;
  list.Items = {u"a-á", u"b-d", u"c-cs", u"f-v"};
  int clicks = 0;
  list.Click = [&] { ++clicks; };
  show(window);
  tap(list, 1);
  tap(list, 3);
  EXPECT_THAT(shown(list), ElementsAre(1, 3));
  tap(list, 1, Qt::ControlModifier);
  EXPECT_THAT(shown(list), ElementsAre(3));
  tap(list, 3);
  tap(list, 3);
  tap(list, 1, Qt::ShiftModifier);
  EXPECT_THAT(shown(list), ElementsAre(1, 2, 3));
  EXPECT_EQ(list.selection(), (std::vector<bool>{false, true, true, true}));
  EXPECT_EQ(clicks, 6);
}

TEST_F(User, KeysSelectInAListOfSeveralSelections) {
  NotingWindow window(*machine);
  ListBox list(window, u"lst", {300, 300, 3000, 2400});
  list.MultiSelect = true;
  list.Items = {u"a-á", u"b-d", u"c-cs", u"f-v"};
  show(window);
  key(window, Qt::Key_Down);
  key(window, Qt::Key_Down);
  EXPECT_THAT(shown(list), ElementsAre()) << "moving selects nothing";
  key(window, Qt::Key_Space);
  key(window, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_THAT(shown(list), ElementsAre(1, 2));
  EXPECT_EQ(static_cast<QListWidget&>(widget(list)).currentRow(), 2);
  key(window, Qt::Key_A, Qt::ControlModifier);
  EXPECT_THAT(shown(list), ElementsAre(0, 1, 2, 3));
}

TEST_F(User, AListShowsWhatTheProgramSelects) {
  NotingWindow window(*machine);
  ListBox list(window, u"lst", {300, 300, 3000, 2400});
  list.MultiSelect = true;
  list.Items = {u"a-á", u"b-d", u"c-cs"};
  show(window);
  list.set_selection({true, false, true});
  machine->sync_all();
  EXPECT_THAT(shown(list), ElementsAre(0, 2));
  list.clear();
  list.Items = {u"i-í"};
  machine->sync_all();
  EXPECT_THAT(shown(list), ElementsAre());
}

TEST_F(User, AClickOnTheEntryThatAnArrowHasReachedIsAClick) {
  NotingWindow window(*machine);
  ListBox list(window, u"lst", {300, 300, 3000, 2400});
  list.Items = {u"alma", u"béka", u"cica"};
  int clicks = 0;
  list.Click = [&] { ++clicks; };
  show(window);
  key(window, Qt::Key_Down);
  key(window, Qt::Key_Down);
  ASSERT_EQ(list.list_index(), 1);
  ASSERT_EQ(clicks, 2);
  tap(list, 1);
  EXPECT_EQ(clicks, 3);
  tap(list, 2);
  EXPECT_EQ(clicks, 4);
  EXPECT_EQ(list.list_index(), 2);
}

TEST_F(User, AnEntryIsChosenWhereThePressEnds) {
  NotingWindow window(*machine);
  ListBox list(window, u"lst", {300, 300, 3000, 2400});
  list.Items = {u"alma", u"béka", u"cica"};
  int clicks = 0;
  list.Click = [&] { ++clicks; };
  show(window);
  QTest::mousePress(view(window).windowHandle(), Qt::LeftButton, {}, entry(list, 0));
  move(window, entry(list, 2));
  release(window, entry(list, 2));
  EXPECT_EQ(clicks, 0) << "who scrolls or thinks better of it chooses nothing";
}

TEST_F(User, WhatIsBroughtToTheFrontIsSeenAndTakesThePress) {
  NotingWindow window(*machine);
  Label lower(window, u"alsó", {300, 300, 900, 900});
  Label upper(window, u"felső", {600, 600, 900, 900});
  lower.Opaque = upper.Opaque = true;
  lower.BackColor = {200, 0, 0};
  upper.BackColor = {0, 0, 200};
  std::vector<std::string> pressed;
  lower.MouseDown = [&](const MouseEvent&) { pressed.emplace_back("lower"); };
  upper.MouseDown = [&](const MouseEvent&) { pressed.emplace_back("upper"); };
  show(window);
  const auto seen = [&] { return picture_of(window).pixelColor(place(upper, {150, 150})); };
  EXPECT_EQ(seen(), QColor(0, 0, 200));
  lower.bring_to_front();
  machine->sync_all();
  EXPECT_EQ(seen(), QColor(200, 0, 0));
  const QPoint both = place(upper, {150, 150});
  QTest::mouseClick(view(window).windowHandle(), Qt::LeftButton, {}, both);
  upper.bring_to_front();
  machine->sync_all();
  QTest::mouseClick(view(window).windowHandle(), Qt::LeftButton, {}, both);
  EXPECT_THAT(pressed, ElementsAre("lower", "upper"));
}

TEST_F(User, AnElementLoadedBehindOneBroughtToTheFrontLiesOverIt) {
  NotingWindow window(*machine);
  ElementArray<Label> letters(window, u"betű", Rect{300, 300, 900, 900});
  letters[0].Opaque = true;
  letters[0].BackColor = {200, 0, 0};
  Label cover(window, u"fedő", {300, 300, 900, 900});
  cover.Opaque = true;
  cover.BackColor = {0, 0, 200};
  show(window);
  letters[0].bring_to_front();
  letters.load(1).Visible = true;
  letters[1].BackColor = {0, 200, 0};
  machine->sync_all();
  EXPECT_EQ(picture_of(window).pixelColor(place(cover, {150, 150})), QColor(0, 200, 0));
}

TEST_F(User, ASecondQuickPressIsADoubleClick) {
  NotingWindow window(*machine);
  Label color(window, u"aktívszín", {300, 300, 900, 900});
  std::vector<std::string> heard;
  color.MouseDown = [&](const MouseEvent&) { heard.emplace_back("down"); };
  color.Click = [&] { heard.emplace_back("click"); };
  color.DblClick = [&] { heard.emplace_back("double"); };
  show(window);
  QTest::mouseDClick(view(window).windowHandle(), Qt::LeftButton, {}, place(color, {150, 150}));
  EXPECT_THAT(heard, ElementsAre("down", "click", "down", "double", "click"));
}

TEST_F(User, AMenuShowsItsShortcutsWithCtrl) {
  NotingWindow window(*machine);
  MenuItem file(window, u"mnu_fájl", u"Fájl");
  MenuItem again(file, u"mnu_fájl_újrakezd", u"&Újrakezdi", 'U', shift::control);
  int chosen = 0;
  again.Click = [&] { ++chosen; };
  show(window);
  auto* menu = view(window).findChild<QMenuBar*>()->actions().front()->menu();
  EXPECT_EQ(menu->actions().front()->text(), "&Újrakezdi\tCtrl+U");
  key(window, Qt::Key_U);
  EXPECT_EQ(chosen, 0);
  key(window, Qt::Key_U, Qt::ControlModifier);
  EXPECT_EQ(chosen, 1);
}

TEST_F(User, AnUpDownBesideALabelIsReachedAndSteppedByKeys) {
  NotingWindow window(*machine);
  Label shown(window, u"labszóhossz", {300, 300, 900, 450});
  UpDown length(window, u"udszóhossz", {1200, 300, 300, 450}, shown, {5, 14, 1}, 14);
  Button button(window, u"cmd", {300, 1200, 1500, 600}, u"Rendben");
  show(window);
  EXPECT_TRUE(widget(length).hasFocus());
  key(window, Qt::Key_Down);
  EXPECT_EQ(length.value(), 13);
  EXPECT_EQ(shown.Caption, u"13");
  key(window, Qt::Key_Tab);
  EXPECT_EQ(window.focus(), &button);
}

TEST_F(User, EnteringABoxMaySelectItsTextByMouseAndByKey) {
  NotingWindow window(*machine);
  Button button(window, u"cmd", {300, 1200, 1500, 600}, u"Rendben");
  TextBox box(window, u"txtszóhossz", {300, 300, 1500, 450}, u"12");
  box.GotFocus = [&] { box.select_all(); };
  show(window);
  click(box);
  type(window, "7");
  EXPECT_EQ(box.text(), u"7");
  key(window, Qt::Key_Tab);
  key(window, Qt::Key_Tab);
  ASSERT_EQ(window.focus(), &box);
  type(window, "89");
  EXPECT_EQ(box.text(), u"89") << "only the first key replaces";
}

TEST_F(User, AHiddenElementGivesTheFocusOn) {
  NotingWindow window(*machine);
  Label first(window, u"a", {300, 300, 900, 900}, u"a");
  Label second(window, u"b", {1500, 300, 900, 900}, u"b");
  first.Choosable = second.Choosable = true;
  first.Click = [&] { first.Visible = false; };
  show(window);
  key(window, Qt::Key_Space);
  EXPECT_EQ(window.focus(), &second);
  EXPECT_TRUE(widget(second).hasFocus());
}

TEST_F(User, ATimerThatStartsOverTicksAWholeIntervalLater) {
  NotingWindow window(*machine);
  Timer ender(window, u"ender", 400, false);
  Timer pusher(window, u"pusher", 150);
  int pushes = 0;
  int pushes_before_end = -1;
  pusher.Tick = [&] {
    if (++pushes <= 5) ender.restart();
  };
  ender.Tick = [&] {
    pushes_before_end = pushes;
    ender.Enabled = pusher.Enabled = false;
  };
  show(window);
  ASSERT_TRUE(wait_for([&] { return pushes_before_end >= 0; }));
  EXPECT_GT(pushes_before_end, 5) << "each push has put the end off";
}

TEST_F(User, AButtonShowsItsPictureBesideItsCaption) {
  NotingWindow window(*machine);
  Button plain(window, u"cmd_a", {300, 300, 3000, 900}, u"Hozzáadás");
  Button button(window, u"cmd_b", {300, 1500, 3000, 900}, u"Hozzáadás");
  Button tool(window, u"cmd_c", {300, 2700, 900, 900});
  QImage red(30, 30, QImage::Format_RGB32);
  red.fill(QColor(200, 0, 0));
  ASSERT_TRUE(red.save(qEnvironmentVariable("CSERKO_PACK_DIR") + "/kepek/jel.png"));
  show(window);
  const auto is_red = [&](const Element& element, Point point) {
    const QColor color = picture_of(window).pixelColor(place(element, point));
    return color.red() > 150 && color.green() < 60;
  };
  EXPECT_FALSE(is_red(button, {390, 450}));
  button.Picture = tool.Picture = machine->load_picture(Text(logical_application_folder) + u"kepek\\jel.png");
  ASSERT_NE(button.Picture, nullptr);
  machine->sync_all();
  EXPECT_TRUE(is_red(button, {390, 450}));
  EXPECT_FALSE(is_red(button, {1500, 120})) << "the rest is the caption's";
  EXPECT_TRUE(is_red(tool, {450, 450}));
  EXPECT_FALSE(is_red(plain, {390, 450}));
}

// Screen readers.

TEST_F(User, AScreenReaderHearsOfWindowsAsFramesAndDialogs) {
  NotingWindow window(*machine);
  NotingWindow dialog(*machine);
  const auto role = [&](const Window& of) { return QAccessible::queryAccessibleInterface(&view(of))->role(); };
  show(window);
  EXPECT_EQ(role(window), QAccessible::Window);
  when_shown(dialog, [&] {
    EXPECT_EQ(role(dialog), QAccessible::Dialog);
    machine->hide(dialog);
  });
  machine->show_modal(dialog);
}

TEST_F(User, AScreenReaderHearsWhatIsSelected) {
  NotingWindow window(*machine);
  Label letter(window, u"betű", {300, 300, 900, 900}, u"a");
  show(window);
  const auto state = [&] { return QAccessible::queryAccessibleInterface(&widget(letter))->state(); };
  EXPECT_FALSE(state().selectable) << "what never is selected cannot be";
  letter.Selected = true;
  machine->sync_all();
  EXPECT_TRUE(state().selected);
  letter.Selected = false;
  machine->sync_all();
  EXPECT_FALSE(state().selected);
  EXPECT_TRUE(state().selectable);
}

// Keys.

TEST_F(User, SignsAreTypedAndMoveNothing) {
  NotingWindow window(*machine);
  window.KeyPreview = true;
  TextBox box(window, u"txt", {300, 300, 3000, 450});
  show(window);
  type(window, "50% & 'igen' (nem)!");
  EXPECT_EQ(box.text(), u"50% & 'igen' (nem)!");
  for (const KeyEvent& event : window.keys) {
    EXPECT_FALSE(event.code >= key::page_up && event.code <= key::down) << event.code;
  }
  EXPECT_EQ(window.focus(), &box);
}

TEST_F(User, AHeldKeyIsToldAsRepeated) {
  NotingWindow window(*machine);
  Button button(window, u"cmd_ok", {300, 300, 1500, 600}, u"OK");
  int clicks = 0;
  button.Click = [&] { ++clicks; };
  show(window);
  for (int i = 0; i < 5; ++i) {
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Space, {}, " ", i > 0);
    QCoreApplication::sendEvent(&widget(button), &event);
  }
  EXPECT_EQ(clicks, 1);
}

TEST_F(User, APanelDoesNotHearTheKeysThatWereHammeredBeforeIt) {
  NotingWindow panel(*machine);
  panel.KeyPause = 300;
  Button button(panel, u"cmd_ok", {300, 300, 1500, 600}, u"OK");
  int clicks = 0;
  button.Click = [&] { ++clicks; };
  show(panel);
  key(panel, Qt::Key_Space);
  EXPECT_EQ(clicks, 0);
  ASSERT_TRUE(wait_for([&] { return machine->now() >= panel.keys_heard_from(); }));
  key(panel, Qt::Key_Space);
  EXPECT_EQ(clicks, 1);
}

// Windows that are moved and resized.

class PanelWindow : public NotingWindow {
 public:
  explicit PanelWindow(Platform& machine) : NotingWindow(machine) {
    Border = WindowBorder::Sizable;
    Left = 1500;
    Top = 1500;
  }
  void Resize() override {
    ++resizes;
    if (on_resize) on_resize();
  }
  std::function<void()> on_resize;
  int resizes = 0;
};

TEST_F(User, AMovedWindowKnowsItsPlaceAndStaysThere) {
  PanelWindow window(*machine);
  show(window);
  ASSERT_TRUE(wait_for([&] { return view(window).settled(); }));
  EXPECT_EQ(window.Left, 1500) << "being shown is no move of the user's";
  const QPoint before = view(window).pos();
  view(window).windowHandle()->setPosition(view(window).windowHandle()->position() + QPoint(40, 20));
  ASSERT_TRUE(wait_for([&] { return window.Left == 1500 + 40 * twips_per_pixel; }));
  EXPECT_EQ(window.Top, 1500 + 20 * twips_per_pixel);
  EXPECT_EQ(window.resizes, 0);
  window.Caption = u"Más cím";
  machine->sync_all();
  EXPECT_EQ(view(window).pos(), before + QPoint(40, 20)) << "nobody puts it back";
}

TEST_F(User, AResizedWindowIsToldOfItAndMayFollowWithItsHeight) {
  PanelWindow window(*machine);
  window.on_resize = [&] { window.Height = window.Width / 2; };
  show(window);
  ASSERT_TRUE(wait_for([&] { return view(window).settled(); }));
  const double width = window.Width;
  view(window).windowHandle()->resize(500, 400);
  ASSERT_TRUE(wait_for([&] { return window.resizes > 0; }));
  EXPECT_EQ(window.inner_width(), 500 * twips_per_pixel);
  EXPECT_NE(window.Width, width);
  ASSERT_TRUE(wait_for([&] { return view(window).settled(); }));
  EXPECT_NEAR(view(window).height(), window.inner_height() / twips_per_pixel, 1);
  EXPECT_EQ(window.resizes, 1) << "what it does itself is no event";
}

TEST_F(User, WhatTheProgramMovesIsNoMoveOfTheUser) {
  PanelWindow window(*machine);
  show(window);
  ASSERT_TRUE(wait_for([&] { return view(window).settled(); }));
  for (int step = 0; step < 20; ++step) {
    window.Left += 150;
    window.Width += 150;
    machine->redraw(window);
    machine->sync_all();
    QCoreApplication::processEvents();
  }
  ASSERT_TRUE(wait_for([&] { return view(window).settled(); }));
  EXPECT_EQ(window.Left, 1500 + 20 * 150);
  EXPECT_EQ(window.resizes, 0);
}

// Freehand.

TEST_F(User, EveryPointOfAHeldMouseArrives) {
  NotingWindow window(*machine);
  PictureBox board(window, u"kép", {300, 300, 4500, 3000});
  std::vector<double> places;
  board.MouseMove = [&](const MouseEvent& event) { places.push_back(event.x); };
  show(window);
  press(board, {0, 0});
  EXPECT_FALSE(QCoreApplication::testAttribute(Qt::AA_CompressHighFrequencyEvents));
  for (int step = 1; step <= 50; ++step) move(window, place(board, {step * 75.0, 150}));
  release(window, place(board, {3750, 150}));
  EXPECT_GE(places.size(), 50U);
  EXPECT_TRUE(QCoreApplication::testAttribute(Qt::AA_CompressHighFrequencyEvents));
}

} // namespace
} // namespace cserko::test
