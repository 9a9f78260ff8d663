// The common pause, the only place of the suite that lets events happen by itself.
#pragma once

#include "core/session.h"

namespace cserko {

class frmwait : public Window {
 public:
  explicit frmwait(Session& session);

  Timer waittimer{*this, u"waittimer", 0};

  /// Waits between one and two intervals of the given length (ms, 0 to 65535, more counts as 65535): the first tick
  /// only arms the flag that the second one ends the wait by. Unloads the window and returns True.
  bool wait(int ms);

 private:
  Session& session_;
  int ticks_ = 0;
};

/// One pause with a window of its own, so that an event that happens meanwhile may pause too.
bool wait(Session& session, int ms);

} // namespace cserko
