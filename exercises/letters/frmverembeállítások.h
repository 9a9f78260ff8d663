// The settings of Tekergő. The game reads the up-downs; the text boxes are their visible side.
#pragma once

#include "core/option_group.h"
#include "core/settings.h"

namespace cserko {

/// Gives all controls of a window the font of one of them and returns the lowest bottom edge among them (twips), each
/// in the coordinates of its own container.
double give_one_font(Window& window, const Element& model);

class frmverembeállítások : public SettingsDialog {
 public:
  explicit frmverembeállítások(Session& session);

  Label labelszóhossz{*this, u"labelszóhossz", {120, 120, 3600, 480}, u"Szavak maximális hossza:"};
  TextBox txtszóhossz{*this, u"txtszóhossz", {3840, 120, 720, 480}};
  UpDown udszóhossz{*this, u"udszóhossz", {4560, 120, 360, 480}, txtszóhossz, {4, 10, 1}, 8};
  Label labelképekszámakezdéskor{*this, u"labelképekszámakezdéskor", {120, 720, 3600, 480}, u"Képek száma kezdéskor:"};
  TextBox txtképekszámakezdéskor{*this, u"txtképekszámakezdéskor", {3840, 720, 720, 480}};
  UpDown udképekszámakezdéskor{
      *this, u"udképekszámakezdéskor", {4560, 720, 360, 480}, txtképekszámakezdéskor, {5, 16, 1}, 10};
  Label labelfokozat{*this, u"labelfokozat", {120, 1320, 3600, 480}, u"Fokozat:"};
  TextBox txtfokozat{*this, u"txtfokozat", {3840, 1320, 720, 480}};
  UpDown udfokozat{*this, u"udfokozat", {4560, 1320, 360, 480}, txtfokozat, {1, 5, 1}, 5};
  Label txtfokozatmásodpercben{*this, u"txtfokozatmásodpercben", {120, 1920, 4800, 480}, u"Fokozat:"};
  Label labelváridmegfejt{
      *this, u"labelváridmegfejt", {120, 2520, 3600, 720}, u"Várakozás ideje megfejtés után (másodperc):"};
  TextBox txtváridmegfejt{*this, u"txtváridmegfejt", {3840, 2640, 720, 480}};
  UpDown udváridmegfejt{*this, u"udváridmegfejt", {4560, 2640, 360, 480}, txtváridmegfejt, {0, 10, 1}, 2};
  /// Its `Tag` is the number of the language as text.
  Frame framenyelv{*this, u"framenyelv", {120, 3360, 4800, 960}, u"Nyelv"};
  OptionGroup optnyelv{
      framenyelv, u"optnyelv", {{2, {120, 360, 2160, 420}, u"&Magyar"}, {4, {2400, 360, 2160, 420}, u"&Angol"}}, 2};
  CheckBox chbxképnevek{*this, u"chbxképnevek", {120, 4440, 7320, 480}, u"Képnevek megjelenítése"};
  CheckBox chb_betűkiemelés{
      *this, u"chb_betűkiemelés", {120, 5040, 7320, 480}, u"A kép nevében szereplő betűk kiemelése"};
  Button OKButton{*this, u"OKButton", {5160, 120, 2280, 660}, u"OK"};
  Button CancelButton{*this, u"CancelButton", {5160, 900, 2280, 660}, u"Mégsem"};
  Button cmd_súgó{*this, u"cmd_súgó", {5160, 1680, 2280, 660}, u"&Súgó"};

  /// The language that is chosen: 2 Hungarian, 4 English.
  int language() const;

  void Load() override;
  void Activate() override;

 protected:
  void accept() override;
  void cancel() override;
  void close_box() override { accept(); }

 private:
  void bind_boxes();
  int stored_language() const;
  void take_language(int language);
  void show_names();

  std::optional<NotedFields> noted_; ///< What Cancel takes back.
};

} // namespace cserko
