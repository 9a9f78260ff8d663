#include "platform/qt/window_view.h"

#include "platform/input.h"
#include "platform/qt/keys.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_picture.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/theme.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace cserko {

namespace {

constexpr int settle_ms = 250; // what a window manager takes at most to do as it is told

} // namespace

/// What is inside the frame: the background, the window's own drawing, and the elements.
class ClientArea : public QWidget {
 public:
  ClientArea(QWidget* parent, Window& window, ViewContext& context)
      : QWidget(parent), window_(window), context_(context) {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
  }

  bool sync() {
    const auto* canvas = static_cast<const QtCanvas*>(window_.drawn_canvas());
    const std::uint64_t revision = canvas != nullptr ? canvas->revision() : 0;
    if (back_ == window_.BackColor && picture_ == window_.Picture && revision_ == revision) return false;
    if (picture_ != window_.Picture) tile_ = {};
    back_ = window_.BackColor;
    picture_ = window_.Picture;
    revision_ = revision;
    update();
    return true;
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    painter.fillRect(event->rect(), to_qt(window_.BackColor));
    if (window_.Picture) painter.drawTiledPixmap(rect(), tile());
    if (const auto* canvas = static_cast<const QtCanvas*>(window_.drawn_canvas()))
      painter.drawImage(0, 0, canvas->image());
  }

  void mousePressEvent(QMouseEvent* event) override {
    take_every_move(true);
    send(event, to_mouse_button(event->button()), [](Window& to, const MouseEvent& e) { input::mouse_down(to, e); });
  }
  void mouseMoveEvent(QMouseEvent* event) override {
    send(event, held_button(event->buttons()), [](Window& to, const MouseEvent& e) { input::mouse_move(to, e); });
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    take_every_move(event->buttons() != Qt::NoButton);
    send(event, to_mouse_button(event->button()), [](Window& to, const MouseEvent& e) { input::mouse_up(to, e); });
  }

 private:
  template<class F> void send(QMouseEvent* event, MouseButton button, F handler) {
    const MouseEvent mouse{button, to_shift_mask(event->modifiers()), context_.to_twips(event->position().x()),
                           context_.to_twips(event->position().y())};
    context_.act([&to = window_, mouse, handler] { handler(to, mouse); });
  }

  const QPixmap& tile() {
    if (tile_.isNull()) {
      const auto& picture = static_cast<const QtPicture&>(*window_.Picture);
      const Size size = picture.natural_size();
      const double scale = context_.fonts.scale() * devicePixelRatioF();
      tile_ = QPixmap::fromImage(picture.image((QSizeF(size.width, size.height) * scale).toSize()));
      tile_.setDevicePixelRatio(devicePixelRatioF());
    }
    return tile_;
  }

  Window& window_;
  ViewContext& context_;
  Color back_;
  PicturePtr picture_;
  std::uint64_t revision_ = 0;
  QPixmap tile_;
};

WindowView::WindowView(Window& window, ViewContext& context)
    : window_(window), context_(context), client_(new ClientArea(this, window, context)) {
  Qt::WindowFlags flags = Qt::Window;
  if (window.Border == WindowBorder::None) flags |= Qt::FramelessWindowHint;
  if (window.Border == WindowBorder::Fixed)
    flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;
  setWindowFlags(flags);
  const bool has_menu = std::any_of(window.elements().begin(), window.elements().end(),
                                    [](const Element* e) { return e->kind() == ElementKind::MenuItem; });
  if (has_menu) {
    menu_bar_ = new QMenuBar(this);
    menu_bar_->setNativeMenuBar(false);
    QFont font = context.fonts.font({u"Times New Roman", 11, false});
    menu_bar_->setFont(font);
  }
  settling_.setSingleShot(true);
  settling_.setInterval(settle_ms);
  connect(&settling_, &QTimer::timeout, this, [this] { settle(); });
}

WindowView::~WindowView() {
  // Views inside other views' widgets go first or with them; either is safe.
  views_.clear();
}

int WindowView::menu_height(const Fonts& fonts) {
  return static_cast<int>(std::lround(theme::menu_bar_height * twips_per_pixel * fonts.scale()));
}

QSize WindowView::system_frame() { return {8, 32}; }

void WindowView::closeEvent(QCloseEvent* event) {
  // The suite decides whether the window goes.
  event->ignore();
  context_.act([&window = window_] { input::close(window); });
}

void WindowView::showEvent(QShowEvent*) {
  offset_known_ = false;
  settling_.start();
}

void WindowView::moveEvent(QMoveEvent*) { take_users_place(); }

