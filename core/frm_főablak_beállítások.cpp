#include "core/frm_főablak_beállítások.h"

namespace cserko {

namespace {

// The older store has its own order of lines.
SettingsFields order_fields(frm_főablak_beállítások& settings) {
  return SettingsFields({&settings.rajz, &settings.Chkcserkózás});
}

} // namespace

frm_főablak_beállítások::frm_főablak_beállítások(Session& session)
    : SettingsDialog(session, u"frm_főablak_beállítások", {4680, 2880}, u"Főablak beállításai", u"főablak.ini") {
  set_fields({&chk_grafikus_főablak, &Chkcserkózás, &rajz});
  set_buttons(OKButton);
  keep_button_fonts();
}

void frm_főablak_beállítások::apply() { write_order_file(*this); }

void read_order_file(frm_főablak_beállítások& settings) {
  if (const auto bytes = settings.platform().files().read(Text(order_file))) order_fields(settings).read(*bytes);
}

void write_order_file(frm_főablak_beállítások& settings) {
  write_settings(settings.platform(), Text(order_file), order_fields(settings).written());
}

} // namespace cserko
