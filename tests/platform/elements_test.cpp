#include "fixture.h"

namespace cserko {
namespace {

class Elements : public PlatformTest {};

TEST_F(Elements, RegisterInOrderOfCreationAndAreFoundByName) {
  Label first(window, u"lbl_feladat", {0, 0, 100, 100});
  Button second(window, u"cmd_kész", {0, 0, 100, 100});
  EXPECT_EQ(window.elements(), (std::vector<Element*>{&first, &second}));
  EXPECT_EQ(window.find(u"cmd_kész"), &second);
  EXPECT_EQ(window.find(u"cmd"), nullptr);
}

TEST_F(Elements, LeaveTheWindowWhenTheyAreDestroyed) {
  {
    Button button(window, u"cmd", {});
    window.set_visible(true);
    window.set_focus(&button);
    EXPECT_EQ(window.focus(), &button);
  }
  EXPECT_TRUE(window.elements().empty());
  EXPECT_EQ(window.focus(), nullptr);
}

TEST_F(Elements, SerialNumbersAreNeverGivenTwice) {
  std::uint64_t before = 0;
  for (int i = 0; i < 3; ++i) {
    const Label label(window, u"lbl", {});
    EXPECT_GT(label.serial(), before);
    before = label.serial();
  }
}

TEST_F(Elements, AreShownAndUsableOnlyWithAllTheirContainers) {
  Frame frame(window, u"frm_betűszám", {300, 600, 2000, 1000});
  OptionButton option(frame, u"opt", {120, 240, 900, 300}, u"Pontosan");
  EXPECT_EQ(option.container(), &frame);
  EXPECT_EQ(option.position_in_window(), (Point{420, 840}));
  EXPECT_TRUE(option.shown());
  EXPECT_TRUE(option.usable());
  frame.Visible = false;
  EXPECT_FALSE(option.shown());
  frame.Visible = true;
  frame.Enabled = false;
  EXPECT_FALSE(option.usable());
}

TEST_F(Elements, LabelRunsChangeOnlyForAnotherCaption) {
  Label label(window, u"lbl", {}, u"alma");
  int changes = 0;
  label.Change = [&] { ++changes; };
  label.set_caption(u"alma");
  EXPECT_EQ(changes, 0);
  label.set_caption(u"körte");
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(label.Caption, u"körte");
}

TEST_F(Elements, CheckBoxTakesThreeValuesAndRunsClickForAChange) {
  CheckBox box(window, u"chk", {}, u"Hang");
  int clicks = 0;
  box.Click = [&] { ++clicks; };
  box.set_value(0);
  EXPECT_EQ(clicks, 0);
  box.set_value(1);
  EXPECT_TRUE(box.ticked());
  box.set_value(2);
  EXPECT_FALSE(box.ticked()) << "greyed is not ticked";
  EXPECT_EQ(clicks, 2);
  EXPECT_THROW(box.set_value(3), InvalidValue);
  EXPECT_THROW(box.set_value(-1), InvalidValue);
  EXPECT_EQ(box.value(), 2);
}

TEST_F(Elements, OptionTurnsTheOthersOfItsContainerOffAndNobodyElse) {
  Frame frame(window, u"frame", {});
  OptionButton in_frame(frame, u"opt_a", {}, u"a", true);
  OptionButton other_in_frame(frame, u"opt_b", {}, u"b");
  OptionButton on_window(window, u"opt_c", {}, u"c", true);
  in_frame.Click = noting("a");
  other_in_frame.Click = noting("b");
  other_in_frame.set_value(true);
  EXPECT_FALSE(in_frame.value());
  EXPECT_TRUE(on_window.value());
  EXPECT_EQ(log, Log{"b"}) << "only the one that is turned on clicks";
  other_in_frame.set_value(true);
  EXPECT_EQ(log, Log{"b"});
  other_in_frame.set_value(false);
  EXPECT_FALSE(other_in_frame.value()) << "a settings file may leave a whole group off";
  EXPECT_EQ(log, Log{"b"});
}

TEST_F(Elements, AMenuShowsTheShortcutOfItsEntry) {
  EXPECT_EQ(shortcut_text(MenuItem(window, u"m", u"Kilépés")), u"");
  EXPECT_EQ(shortcut_text(MenuItem(window, u"m", u"Súgó", key::f1)), u"F1");
  EXPECT_EQ(shortcut_text(MenuItem(window, u"m", u"&Újrakezdi", 'U', shift::control)), u"Ctrl+U");
  EXPECT_EQ(shortcut_text(MenuItem(window, u"m", u"x", key::f1 + 11, shift::shift | shift::control)),
            u"Ctrl+Shift+F12");
  EXPECT_EQ(shortcut_text(MenuItem(window, u"m", u"x", key::delete_)), u"Del");
}

TEST_F(Elements, AnArrayHearsOfDropsAndOfTheFocusThatGoes) {
  ElementArray<PictureBox> places(window, u"places", Rect{0, 0, 900, 900});
  places.load(1).move_to(2000, 0);
  places[1].Visible = true;
  PictureBox source(window, u"source", {0, 2000, 900, 900});
  std::vector<int> dropped;
  places.DragDrop = [&](int index, Element& from, double x, double) {
    EXPECT_EQ(&from, &source);
    EXPECT_EQ(x, 100);
    dropped.push_back(index);
  };
  std::vector<int> left;
  places.LostFocus = [&](int index) { left.push_back(index); };
  source.DragAutomatic = true;
  show();
  hand::drag_to(source, {450, 450}, {2100, 100});
  hand::drag_to(source, {450, 450}, {100, 100});
  EXPECT_EQ(dropped, (std::vector<int>{1, 0}));
  input::focus(places[1]);
  input::focus(source);
  EXPECT_EQ(left, (std::vector<int>{0, 1}));
}

TEST_F(Elements, WhatIsLoadedCanBeDraggedAsItsDesignCan) {
  ElementArray<PictureBox> pictures(window, u"kép", Rect{0, 0, 900, 900});
  pictures[0].DragAutomatic = true;
  EXPECT_TRUE(pictures.load(1).DragAutomatic);
}

TEST_F(Elements, UpDownWritesItsNumberIntoTheBuddy) {
  TextBox buddy(window, u"txt", {});
  UpDown updown(window, u"ud", {}, buddy, {4, 12, 1}, 12);
  EXPECT_EQ(buddy.text(), u"12");
  EXPECT_EQ(buddy.Stepper, &updown);
  int changes = 0;
  updown.Change = [&] { ++changes; };
  updown.set_value(7);
  EXPECT_EQ(buddy.text(), u"7");
  updown.set_value(7);
  EXPECT_EQ(changes, 1);
  EXPECT_THROW(updown.set_value(3), InvalidValue);
  EXPECT_THROW(updown.set_value(13), InvalidValue);
  EXPECT_EQ(updown.value(), 7);
  EXPECT_EQ(updown.clamped(99), 12);
  EXPECT_EQ(updown.clamped(-5), 4);
}

TEST_F(Elements, UpDownMayShowItsNumberInOtherWords) {
  TextBox buddy(window, u"txt", {});
  UpDown updown(window, u"ud", {}, buddy, {4, 13, 1}, 12);
  updown.Format = [](int value) { return value == 13 ? Text(u"bármennyi") : to_text(value); };
  updown.set_value(13);
  EXPECT_EQ(buddy.text(), u"bármennyi");
  updown.set_value(5);
  EXPECT_EQ(buddy.text(), u"5");
}

TEST_F(Elements, ListBoxClicksForEverySelectionAlsoOfTheSameEntry) {
  ListBox list(window, u"lst", {});
  list.Items = {u"a", u"b", u"c"};
  int clicks = 0;
  list.Click = [&] { ++clicks; };
  list.set_list_index(1);
  list.set_list_index(1);
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(list.selected(), u"b");
  list.set_list_index(-1);
  EXPECT_EQ(clicks, 2) << "taking the selection away is no click";
  EXPECT_EQ(list.selected(), u"");
  EXPECT_THROW(list.set_list_index(3), InvalidValue);
  EXPECT_THROW(list.set_list_index(-2), InvalidValue);
}

TEST_F(Elements, ListBoxSelectionFollowsItsEntryWhenOthersAreRemoved) {
  ListBox list(window, u"lst", {});
  list.Items = {u"a", u"b", u"c"};
  list.set_list_index(2);
  list.remove(0);
  EXPECT_EQ(list.selected(), u"c");
  list.remove(1);
  EXPECT_EQ(list.list_index(), -1) << "the selected entry itself is gone";
  EXPECT_EQ(list.find(u"b"), 0);
  EXPECT_EQ(list.find(u"c"), -1);
  EXPECT_THROW(list.remove(1), InvalidValue);
}

TEST_F(Elements, FileListBoxListsAFolderInOrderOfNamesAndKeepsTheSelectedName) {
  platform.files().put(u"c:\\cserko\\hangok\\taps.wav", "");
  platform.files().put(u"c:\\cserko\\hangok\\alarm.WAV", "");
  platform.files().put(u"c:\\cserko\\hangok\\readme.txt", "");
  FileListBox list(window, u"Filelist", {}, u"*.wav");
  list.set_path(u"c:\\cserko\\hangok\\");
  EXPECT_EQ(list.path(), u"c:\\cserko\\hangok");
  EXPECT_EQ(list.Items, (std::vector<Text>{u"alarm.WAV", u"taps.wav"}));
  list.set_list_index(1);
  int clicks = 0;
  list.Click = [&] { ++clicks; };
  platform.files().put(u"c:\\cserko\\hangok\\duda.wav", "");
  list.refresh();
  EXPECT_EQ(list.selected(), u"taps.wav");
  EXPECT_EQ(clicks, 0) << "nobody has chosen anything";
  platform.files().take(u"c:\\cserko\\hangok\\taps.wav");
  list.refresh();
  EXPECT_EQ(list.list_index(), -1);
}

TEST_F(Elements, ScrollBarRunsChangeOnlyForAnotherValue) {
  ScrollBar bar(window, u"bar", {}, 1, 5);
  EXPECT_EQ(bar.value(), 1);
  int changes = 0;
  bar.Change = [&] { ++changes; };
  bar.set_value(5);
  bar.set_value(5);
  EXPECT_EQ(changes, 1);
  EXPECT_THROW(bar.set_value(6), InvalidValue);
}

TEST_F(Elements, PictureBoxStartsANewDrawingWhenItsSizeHasChanged) {
  PictureBox box(window, u"pic", {0, 0, 1500, 1500});
  EXPECT_EQ(box.drawn_canvas(), nullptr);
  box.canvas().filled_box({0, 0, 1500, 1500}, black);
  EXPECT_EQ(box.canvas().point({100, 100}), black) << "asking again gives the same drawing";
  box.Width = 3000;
  EXPECT_EQ(box.canvas().size(), (Size{3000, 1500}));
  EXPECT_EQ(box.canvas().point({100, 100}), white);
}

TEST_F(Elements, TimerRunsWhileItIsEnabledAndHasAnInterval) {
  Timer timer(window, u"Timer1", 0);
  EXPECT_FALSE(timer.running());
  timer.Interval = 3000;
  EXPECT_TRUE(timer.running());
  EXPECT_EQ(timer.period(), 3000);
  timer.Enabled = false;
  EXPECT_FALSE(timer.running());
}

TEST_F(Elements, MnemonicMarksAreNotPartOfTheCaption) {
  EXPECT_EQ(without_mnemonic(u"&Fájl"), u"Fájl");
  EXPECT_EQ(without_mnemonic(u"Zene && hang"), u"Zene & hang");
  EXPECT_EQ(without_mnemonic(u"vége&"), u"vége&");
  EXPECT_EQ(mnemonic(u"&Újrakever"), u'ú');
  EXPECT_EQ(mnemonic(u"A && &B"), u'b');
  EXPECT_EQ(mnemonic(u"Kész"), u'\0');
  EXPECT_EQ(mnemonic(u"vége&"), u'\0');
}

TEST_F(Elements, AccessibleNameIsTheCaptionOrElseTheRole) {
  Button button(window, u"cmd", {}, u"&Rendez");
  EXPECT_EQ(accessible_name(button), u"Rendez");
  PictureBox box(window, u"pic", {});
  EXPECT_EQ(accessible_name(box), u"kép");
  box.AccessibleName = u"alma";
  EXPECT_EQ(accessible_name(box), u"alma");
}

TEST_F(Elements, EveryKindHasARoleForTheScreenReader) {
  TextBox text(window, u"t", {});
  UpDown updown(window, u"u", {}, text, {0, 1, 1}, 0);
  Label label(window, u"l", {});
  Button button(window, u"b", {});
  CheckBox box(window, u"c", {}, u"");
  OptionButton option(window, u"o", {}, u"");
  Frame frame(window, u"f", {});
  ListBox list(window, u"lst", {});
  FileListBox files(window, u"fl", {}, u"*.*");
  ScrollBar scroll(window, u"s", {}, 0, 1);
  ProgressBar progress(window, u"p", {});
  Line line(window, u"line", {});
  Timer timer(window, u"timer", 1);
  MenuItem item(window, u"mnu", u"");
  for (const Element* element : window.elements())
    EXPECT_FALSE(accessible_name(*element).empty()) << to_utf8(element->Name);
}

// Element arrays.

class Arrays : public PlatformTest {
 protected:
  ElementArray<Label> lbl_szó{window, u"lbl_szó", {480, 360, 1095, 1095}};
};

TEST_F(Arrays, HoldTheDesignElementZero) {
  EXPECT_EQ(lbl_szó.count(), 1);
  EXPECT_TRUE(lbl_szó[0].Visible);
  EXPECT_EQ(window.find(u"lbl_szó", 0), &lbl_szó[0]);
  EXPECT_THROW(lbl_szó[1], std::out_of_range);
}

TEST_F(Arrays, LoadElementsLikeElementZeroButHidden) {
  lbl_szó[0].Caption = u"m";
  lbl_szó[0].Font.size = 33;
  lbl_szó[0].ForeColor = {1, 2, 3};
  const Label& loaded = lbl_szó.load(5);
  EXPECT_EQ(loaded.Index, 5);
  EXPECT_EQ(loaded.Caption, u"m");
  EXPECT_EQ(loaded.Font.size, 33);
  EXPECT_EQ(loaded.ForeColor, (Color{1, 2, 3}));
  EXPECT_EQ(loaded.Width, 1095);
  EXPECT_FALSE(loaded.Visible);
  EXPECT_THROW(lbl_szó.load(5), InvalidValue);
  EXPECT_EQ(window.find(u"lbl_szó", 5), &loaded);
}

TEST_F(Arrays, UnloadAllButTheDesignElement) {
  for (int i = 1; i <= 4; ++i) lbl_szó.load(i);
  lbl_szó.unload(2);
  EXPECT_FALSE(lbl_szó.loaded(2));
  lbl_szó.unload(2);
  EXPECT_THROW(lbl_szó.unload(0), InvalidValue);
  lbl_szó.unload_from(1);
  EXPECT_EQ(lbl_szó.count(), 1);
  EXPECT_EQ(window.elements().size(), 1U);
}

TEST_F(Arrays, PassTheIndexToTheirHandlers) {
  lbl_szó.load(1).Visible = true;
  lbl_szó.load(2).Visible = true;
  show();
  std::vector<int> clicked;
  lbl_szó.Click = [&](int index) { clicked.push_back(index); };
  lbl_szó.MouseDown = [&](int index, const MouseEvent&) { clicked.push_back(100 + index); };
  hand::click(lbl_szó[2]);
  hand::click(lbl_szó[0]);
  EXPECT_EQ(clicked, (std::vector<int>{102, 2, 100, 0}));
}

/// A label that tells when it is destroyed.
class MortalLabel : public Label {
 public:
  MortalLabel(Parent parent, TextView name, Rect place) : Label(parent, name, place) {}
  ~MortalLabel() override {
    if (destroyed != nullptr) ++*destroyed;
  }
  int* destroyed = nullptr;
};

TEST_F(Arrays, AnElementThatUnloadsItselfLivesUntilItsEventIsOver) {
  ElementArray<MortalLabel> letters(window, u"betű", {0, 0, 300, 300});
  int destroyed = 0;
  MortalLabel& letter = letters.load(1);
  letter.Visible = true;
  letter.destroyed = &destroyed;
  letters.MouseDown = [&](int index, const MouseEvent&) {
    letters.unload(index);
    EXPECT_EQ(window.find(u"betű", 1), nullptr);
    EXPECT_EQ(destroyed, 0);
    log.push_back("down");
  };
  show();
  hand::click(letter);
  EXPECT_EQ(log, Log{"down"});
  EXPECT_EQ(destroyed, 1);
}

TEST_F(Arrays, AnElementThatIsUnloadedBetweenEventsIsDestroyedAtOnce) {
  ElementArray<MortalLabel> letters(window, u"betű", {0, 0, 300, 300});
  int destroyed = 0;
  letters.load(1).destroyed = &destroyed;
  letters.unload(1);
  EXPECT_EQ(destroyed, 1);
}

TEST_F(Arrays, MayStartAtAnotherIndex) {
  ElementArray<Label> lbl_óra(window, u"lbl_óra", FirstIndex{1}, {0, 0, 300, 300});
  EXPECT_FALSE(lbl_óra.loaded(0));
  lbl_óra[1].Tag = u"design";
  EXPECT_EQ(lbl_óra.load(2).Tag, u"design");
  EXPECT_THROW(lbl_óra.unload(1), InvalidValue);
  lbl_óra.unload(2);
  EXPECT_EQ(lbl_óra.count(), 1);
}

TEST_F(Arrays, ArePutAtTheirDesignPlacesInOrder) {
  lbl_szó.design_places({{10, 20}, {30, 40}, {50, 60}});
  EXPECT_EQ(lbl_szó.count(), 3);
  EXPECT_EQ(lbl_szó[0].Left, 10);
  EXPECT_EQ(lbl_szó[2].Top, 60);
  EXPECT_TRUE(lbl_szó[2].Visible);
}

TEST_F(Arrays, PassKeysWithTheIndex) {
  lbl_szó[0].Choosable = true;
  Label& second = lbl_szó.load(1);
  second.Visible = true;
  EXPECT_TRUE(second.Choosable);
  lbl_szó.KeyDown = [this](int index, KeyEvent& event) {
    log.push_back(std::to_string(index) + " " + std::to_string(event.code));
  };
  show();
  input::focus(second);
  hand::key(window, 'K');
  EXPECT_EQ(log.front(), "1 75");
}

TEST_F(Arrays, VisitTheirElementsInOrderOfIndex) {
  lbl_szó.load(7);
  lbl_szó.load(3);
  std::vector<int> seen;
  lbl_szó.each([&](const Label& label) { seen.push_back(label.Index); });
  EXPECT_EQ(seen, (std::vector<int>{0, 3, 7}));
}

} // namespace
} // namespace cserko
