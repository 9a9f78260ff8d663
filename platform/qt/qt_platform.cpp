#include "platform/qt/qt_platform.h"

#include "platform/bitmap.h"
#include "platform/input.h"
#include "platform/qt/accessible.h"
#include "platform/qt/keys.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_images.h"
#include "platform/qt/qt_picture.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/sdl_media.h"
#include "platform/qt/theme.h"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QIcon>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollBar>
#include <QThread>
#include <QWindow>
#include <algorithm>
#include <cstdio>

namespace cserko {

namespace {

constexpr int frame_ms = 16;

} // namespace

QtPlatform::QtPlatform()
    : files_(QtFiles::find_pack(), QtFiles::find_user_folder()),
      fonts_(theme::screen_zoom() / twips_per_pixel),
      context_{fonts_, [this](const std::function<void()>& deed) { act(deed); }} {
  theme::apply();
  clock_.start();
  frame_.start();
  media_ =
      std::make_unique<SdlMedia>([this](const std::u16string& path) { return files_.real_path(path).toStdString(); });
  QtPlatform::seed_random();
  QApplication::setQuitOnLastWindowClosed(false);
  qApp->installEventFilter(this);
}

QtPlatform::~QtPlatform() {
  qApp->removeEventFilter(this);
  timers_.clear();
  views_.clear();
}

void QtPlatform::set_window_icon(const Text& path) { QApplication::setWindowIcon(QIcon(files_.real_path(path))); }

// ---- Events ----

void QtPlatform::act(const std::function<void()>& deed) {
  if (ended_ || quiet_) return;
  deed();
  if (!ended_) {
    if (std::exchange(was_deaf_, false)) drop_queued_input();
    sync_all();
    make_up_for_ticks();
  }
  leave_finished_loops();
}

void QtPlatform::leave_finished_loops() {
  for (const RunningLoop& running : loops_) {
    if (ended_ || (*running.done)()) running.loop->quit();
  }
}

void QtPlatform::run_loop(const std::function<bool()>& done) {
  QEventLoop loop;
  loops_.push_back({&loop, &done});
  while (!done() && !ended_) loop.exec();
  loops_.pop_back();
}

void QtPlatform::drop_queued_input() {
  // What the user did while an animation ran must not take effect behind it.
  let_paint(QEventLoop::ExcludeSocketNotifiers);
  let_paint(QEventLoop::AllEvents);
}

void QtPlatform::let_paint(QEventLoop::ProcessEventsFlags events) {
  const bool before = std::exchange(quiet_, true);
  QCoreApplication::processEvents(events);
  quiet_ = before;
}

void QtPlatform::tick(Timer& timer) {
  if (timer.InTick) return;
  if (quiet_) {
    missed_ticks_.insert(timer.serial());
  } else {
    act([&timer] { input::tick(timer); });
  }
}

// A timer that ran out while nothing reached the suite ticks once when the deed is over, as timers do whose program was
// busy.
void QtPlatform::make_up_for_ticks() {
  for (const std::uint64_t serial : std::exchange(missed_ticks_, {})) {
    QMetaObject::invokeMethod(
        this,
        [this, serial] {
          if (const auto entry = timers_.find(serial); entry != timers_.end()) tick(*entry->second.model);
        },
        Qt::QueuedConnection);
  }
}

void QtPlatform::sync_all() {
  for (Window* window : std::vector<Window*>(stack_)) {
    if (WindowView* view = view_of(*window)) view->sync();
  }
  sync_timers();
}

void QtPlatform::DeleteLater::operator()(QTimer* timer) const {
  timer->stop();
  timer->deleteLater();
}

void QtPlatform::sync_timers() {
  std::unordered_map<std::uint64_t, Timer*> running;
  for (const Window* window : attached_) {
    for (Element* element : window->elements()) {
      if (element->kind() != ElementKind::Timer) continue;
      if (auto* timer = static_cast<Timer*>(element); timer->running()) running[element->serial()] = timer;
    }
  }
  std::erase_if(timers_, [&](const auto& entry) { return running.count(entry.first) == 0; });
  for (const auto& [serial, timer] : running) {
    RunningTimer& entry = timers_[serial];
    if (entry.timer && entry.period == timer->period() && entry.restarts == timer->restarts()) continue;
    if (!entry.timer) {
      entry.timer.reset(new QTimer);
      entry.timer->setTimerType(Qt::PreciseTimer);
      entry.model = timer;
      connect(entry.timer.get(), &QTimer::timeout, this, [this, timer = timer] { tick(*timer); });
    }
    entry.period = timer->period();
    entry.restarts = timer->restarts();
    entry.timer->start(entry.period);
  }
}

void QtPlatform::note_keyboard(bool used) {
  if (context_.keyboard_used == used) return;
  context_.keyboard_used = used;
  for (const auto& [window, view] : views_) view->update();
  if (QWidget* focused = QApplication::focusWidget()) focused->update();
}

bool QtPlatform::eventFilter(QObject* object, QEvent* event) {
  switch (event->type()) {
  case QEvent::MouseButtonPress:
    if (quiet_ && live_view(object) != nullptr) return true;
    note_keyboard(false);
    return false;
  case QEvent::MouseButtonRelease:
  case QEvent::MouseMove:
  case QEvent::TabletPress:
  case QEvent::TabletMove:
  case QEvent::TabletRelease:
    return quiet_ && live_view(object) != nullptr;
  case QEvent::KeyPress: {
    WindowView* view = view_that_hears(object);
    return view != nullptr && (quiet_ || key_press(*view, static_cast<QKeyEvent&>(*event)));
  }
  case QEvent::KeyRelease:
    if (WindowView* view = view_that_hears(object); view != nullptr && !quiet_)
      key_release(*view, static_cast<QKeyEvent&>(*event));
    return false;
  case QEvent::FocusIn: {
    const WindowView* view = live_view(object);
    if (view == nullptr || quiet_ || static_cast<QFocusEvent*>(event)->reason() != Qt::MouseFocusReason) return false;
    Element* element = view->element_of(static_cast<QWidget*>(object));
    if (element != nullptr && element->focusable()) act([element] { input::focus(*element); });
    return false;
  }
  case QEvent::WindowActivate:
    if (WindowView* view = live_view(object); view == object && view != nullptr && may_come_to_front(*view) && !quiet_)
      act([this, &window = view->model()] { activate(window); });
    return false;
  default:
    return false;
  }
}

// Not so what the window system tells late of a window over which a modal one has come meanwhile.
bool QtPlatform::may_come_to_front(const WindowView& view) {
  const QWidget* modal = QApplication::activeModalWidget();
  return view.model().visible() && (modal == nullptr || modal == &view);
}

// The view that an object belongs to; null where it belongs to none, or to one that only waits for its deletion: the
// window system may still have something for it, the suite's window is gone.
WindowView* QtPlatform::live_view(const QObject* object) const {
  const auto* widget = qobject_cast<const QWidget*>(object);
  if (widget == nullptr) return nullptr;
  const auto shown = std::find_if(views_.begin(), views_.end(),
                                  [widget](const auto& entry) { return entry.second.get() == widget->window(); });
  return shown == views_.end() ? nullptr : shown->second.get();
}

// The window view that a key event is for; null when this is not the first widget that Qt offers the event to, for each
// key counts once, or when the menu bar has the keyboard.
WindowView* QtPlatform::view_that_hears(const QObject* object) const {
  WindowView* view = live_view(object);
  if (view == nullptr) return nullptr;
  const QObject* first = view->focusWidget() != nullptr ? view->focusWidget() : view;
  return object == first && qobject_cast<const QMenuBar*>(object) == nullptr ? view : nullptr;
}

void QtPlatform::key_release(WindowView& view, const QKeyEvent& event) {
  if (event.key() == Qt::Key_Alt && context_.alt_held) {
    context_.alt_held = false;
    for (QWidget* widget : QApplication::allWidgets()) widget->update();
  }
  if (!event.isAutoRepeat())
    act([&window = view.model(), released = to_key_event(event)] { input::key_up(window, released); });
}

// Whether the focused widget works with the key itself.
bool QtPlatform::native_key(const WindowView& view, const QKeyEvent& event) const {
  const QWidget* focused = view.focusWidget();
  if (event.key() == Qt::Key_Alt || event.key() == Qt::Key_Meta) return true;
  return qobject_cast<const QLineEdit*>(focused) != nullptr ||
         qobject_cast<const QPlainTextEdit*>(focused) != nullptr ||
         qobject_cast<const QListWidget*>(focused) != nullptr || qobject_cast<const QScrollBar*>(focused) != nullptr;
}

bool QtPlatform::key_press(WindowView& view, QKeyEvent& event) {
  if (event.key() == Qt::Key_Alt && !context_.alt_held) {
    context_.alt_held = true;
    for (QWidget* widget : view.findChildren<QWidget*>()) widget->update();
  }
  Window& window = view.model();
  if (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab) {
    note_keyboard(true);
    act([&] {
      if (Element* next = input::next_focus(window, event.key() == Qt::Key_Backtab)) input::focus(*next);
    });
    return true;
  }
  const bool arrow = event.key() >= Qt::Key_Left && event.key() <= Qt::Key_Down;
  if (arrow || event.key() == Qt::Key_Space) note_keyboard(true);
  const bool native = native_key(view, event);
  const KeyEvent pressed = to_key_event(event);
  bool follows = true;
  // Keys without a code, such as the AltGr key, are nobody's.
  if (pressed.code != 0 || pressed.character != 0) act([&] { follows = input::key_down(window, pressed); });
  return !(follows && native);
}

// ---- Windows ----

WindowView* QtPlatform::view_of(const Window& window) const {
  const auto found = views_.find(&window);
  return found == views_.end() ? nullptr : found->second.get();
}

Window* QtPlatform::active_window() const { return stack_.empty() ? nullptr : stack_.back(); }

void QtPlatform::attach(Window& window) {
  attached_.push_back(&window);
  sync_timers();
}

void QtPlatform::detach(Window& window) {
  if (const auto found = views_.find(&window); found != views_.end()) {
    // Nothing that its widgets still have to say reaches a window that goes.
    const bool before = std::exchange(quiet_, true);
    found->second->hide();
    found->second->setEnabled(false);
    quiet_ = before;
    // The view may be in the middle of an event of its own.
    found->second.release()->deleteLater();
    views_.erase(found);
  }
  hide(window);
  attached_.erase(std::remove(attached_.begin(), attached_.end(), &window), attached_.end());
  sync_timers();
}

void QtPlatform::first_focus(Window& window) {
  if (window.focus() == nullptr) window.set_focus(input::next_focus(window, false));
}

// The window system may tell of a window what `show_modal` has told already, or of one that was in front all the time
// while the user was in another program.
void QtPlatform::activate(Window& window) {
  if (active_ == &window) return;
  active_ = &window;
  input::activate(window);
}

// A window that is shown is in front, also where the window system says so late or, for want of a window manager,
// never.
void QtPlatform::tell_activated(Window& window) {
  act([this, &window] {
    if (window.visible()) activate(window);
  });
}

void QtPlatform::open_view(Window& window, bool modal) {
  Window* before = active_window();
  auto& view = views_[&window];
  if (!view) view = std::make_unique<WindowView>(window, context_);
  window.set_visible(true);
  active_ = nullptr;
  stack_.erase(std::remove(stack_.begin(), stack_.end(), &window), stack_.end());
  stack_.push_back(&window);
  first_focus(window);
  view->sync();
  accessible::set_window_role(*view, modal && window.Border != WindowBorder::None);
  view->setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);
  if (before != nullptr && before != &window && view_of(*before) != nullptr) {
    view->winId();
    view->windowHandle()->setTransientParent(view_of(*before)->windowHandle());
  }
  // Told so, a window manager lets it lie over its panels.
  const QRect screen = QGuiApplication::primaryScreen()->geometry();
  const bool covers_screen = view->geometry().adjusted(-1, -1, 1, 1).contains(screen);
  if (window.Border == WindowBorder::None && covers_screen) view->setWindowState(Qt::WindowFullScreen);
  view->show();
  view->raise();
  view->activateWindow();
  view->apply_focus();
}

