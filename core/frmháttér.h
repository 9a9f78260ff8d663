// The full-screen backdrop with a clock, on which an exercise runs.
#pragma once

#include "core/session.h"

namespace cserko {

class frmháttér : public Window {
 public:
  explicit frmháttér(Session& session);

  Label label_óra{*this, u"label_óra", {0, 0, 900, 400}, u"00:00"};
  Timer Timer_óra{*this, u"Timer_óra", 30000};

  /// The window to show on the backdrop: loaded by the call, shown modally, unloaded on return.
  std::function<Window&()> feladat;

  void Load() override;
  void Activate() override;

 private:
  void play();
  void show_time();

  Session& session_;
  bool playing_ = false;
};

/// Runs an exercise on the backdrop and returns when both are gone.
void run_on_backdrop(Session& session, std::function<Window&()> exercise);

} // namespace cserko
