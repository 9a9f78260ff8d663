#include "tests/tour/guide.h"

#include "core/settings.h"
#include "tests/tour/camera.h"

#include <QApplication>
#include <QDir>
#include <QTimer>
#include <cmath>
#include <utility>

namespace cserko::tour {

namespace {

constexpr int pace = 20;            // ms between two looks at the screen
constexpr int painting_time = 3000; // ms that a window may stay blank
constexpr int patience = 20000;     // ms until a stop counts as never reached
constexpr int framing_time = 120;   // ms that a window manager takes to paint the frame of a new front window
constexpr int saved_quickly = 90;   // of 100, where a PNG is packed least

// Windows that are as large on every screen must fit a low one: all that do not take their share of the screen.
bool keeps_design_size(const Window& window) {
  const Size design = window.design_size();
  const auto same = [](double a, double b) { return std::abs(a - b) < twips_per_pixel; };
  return same(window.inner_width(), design.width) && same(window.inner_height(), design.height);
}

} // namespace

Guide::Guide(WatchedPlatform& platform, QString folder) : platform_(platform), folder_(std::move(folder)) {}

void Guide::act(TextView window, std::function<void(Window&)> deed, std::function<bool(Window&)> ready) {
  stops_.push_back({Text(window), std::move(deed), std::move(ready), {}});
}

void Guide::repeat(TextView window, std::function<void(Window&)> deed, std::function<bool()> done) {
  stops_.push_back({Text(window), std::move(deed), {}, std::move(done)});
}

void Guide::picture(TextView window, const std::string& name, bool moving) {
  const auto ready = [this, moving](Window& seen) { return moving ? framed() : stands_still(seen); };
  act(
      window, [this, name](Window& seen) { look_at(seen, name); }, ready);
}

void Guide::picture_behind(TextView front, std::function<Window&()> behind, const std::string& name) {
  act(front, [this, behind = std::move(behind), name](Window&) {
    Window& window = behind();
    // The screen shows the window in front, so the other one is asked for its picture.
    WindowView* view = platform_.view_of(window);
    if (view == nullptr) return fault(name + ": the window is not on the screen");
    const QImage image = view->grab().toImage().convertToFormat(QImage::Format_RGB32);
    judge(window, name, image, platform_.client_corner(window) - view->mapToGlobal(QPoint(0, 0)));
  });
}

bool Guide::at_front(TextView window) const {
  const Window* front = platform_.active_window();
  return front != nullptr && front->Name == window;
}

// Until then the window that was in front before may still be seen.
bool Guide::framed() const { return at_front_since_.elapsed() >= framing_time; }

bool Guide::stands_still(Window& window) {
  const QImage seen = take_picture(*platform_.view_of(window));
  const bool still = seen == last_seen_;
  last_seen_ = seen;
  if (!still || !framed()) return false;
  // A window that has just come up may stand on the screen a while before it is painted.
  return waiting_.elapsed() >= painting_time || !is_blank(seen, seen.rect());
}

void Guide::look_at(Window& window, const std::string& name) {
  const QWidget* widget = platform_.view_of(window);
  if (widget == nullptr) return fault(name + ": the window is not on the screen");
  judge(window, name, take_picture(*widget), platform_.client_corner(window) - widget->frameGeometry().topLeft());
}

void Guide::judge(Window& window, const std::string& name, const QImage& image, QPoint client_corner) {
  seen_.insert(window.Name);
  const Photograph photograph(image, client_corner, platform_.fonts().scale());
  const QString number = QStringLiteral("%1").arg(++pictures_, 2, 10, QLatin1Char('0'));
  photograph.image().save(folder_ + QLatin1Char('/') + number + QLatin1Char('-') + QString::fromStdString(name) +
                              QStringLiteral(".png"),
                          "PNG", saved_quickly);
  if (const auto found = for_help_.find(name); found != for_help_.end()) {
    const QWidget& widget = *platform_.view_of(window);
    const QRect inside(widget.geometry().topLeft() - widget.frameGeometry().topLeft(), widget.size());
    if (!write_help_picture(image.copy(inside), found->second, folder_ + QStringLiteral("/help")))
      fault(name + ": no picture for the help can be made");
  }
  for (const std::string& what : photograph.faults(window)) fault(name + ": " + what);
  const bool dialog = dynamic_cast<SettingsDialog*>(&window) != nullptr || keeps_design_size(window);
  for (const std::string& what : tour::faults(window, {dialog, intended})) fault(name + ": " + what);
}

void Guide::start() {
  QDir().mkpath(folder_);
  waiting_.start();
  at_front_since_.start();
  schedule();
}

void Guide::schedule() {
  QTimer::singleShot(pace, this, [this] { turn(); });
}

void Guide::turn() {
  if (platform_.ended()) return;
  if (next_ == stops_.size()) {
    tell_unseen();
    return platform_.end_process();
  }
  const Stop stop = stops_[next_];
  if (stop.done && stop.done()) {
    leave_stop();
    return schedule();
  }
  Window* front = platform_.active_window();
  if (std::exchange(front_, front) != front) at_front_since_.start();
  const bool there = front != nullptr && front->Name == stop.window && platform_.settled(*front);
  if (!there || (stop.ready && !stop.ready(*front))) {
    if (waiting_.elapsed() > patience) return give_up(stop);
    return schedule();
  }
  if (stop.done && waiting_.elapsed() > patience) return give_up(stop);
  const std::size_t here = next_;
  if (!stop.done) leave_stop();
  // What the stop does may show a window and return only when that one is gone: the next stop is waited for before.
  schedule();
  bool heard = false;
  platform_.act([&] {
    heard = true;
    stop.deed(*front);
  });
  // The machine is deaf while it drops what was done during an animation.
  if (!heard) next_ = here;
}

void Guide::leave_stop() {
  ++next_;
  waiting_.restart();
  last_seen_ = QImage();
}

void Guide::give_up(const Stop& stop) {
  const Window* front = platform_.active_window();
  fault("stop " + std::to_string(next_ + 1) + " was not reached: " + to_utf8(stop.window) +
        " should be at the front, where " + (front == nullptr ? "nothing" : to_utf8(front->Name)) + " is");
  // A report of an error would wait for somebody to close it.
  if (QWidget* box = QApplication::activeModalWidget()) box->close();
  platform_.end_process();
}

void Guide::tell_unseen() {
  for (const Text& name : wanted_)
    if (seen_.count(name) == 0) fault("no stop looks at " + to_utf8(name));
}

void Guide::fault(const std::string& what) { faults_.push_back(what); }

} // namespace cserko::tour
