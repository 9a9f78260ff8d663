#include "platform/headless/timer_queue.h"

#include "platform/input.h"

#include <algorithm>

namespace cserko {

void TimerQueue::detach(Window& window) {
  windows_.erase(std::remove(windows_.begin(), windows_.end(), &window), windows_.end());
  const auto belongs = [&window](const Entry& entry) { return entry.window == &window; };
  entries_.erase(std::remove_if(entries_.begin(), entries_.end(), belongs), entries_.end());
}

bool TimerQueue::attached(const Window& window) const {
  return std::find(windows_.begin(), windows_.end(), &window) != windows_.end();
}

TimerQueue::Entry* TimerQueue::find(std::uint64_t serial) {
  const auto found =
      std::find_if(entries_.begin(), entries_.end(), [serial](const Entry& entry) { return entry.serial == serial; });
  return found == entries_.end() ? nullptr : &*found;
}

void TimerQueue::compare(std::int64_t now) {
  std::vector<Entry> entries;
  for (const Window* window : windows_) {
    for (Element* element : window->elements()) {
      if (element->kind() != ElementKind::Timer) continue;
      auto& timer = static_cast<Timer&>(*element);
      if (!timer.running() || !timer.Tick) continue;
      const Entry* before = find(timer.serial());
      const bool as_before =
          before != nullptr && before->period == timer.period() && before->restarts == timer.restarts();
      entries.push_back({window, &timer, timer.serial(), timer.period(), timer.restarts(),
                         as_before ? before->due : now + timer.period()});
    }
  }
  entries_ = std::move(entries);
}

std::optional<TimerQueue::Due> TimerQueue::first() const {
  const Entry* first = nullptr;
  for (const Entry& entry : entries_) {
    if (!entry.timer->InTick && (first == nullptr || entry.due < first->due)) first = &entry;
  }
  if (first == nullptr) return std::nullopt;
  return Due{first->due, first->timer};
}

void TimerQueue::fire_first(const std::function<std::int64_t()>& clock) {
  const std::optional<Due> due = first();
  if (!due) return;
  const std::uint64_t serial = due->timer->serial();
  // The handler may take its own timer away: it is looked up anew afterwards.
  input::tick(*due->timer);
  const std::int64_t now = clock();
  compare(now);
  if (Entry* entry = find(serial); entry != nullptr && entry->due <= now)
    entry->due += ((now - entry->due) / entry->period + 1) * entry->period;
}

} // namespace cserko