void WindowView::resizeEvent(QResizeEvent*) {
  lay_out();
  take_users_place();
}

QPoint WindowView::corner_on_screen() const {
  return pos() - QGuiApplication::primaryScreen()->availableGeometry().topLeft();
}

// A window manager answers late, and puts its frame around the window or the window somewhere else: none of that is the
// user's doing, and a window that took it over would creep over the screen from one start to the next.
void WindowView::settle() {
  if (!isVisible()) return;
  if (!std::exchange(offset_known_, true)) frame_offset_ = corner_on_screen() - shown_place_.topLeft();
  take_users_place();
}

void WindowView::take_users_place() {
  if (!settled() || !offset_known_ || isMinimized() || window_.Border == WindowBorder::None) return;
  const bool sizable = window_.Border == WindowBorder::Sizable;
  const QRect place(corner_on_screen() - frame_offset_, sizable ? size() : shown_place_.size());
  if (place == shown_place_) return;
  // The difference counts, so that what is not whole pixels stays as it is.
  const Rect wanted{window_.Left + context_.to_twips(place.left() - shown_place_.left()),
                    window_.Top + context_.to_twips(place.top() - shown_place_.top()),
                    window_.Width + context_.to_twips(place.width() - shown_place_.width()),
                    window_.Height + context_.to_twips(place.height() - shown_place_.height())};
  context_.act([this, place, wanted] {
    shown_place_ = place;
    input::place(window_, wanted);
  });
}

void WindowView::lay_out() {
  const int menu = menu_bar_ != nullptr ? menu_height(context_.fonts) : 0;
  if (menu_bar_ != nullptr) menu_bar_->setGeometry(0, 0, width(), menu);
  client_->setGeometry(0, menu, width(), height() - menu);
}

bool WindowView::sync() {
  const bool window_changed = sync_window();
  const bool menu_changed = sync_menu();
  const bool views_changed = sync_views();
  const bool client_changed = client_->sync();
  apply_focus();
  return window_changed || menu_changed || views_changed || client_changed;
}

bool WindowView::sync_window() {
  const Rect inner{window_.Left, window_.Top, window_.inner_width(), window_.inner_height()};
  QRect place = context_.to_pixels(inner);
  const int menu = menu_bar_ != nullptr ? menu_height(context_.fonts) : 0;
  place.setHeight(place.height() + menu);
  const bool same = place == shown_place_ && shown_caption_ == window_.Caption && shown_pointer_ == window_.Pointer;
  if (same) return false;
  if (place != shown_place_) {
    shown_place_ = place;
    settling_.start();
    move(place.topLeft() + QGuiApplication::primaryScreen()->availableGeometry().topLeft());
    if (window_.Border == WindowBorder::Fixed) {
      setFixedSize(place.size());
    } else {
      resize(place.size());
    }
    lay_out();
  }
  shown_caption_ = window_.Caption;
  setWindowTitle(to_qt(window_.Caption));
  if (shown_pointer_ != window_.Pointer) {
    shown_pointer_ = window_.Pointer;
    if (window_.Pointer == MousePointer::Hourglass) {
      setCursor(Qt::WaitCursor);
    } else {
      unsetCursor();
    }
  }
  return true;
}

QWidget* WindowView::parent_widget(const Element& element) const {
  if (element.container() == nullptr) return client_;
  const auto found = views_.find(element.container()->serial());
  return found == views_.end() ? client_ : &found->second->inner_widget();
}

void WindowView::add_views() {
  for (Element* element : window_.elements()) {
    if (element->kind() == ElementKind::MenuItem) {
      if (menu_.count(element->serial()) == 0) add_menu_entry(static_cast<MenuItem&>(*element));
    } else if (views_.count(element->serial()) == 0) {
      if (auto view = make_view(*element, context_, parent_widget(*element)))
        views_.emplace(element->serial(), std::move(view));
    }
  }
}

void WindowView::drop_dead_views() {
  std::vector<std::uint64_t> alive;
  for (const Element* element : window_.elements()) alive.push_back(element->serial());
  std::sort(alive.begin(), alive.end());
  std::erase_if(views_,
                [&](const auto& entry) { return !std::binary_search(alive.begin(), alive.end(), entry.first); });
}

