#include "core/animation.h"

#include "core/frmwait.h"

namespace cserko {

namespace {

bool gone(const Session& session, const Window& window) {
  return session.platform().ended() || !session.is_loaded(window);
}

void expect_present(const Session& session, const Window& window) {
  if (gone(session, window)) throw WindowGone();
}

} // namespace

Animation::Animation(Session& session, Window& window)
    : session_(session), window_(window), enabled_before_(window.Enabled) {
  window_.Enabled = false;
}

Animation::~Animation() { window_.Enabled = enabled_before_; }

void Animation::frame() {
  expect_present(session_, window_);
  session_.platform().next_frame(window_);
  expect_present(session_, window_);
}

void Animation::steps(int first, int last, const std::function<void(int step)>& step) {
  const int direction = first <= last ? 1 : -1;
  for (int i = first; i != last + direction; i += direction) {
    step(i);
    frame();
  }
}

void Animation::wait(int ms) {
  const std::int64_t end = session_.platform().now() + ms;
  do {
    frame();
  } while (session_.platform().now() < end);
}

void Animation::wait_until(const std::function<bool()>& done) {
  while (!done()) frame();
}

Rect between(const Rect& from, const Rect& to, double share) {
  const auto part = [share](double a, double b) { return a + (b - a) * share; };
  return {part(from.left, to.left), part(from.top, to.top), part(from.width, to.width), part(from.height, to.height)};
}

void live_frame(Session& session, Window& window, const std::function<bool()>& until) {
  expect_present(session, window);
  session.platform().live_frame(window, until);
  expect_present(session, window);
}

void live_pause(Session& session, const Window& window, int ms) {
  wait(session, ms);
  expect_present(session, window);
}

void live_wait(Session& session, const Window& window, const std::function<bool()>& done) {
  session.platform().pump_events([&] { return gone(session, window) || done(); });
  expect_present(session, window);
}

} // namespace cserko
