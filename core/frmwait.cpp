#include "core/frmwait.h"

#include <algorithm>

namespace cserko {

frmwait::frmwait(Session& session) : Window(session.platform(), u"frmwait", {1500, 1500}, u""), session_(session) {
  waittimer.Tick = [this] { ++ticks_; };
}

bool frmwait::wait(int ms) {
  // A timer cannot have the interval 0, which would stop it: the shortest pause is two ticks of 1 ms.
  waittimer.Interval = std::clamp(ms, 1, 65535);
  ticks_ = 0;
  platform().pump_events([this] { return ticks_ >= 2; });
  waittimer.Enabled = false;
  session_.unload(*this);
  return true;
}

bool wait(Session& session, int ms) { return session.make_window<frmwait>().wait(ms); }

} // namespace cserko
