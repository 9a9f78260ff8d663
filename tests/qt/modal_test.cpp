// Windows over windows.
#include "fixture.h"

#include <QPushButton>

namespace cserko::test {

namespace {

using testing::ElementsAre;

class Modal : public QtMachine {};

TEST_F(Modal, ReturnsWhenTheWindowIsHidden) {
  NotingWindow dialog(*machine);
  when_shown(dialog, [&] {
    EXPECT_TRUE(dialog.visible());
    EXPECT_EQ(machine->active_window(), &dialog);
    machine->hide(dialog);
  });
  machine->show_modal(dialog);
  EXPECT_FALSE(dialog.visible());
  EXPECT_EQ(machine->active_window(), nullptr);
}

TEST_F(Modal, NestsAndComesBackInOrder) {
  NotingWindow outer(*machine);
  NotingWindow inner(*machine, {3000, 3000}, u"Belső");
  Button open(outer, u"cmd", {300, 300, 1500, 600}, u"Tovább");
  std::vector<std::string> story;
  open.Click = [&] {
    story.emplace_back("belső nyílik");
    machine->show_modal(inner);
    story.emplace_back("belső bezárult");
  };
  when_shown(outer, [&] {
    when_shown(inner, [&] { machine->hide(inner); });
    click(open);
    story.emplace_back("külső megint");
    machine->hide(outer);
  });
  machine->show_modal(outer);
  EXPECT_THAT(story, ElementsAre("belső nyílik", "belső bezárult", "külső megint"));
}

TEST_F(Modal, ShowsWhatItsHandlerHadChangedBefore) {
  NotingWindow outer(*machine);
  NotingWindow inner(*machine, {3000, 3000});
  Label label(outer, u"lbl", {300, 300, 900, 900}, u"régi");
  Button open(outer, u"cmd", {300, 1500, 1500, 600}, u"Tovább");
  QString shown;
  open.Click = [&] {
    label.move_to(1500, 300);
    machine->show_modal(inner);
  };
  int left = 0;
  show(outer);
  when_shown(inner, [&] {
    left = widget(label).x();
    machine->hide(inner);
  });
  click(open);
  EXPECT_EQ(left, 100);
}

TEST_F(Modal, TheWindowUnderItTakesNoMouse) {
  NotingWindow outer(*machine);
  NotingWindow inner(*machine, {3000, 3000});
  Button button(outer, u"cmd", {300, 300, 1500, 600}, u"Alul");
  int clicks = 0;
  button.Click = [&] { ++clicks; };
  show(outer);
  when_shown(inner, [&] {
    click(button);
    machine->hide(inner);
  });
  machine->show_modal(inner);
  EXPECT_EQ(clicks, 0);
  EXPECT_TRUE(wait_for([&] { return view(outer).isActiveWindow(); }));
  click(button);
  EXPECT_EQ(clicks, 1);
}

TEST_F(Modal, FocusByMouseIsNoticedInADialogThatAHandlerOpened) {
  NotingWindow outer(*machine);
  NotingWindow dialog(*machine, {6000, 4500});
  Button open(outer, u"cmd", {300, 300, 1500, 600}, u"Beállítások");
  Button ok(dialog, u"cmd_ok", {300, 300, 1500, 600}, u"Rendben");
  TextBox box(dialog, u"txt", {300, 1200, 1500, 450});
  int oks = 0;
  ok.Click = [&] { ++oks; };
  open.Click = [&] { machine->show_modal(dialog); };
  show(outer);
  when_shown(dialog, [&] {
    EXPECT_EQ(dialog.focus(), &ok);
    click(box);
    EXPECT_EQ(dialog.focus(), &box);
    type(dialog, "a b");
    machine->hide(dialog);
  });
  click(open);
  EXPECT_EQ(box.text(), u"a b");
  EXPECT_EQ(oks, 0);
}

TEST_F(Modal, FocusReturnsToTheWindowBefore) {
  NotingWindow outer(*machine);
  NotingWindow inner(*machine, {3000, 3000});
  Button first(outer, u"cmd_a", {300, 300, 1500, 600}, u"Egy");
  Button second(outer, u"cmd_b", {300, 1200, 1500, 600}, u"Kettő");
  show(outer);
  key(outer, Qt::Key_Tab);
  when_shown(inner, [&] { machine->hide(inner); });
  machine->show_modal(inner);
  EXPECT_TRUE(wait_for([&] { return view(outer).isActiveWindow(); }));
  EXPECT_EQ(outer.focus(), &second);
  EXPECT_TRUE(widget(second).hasFocus());
}

TEST_F(Modal, ActivateComesEachTimeTheWindowComesToTheFront) {
  NotingWindow outer(*machine);
  NotingWindow inner(*machine, {3000, 3000});
  show(outer);
  EXPECT_TRUE(wait_for([&] { return outer.activations == 1; }));
  when_shown(inner, [&] { machine->hide(inner); });
  machine->show_modal(inner);
  EXPECT_TRUE(wait_for([&] { return outer.activations == 2; }));
  EXPECT_EQ(inner.activations, 1);
}

TEST_F(Modal, TheWindowBehindIsActivatedBeforeTheShowReturnsAndNotOnceMoreLater) {
  NotingWindow outer(*machine);
  NotingWindow inner(*machine, {3000, 3000});
  show(outer);
  ASSERT_TRUE(wait_for([&] { return outer.activations == 1; }));
  when_shown(inner, [&] { machine->hide(inner); });
  machine->show_modal(inner);
  EXPECT_EQ(outer.activations, 2) << "what the caller sets behind the show must stand";
  EXPECT_TRUE(wait_for([&] { return view(outer).isActiveWindow(); }));
  QTest::qWait(50);
  EXPECT_EQ(outer.activations, 2);
}

TEST_F(Modal, AFrontWindowOpenedWithinActivateIsFine) {
  // The backdrop shows its exercise from its own Activate.
  struct Backdrop : NotingWindow {
    using NotingWindow::NotingWindow;
    void Activate() override {
      if (std::exchange(opened, true)) return;
      platform().show_modal(*exercise);
      platform().hide(*this);
    }
    Window* exercise = nullptr;
    bool opened = false;
  } backdrop(*machine);
  backdrop.Border = WindowBorder::None;
  NotingWindow exercise(*machine, {3000, 3000});
  backdrop.exercise = &exercise;
  when_shown(exercise, [&] { machine->hide(exercise); });
  machine->show_modal(backdrop);
  EXPECT_FALSE(exercise.visible());
  EXPECT_FALSE(backdrop.visible());
}

TEST_F(Modal, TheCloseControlAsksAndClosesNothingByItself) {
  NotingWindow window(*machine);
  show(window);
  host.may_close = false;
  view(window).close();
  EXPECT_EQ(host.close_requests, 1);
  EXPECT_TRUE(window.visible());
  EXPECT_TRUE(view(window).isVisible());
  host.may_close = true;
  view(window).close();
  EXPECT_FALSE(view(window).isVisible());
}

TEST_F(Modal, EndingTheProcessEndsEveryShow) {
  NotingWindow outer(*machine);
  NotingWindow inner(*machine, {3000, 3000});
  Button open(outer, u"cmd", {300, 300, 1500, 600}, u"Tovább");
  open.Click = [&] { machine->show_modal(inner); };
  when_shown(outer, [&] {
    when_shown(inner, [&] { machine->end_process(); });
    click(open);
  });
  machine->show_modal(outer);
  EXPECT_TRUE(machine->ended());
}

TEST_F(Modal, EndingTheProcessByAButtonEndsEveryShow) {
  NotingWindow outer(*machine);
  NotingWindow inner(*machine, {3000, 3000});
  Button open(outer, u"cmd", {300, 300, 1500, 600}, u"Tovább");
  Button leave(inner, u"cmd", {300, 300, 1500, 600}, u"Kilépés");
  open.Click = [&] { machine->show_modal(inner); };
  leave.Click = [&] { machine->end_process(); };
  when_shown(outer, [&] {
    when_shown(inner, [&] { click(leave); });
    click(open);
  });
  machine->show_modal(outer);
  EXPECT_TRUE(machine->ended());
}

TEST_F(Modal, AWindowIsShownASecondTime) {
  NotingWindow outer(*machine);
  NotingWindow dialog(*machine);
  show(outer);
  Label label(dialog, u"lbl", {300, 300, 900, 900}, u"először");
  for (const TextView caption : {u"először", u"másodszor"}) {
    label.Caption = caption;
    when_shown(dialog, [&] {
      EXPECT_EQ(widget(label).accessibleName(), QString::fromUtf16(caption.data()));
      machine->hide(dialog);
    });
    machine->show_modal(dialog);
  }
}

TEST_F(Modal, AMessageBoxSaysItsText) {
  NotingWindow window(*machine);
  show(window);
  QString told;
  answer_box([&](QMessageBox& box) { told = box.text(); });
  machine->message_box(u"Nincs hang.");
  EXPECT_EQ(told, "Nincs hang.");
}

TEST_F(Modal, OnlyOneErrorIsReportedAtATime) {
  NotingWindow window(*machine);
  show(window);
  int boxes = 0;
  answer_box([&](QMessageBox&) {
    ++boxes;
    machine->report_error(u"egy másik baj");
  });
  machine->report_error(u"egy baj");
  EXPECT_EQ(boxes, 1);
}

TEST_F(Modal, AnErrorWithoutAnyWindowReachesThePersonToo) {
  QString told;
  answer_box([&](QMessageBox& box) { told = box.text(); });
  testing::internal::CaptureStderr();
  machine->report_error(u"korai baj");
  EXPECT_THAT(testing::internal::GetCapturedStderr(), testing::HasSubstr("korai baj"));
  EXPECT_EQ(told, "korai baj");
}

TEST_F(Modal, NoTimerFiresWhileAnErrorStandsAlone) {
  NotingWindow window(*machine);
  int ticks = 0;
  Timer timer(window, u"Timer1", 1);
  timer.Tick = [&] { ++ticks; };
  machine->sync_all();
  answer_box([&](QMessageBox&) {
    QTest::qWait(3 * idle_pace);
    EXPECT_EQ(ticks, 0);
  });
  machine->report_error(u"korai baj");
  EXPECT_TRUE(wait_for([&] { return ticks > 0; })) << "behind it the timers run";
}

TEST_F(Modal, AWindowIsActivatedByBeingShown) {
  NotingWindow window(*machine);
  machine->show(window);
  EXPECT_EQ(window.activations, 1) << "no window system has said anything yet";
  NotingWindow dialog(*machine, {3000, 3000});
  int at_start = 0;
  later([&] {
    at_start = dialog.activations;
    machine->hide(dialog);
  });
  machine->show_modal(dialog);
  EXPECT_EQ(at_start, 1);
  EXPECT_TRUE(wait_for([&] { return view(window).isActiveWindow(); }));
  EXPECT_EQ(dialog.activations, 1);
}

TEST_F(Modal, AWindowWithoutBorderThatCoversTheScreenIsToldToTheWindowManagerAsSuch) {
  NotingWindow backdrop(*machine);
  backdrop.Border = WindowBorder::None;
  const Rect screen = machine->whole_screen();
  backdrop.Left = screen.left;
  backdrop.Top = screen.top;
  backdrop.Width = screen.width;
  backdrop.Height = screen.height;
  machine->show(backdrop);
  EXPECT_TRUE(view(backdrop).windowState().testFlag(Qt::WindowFullScreen));
  EXPECT_EQ(view(backdrop).geometry(), QGuiApplication::primaryScreen()->geometry());
  NotingWindow small(*machine);
  small.Border = WindowBorder::None;
  machine->show(small);
  EXPECT_FALSE(view(small).windowState().testFlag(Qt::WindowFullScreen));
}

} // namespace
} // namespace cserko::test
