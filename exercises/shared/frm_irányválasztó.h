// The direction panel: "Jobbra" and "Balra" at random arms of a cross, so that the child must read them.
#pragma once

#include "core/session.h"
#include "platform/element_array.h"

namespace cserko {

class frm_irányválasztó : public Window {
 public:
  explicit frm_irányválasztó(Session& session);

  static constexpr TextView jobbra = u"Jobbra";
  static constexpr TextView balra = u"Balra";
  static constexpr TextView vége = u"Vége"; ///< The answer of those who close the panel.

  /// The arms of the cross: top, left, bottom, right.
  ElementArray<Label> cmd_iránygomb{*this, u"cmd_iránygomb", {1860, 60, 1740, 660}};

  Text Tag{vége}; ///< The answer.

  void Load() override;
  void Activate() override;
  void KeyDown(KeyEvent& event) override;
  void Resize() override;
  void Unload() override;

 private:
  double arm_height(double font_size) const;
  double width_for(double font_size) const;
  void first_size();
  void lay_out();
  void clear_arms();
  void put_word(int arm, TextView word);

  Session& session_;
};

/// Asks for a direction on the panel, modally. Returns "Jobbra" or "Balra", or "Vége" where the panel was closed and is
/// unloaded.
Text irány_kérdés(Session& session);

} // namespace cserko