void QtPlatform::show_modal(Window& window) {
  if (ended_) return;
  open_view(window, true);
  sync_all();
  tell_activated(window);
  run_loop([&window] { return !window.visible(); });
  if (ended_) return;
  // The window system tells later; what the caller does behind the show must come after it.
  if (Window* front = active_window()) activate(*front);
  sync_all();
}

void QtPlatform::show(Window& window) {
  if (ended_) return;
  open_view(window, false);
  tell_activated(window);
}

void QtPlatform::hide(Window& window) {
  window.set_visible(false);
  if (active_ == &window) active_ = nullptr;
  if (redrawn_ == &window) redrawn_ = nullptr;
  if (WindowView* view = view_of(window)) view->hide();
  leave_finished_loops();
  if (std::erase(stack_, &window) == 0) return;
  if (Window* front = active_window(); front != nullptr && view_of(*front) != nullptr) {
    view_of(*front)->activateWindow();
  }
}

void QtPlatform::bring_to_front(Window& window) {
  if (WindowView* view = view_of(window)) view->raise();
}

void QtPlatform::stand_before(Window& owner, const std::function<void()>& dialog) {
  sync_all();
  ++dialogs_standing_;
  dialog();
  --dialogs_standing_;
  if (ended_ || active_window() != &owner) return;
  active_ = nullptr;
  activate(owner);
}

