// A tablet's pen and a finger draw as the mouse does.
#include "tests/qt/fixture.h"

#include <QPointingDevice>
#include <QTabletEvent>

namespace cserko::test {
namespace {

class Pen : public QtMachine {
 protected:
  using Log = std::vector<std::string>;
  struct Heard {
    std::string what;
    MouseButton button;
    Point place;
  };

  Pen() {
    const auto note = [this](const char* what) {
      return [this, what](const MouseEvent& event) { heard.push_back({what, event.button, {event.x, event.y}}); };
    };
    box.MouseDown = note("down");
    box.MouseMove = note("move");
    box.MouseUp = note("up");
  }

  Log all() const {
    Log lines;
    for (const Heard& one : heard) lines.push_back(one.what + " " + std::to_string(static_cast<int>(one.button)));
    return lines;
  }

  void expect_heard(std::size_t index, const std::string& what, MouseButton button, Point place) const {
    ASSERT_LT(index, heard.size());
    EXPECT_EQ(heard[index].what, what);
    EXPECT_EQ(heard[index].button, button);
    EXPECT_NEAR(heard[index].place.x, place.x, 1);
    EXPECT_NEAR(heard[index].place.y, place.y, 1);
  }

#if QT_CONFIG(tabletevent)
  void tablet(QEvent::Type type, QPointF place, Qt::MouseButton button, Qt::MouseButtons held) {
    QWidget& target = widget(box);
    QTabletEvent event(type, &device, place, target.mapToGlobal(place), 0.7, 0, 0, 0, 0, 0, Qt::NoModifier, button,
                       held);
    QCoreApplication::sendEvent(&target, &event);
    EXPECT_TRUE(event.isAccepted()) << "or a mouse event would be made of it once more";
  }
#endif

  NotingWindow window{*machine};
  PictureBox box{window, u"pic", {300, 300, 3000, 3000}};
  std::vector<Heard> heard;
  QPointingDevice device{
      "pen", 1, QInputDevice::DeviceType::Stylus, QPointingDevice::PointerType::Pen, QInputDevice::Capability::Position,
      1,     1};
};

#if QT_CONFIG(tabletevent)
TEST_F(Pen, ThePenOfATabletDraws) {
  show(window);
  tablet(QEvent::TabletPress, {10, 20}, Qt::LeftButton, Qt::LeftButton);
  tablet(QEvent::TabletMove, {12.5, 40}, Qt::NoButton, Qt::LeftButton);
  tablet(QEvent::TabletRelease, {30, 40}, Qt::LeftButton, Qt::NoButton);
  tablet(QEvent::TabletMove, {50, 50}, Qt::NoButton, Qt::NoButton);
  ASSERT_EQ(all(), (Log{"down 1", "move 1", "up 1", "move 0"}));
  expect_heard(0, "down", MouseButton::Left, {150, 300});
  expect_heard(1, "move", MouseButton::Left, {187.5, 600});
  expect_heard(2, "up", MouseButton::Left, {450, 600});
  expect_heard(3, "move", MouseButton::None, {750, 750});
}
#endif

TEST_F(Pen, AFingerDraws) {
  show(window);
  const std::unique_ptr<QPointingDevice> finger(QTest::createTouchDevice());
  QWindow* surface = view(window).windowHandle();
  const QPoint start = place(box, {300, 300});
  QTest::touchEvent(surface, finger.get()).press(0, start, surface);
  QTest::touchEvent(surface, finger.get()).move(0, start + QPoint(20, 0), surface);
  QTest::touchEvent(surface, finger.get()).release(0, start + QPoint(20, 0), surface);
  ASSERT_TRUE(wait_for([&] { return !heard.empty() && heard.back().what == "up"; }));
  if (heard.front().button == MouseButton::None) heard.erase(heard.begin()); // the mouse that comes to the finger
  expect_heard(0, "down", MouseButton::Left, {300, 300});
  expect_heard(heard.size() - 1, "up", MouseButton::Left, {600, 300});
}

} // namespace
} // namespace cserko::test