bool WindowView::sync_views() {
  const auto& elements = window_.elements();
  const bool same_elements =
      std::equal(elements.begin(), elements.end(), shown_elements_.begin(), shown_elements_.end(),
                 [](const Element* element, std::uint64_t serial) { return element->serial() == serial; });
  if (!same_elements) {
    drop_dead_views();
    add_views();
    shown_elements_.clear();
    for (const Element* element : elements) shown_elements_.push_back(element->serial());
  }
  bool changed = !same_elements;
  for (const Element* element : elements) {
    const auto view = views_.find(element->serial());
    if (view != views_.end() && view->second->sync()) changed = true;
  }
  return sync_stacking() || changed;
}

// A widget comes up before all others: from the lowest element that has come to the front since, each in its turn.
bool WindowView::sync_stacking() {
  std::uint64_t lowest = std::numeric_limits<std::uint64_t>::max();
  for (const auto& [serial, view] : views_) {
    if (view->shown_layer() != view->element().layer()) lowest = std::min(lowest, view->element().layer());
  }
  std::vector<View*> above;
  for (const auto& [serial, view] : views_) {
    if (view->element().layer() >= lowest) above.push_back(view.get());
  }
  std::sort(above.begin(), above.end(),
            [](const View* a, const View* b) { return a->element().layer() < b->element().layer(); });
  for (View* view : above) view->raise();
  return !above.empty();
}

void WindowView::add_menu_entry(MenuItem& item) {
  const auto holds_others = [&item](const Element* e) { return e->container() == &item; };
  const bool is_menu = std::any_of(window_.elements().begin(), window_.elements().end(), holds_others);
  const auto parent = item.container() != nullptr ? menu_.find(item.container()->serial()) : menu_.end();
  QMenu* outer = parent != menu_.end() ? parent->second.menu : nullptr;
  Entry entry;
  if (is_menu) {
    entry.menu = outer != nullptr ? outer->addMenu(QString()) : menu_bar_->addMenu(QString());
    entry.menu->setFont(menu_bar_->font());
    entry.action = entry.menu->menuAction();
  } else {
    entry.action = new QAction(this);
    if (outer != nullptr) {
      outer->addAction(entry.action);
    } else {
      menu_bar_->addAction(entry.action);
    }
    connect(entry.action, &QAction::triggered, this, [this, &item] { context_.act([&item] { input::click(item); }); });
  }
  entry.action->setSeparator(item.Caption == u"-");
  menu_.emplace(item.serial(), std::move(entry));
}

bool WindowView::sync_menu() {
  if (menu_bar_ == nullptr) return false;
  if (menu_.empty()) add_views();
  bool changed = false;
  for (const Element* element : window_.elements()) {
    if (element->kind() != ElementKind::MenuItem) continue;
    const auto& item = static_cast<const MenuItem&>(*element);
    const auto found = menu_.find(item.serial());
    if (found == menu_.end()) continue;
    Entry& entry = found->second;
    QAction& action = *entry.action;
    const bool same = entry.caption == item.Caption && action.isEnabled() == item.Enabled &&
                      action.isVisible() == item.Visible && action.isChecked() == item.Checked;
    if (same) continue;
    changed = true;
    entry.caption = item.Caption;
    // The key stands beside the entry as text alone: keys are handled in one place for all controls.
    QString text = to_qt(item.Caption);
    if (const Text shortcut = shortcut_text(item); !shortcut.empty()) text += '\t' + to_qt(shortcut);
    if (!action.isSeparator()) action.setText(text);
    action.setEnabled(item.Enabled);
    action.setVisible(item.Visible);
    action.setCheckable(item.Checked || action.isCheckable());
    action.setChecked(item.Checked);
  }
  return changed;
}

void WindowView::apply_focus() {
  // The menu bar gives the keyboard back by itself.
  if (!isVisible() || (menu_bar_ != nullptr && menu_bar_->hasFocus())) return;
  const Element* focus = window_.focus();
  const auto found = focus != nullptr ? views_.find(focus->serial()) : views_.end();
  QWidget& target = found != views_.end() ? found->second->focus_widget() : static_cast<QWidget&>(*client_);
  // Looked at anew each time: Qt moves its focus on where a widget is hidden or disabled, the suite does not.
  if (focusWidget() != &target) target.setFocus(Qt::OtherFocusReason);
}

QWidget* WindowView::widget_of(const Element& element) const {
  const auto found = views_.find(element.serial());
  return found == views_.end() ? nullptr : &found->second->widget();
}

Element* WindowView::element_of(const QWidget* widget) const {
  for (; widget != nullptr && widget != this; widget = widget->parentWidget()) {
    for (const auto& [serial, view] : views_) {
      if (&view->widget() == widget) return &view->element();
    }
  }
  return nullptr;
}

} // namespace cserko
