// The drum reward: each letter key, or its button on the screen, plays a drum sound and shows the letter big.
#pragma once

#include "core/session.h"
#include "platform/element_array.h"

namespace cserko {

class frm_dobszerkó : public Window {
 public:
  explicit frm_dobszerkó(Session& session);

  static constexpr int comma = 44;
  static constexpr int first_letter = 65;
  static constexpr int last_letter = 90;

  /// The last key struck.
  Label Label1{*this, u"Label1", {3660, 120, 2400, 2400}};
  /// The keys; the index is the character code of the key.
  ElementArray<Label> billentyű{*this, u"billentyű", FirstIndex{comma}, {7260, 4620, 840, 840}, TextView(u",")};
  Timer Timer_ablakbezárás{*this, u"Timer_ablakbezárás", 60000};

  void Load() override;
  void KeyDown(KeyEvent& event) override;

 private:
  void design_keys();
  void deal_sounds();
  void color_key(int index);
  void strike(int index);
  void fit_big_letter();

  Session& session_;
  std::map<int, Text> dobhangok_; ///< Full path of each key's sound.
};

} // namespace cserko
