// The About panel.
#pragma once

#include "core/session.h"

namespace cserko {

class Névjegy : public Window {
 public:
  explicit Névjegy(Session& session);

  PictureBox imgLogo{*this, u"imgLogo", {240, 240, 1440, 1440}};
  Label lblTitle{*this, u"lblTitle", {1920, 240, 4800, 840}, u"Cserkó"};
  Label lblVersion{*this, u"lblVersion", {1920, 1140, 4800, 420}};
  Label lblDescription{*this,
                       u"lblDescription",
                       {240, 1920, 6480, 1020},
                       u"Játékos gyakorlatok dyslexia kezelésére, olvasás- és nyelvtanítás céljaira."};
  Button cmdOK{*this, u"cmdOK", {2160, 3120, 2160, 660}, u"OK"};
  Button cmdSysInfo{*this, u"cmdSysInfo", {4560, 3120, 2160, 660}, u"&System Info..."};

  void Load() override;

 private:
  void StartSysInfo();
  /// A value of the registry as text; False where there is none.
  bool GetKeyValue(const Text& key, const Text& name, Text& value) const;

  Session& session_;
};

} // namespace cserko
