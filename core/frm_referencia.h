// The window that is loaded and never shown: it carries the look of the suite and the timer of the music.
#pragma once

#include "core/session.h"

namespace cserko {

class frm_referencia : public Window {
 public:
  explicit frm_referencia(Session& session);

  Timer Timer_zene{*this, u"Timer_zene", 1000, false};

  void Load() override;

 private:
  Session& session_;
};

} // namespace cserko
