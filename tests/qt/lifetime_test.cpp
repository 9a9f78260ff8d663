// Elements and windows that go while something happens to them.
#include "fixture.h"
#include "platform/element_array.h"

#include <QPointer>

namespace cserko::test {

namespace {

class Lifetime : public QtMachine {};

TEST_F(Lifetime, AnElementMayGoInItsOwnPress) {
  NotingWindow window(*machine);
  ElementArray<Label> letters(window, u"lbl", {300, 300, 900, 900}, u"A");
  letters.load(1).move_to(1500, 300);
  letters[1].Visible = true;
  letters.MouseDown = [&](int index, const MouseEvent&) {
    if (index == 1) letters.unload(1);
  };
  show(window);
  QPointer<QWidget> shown = &widget(letters[1]);
  press(letters[1], {150, 150});
  release(window, {110, 30});
  EXPECT_FALSE(letters.loaded(1));
  EXPECT_TRUE(wait_for([&] { return shown == nullptr; }));
}

TEST_F(Lifetime, AButtonMayGoInItsOwnClick) {
  NotingWindow window(*machine);
  ElementArray<Button> buttons(window, u"cmd", {300, 300, 900, 900}, u"A");
  buttons.load(1).move_to(1500, 300);
  buttons[1].Visible = true;
  buttons.Click = [&](int) { buttons.unload(1); };
  show(window);
  QPointer<QWidget> shown = &widget(buttons[1]);
  click(buttons[1]);
  EXPECT_TRUE(wait_for([&] { return shown == nullptr; }));
}

TEST_F(Lifetime, AContainerAndWhatItContainsMayGoTogether) {
  NotingWindow window(*machine);
  {
    PictureBox outer(window, u"pic", {300, 300, 3000, 3000});
    Label inner(outer, u"lbl", {300, 300, 900, 900}, u"A");
    show(window);
    EXPECT_EQ(widget(inner).parentWidget(), &widget(outer));
  }
  machine->sync_all();
  EXPECT_TRUE(window.elements().empty());
  EXPECT_TRUE(view(window).findChildren<QWidget*>("lbl").isEmpty());
  picture_of(window);
}

TEST_F(Lifetime, AnElementLoadedLaterIsShown) {
  NotingWindow window(*machine);
  ElementArray<Label> letters(window, u"lbl", {300, 300, 900, 900}, u"A");
  Button more(window, u"cmd", {300, 1500, 900, 600}, u"Még");
  more.Click = [&] { letters.load(1).Visible = true; };
  show(window);
  click(more);
  EXPECT_TRUE(widget(letters[1]).isVisible());
}

TEST_F(Lifetime, AWindowMayGoInItsOwnClick) {
  auto window = std::make_unique<NotingWindow>(*machine);
  Button button(*window, u"cmd", {300, 300, 900, 600}, u"Vége");
  button.Click = [&] {
    machine->hide(*window);
    machine->detach(*window);
  };
  show(*window);
  QPointer<WindowView> shown = &view(*window);
  click(button);
  EXPECT_EQ(machine->view_of(*window), nullptr);
  EXPECT_TRUE(wait_for([&] { return shown == nullptr; }));
}

TEST_F(Lifetime, WhatComesLateForAWindowThatIsGoneReachesNobody) {
  auto window = std::make_unique<NotingWindow>(*machine);
  auto box = std::make_unique<TextBox>(*window, u"txt", Rect{300, 300, 1500, 450});
  show(*window);
  const QPointer<WindowView> late = &view(*window);
  const QPointer<QWidget> edit = &widget(*box);
  box.reset();
  window.reset();
  ASSERT_NE(late, nullptr);
  ASSERT_NE(edit, nullptr);
  QEvent activated(QEvent::WindowActivate);
  QApplication::sendEvent(late, &activated);
  QFocusEvent focused(QEvent::FocusIn, Qt::MouseFocusReason);
  QApplication::sendEvent(edit, &focused);
  QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
  QApplication::sendEvent(edit, &key);
  QMouseEvent pressed(QEvent::MouseButtonPress, QPointF(5, 5), edit->mapToGlobal(QPointF(5, 5)), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(edit->parentWidget(), &pressed);
  EXPECT_TRUE(machine->shown_windows().empty());
  QCoreApplication::sendPostedEvents(late, QEvent::DeferredDelete);
  EXPECT_EQ(late, nullptr);
}

TEST_F(Lifetime, ATimerMayGoInItsOwnTick) {
  NotingWindow window(*machine);
  auto timer = std::make_unique<Timer>(window, u"tmr", 10);
  int ticks = 0;
  timer->Tick = [&] {
    ++ticks;
    window.retire(std::move(timer));
  };
  machine->sync_all();
  EXPECT_TRUE(wait_for([&] { return ticks == 1; }));
  const std::int64_t start = machine->now();
  wait_for([&] { return machine->now() > start + 60; });
  EXPECT_EQ(ticks, 1);
}

TEST_F(Lifetime, MenuEntriesOfAClosedWindowAreGone) {
  auto window = std::make_unique<NotingWindow>(*machine);
  auto file = std::make_unique<MenuItem>(*window, u"mnu", u"&Fájl");
  auto close = std::make_unique<MenuItem>(*file, u"mnu_kilép", u"&Kilépés");
  close->Click = [&] {
    machine->hide(*window);
    machine->detach(*window);
  };
  show(*window);
  QAction* action = nullptr;
  for (QAction* candidate : view(*window).findChildren<QAction*>()) {
    if (candidate->text().startsWith("&Kil")) action = candidate;
  }
  ASSERT_NE(action, nullptr);
  action->trigger();
  EXPECT_EQ(machine->view_of(*window), nullptr);
}

} // namespace
} // namespace cserko::test
