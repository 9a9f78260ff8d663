#include "tests/tour/tour_hand.h"

#include "platform/input.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

namespace cserko::tour {

void TourHand::click(Element& element, MouseButton button) {
  if (element.kind() == ElementKind::Button && button == MouseButton::Left) {
    input::click(element);
  } else {
    draw(element, {{element.Width / 2, element.Height / 2}}, button);
  }
}

void TourHand::drag(Element& element, double dx, double dy) {
  const Point middle{element.Width / 2, element.Height / 2};
  draw(element, {middle, {middle.x + dx, middle.y + dy}});
}

void TourHand::draw(Element& element, const std::vector<Point>& path, MouseButton button) {
  const Point corner = element.position_in_window();
  const auto seen = [&](const Point& point) {
    const Point own = element.position_in_window();
    return MouseEvent{button, shift::none, corner.x + point.x - own.x, corner.y + point.y - own.y};
  };
  input::mouse_down(element, seen(path.front()));
  // The press may have taken the window away.
  for (std::size_t i = 1; i < path.size() && window_.visible(); ++i) input::mouse_move(element, seen(path[i]));
  if (window_.visible()) input::mouse_up(element, seen(path.back()));
}

void TourHand::key(int code, int shift) {
  input::key_down(window_, {code, shift, 0});
  if (window_.visible()) input::key_up(window_, {code, shift, 0});
}

void press_key(int qt_key) {
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, qt_key, Qt::NoModifier);
    if (QWidget* focused = QApplication::focusWidget()) QCoreApplication::sendEvent(focused, &event);
  }
}

void touch_mouse() {
  QWidget nowhere;
  QMouseEvent event(QEvent::MouseButtonPress, QPointF(0, 0), QPointF(0, 0), Qt::LeftButton, Qt::LeftButton,
                    Qt::NoModifier);
  QCoreApplication::sendEvent(&nowhere, &event);
}

} // namespace cserko::tour
