// The timers of all windows on the virtual clock.
#pragma once

#include "platform/window.h"

#include <optional>

namespace cserko {

/// Knows when each timer is due. It compares the timers with what it last saw, so a timer that was started, stopped or
/// set to another interval is noticed at the next `compare`, and its time counts from then.
class TimerQueue {
 public:
  void attach(Window& window) { windows_.push_back(&window); }
  void detach(Window& window);
  bool attached(const Window& window) const;

  /// Brings the queue up to date with the timers as they stand at that time (ms).
  void compare(std::int64_t now);

  struct Due {
    std::int64_t at = 0; // ms
    Timer* timer = nullptr;
  };

  /// The timer that is due first, of several at one time the one whose window and then itself is older; none if no
  /// timer runs or all that run are inside their own handlers.
  std::optional<Due> first() const;

  /// Runs the handler of the timer that is due first and sets its next time behind the present one: ticks that were
  /// missed are not made up for. The clock is read after the handler, which may have let time pass.
  void fire_first(const std::function<std::int64_t()>& clock);

 private:
  struct Entry {
    const Window* window;
    Timer* timer; // only as good as the last `compare`: the timer may be gone since
    std::uint64_t serial;
    int period;
    int restarts;
    std::int64_t due;
  };

  Entry* find(std::uint64_t serial);

  std::vector<Window*> windows_;
  std::vector<Entry> entries_; // in order of windows and their elements
};

} // namespace cserko
