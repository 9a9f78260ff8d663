// Picture memory: pairs of cards, two pictures or a picture and its word. Two cards are turned; a pair vanishes, two
// different cards turn back after a while.
#pragma once

#include "core/exercise.h"
#include "exercises/boards/frm_képmem_beáll.h"

#include <array>
#include <set>

namespace cserko {

class Animation;

class frm_képmemória : public ExerciseWindow {
 public:
  explicit frm_képmemória(Session& session);

  static constexpr int places = 36;
  static constexpr int columns = 6;

  Label Label_feladat{*this, u"Label_feladat", {120, 60, 7800, 480}, u"Keresd meg az összetartozó párokat!"};
  Label időkijelző{*this, u"időkijelző", {8220, 60, 1560, 480}, u"00:00:00"};
  ElementArray<Label> labszópárok{*this,
                                  u"labszópárok",
                                  {120, 540, 9660, 330},
                                  TextView(u"Az egér jobb gombjával a képre kattintva segítséget kap.")};
  ElementArray<PictureBox> kép{*this, u"kép", {120, 960, 1560, 1200}};
  ElementArray<Label> képszöveg{*this, u"képszöveg", {120, 960, 1560, 360}};
  PictureBox nemkép{*this, u"nemkép", {120, 960, 1560, 1200}};
  Label nemszöveg{*this, u"nemszöveg", {120, 960, 1560, 360}};
  Label teszt{*this, u"teszt", {120, 960, 1560, 360}};
  Timer Timer1{*this, u"Timer1", 1000};

  MenuItem mnu_fájl{*this, u"mnu_fájl", u"&Fájl"};
  MenuItem mnu_fájl_új_játék{mnu_fájl, u"mnu_fájl_új_játék", u"&Új játék"};
  MenuItem mnu_fájl_beáll{mnu_fájl, u"mnu_fájl_beáll", u"&Beállítások"};
  MenuItem mnu_fájl_separate{mnu_fájl, u"mnu_fájl_separate", u"-"};
  MenuItem mnu_fájl_kilép{mnu_fájl, u"mnu_fájl_kilép", u"&Kilép"};
  MenuItem mnu_súgó{*this, u"mnu_súgó", u"&Súgó"};
  MenuItem mnu_súgó_súgó{mnu_súgó, u"mnu_súgó_súgó", u"&Súgó"};

  /// Deals a new board. Throws NothingFits where too few words fit the settings.
  void beáll();
  /// Fits the font of all words.
  void betűméretállítás();
  /// The word of a record as the settings want it.
  Text képnévnyelv(int index) const;
  /// A random record whose word in the chosen language is not empty.
  int KépFileNév();
  /// Counts the text files of the picture folder.
  int képszámlálás() const;

  bool felfordítva(int index) const { return felfordítva_.at(static_cast<std::size_t>(index)); }
  bool képoldal(int index) const { return képoldal_.at(static_cast<std::size_t>(index)); }

  void Load() override;

 protected:
  void no_puzzle() override;

 private:
  void new_board();
  void bind();
  void lay_out_cards();
  void clear_board();
  int free_place();
  WordForm form() const;
  int draw_record(const std::set<Text>& used);
  void place_pair(std::set<Text>& used);

  void kártya_fordítás(int index);
  void turn_up(Animation& animation, int index);
  void turn_back(Animation& animation, int first, int second);
  void show_back(int index);
  int other_open_card();
  void lap_fordítás(Animation& animation, PictureBox& a, Label& b);
  void pár_eltüntetés(Animation& animation, int a, int b);
  void squeeze(PictureBox& card, Label& word, double share);
  void segítség(int index);
  void card_key(int index, KeyEvent& event);
  bool board_empty() const;

  void show_time();
  /// Waits until the condition on the elapsed time, as text, holds; the window stays painted and its clock goes on.
  void wait_until(Animation& animation, const std::function<bool(const Text& elapsed)>& condition);
  int record_of(int index) const;

  frm_képmem_beáll& settings() const { return session().window<frm_képmem_beáll>(); }

  std::array<bool, places> képoldal_{};    ///< The card shows a picture when turned.
  std::array<bool, places> felfordítva_{}; ///< The card lies turned up and waits for its partner.
  std::int64_t kezdési_idő_ = 0;           ///< When the board was finished, ms.
};

} // namespace cserko