void QtPlatform::paint_now(WindowView& view) {
  if (!view.windowHandle()->isExposed()) let_paint(QEventLoop::ExcludeUserInputEvents);
  QCoreApplication::sendPostedEvents(&view, QEvent::UpdateRequest);
}

bool QtPlatform::show_changes(Window& window) {
  WindowView* view = view_of(window);
  if (view == nullptr || !window.visible() || !view->sync()) return false;
  paint_now(*view);
  return true;
}

void QtPlatform::redraw(Window& window) {
  // A display shows no more than its frames. What comes within one is shown with the next, or when events run again.
  was_deaf_ = was_deaf_ || !window.Enabled;
  if (redrawn_ == &window && since_redraw_.elapsed() < frame_ms) return;
  if (!show_changes(window)) return;
  redrawn_ = &window;
  since_redraw_.start();
}

void QtPlatform::next_frame(Window& window) {
  was_deaf_ = was_deaf_ || !window.Enabled;
  show_changes(window);
  // A wait may last for seconds: what other windows uncover is painted, and the desktop sees that the program lives.
  let_paint(QEventLoop::ExcludeUserInputEvents);
  const qint64 passed = frame_.elapsed();
  if (passed < frame_ms) QThread::msleep(static_cast<unsigned long>(frame_ms - passed));
  frame_.restart();
}

