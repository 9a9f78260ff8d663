#include "tests/x11/watched_platform.h"

#include "platform/qt/qt_text.h"

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QWindow>
#include <cmath>
#include <optional>
#include <stdexcept>

namespace cserko {

bool WatchedPlatform::settled(const Window& window) const {
  const WindowView* view = view_of(window);
  return view != nullptr && active_window() == &window && view->isActiveWindow() && view->windowHandle()->isExposed();
}

QPoint WatchedPlatform::client_corner(const Window& window) const {
  const WindowView* view = view_of(window);
  if (view == nullptr) throw std::logic_error("the window is not on the screen");
  for (const Element* element : window.elements()) {
    const QWidget* widget = element->container() == nullptr ? view->widget_of(*element) : nullptr;
    if (widget != nullptr) return widget->parentWidget()->mapToGlobal(QPoint(0, 0));
  }
  return view->mapToGlobal(QPoint(0, 0));
}

namespace {

template<class Bar> std::optional<Spot> spot_of_entry(Bar& bar, QWidget& window, const QString& caption) {
  for (QAction* action : bar.actions()) {
    // Behind the caption stands the key.
    if (action->text().section('\t', 0, 0) != caption || !action->isEnabled()) continue;
    return Spot{&window, bar.mapTo(&window, bar.actionGeometry(action).center())};
  }
  return std::nullopt;
}

// Menu entries have no widgets: the bar, or the menu that is open, has places for them.
Spot spot_of_menu(const Element& item, WindowView& view) {
  const QString caption = to_qt(item.Caption);
  std::optional<Spot> spot;
  if (item.container() == nullptr) {
    if (auto* bar = view.findChild<QMenuBar*>()) spot = spot_of_entry(*bar, view, caption);
  } else if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
    spot = spot_of_entry(*menu, *menu, caption);
  }
  if (!spot) throw std::logic_error("the menu entry is not on the screen: " + to_utf8(item.Name));
  return *spot;
}

} // namespace

Spot WatchedPlatform::spot_of(const Element& element, Point point) const {
  WindowView* view = view_of(element.window());
  if (view != nullptr && element.kind() == ElementKind::MenuItem) return spot_of_menu(element, *view);
  const QWidget* widget = view != nullptr ? view->widget_of(element) : nullptr;
  if (widget == nullptr) throw std::logic_error("the element is not on the screen: " + to_utf8(element.Name));
  const double scale = fonts().scale();
  const QPoint pixel(static_cast<int>(std::lround(point.x * scale)), static_cast<int>(std::lround(point.y * scale)));
  return {view, widget->mapTo(view, pixel)};
}

double WatchedPlatform::random() {
  if (chance.empty()) return QtPlatform::random();
  const double next = chance.front();
  chance.pop_front();
  return next;
}

PicturePtr WatchedPlatform::load_picture(const Text& path) {
  return missing_pictures.count(path) != 0 ? nullptr : QtPlatform::load_picture(path);
}

void WatchedPlatform::attach(Window& window) {
  QtPlatform::attach(window);
  if (attached) attached(window);
}

void WatchedPlatform::redraw(Window& window) {
  QtPlatform::redraw(window);
  if (redrawn) redrawn(window);
}

void WatchedPlatform::next_frame(Window& window) {
  QtPlatform::next_frame(window);
  if (redrawn) redrawn(window);
}

} // namespace cserko
