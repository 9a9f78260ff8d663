// Animations and waits of an exercise, paced by the frames of the display.
#pragma once

#include "core/session.h"
#include "core/window_gone.h"

namespace cserko {

/// A stretch in which a window moves or waits and its child can only watch. For as long as the object lives the window
/// takes no input: clicks, keys, menu and close control do nothing, and nothing of it is kept for later. The window is
/// painted; its timers stand still and tick when the handler is over.
///
/// Every frame throws WindowGone where the window has gone or the program has ended meanwhile, so that nothing behind
/// the animation deals with a window that is not there any more. The handler needs no check of its own.
class Animation {
 public:
  Animation(Session& session, Window& window);
  ~Animation();
  Animation(const Animation&) = delete;
  Animation& operator=(const Animation&) = delete;

  /// Shows what has changed and waits for the next frame of the display.
  void frame();
  /// Calls the function with each number from first to last, upwards or downwards, both included, and shows each for a
  /// frame.
  void steps(int first, int last, const std::function<void(int step)>& step);
  /// Waits so many milliseconds, but at least one frame, so that what was drawn before has been seen.
  void wait(int ms);
  /// Waits frame by frame until the condition holds, which is asked before each frame and may draw.
  void wait_until(const std::function<bool()>& done);

 private:
  Session& session_;
  Window& window_;
  bool enabled_before_;
};

/// What lies at a share of the way from one place to another; 0 is the one, 1 the other.
Rect between(const Rect& from, const Rect& to, double share);

/// A frame of a movement that the child may go on acting in: shows what has changed, and everything goes on until the
/// next frame of the display, or until the condition holds. Throws WindowGone where the window was closed meanwhile.
void live_frame(Session& session, Window& window, const std::function<bool()>& until);
/// A pause of `frmwait` (ms) in which everything goes on: keys, clicks and timers are served. Throws WindowGone where
/// the window was closed meanwhile.
void live_pause(Session& session, const Window& window, int ms);
/// The same until a condition holds that some event brings about.
void live_wait(Session& session, const Window& window, const std::function<bool()>& done);

} // namespace cserko
