// What is seen, and what a screen reader is told.
#include "fixture.h"
#include "platform/qt/theme.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QCheckBox>
#include <QGroupBox>
#include <QMenuBar>
#include <algorithm>
#include <cmath>

namespace cserko::test {

namespace {

class Looks : public QtMachine {
 protected:
  QAccessible::Role role(const Element& element) const {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&widget(element));
    return interface != nullptr ? interface->role() : QAccessible::NoRole;
  }
  QString told(const Element& element) const {
    return QAccessible::queryAccessibleInterface(&widget(element))->text(QAccessible::Name);
  }
  static QAction* entry(const QWidget& window, const QString& start) {
    for (QAction* action : window.findChildren<QAction*>()) {
      if (action->text().startsWith(start)) return action;
    }
    return nullptr;
  }
};

double luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}
double contrast(const QColor& one, const QColor& other) {
  const double a = luminance(one) + 0.05;
  const double b = luminance(other) + 0.05;
  return a > b ? a / b : b / a;
}

TEST_F(Looks, TextStandsOutFromEveryBackground) {
  for (const QColor& background :
       {theme::paper, theme::button, theme::button_hover, theme::button_pressed, theme::field})
    EXPECT_GE(contrast(theme::text, background), 7);
  // What is disabled is paler and still legible.
  EXPECT_GE(contrast(theme::faded_text, theme::button_disabled), 4.5);
  EXPECT_GE(contrast(theme::faded_text, theme::paper), 4.5);
  // The ring of the focus and the bar of progress are no text.
  EXPECT_GE(contrast(theme::accent, theme::paper), 3);
}

TEST_F(Looks, TheBoxesOfChoicesAreSeenOnThePaperBeforeTheyAreTicked) {
  NotingWindow window(*machine);
  const CheckBox check(window, u"chk", {0, 0, 1800, 900}, u"Hanggal");
  const OptionButton option(window, u"opt", {0, 900, 1800, 900}, u"Egyik");
  show(window);
  const auto buttons = view(window).findChildren<QAbstractButton*>();
  ASSERT_EQ(buttons.size(), 2);
  for (QAbstractButton* button : buttons) {
    const QImage image = button->grab().toImage();
    // From the left edge into the box: its edge is darker than all that is beside it.
    double strongest = 1;
    for (int x = 0; x < image.height() / 4; ++x)
      strongest = std::max(strongest, contrast(image.pixelColor(x, image.height() / 2), theme::paper));
    EXPECT_GE(strongest, 3) << button->metaObject()->className();
  }
}

TEST_F(Looks, EveryElementHasItsAccessibleName) {
  NotingWindow window(*machine);
  Label label(window, u"lbl", {0, 0, 900, 900}, u"alma");
  PictureBox picture(window, u"pic", {900, 0, 900, 900});
  PictureBox named(window, u"pic", {1800, 0, 900, 900});
  named.AccessibleName = u"egy alma képe";
  Button button(window, u"cmd", {0, 900, 900, 900}, u"&Kilépés");
  CheckBox check(window, u"chk", {900, 900, 900, 900}, u"&Hanggal");
  ListBox list(window, u"lst", {1800, 900, 900, 900});
  TextBox box(window, u"txt", {0, 1800, 900, 450});
  ScrollBar bar(window, u"hs", {900, 1800, 900, 300}, 0, 10);
  show(window);
  for (const Element* element : window.elements())
    EXPECT_EQ(told(*element).toStdU16String(), accessible_name(*element)) << to_utf8(element->Name);
}

TEST_F(Looks, AScreenReaderIsToldWhatAnElementIs) {
  NotingWindow window(*machine);
  Label label(window, u"lbl", {0, 0, 900, 900}, u"alma");
  PictureBox picture(window, u"pic", {900, 0, 900, 900});
  Button button(window, u"cmd", {0, 900, 900, 900}, u"Kilépés");
  CheckBox check(window, u"chk", {900, 900, 900, 900}, u"Hanggal");
  OptionButton option(window, u"opt", {900, 1800, 900, 900}, u"Egyik");
  Frame frame(window, u"fra", {1800, 1800, 900, 900}, u"Csoport");
  TextBox box(window, u"txt", {0, 1800, 900, 450});
  ListBox list(window, u"lst", {1800, 900, 900, 900});
  ScrollBar bar(window, u"hs", {0, 2700, 900, 300}, 0, 10);
  ProgressBar progress(window, u"prg", {900, 2700, 900, 300});
  show(window);
  EXPECT_EQ(role(label), QAccessible::StaticText);
  EXPECT_EQ(role(picture), QAccessible::Graphic);
  EXPECT_EQ(role(button), QAccessible::Button);
  EXPECT_EQ(role(check), QAccessible::CheckBox);
  EXPECT_EQ(role(option), QAccessible::RadioButton);
  EXPECT_EQ(role(frame), QAccessible::Grouping);
  EXPECT_EQ(role(box), QAccessible::EditableText);
  EXPECT_EQ(role(list), QAccessible::List);
  EXPECT_EQ(role(bar), QAccessible::ScrollBar);
  EXPECT_EQ(role(progress), QAccessible::ProgressBar);
}

