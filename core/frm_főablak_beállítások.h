// The settings of the main window: which main window, and what its decoration does.
#pragma once

#include "core/settings.h"

namespace cserko {

class frm_főablak_beállítások : public SettingsDialog {
 public:
  explicit frm_főablak_beállítások(Session& session);

  CheckBox chk_grafikus_főablak{*this, u"chk_grafikus_főablak", {240, 240, 4200, 420}, u"&Grafikus főablak"};
  CheckBox rajz{*this, u"rajz", {240, 780, 4200, 420}, u"&Rajz"};
  CheckBox Chkcserkózás{*this, u"Chkcserkózás", {240, 1320, 4200, 420}, u"Cser&kózás"};
  Button OKButton{*this, u"OKButton", {1440, 1980, 1800, 660}, u"OK"};

 protected:
  /// Brings the older store up to date as well, or the main window's next activation would undo the choice.
  void apply() override;
};

/// The older store of the two options of the decoration. The last exit's file beats the settings file, which is
/// intended.
inline constexpr TextView order_file = u"c:\\pomzu\\cserk.pmz";

/// Reads `rajz` and `Chkcserkózás` from the older store, with all errors ignored.
void read_order_file(frm_főablak_beállítások& settings);
/// Writes the two options into the older store.
void write_order_file(frm_főablak_beállítások& settings);

} // namespace cserko
