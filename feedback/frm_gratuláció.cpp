#include "feedback/frm_gratuláció.h"

#include "core/frame.h"
#include "core/numbers.h"
#include "feedback/frm_hangbeáll.h"
#include "feedback/message_panels.h"
#include "feedback/sounds.h"

namespace cserko {

namespace {

constexpr std::int16_t games_to_a_reward = 5;
constexpr int offer_lasts = 10000; // ms
constexpr TextView drum_window = u"frm_dobszerkó";
constexpr TextView drawing_window = u"frm_rajz";
constexpr std::array<TextView, 4> count_words{u"egyet", u"kettőt", u"hármat", u"négyet"};

} // namespace

frm_gratuláció::frm_gratuláció(Session& session)
    : Window(session.platform(), u"frm_gratuláció", {9600, 6900}, u"Cserkó"), session_(session) {
  lbl_vissza.Visible = false;
  KeyPause = message_key_pause;
  Picture1.TabStop = false;
  cmd_ok.Default = true;
  cmd_ok.Click = [this] { ok(); };
  cmd_dob.Enabled = session.offers(drum_window);
  cmd_dob.Click = [this] { take_reward(drum_window); };
  cmd_rajz.Click = [this] { take_reward(drawing_window); };
  Timer1.Tick = [this] {
    if (!jutalom_) session_.unload(*this);
  };
}

void frm_gratuláció::Load() {
  ablak_méretezés(*this, 0.9);
  gombok_illesztése(*this);
  jutalom_ = false;
  platform().seed_random();
  const auto sentence = static_cast<std::size_t>(random_below(platform(), static_cast<double>(praise_table.size())));
  szöveg_illesztés(label_szöveg, Text(praise_table[sentence]));
  show_praise_picture();
  ablak_középre(session_, *this);
  count_down();
  if (session_.window<frm_hangbeáll>().chk_hang_a_gratulálópanelen.ticked()) {
    zene_szünet(session_);
    dicséret_hang(session_);
  }
  cmd_rajz.Enabled = cmd_dob.Enabled && session_.offers(drawing_window);
}

void frm_gratuláció::show_praise_picture() {
  const Text folder = session_.alapkönyvtár + u"dicskép\\";
  const std::vector<Text> names = platform().files().list(folder + u"*.*");
  const auto skipped = static_cast<std::size_t>(random_below(platform(), static_cast<double>(names.size())));
  if (!names.empty()) Picture1.Picture = platform().load_picture(folder + names[skipped]);
}

void frm_gratuláció::count_down() {
  --session_.játékszámláló;
  if (session_.játékszámláló <= 0) {
    Timer1.Interval = offer_lasts;
    return;
  }
  cmd_dob.Enabled = false;
  const TextView word = count_words.at(static_cast<std::size_t>(session_.játékszámláló) - 1);
  szöveg_illesztés(lbl_vissza, u"Még " + Text(word) + u" játszunk, aztán dobolunk vagy rajzolunk!!!");
  lbl_vissza.Visible = true;
}

void frm_gratuláció::ok() {
  hang_lejátszás(session_, {});
  if (session_.window<frm_hangbeáll>().chk_hang_a_gratulálópanelen.ticked()) zene_szünet(session_);
  session_.unload(*this);
}

void frm_gratuláció::take_reward(TextView window) {
  session_.játékszámláló = games_to_a_reward;
  jutalom_ = true;
  platform().show_modal(session_.window(window));
  session_.unload(*this);
}

void frm_gratuláció::QueryUnload(bool& /*cancel*/) { ok(); }

} // namespace cserko