TEST_F(Looks, OnlyWhatDiffersIsAppliedAfterAnEvent) {
  NotingWindow window(*machine);
  Label label(window, u"lbl", {300, 300, 900, 900}, u"A");
  show(window);
  EXPECT_FALSE(view(window).sync());
  label.Caption = u"B";
  EXPECT_TRUE(view(window).sync());
  EXPECT_FALSE(view(window).sync());
}

TEST_F(Looks, EveryPropertyThatIsSeenIsComparedForEveryKind) {
  NotingWindow window(*machine);
  Label label(window, u"lbl", {300, 300, 900, 900}, u"A");
  PictureBox picture(window, u"pic", {300, 300, 900, 900});
  CheckBox check(window, u"chk", {900, 900, 900, 900}, u"Hanggal");
  ProgressBar progress(window, u"prg", {900, 2700, 1500, 300});
  Line line(window, u"line", {0, 0, 900, 900});
  MenuItem menu(window, u"mnu", u"Fájl");
  MenuItem item(menu, u"mnu_a", u"Egy");
  show(window);
  const std::vector<std::pair<const char*, std::function<void()>>> changes{
      {"place", [&] { label.Left += 15; }},
      {"visible", [&] { label.Visible = false; }},
      {"shown again", [&] { label.Visible = true; }},
      {"disabled", [&] { label.Enabled = false; }},
      {"font", [&] { label.Font.size = 20; }},
      {"colour", [&] { label.ForeColor = black; }},
      {"ground", [&] { label.BackColor = black; }},
      {"opaque", [&] { label.Opaque = true; }},
      {"border", [&] { label.Border = true; }},
      {"tip", [&] { label.ToolTipText = u"tipp"; }},
      {"accessible name", [&] { label.AccessibleName = u"név"; }},
      {"drawing",
       [&] {
         picture.canvas().filled_box({0, 0, 300, 300}, black);
       }},
      {"value", [&] { check.set_value(1); }},
      {"progress", [&] { progress.Value = 50; }},
      {"rising", [&] { line.Rising = true; }},
      {"width of the line", [&] { line.BorderWidth = 45; }},
      {"entry", [&] { item.Caption = u"Kettő"; }},
      {"entry disabled", [&] { item.Enabled = false; }},
      {"entry checked", [&] { item.Checked = true; }},
      {"window caption", [&] { window.Caption = u"Más"; }},
      {"window colour", [&] { window.BackColor = black; }},
      {"window place", [&] { window.Left += 150; }},
      {"pointer", [&] { window.Pointer = MousePointer::Hourglass; }},
      {"window drawing",
       [&] {
         window.canvas().line({0, 0}, {300, 300}, black);
       }},
  };
  for (const auto& [what, change] : changes) {
    change();
    EXPECT_TRUE(view(window).sync()) << what;
    EXPECT_FALSE(view(window).sync()) << what;
  }
}

TEST_F(Looks, AMillionStepsOfProgressAreOnlySeenAsPixels) {
  NotingWindow window(*machine);
  ProgressBar progress(window, u"prg", {300, 300, 3000, 300});
  progress.Max = 32767;
  show(window);
  int seen = 0;
  for (progress.Value = 0; progress.Value <= progress.Max; ++progress.Value) seen += view(window).sync() ? 1 : 0;
  EXPECT_LE(seen, 200);
  EXPECT_GE(seen, 150);
}

TEST_F(Looks, ATransparentLabelShowsWhatLiesUnderIt) {
  NotingWindow window(*machine);
  window.BackColor = {10, 200, 30};
  Label clear(window, u"lbl_a", {300, 300, 900, 900});
  Label opaque(window, u"lbl_b", {1500, 300, 900, 900});
  opaque.Opaque = true;
  opaque.BackColor = {200, 10, 30};
  show(window);
  const QImage image = picture_of(window);
  EXPECT_EQ(image.pixelColor(place(clear, {450, 450})), QColor(10, 200, 30));
  EXPECT_EQ(image.pixelColor(place(opaque, {450, 450})), QColor(200, 10, 30));
}

