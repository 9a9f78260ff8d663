#include "feedback/névjegy.h"

#include "core/frame.h"

namespace cserko {

Névjegy::Névjegy(Session& session) : Window(session.platform(), u"Névjegy", {6960, 3900}, u""), session_(session) {
  lblTitle.Font.size = 24;
  imgLogo.TabStop = false;
  cmdOK.Default = true;
  cmdOK.Cancel = true;
  cmdOK.Click = [this] { session_.unload(*this); };
  cmdSysInfo.Click = [this] { StartSysInfo(); };
}

void Névjegy::Load() {
  ablak_középre(session_, *this);
  gombok_illesztése(*this);
  Caption = u"Névjegy: Cserkó";
  lblTitle.Caption = u"Cserkó";
  lblVersion.Caption = from_utf8(CSERKO_VERSION) + u" verzió";
  imgLogo.Picture = platform().load_picture(session_.alapkönyvtár + u"cserko\\cserko-icon.png");
}

bool Névjegy::GetKeyValue(const Text& key, const Text& name, Text& value) const {
  const auto found = platform().registry_value(key, name);
  if (found) value = *found;
  return found.has_value();
}

void Névjegy::StartSysInfo() {
  Text path;
  if (!GetKeyValue(u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", u"PATH", path)) {
    if (GetKeyValue(u"SOFTWARE\\Microsoft\\Shared Tools Location", u"MSINFO", path)) path += u"\\MSINFO32.EXE";
    if (!path.empty() && !platform().program_exists(path)) path.clear();
  }
  if (path.empty()) {
    platform().message_box(u"System Information Is Unavailable At This Time");
  } else {
    platform().start_process(path, ProcessWindow::Normal);
  }
}

} // namespace cserko
