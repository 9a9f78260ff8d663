#include "core/frm_főablak_beállítások.h"

namespace cserko {

namespace {

// The older store has its own order of lines.
template<class Settings> auto order_fields(Settings& settings) {
  return std::vector<SettingsField>{const_cast<CheckBox*>(&settings.rajz),
                                    const_cast<CheckBox*>(&settings.Chkcserkózás)};
}

} // namespace

frm_főablak_beállítások::frm_főablak_beállítások(Session& session)
    : SettingsDialog(session, u"frm_főablak_beállítások", {4680, 2880}, u"Főablak beállításai", u"főablak.ini") {
  set_fields({&chk_grafikus_főablak, &Chkcserkózás, &rajz});
  OKButton.Default = true;
  OKButton.Click = [this] { accept(); };
}

void frm_főablak_beállítások::Load() {
  SettingsDialog::Load();
  // The option comes alive with the graphic window.
  chk_grafikus_főablak.Enabled = session().offers(u"frm_grafikus_főablak");
}

void frm_főablak_beállítások::apply() { write_order_file(*this); }

void read_order_file(frm_főablak_beállítások& settings) {
  if (const auto bytes = settings.platform().files().read(Text(order_file)))
    read_fields(order_fields(settings), *bytes);
}

void write_order_file(const frm_főablak_beállítások& settings) {
  write_settings(settings.platform(), Text(order_file), write_fields(order_fields(settings)));
}

} // namespace cserko
