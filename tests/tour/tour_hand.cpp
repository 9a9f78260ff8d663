#include "tests/tour/tour_hand.h"

#include "platform/input.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

namespace cserko::tour {

void TourHand::click(Element& element) {
  if (element.kind() == ElementKind::Button) {
    input::click(element);
  } else {
    drag(element, 0, 0);
  }
}

void TourHand::drag(Element& element, double dx, double dy) {
  const auto at = [&](double part) {
    return MouseEvent{MouseButton::Left, shift::none, element.Width / 2 + part * dx, element.Height / 2 + part * dy};
  };
  input::mouse_down(element, at(0));
  if (dx != 0 || dy != 0) input::mouse_move(element, at(1));
  // The press may have taken the window away.
  if (window_.visible()) input::mouse_up(element, at(1));
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
