#include "exercises/boards/frm_hosszrövid.h"

#include "core/numbers.h"
#include "feedback/sounds.h"

#include <algorithm>
#include <cmath>

namespace cserko {

namespace {

constexpr int first_accent_pair = 5;
constexpr int first_consonant_pair = 11;
constexpr int last_pair = static_cast<int>(short_long_pairs.size()) - 1;

constexpr double picture_size = 2580; // twips of the design, as the next two
constexpr double key_step = 20;
constexpr double reach = 330;     // to either side of the column's middle: as far as a finger may miss it
constexpr double row_share = 0.9; // of the width under the picture
constexpr double lines = 5;       // a line for the word, two above and two below for the column
constexpr TextView gap_mark = u".";
constexpr TextView advice =
    u"Nincs elég ilyen szavunk.\r\nKérlek, jelölj ki a beállításokban több betűpárt, vagy engedj meg rövidebb vagy "
    u"hosszabb szavakat is!";

std::array<Text, 2> letters_of(TextView pair) {
  const std::size_t hyphen = pair.find(u'-');
  return {Text(pair.substr(0, hyphen)), Text(pair.substr(hyphen + 1))};
}

} // namespace

dlg_hosszrövid::dlg_hosszrövid(Session& session)
    : SettingsDialog(session, u"dlg_hosszrövid", {7440, 6060}, u"Cserkó - Rövid-hosszú", u"hosszrövid.ini"),
      WordLengths(*this, {120, 120}, 4) {
  lst_betűpár.AccessibleName = u"Betűpárok";
  lst_betűpár.MultiSelect = true;
  lst_betűpár.Items.assign(short_long_pairs.begin(), short_long_pairs.end());
  lst_betűpár.Click = [this] { OKButton.Enabled = lst_betűpár.selected_count() > 0; };
  cmd_rövid_hosszú.Click = [this] { select(0, first_accent_pair - 1, true); };
  cmd_hangváltoó_ékezet.Click = [this] { select(first_accent_pair, first_consonant_pair - 1, true); };
  cmd_mássalhangzó.Click = [this] { select(first_consonant_pair, last_pair, true); };
  cmd_kijelöléstörlés.Click = [this] { select(0, last_pair, false); };
  set_fields({&ud_maxbetűszám, &ud_minbetűszám, &Chk_szótagolva, SelectedEntries{&lst_betűpár}});
  set_buttons(OKButton, CancelButton);
  set_help(cmd_súgó, u"Rövid-hosszú - beállítások.mht");
}

void dlg_hosszrövid::select(int first, int last, bool selected) {
  std::vector<bool> selection = lst_betűpár.selection();
  selection.resize(short_long_pairs.size());
  std::fill(selection.begin() + first, selection.begin() + last + 1, selected);
  lst_betűpár.set_selection(selection);
}

void dlg_hosszrövid::after_read(bool /*from_file*/) {
  if (lst_betűpár.selected_count() == 0) select(0, last_pair, true);
}

void dlg_hosszrövid::apply() { session().window<frm_hosszrövid>().beáll(); }

frm_hosszrövid::frm_hosszrövid(Session& session)
    : ExerciseWindow(session, u"frm_hosszrövid", {9015, 7095}, u"Cserkó - Rövid-hosszú"),
      results_(session, pic_eredmény, lbl_eredmény, ResultPanel::Fit::OneLine) {
  kép.TabStop = false;
  kép.Border = true;
  pic_eredmény.design_places({{5640, 480}, {7320, 480}, {5640, 2640}, {7320, 2640}, {5640, 4800}, {7320, 4800}});
  lbl_eredmény.design_places({{5640, 2160}, {7320, 2160}, {5640, 4320}, {7320, 4320}, {5640, 6480}, {7320, 6480}});
  betű[0].Choosable = false; // the letters of the word only stand there
  row_.Pressed = [this](int letter, const MouseEvent& event) {
    if (letter == rés_index_) slider_pressed(event);
  };
  row_.Moved = [this](int letter, const MouseEvent& event) {
    if (letter == rés_index_) slider_moved(event);
  };
  row_.Released = [this](int /*letter*/, const MouseEvent& /*event*/) {
    slider_released();
    gesture_ = {};
  };
  row_.Clicked = [](int /*letter*/) {};
  row_.letter_width = [this](const Label& letter) {
    const auto width = [&](TextView text) { return platform().measure(letter.Font, text).width; };
    return letter.Index == rés_index_ ? std::max(width(betűpár_[0]), width(betűpár_[1])) : width(letter.Caption);
  };
  for (Label* letter : {&lbl_felső, &lbl_alsó}) {
    letter->WordWrap = false;
    letter->Choosable = true;
    letter->MouseDown = [this](const MouseEvent& event) { slider_pressed(event); };
    letter->MouseMove = [this](const MouseEvent& event) { slider_moved(event); };
    letter->MouseUp = [this, letter](const MouseEvent& event) {
      slider_released();
      // Inside the letter the click follows, which asks whether this was a slide.
      const bool inside = event.x >= 0 && event.x < letter->Width && event.y >= 0 && event.y < letter->Height;
      if (!inside) gesture_ = {};
    };
  }
  lbl_felső.Click = [this] { letter_clicked(lbl_felső); };
  lbl_alsó.Click = [this] { letter_clicked(lbl_alsó); };
  cmd_kész.Default = true;
  cmd_kész.Click = [this] { kész(); };
  set_settings_entry<dlg_hosszrövid>(mnu_fájl_beáll, DialogAtClose::Goes);
  set_close_entry(mnu_fájl_kilép);
  set_help_entry(mnu_súgó_súgó, u"Rövid-hosszú - A feladat.mht");
}

void frm_hosszrövid::Load() {
  fill_screen({&lbl_feladat, &cmd_kész});
  results_.clear();
  deal_first([this] { beáll(); });
}

void frm_hosszrövid::beáll() {
  deal([this] {
    no_puzzle();
    szó_index_ = szó_választás();
    show_record_picture(session(), kép, szó_index_);
    szó_kirakása();
    betű_elrejtése();
    elrendezés();
  });
}

void frm_hosszrövid::no_puzzle() {
  clear_picture(kép);
  row_.clear();
  rés_index_ = 0;
  gesture_ = {};
  egér_y_ = 0;
  lbl_felső.Visible = false;
  lbl_alsó.Visible = false;
}

int frm_hosszrövid::szó_választás() {
  platform().seed_random();
  const Wanted wanted{settings().lengths(), form()};
  if (wanted != wanted_) wordless_.clear();
  wanted_ = wanted;
  const ListBox& list = settings().lst_betűpár;
  std::set<Text> barren = wordless_;
  for (;;) {
    const int entry = draw_below(
        platform(), list.count(),
        [&](int i) {
          if (!list.is_selected(i)) return false;
          const auto letters = letters_of(short_long_pairs[static_cast<std::size_t>(i)]);
          return !barren.contains(letters[0]) || !barren.contains(letters[1]);
        },
        advice);
    betűpár_ = letters_of(short_long_pairs[static_cast<std::size_t>(entry)]);
    kivett_betű_ = betűpár_[static_cast<std::size_t>(random_below(platform(), 2))];
    if (barren.contains(kivett_betű_)) continue;
    try {
      return képek().draw(platform(), [this](int index) { return index != szó_index_ && fits(index); });
    } catch (const NothingFits&) {
      barren.insert(kivett_betű_);
      // The letter of the word on show comes again later, when its only word is no repetition.
      if (szó_index_ < 0 || !fits(szó_index_)) wordless_.insert(kivett_betű_);
    }
  }
}

bool frm_hosszrövid::fits(int index) const {
  return wanted_.lengths.allows(képek().MAGYARBETŰKSZÁMA(index)) && képek()[index].név.find(u'-') == Text::npos &&
         képek().vanebenne(index, kivett_betű_) && képek().vanebenne(index, kivett_betű_, wanted_.form);
}

WordForm frm_hosszrövid::form() const { return word_form(false, settings().Chk_szótagolva.ticked()); }

void frm_hosszrövid::szó_kirakása() {
  const Text& word = képek().word(szó_index_, form());
  const double room = cmd_kész.Top - (kép.Top + kép.Height);
  row_.fit(word, {row_share * cmd_kész.Width, room / lines});
  row_.show(kszöveg(word));
}

void frm_hosszrövid::betű_elrejtése() {
  std::vector<int> places;
  betű.each([&](const Label& letter) {
    if (letter.Caption == kivett_betű_) places.push_back(letter.Index);
  });
  rés_index_ = places[static_cast<std::size_t>(random_below(platform(), static_cast<double>(places.size())))];
  betű[rés_index_].Caption = gap_mark;
}

void frm_hosszrövid::elrendezés() {
  double width = 0;
  betű.each([&](Label& letter) {
    letter.Font = betű[0].Font;
    width += row_.letter_width(letter);
  });
  const double middle = (kép.Top + kép.Height + cmd_kész.Top) / 2;
  line_top_ = middle - platform().measure(betű[0].Font, gap_mark).height / 2;
  row_.lay_out({cmd_kész.Left + cmd_kész.Width / 2 - width / 2, line_top_});
  const Label& gap = betű[rés_index_];
  for (Label* letter : {&lbl_felső, &lbl_alsó}) {
    letter->Font = gap.Font;
    letter->Left = gap.Left;
    letter->Width = gap.Width;
    letter->Height = gap.Height;
    letter->Visible = true;
  }
  lbl_felső.Caption = betűpár_[0];
  lbl_alsó.Caption = betűpár_[1];
  csúsztatás(line_top_);
}

void frm_hosszrövid::slider_pressed(const MouseEvent& event) {
  gesture_.begin({0, betű[rés_index_].Top + event.y});
  egér_y_ = event.y;
}

void frm_hosszrövid::slider_moved(const MouseEvent& event) {
  if (!has_puzzle() || !gesture_.held() || event.button != MouseButton::Left) return;
  // The pointer counts from the window: the slider moves under it.
  gesture_.follow({0, betű[rés_index_].Top + event.y});
  csúsztatás(betű[rés_index_].Top + event.y - egér_y_);
}

void frm_hosszrövid::slider_released() {
  gesture_.end();
  egér_y_ = 0;
}

void frm_hosszrövid::letter_clicked(const Label& letter) {
  // The end of a slide is no click.
  if (has_puzzle() && !gesture_.moved()) csúsztatás(betű[rés_index_].Top + line_top_ - letter.Top);
  gesture_ = {};
}

void frm_hosszrövid::csúsztatás(double top) {
  Label& gap = betű[rés_index_];
  gap.Top = std::clamp(top, line_top_ - gap.Height, line_top_ + gap.Height);
  lbl_felső.Top = gap.Top - gap.Height;
  lbl_alsó.Top = gap.Top + gap.Height;
}

void frm_hosszrövid::KeyDown(KeyEvent& event) {
  const bool down = event.code == key::down;
  if (event.shift == shift::none && has_puzzle() && (down || event.code == key::up)) {
    const double step = key_step * scale();
    csúsztatás(betű[rés_index_].Top + (down ? step : -step));
    event.code = 0;
    return;
  }
  ExerciseWindow::KeyDown(event);
}

void frm_hosszrövid::MouseDown(const MouseEvent& event) {
  if (beside_column(event)) {
    slider_pressed(on_slider(event));
  } else if (event.button == MouseButton::Left) {
    beáll();
  }
}

void frm_hosszrövid::MouseMove(const MouseEvent& event) { slider_moved(on_slider(event)); }

void frm_hosszrövid::MouseUp(const MouseEvent& event) {
  if (!gesture_.held()) return;
  slider_released();
  for (const Label* letter : {&lbl_felső, &lbl_alsó})
    if (event.y >= letter->Top && event.y < letter->Top + letter->Height) return letter_clicked(*letter);
  gesture_ = {};
}

// A narrow letter is easily missed, and a miss would take the word away.
bool frm_hosszrövid::beside_column(const MouseEvent& event) const {
  const double off = event.x - (lbl_felső.Left + lbl_felső.Width / 2);
  return has_puzzle() && std::abs(off) < reach * scale() && event.y >= lbl_felső.Top &&
         event.y < lbl_alsó.Top + lbl_alsó.Height;
}

MouseEvent frm_hosszrövid::on_slider(const MouseEvent& event) const {
  const Label& slider = betű[rés_index_];
  return {event.button, event.shift, event.x - slider.Left, event.y - slider.Top};
}

double frm_hosszrövid::scale() const { return kép.Height / picture_size; }

void frm_hosszrövid::kész() {
  if (!has_puzzle()) return;
  const Label& gap = betű[rés_index_];
  // A column that nobody has touched counts as the upper letter, as does one that was pulled down, which is intended.
  const Text& chosen = gap.Top >= line_top_ - gap.Height / 2 ? betűpár_[0] : betűpár_[1];
  Text word;
  betű.each([&](const Label& letter) { word += letter.Index == rés_index_ ? chosen : letter.Caption; });
  const KépAdat& record = képek()[szó_index_];
  if (!answer_sound(session(), word == record.név || word == record.szótagolt)) return;
  találat_rögzítés();
  beáll();
}

void frm_hosszrövid::találat_rögzítés() { results_.add(szó_index_, képek()[szó_index_].név); }

} // namespace cserko