TEST_F(Looks, ADisabledLabelIsFadedOnThePaperAndKeepsItsColourOnAGroundOfItsOwn) {
  NotingWindow window(*machine);
  window.BackColor = {0, 120, 0};
  Label on_paper(window, u"lbl_a", {300, 300, 1500, 1500}, u"M");
  Label on_ground(window, u"lbl_b", {2100, 300, 1500, 1500}, u"M");
  on_ground.Opaque = true;
  on_ground.BackColor = window.BackColor;
  for (Label* label : {&on_paper, &on_ground}) {
    label->ForeColor = white;
    label->Font.size = 60;
    label->Enabled = false;
  }
  show(window);
  const QImage image = picture_of(window);
  const auto white_pixels = [&](const Element& label) {
    int found = 0;
    for (double x = 0; x < label.Width; x += twips_per_pixel) {
      for (double y = 0; y < label.Height; y += twips_per_pixel)
        found += image.pixelColor(place(label, {x, y})) == QColor(Qt::white) ? 1 : 0;
    }
    return found;
  };
  EXPECT_EQ(white_pixels(on_paper), 0);
  EXPECT_GE(white_pixels(on_ground), 100) << "the letter";
}

TEST_F(Looks, AnErasedLineShowsTheTexturedGroundOfItsWindowAgain) {
  QImage noise(64, 64, QImage::Format_RGB32);
  for (int y = 0; y < 64; ++y) {
    for (int x = 0; x < 64; ++x) noise.setPixel(x, y, qRgb(200 + x * 7 % 50, 190 + y * 11 % 60, 180 + x * y % 70));
  }
  ASSERT_TRUE(noise.save(qEnvironmentVariable("CSERKO_PACK_DIR") + "/kepek/paper.png"));
  NotingWindow window(*machine);
  window.Picture = machine->load_picture(u"c:\\cserko\\kepek\\paper.png");
  ASSERT_NE(window.Picture, nullptr);
  show(window);
  const QImage before = picture_of(window);
  window.canvas().line({300, 300}, {4200, 3100}, black, 45);
  machine->redraw(window);
  EXPECT_NE(picture_of(window), before);
  window.canvas().erase_line({300, 300}, {4200, 3100}, 45);
  machine->sync_all();
  EXPECT_EQ(picture_of(window), before);
}

// A pack inside the program is read-only, so that the user's own records stand before it.
TEST_F(Looks, APhotoOfTheUsersOwnIsFoundForARecordBesideAReadOnlyPack) {
  machine.reset();
  qputenv("CSERKO_PACK_DIR", ":/pack");
  machine = std::make_unique<QtPlatform>();
  const QString own = qEnvironmentVariable("CSERKO_USER_DIR") + "/alkalmazas/kepek";
  QDir().mkpath(own);
  EXPECT_EQ(machine->load_picture(u"c:\\cserko\\kepek\\5.wmf"), nullptr);
  ASSERT_TRUE(QImage(8, 4, QImage::Format_RGB32).save(own + "/5.png"));
  const PicturePtr picture = machine->load_picture(u"c:\\cserko\\kepek\\5.wmf");
  ASSERT_NE(picture, nullptr);
  EXPECT_EQ(picture->natural_size().width, 8 * twips_per_pixel);
}

TEST_F(Looks, LaterElementsLieOnTopOfEarlierOnes) {
  NotingWindow window(*machine);
  Label below(window, u"lbl_a", {300, 300, 900, 900});
  Label above(window, u"lbl_b", {300, 300, 900, 900});
  below.Opaque = above.Opaque = true;
  below.BackColor = {200, 10, 30};
  above.BackColor = {10, 10, 200};
  show(window);
  EXPECT_EQ(picture_of(window).pixelColor(place(below, {450, 450})), QColor(10, 10, 200));
}

TEST_F(Looks, TheDrawingOfAPictureBoxIsSeenUnderWhatItContains) {
  NotingWindow window(*machine);
  PictureBox box(window, u"pic", {300, 300, 1500, 1500});
  Label label(box, u"lbl", {750, 0, 750, 1500});
  label.Opaque = true;
  label.BackColor = {10, 10, 200};
  show(window);
  box.canvas().filled_box({0, 0, 1500, 1500}, {200, 10, 30});
  machine->sync_all();
  const QImage image = picture_of(window);
  EXPECT_EQ(image.pixelColor(place(box, {300, 300})), QColor(200, 10, 30));
  EXPECT_EQ(image.pixelColor(place(box, {1200, 300})), QColor(10, 10, 200));
}

TEST_F(Looks, TheClientAreaIsAsLargeAsTheWindowSays) {
  NotingWindow window(*machine, {6000, 4500});
  MenuItem menu(window, u"mnu", u"&Fájl");
  MenuItem item(menu, u"mnu_a", u"&Kilépés");
  window.set_inner_size({6000, 4500});
  Label corner(window, u"lbl", {0, 0, 6000, 4500});
  show(window);
  EXPECT_EQ(widget(corner).size(), QSize(400, 300));
  EXPECT_EQ(widget(corner).parentWidget()->size(), QSize(400, 300));
  EXPECT_DOUBLE_EQ(window.inner_width(), 6000);
}

