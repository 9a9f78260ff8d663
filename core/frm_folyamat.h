// The progress window of the start.
#pragma once

#include "core/session.h"

namespace cserko {

class FrmFolyamat : public Window {
 public:
  explicit FrmFolyamat(Session& session);

  Label label_kijelző{*this, u"label_kijelző", {120, 120, 5760, 480}, u"Egy kis türelmet kérek..."};
  cserko::ProgressBar ProgressBar{*this, u"ProgressBar", {120, 660, 5760, 360}};

  void Load() override;

 private:
  Session& session_;
};

} // namespace cserko
