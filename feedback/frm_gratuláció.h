// The congratulation panel: a sentence, a picture and a sound for a finished set of tasks, and the count that leads to
// a reward game.
#pragma once

#include "core/session.h"

#include <array>

namespace cserko {

inline constexpr std::array<TextView, 30> praise_table{
    u"Gratulálok!",
    u"Nagyszerű!",
    u"Fantasztikus!",
    u"Ez igen!",
    u"Hihetetlen!!!",
    u"Nagyon jó vagy!",
    u"Ügyes vagy!",
    u"Elképesztő, hogy milyen ügyes vagy!",
    u"Megcsináltad!!!",
    u"Hurrá!",
    u"Hajrá!!!",
    u"Nagyon ügyes vagy!",
    u"Klassz!",
    u"Így tovább!",
    u"Ne mondd, hogy még nem csináltad!",
    u"Dicséretet érdemelsz!",
    u"Dicsőség neked!",
    u"Ha így folytatod, te leszel a legjobb!",
    u"Igen! Folytasd!",
    u"Kitűnő!",
    u"Tiéd minden elismerésem!",
    u"Rendben!",
    u"Sikerült!",
    u"Teljes siker!",
    u"Éljen! Éljen!",
    u"Győzelem!",
    u"Tiéd az aranyérem!",
    u"Te vagy a győztes!",
    u"Dübörögjön tapsvihar a tiszteletedre!",
    u"Virágeső hulljon lábad elé!",
};

class frm_gratuláció : public Window {
 public:
  explicit frm_gratuláció(Session& session);

  Label label_szöveg{*this, u"label_szöveg", {120, 120, 9360, 960}, u"Gratulálok!"};
  PictureBox Picture1{*this, u"Picture1", {2400, 1200, 4800, 3960}};
  Label lbl_vissza{*this, u"lbl_vissza", {120, 5280, 9360, 600}};
  Button cmd_dob{*this, u"cmd_dob", {120, 6000, 2880, 780}, u"Doboljunk!"};
  Button cmd_ok{*this, u"cmd_ok", {3120, 6000, 3360, 780}, u"Lássuk a következőt!"};
  Button cmd_rajz{*this, u"cmd_rajz", {6600, 6000, 2880, 780}, u"Rajzoljunk!"};
  Timer Timer1{*this, u"Timer1", 0};

  void Load() override;
  /// Every way of unloading runs the body of `cmd_ok`. After a press of the button it has then run twice, and music
  /// that was paused stays paused; after the timer or a reward it has run once, and the music goes on. Intended.
  void QueryUnload(bool& cancel) override;

 private:
  void show_praise_picture();
  void count_down();
  void ok();
  void take_reward(TextView window);

  Session& session_;
  bool jutalom_ = false; ///< A reward was taken.
};

} // namespace cserko
