// The real machine, with a note of what happens in each frame of an animation.
#pragma once

#include "platform/qt/qt_platform.h"

#include <QEvent>
#include <chrono>
#include <ctime>
#include <functional>
#include <vector>

namespace cserko {

class FrameWatch : public QtPlatform {
 public:
  struct Frame {
    double work_ms; ///< Processor time of the whole process.
    double ms;      ///< Until the next one begins.
  };

  /// Forgets the frames so far; the first one begins.
  void start() {
    frames.clear();
    paints_ = 0;
    begin();
  }
  void next_frame(Window& window) override {
    QtPlatform::next_frame(window);
    end();
  }
  void live_frame(Window& window, const std::function<bool()>& until) override {
    QtPlatform::live_frame(window, until);
    end();
  }
  int paints() const { return paints_; }

  std::vector<Frame> frames;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::UpdateRequest) ++paints_;
    return QtPlatform::eventFilter(object, event);
  }

 private:
  using Clock = std::chrono::steady_clock;

  void begin() {
    begin_ = Clock::now();
    worked_before_ = std::clock();
  }
  void end() {
    frames.push_back({1000.0 * static_cast<double>(std::clock() - worked_before_) / CLOCKS_PER_SEC,
                      std::chrono::duration<double, std::milli>(Clock::now() - begin_).count()});
    begin();
  }

  Clock::time_point begin_;
  std::clock_t worked_before_ = 0;
  int paints_ = 0;
};

} // namespace cserko