void QtPlatform::live_frame(Window& window, const std::function<bool()>& until) {
  show_changes(window);
  // Also where a slow computer has no time left for the frame: what the user does is heard in each of them.
  QCoreApplication::processEvents();
  bool over = false;
  QTimer end;
  end.setTimerType(Qt::PreciseTimer);
  end.setSingleShot(true);
  connect(&end, &QTimer::timeout, this, [this, &over] {
    over = true;
    leave_finished_loops();
  });
  end.start(static_cast<int>(std::max<qint64>(0, frame_ms - frame_.elapsed())));
  run_loop([&] { return over || until(); });
  frame_.restart();
}

void QtPlatform::pump_events(const std::function<bool()>& until) {
  sync_all();
  run_loop(until);
}

Size QtPlatform::screen_size() const {
  const QSize size = QGuiApplication::primaryScreen()->availableGeometry().size();
  return {context_.to_twips(size.width()), context_.to_twips(size.height())};
}

Rect QtPlatform::whole_screen() const {
  const QScreen& screen = *QGuiApplication::primaryScreen();
  const QRect whole = screen.geometry().translated(-screen.availableGeometry().topLeft());
  return {context_.to_twips(whole.x()), context_.to_twips(whole.y()), context_.to_twips(whole.width()),
          context_.to_twips(whole.height())};
}

