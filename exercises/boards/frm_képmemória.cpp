#include "exercises/boards/frm_képmemória.h"

#include "core/animation.h"
#include "core/numbers.h"
#include "core/settings.h"
#include "feedback/frm_gratuláció.h"
#include "feedback/frm_hangbeáll.h"
#include "feedback/message_panels.h"
#include "feedback/sounds.h"

#include <algorithm>
#include <limits>

namespace cserko {

namespace {

constexpr Color back_color{214, 196, 160};
constexpr double gap = 60;          // twips between the cards
constexpr double closed_width = 15; // twips; a card at most as wide lies squeezed shut
constexpr int help_key = 'S';

constexpr TextView advice =
    u"Kevés olyan szavunk van, amelyik ráfér egy kártyára.\r\nKérlek, engedj meg a beállításokban "
    u"hosszabb szavakat vagy kevesebb szópárt!";

Text two_digits(std::int64_t number) { return (number < 10 ? u"0" : u"") + to_text(number); }

// "hh:mm:ss"
Text as_time(std::int64_t ms) {
  const std::int64_t seconds = ms / 1000;
  return two_digits(seconds / 3600 % 24) + u":" + two_digits(seconds / 60 % 60) + u":" + two_digits(seconds % 60);
}

} // namespace

frm_képmemória::frm_képmemória(Session& session)
    : ExerciseWindow(session, u"frm_képmemória", {9900, 8520}, u"Cserkó - Képmemória") {
  kép[0].Border = true;
  kép[0].Opaque = true;
  kép[0].BackColor = back_color;
  képszöveg[0].WordWrap = false;
  for (int i = 1; i < places; ++i) {
    kép.load(i);
    képszöveg.load(i);
  }
  nemkép.Visible = false;
  nemszöveg.Visible = false;
  teszt.Visible = false;
  bind();
}

void frm_képmemória::bind() {
  const auto pressed = [this](int index, const MouseEvent& event) {
    if (event.button == MouseButton::Right) {
      segítség(index);
    } else {
      kártya_fordítás(index);
    }
  };
  kép.MouseDown = pressed;
  képszöveg.MouseDown = pressed;
  kép.KeyDown = [this](int index, KeyEvent& event) { card_key(index, event); };
  Timer1.Tick = [this] { show_time(); };
  mnu_fájl_új_játék.Click = [this] { beáll(); };
  set_settings_entry<frm_képmem_beáll>(mnu_fájl_beáll, DialogAtClose::Goes);
  set_close_entry(mnu_fájl_kilép);
  set_help_entry(mnu_súgó_súgó, u"Képmemória - a feladat.mht");
}

void frm_képmemória::Load() {
  settings();
  lay_out_cards();
  ablak_méretezés(*this, 0.98);
  lay_out_cards();
  ablak_középre(session(), *this);
  nemkép.Picture = platform().load_picture(session().alapkönyvtár + u"cserko\\kártyahát.wmf");
  deal_first([this] { beáll(); });
}

void frm_képmemória::lay_out_cards() {
  for (Label* line : {&Label_feladat, &időkijelző, &labszópárok[0]}) szöveg_illesztés(*line);
  const PictureBox& first = kép[0];
  for (int i = 1; i < places; ++i) {
    PictureBox& card = kép[i];
    card.Width = first.Width;
    card.Height = first.Height;
    const bool new_row = i % columns == 0;
    card.Left = new_row ? first.Left : kép[i - 1].Left + first.Width + gap;
    card.Top = new_row ? kép[i - columns].Top + first.Height + gap : kép[i - 1].Top;
  }
}

WordForm frm_képmemória::form() const {
  const frm_képmem_beáll& wanted = settings();
  return word_form(wanted.english(), wanted.Chk_szótagolva.ticked());
}

Text frm_képmemória::képnévnyelv(int index) const { return képek().word(index, form()); }

int frm_képmemória::KépFileNév() {
  const WordForm name = word_form(settings().english(), false);
  return képek().draw(
      platform(), [&](int index) { return !képek().word(index, name).empty(); }, advice, Records::Reach::WithLast);
}

int frm_képmemória::képszámlálás() const {
  return static_cast<int>(platform().files().list(session().alapkönyvtár + u"kepek\\*.wms").size());
}

void frm_képmemória::beáll() {
  deal([this] { new_board(); });
}

void frm_képmemória::no_puzzle() {
  clear_board();
  időkijelző.Caption = as_time(0);
}

void frm_képmemória::new_board() {
  platform().seed_random();
  clear_board();
  std::set<Text> used;
  for (int pair = 0; pair < settings().szópárszám.value(); ++pair) place_pair(used);
  platform().redraw(*this);
  betűméretállítás();
  kezdési_idő_ = platform().now();
}

void frm_képmemória::clear_board() {
  for (int i = 0; i < places; ++i) {
    képszöveg[i].Caption.clear();
    képszöveg[i].Visible = false;
    kép[i].Tag.clear();
    show_back(i);
    kép[i].Visible = false;
    felfordítva_.at(static_cast<std::size_t>(i)) = false;
  }
}

void frm_képmemória::show_back(int index) {
  clear_picture(kép[index]);
  kép[index].Picture = nemkép.Picture;
  kép[index].BackColor = back_color;
}

int frm_képmemória::free_place() {
  // Rounded, so that the first and the last place have half the chance. That is intended.
  return draw_rounded(
      platform(), places - 1, [this](int place) { return kép[place].Tag.empty(); }, advice);
}

int frm_képmemória::draw_record(const std::set<Text>& used) {
  const int top = settings().udbetszám.value();
  const int limit = top == frm_képmem_beáll::no_limit ? 100 : top;
  teszt.Font.size = settings().udbetűméret.value();
  const WordForm form = this->form();
  const WordForm name = word_form(settings().english(), false);
  const auto fits = [&](int index) {
    const Text& word = képek().word(index, form);
    if (képek().word(index, name).empty() || word.empty() || képek().MAGYARBETŰKSZÁMA(index, form) > limit ||
        used.count(word) != 0)
      return false;
    return platform().measure(teszt.Font, word).width <= kép[0].Width &&
           platform().load_picture(képek()[index].wmf) != nullptr;
  };
  return képek().draw(platform(), fits, advice, Records::Reach::WithLast);
}

void frm_képmemória::place_pair(std::set<Text>& used) {
  const int first = free_place();
  const int record = draw_record(used);
  if (settings().chk_képek_bemutatása.ticked()) show_hint(session(), record, képnévnyelv(record));
  used.insert(képnévnyelv(record));
  const auto place = [&](int index, bool picture_side) {
    kép[index].Tag = to_text(record);
    kép[index].Visible = true;
    show_back(index);
    képoldal_.at(static_cast<std::size_t>(index)) = picture_side;
  };
  place(first, true);
  place(free_place(), false);
}

int frm_képmemória::record_of(int index) const { return number_in(kép[index].Tag).value_or(0); }

void frm_képmemória::betűméretállítás() {
  Text widest;
  double widest_width = 0;
  kép.each([&](const PictureBox& card) {
    if (card.Tag.empty()) return;
    const Text word = képnévnyelv(record_of(card.Index));
    const double width = platform().measure(képszöveg[0].Font, word).width;
    if (width <= widest_width) return;
    widest = word;
    widest_width = width;
  });
  cserko::Font font = képszöveg[0].Font;
  font.size = 8;
  // One step back: unlike elsewhere the first size that is too wide is not kept. Height is no limit: the line of a very
  // short word may be higher than its card, while its letters still lie inside.
  constexpr double any_height = std::numeric_limits<double>::infinity();
  if (!widest.empty())
    font.size = first_overfilling_size(platform(), font, widest, {0.9 * kép[0].Width, any_height}) - 1;
  nemszöveg.Width = kép[0].Width;
  nemszöveg.Height = std::min(kép[0].Height, platform().measure(font, u"Á").height);
  for (int i = 0; i < places; ++i) {
    képszöveg[i].Font.size = font.size;
    squeeze(kép[i], képszöveg[i], 1);
  }
}

void frm_képmemória::squeeze(PictureBox& card, Label& word, double share) {
  const double center = card.Left + card.Width / 2;
  const double middle = card.Top + card.Height / 2;
  card.Width = nemkép.Width * share;
  card.Left = center - card.Width / 2;
  word.Width = nemszöveg.Width * share;
  word.Height = nemszöveg.Height;
  word.Left = center - word.Width / 2;
  word.Top = middle - word.Height / 2;
}

void frm_képmemória::lap_fordítás(Animation& animation, PictureBox& a, Label& b) {
  const bool open = a.Width > closed_width;
  if (open) hang_lejátszás(session(), session().alapkönyvtár + u"\\cserko\\Moving.wav");
  if (!settings().chk_anim_enged.ticked()) return;
  const int frames = settings().HScroll_anim_finomság.value();
  animation.steps(open ? frames : 0, open ? 0 : frames, [&](int i) { squeeze(a, b, static_cast<double>(i) / frames); });
}

void frm_képmemória::turn_up(Animation& animation, int index) {
  lap_fordítás(animation, kép[index], képszöveg[index]);
  kép[index].BackColor = white;
  if (képoldal(index) || !settings().with_words()) {
    show_record_picture(session(), kép[index], record_of(index));
  } else {
    clear_picture(kép[index]);
    képszöveg[index].Caption = képnévnyelv(record_of(index));
    képszöveg[index].BackColor = white;
    képszöveg[index].Visible = true;
  }
  lap_fordítás(animation, kép[index], képszöveg[index]);
  platform().redraw(*this);
}

int frm_képmemória::other_open_card() {
  for (int i = 0; i < places; ++i) {
    if (felfordítva(i)) return i;
    show_time();
  }
  return -1;
}

void frm_képmemória::kártya_fordítás(int index) {
  {
    Animation animation(session(), *this);
    if (felfordítva(index)) return;
    turn_up(animation, index);
    const int other = other_open_card();
    if (other < 0) {
      felfordítva_.at(static_cast<std::size_t>(index)) = true;
      return;
    }
    if (kép[other].Tag == kép[index].Tag) {
      wait_until(animation, [](const Text& elapsed) { return elapsed >= u"00:00:01"; });
      pár_eltüntetés(animation, other, index);
    } else {
      // Compared as texts, the wait lasts one whole second beyond the setting. That is intended.
      wait_until(animation, [this](const Text& elapsed) { return elapsed > settings().txtvárid.text(); });
      turn_back(animation, other, index);
    }
    felfordítva_.at(static_cast<std::size_t>(other)) = false;
    felfordítva_.at(static_cast<std::size_t>(index)) = false;
    if (!board_empty()) return;
  }
  platform().show_modal(session().window<frm_gratuláció>());
  beáll();
}

bool frm_képmemória::board_empty() const {
  bool any = false;
  kép.each([&](const PictureBox& card) { any = any || card.Visible; });
  return !any;
}

void frm_képmemória::turn_back(Animation& animation, int first, int second) {
  for (const int index : {first, second}) lap_fordítás(animation, kép[index], képszöveg[index]);
  for (const int index : {first, second}) {
    show_back(index);
    képszöveg[index].Visible = false;
  }
  for (const int index : {first, second}) lap_fordítás(animation, kép[index], képszöveg[index]);
}

void frm_képmemória::pár_eltüntetés(Animation& animation, int a, int b) {
  const bool success_sounds = session().window<frm_hangbeáll>().chk_hang_a_feladatokban_helyes.ticked();
  hang_lejátszás(session(),
                 session().alapkönyvtár + (success_sounds ? u"\\cserko\\swallow1.wav" : u"\\cserko\\Moving.wav"));
  const int frames = settings().HScroll_anim_finomság.value();
  const auto shrink = [this](int index, double share) {
    PictureBox& card = kép[index];
    const double middle = card.Top + card.Height / 2;
    card.Height = nemkép.Height * share;
    card.Top = middle - card.Height / 2;
    squeeze(card, képszöveg[index], share);
  };
  if (settings().chk_anim_enged.ticked()) {
    animation.steps(frames, 0, [&](int i) {
      for (const int index : {a, b}) shrink(index, static_cast<double>(i) / frames);
    });
  }
  for (const int index : {a, b}) {
    kép[index].Visible = false;
    képszöveg[index].Visible = false;
    show_back(index);
    shrink(index, 1);
  }
}

void frm_képmemória::wait_until(Animation& animation, const std::function<bool(const Text& elapsed)>& condition) {
  animation.wait_until([&, start = platform().now()] {
    show_time();
    return condition(as_time(platform().now() - start));
  });
}

void frm_képmemória::show_time() {
  if (!has_puzzle()) return;
  const Text time = as_time(platform().now() - kezdési_idő_);
  if (időkijelző.Caption != time) időkijelző.Caption = time;
}

void frm_képmemória::segítség(int index) {
  const bool allowed = settings().segítség_engedélyezése.ticked() && (!settings().segít.ticked() || felfordítva(index));
  if (!allowed || kép[index].Tag.empty()) return;
  show_hint(session(), record_of(index), képnévnyelv(record_of(index)));
}

void frm_képmemória::card_key(int index, KeyEvent& event) {
  if (event.code == key::space || event.code == key::enter) {
    kártya_fordítás(index);
  } else if (event.code == help_key) {
    segítség(index);
  } else {
    return;
  }
  event.code = 0;
}

} // namespace cserko