TEST_F(Looks, AWindowWithoutBorderHasNoChrome) {
  NotingWindow window(*machine);
  window.Border = WindowBorder::None;
  EXPECT_EQ(machine->chrome(window), (Size{0, 0}));
}

TEST_F(Looks, AMenuShowsSeparatorsMarksAndKeys) {
  NotingWindow window(*machine);
  MenuItem menu(window, u"mnu", u"&Fájl");
  MenuItem start(menu, u"mnu_a", u"&Új játék", key::f1 + 1);
  MenuItem bar(menu, u"mnu_b", u"-");
  MenuItem sound(menu, u"mnu_c", u"&Hang");
  sound.Checked = true;
  MenuItem off(menu, u"mnu_d", u"&Nyomtatás");
  off.Enabled = false;
  show(window);
  EXPECT_EQ(entry(view(window), "&Új")->text(), "&Új játék\tF2");
  const QList<QAction*> entries = entry(view(window), "&Új")->parent()->findChildren<QAction*>();
  EXPECT_EQ(std::count_if(entries.begin(), entries.end(), [](const QAction* action) { return action->isSeparator(); }),
            1);
  EXPECT_TRUE(entry(view(window), "&Hang")->isChecked());
  EXPECT_FALSE(entry(view(window), "&Nyom")->isEnabled());
  int chosen = 0;
  start.Click = [&] { ++chosen; };
  entry(view(window), "&Új")->trigger();
  EXPECT_EQ(chosen, 1);
}

TEST_F(Looks, ChoosingACheckableEntryLeavesTheMarkToTheSuite) {
  NotingWindow window(*machine);
  MenuItem menu(window, u"mnu", u"&Fájl");
  MenuItem sound(menu, u"mnu_c", u"&Hang");
  sound.Checked = true;
  show(window);
  // Nothing handles the entry, so nothing unticks it.
  entry(view(window), "&Hang")->trigger();
  machine->sync_all();
  EXPECT_TRUE(entry(view(window), "&Hang")->isChecked());
}

TEST_F(Looks, LyingAndStandingAndSlantingLinesAreSeen) {
  NotingWindow window(*machine);
  window.BackColor = white;
  Line lying(window, u"line_a", {300, 300, 1500, 0});
  Line standing(window, u"line_b", {300, 900, 0, 1500});
  Line rising(window, u"line_c", {3000, 900, 1500, 1500});
  rising.Rising = true;
  for (Line* line : {&lying, &standing, &rising}) {
    line->ForeColor = black;
    line->BorderWidth = 45;
  }
  Label corner(window, u"lbl", {0, 0, 15, 15});
  show(window);
  const QImage image = picture_of(window);
  const auto dark = [&](Point place_in_window) { return qGray(image.pixel(place(corner, place_in_window))) < 100; };
  EXPECT_TRUE(dark({900, 300}));
  EXPECT_TRUE(dark({300, 1500}));
  EXPECT_TRUE(dark({3750, 1650}));
  EXPECT_TRUE(dark({3300, 2100}));
  EXPECT_FALSE(dark({3300, 1200}));
}

TEST_F(Looks, TheHourglassIsTheWholeWindows) {
  NotingWindow window(*machine);
  Label label(window, u"lbl", {300, 300, 900, 900}, u"A");
  show(window);
  window.Pointer = MousePointer::Hourglass;
  machine->sync_all();
  EXPECT_EQ(widget(label).cursor().shape(), Qt::WaitCursor);
  window.Pointer = MousePointer::Arrow;
  machine->sync_all();
  EXPECT_EQ(widget(label).cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Looks, AFixedWindowCannotBeResizedAndASizableOneCan) {
  NotingWindow fixed(*machine);
  NotingWindow sizable(*machine);
  sizable.Border = WindowBorder::Sizable;
  show(fixed);
  show(sizable);
  EXPECT_EQ(view(fixed).minimumSize(), view(fixed).maximumSize());
  EXPECT_NE(view(sizable).minimumSize(), view(sizable).maximumSize());
}

TEST_F(Looks, ALongWordOnAButtonIsPaintedInsideIt) {
  NotingWindow window(*machine);
  Button button(window, u"cmd", {900, 900, 3000, 900}, u"Képmemória");
  button.Font.size = 16;
  show(window);
  const QImage image = picture_of(window);
  // The ground left and right of the button is untouched.
  const QColor ground = image.pixelColor(place(button, {-150, 450}));
  EXPECT_EQ(image.pixelColor(place(button, {3150, 450})), ground);
  EXPECT_NE(image.pixelColor(place(button, {1500, 30})), QColor());
}

} // namespace
} // namespace cserko::test