Size QtPlatform::chrome(const Window& window) const {
  Size result;
  if (window.Border != WindowBorder::None) {
    const QSize frame = WindowView::system_frame();
    result = {context_.to_twips(frame.width()), context_.to_twips(frame.height())};
  }
  const bool has_menu = std::any_of(window.elements().begin(), window.elements().end(),
                                    [](const Element* e) { return e->kind() == ElementKind::MenuItem; });
  if (has_menu) result.height += context_.to_twips(WindowView::menu_height(fonts_));
  return result;
}

// ---- Pictures, sound, chance ----

PicturePtr QtPlatform::load_picture(const Text& path) {
  // Folder by folder: a picture of the user's own comes before the pack's of the same name, whatever it ends in.
  const QStringList places = files_.real_paths(path);
  const auto there =
      std::find_if(places.begin(), places.end(), [](const QString& place) { return !picture_file(place).isEmpty(); });
  if (there == places.end()) return nullptr;
  const QString file = *there;
  const auto loaded = pictures_.picture(file);
  if (!loaded) return nullptr;
  const QSize size = loaded->natural_size();
  return std::make_shared<QtPicture>(path, file, pictures_,
                                     Size{size.width() * twips_per_pixel, size.height() * twips_per_pixel});
}

std::optional<PixelImage> QtPlatform::decode_picture(std::string_view bytes) const {
  if (bytes.starts_with("BM")) return read_bitmap(bytes);
  const auto picture = read_picture(QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())));
  return picture ? from_qt(picture->image(picture->natural_size())) : std::nullopt;
}

std::optional<PixelImage> QtPlatform::clipboard_image() const { return from_qt(QGuiApplication::clipboard()->image()); }

std::unique_ptr<Canvas> QtPlatform::make_canvas(Size size) {
  return std::make_unique<QtCanvas>(size, fonts_, QGuiApplication::primaryScreen()->devicePixelRatio());
}

Media& QtPlatform::media() { return *media_; }

TimeOfDay QtPlatform::time_of_day() const {
  const QTime time = QTime::currentTime();
  return {time.hour(), time.minute()};
}

double QtPlatform::display_frame() const {
  // What a display says of itself may be nonsense, as that of a virtual one.
  constexpr double slowest = 50;
  constexpr double quickest = 500;
  constexpr double usual = 60;
  const QScreen* screen = QGuiApplication::primaryScreen();
  const double rate = screen != nullptr ? screen->refreshRate() : 0;
  return 1000.0 / (rate >= slowest && rate <= quickest ? rate : usual);
}

void QtPlatform::seed_random() {
  bool fixed = false;
  const qulonglong seed = qEnvironmentVariable("CSERKO_SEED").toULongLong(&fixed);
  if (!fixed) {
    random_.seed(static_cast<std::uint64_t>(QDateTime::currentMSecsSinceEpoch()) ^ random_());
  } else if (random_ == std::mt19937_64()) {
    random_.seed(seed);
  }
}

double QtPlatform::random() { return static_cast<double>(random_() >> 11) * 0x1.0p-53; }

// ---- Messages, the end ----

void QtPlatform::message_box(const Text& text) {
  Window* front = active_window();
  QMessageBox box(QMessageBox::Information, "Cserkó", lines_to_qt(text), QMessageBox::Ok,
                  front != nullptr ? view_of(*front) : nullptr);
  box.exec();
}

void QtPlatform::report_error(const Text& text) {
  std::fprintf(stderr, "%s\n", lines_to_qt(text).toUtf8().constData());
  // One box at a time.
  if (reporting_ || ended_) return;
  reporting_ = true;
  // Before the first window and behind the last one nothing of the suite goes on while the person reads.
  const bool before = std::exchange(quiet_, quiet_ || stack_.empty());
  message_box(text);
  quiet_ = before;
  reporting_ = false;
}

void QtPlatform::end_process() {
  ended_ = true;
  for (const auto& [window, view] : views_) view->hide();
  timers_.clear();
  leave_finished_loops();
}

} // namespace cserko
