#include "exercises/letters/frm_betűnézegető.h"

#include "core/animation.h"
#include "core/codepage.h"
#include "core/numbers.h"
#include "feedback/message_panels.h"
#include "feedback/sounds.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace cserko {

namespace {

constexpr std::array<TextView, 9> digraphs{u"cs", u"dz", u"dzs", u"gy", u"ly", u"ny", u"sz", u"ty", u"zs"};
constexpr std::array accented{225, 233, 251, 245, 250, 246, 252, 243, 237}; // codes of the code page
constexpr TextView random_hungarian = u"ertzuiopőúóüöűáélkjhgfdsaícvbnm";
constexpr TextView random_english = u"ertzuioplkjhgfdsacvbnm";
constexpr TextView hungarian_alphabet = u"a á b c cs d dz dzs e é f g gy h i í j k l ly m n ny o ó ö ő p q r s sz t ty "
                                        u"u ú ü ű v w x y z zs";
constexpr TextView english_alphabet = u"a b c d e f g h i j k l m n o p q r s t u v w x y z";
constexpr TextView advice = u"A képválasztáshoz legalább nyolc különböző kép kell.\r\nKérlek, kapcsold ki a "
                            u"beállításokban az olvasás ellenőrzését!";

// Twips of the design: where the letter tiles stand, and what is free at the edges of a word.
constexpr Rect tile_area{37.5, 8175, 7260, 2640};
constexpr double margin = 120;

std::vector<Text> letters_of(TextView alphabet) {
  std::vector<Text> letters{Text()};
  for (const char16_t character : alphabet) {
    if (character == u' ') {
      letters.emplace_back();
    } else {
      letters.back() += character;
    }
  }
  return letters;
}

// The letter that a character stands for, empty for one that stands for none.
Text letter_of(char16_t character, bool english) {
  if (!english && character >= u'1' && character <= u'9') return Text(digraphs[character - u'1']);
  const char16_t small = lower_case(character);
  const int code = cp1250_code(small);
  const bool plain = code >= 97 && code <= 122;
  const bool hungarian = !english && std::find(accented.begin(), accented.end(), code) != accented.end();
  return plain || hungarian ? Text(1, small) : Text();
}

// The character that stands for a letter on the keyboard: the digit of a digraph, also of a doubled one.
char16_t typed_as(TextView letter) {
  if (letter.size() == 3 && letter[0] == letter[1]) letter.remove_prefix(1);
  const auto* const digraph = std::find(digraphs.begin(), digraphs.end(), lower_case(letter));
  return digraph == digraphs.end() ? letter.front() : static_cast<char16_t>(u'1' + (digraph - digraphs.begin()));
}

// The size of font at which a text first leaves nine tenths of a label.
double overfilling_size(const Label& label) {
  Font font = label.Font;
  font.size = 8;
  return first_overfilling_size(label.window().platform(), font, label.Caption,
                                {0.9 * label.Width, 0.9 * label.Height});
}

} // namespace

frm_betűnézegető_beáll::frm_betűnézegető_beáll(Session& session)
    : SettingsDialog(session, u"frm_betűnézegető_beáll", {5640, 4440}, u"Cserkó - Betűnézegető beállítások",
                     u"betűnézegető.ini") {
  labszópárok.Centered = false;
  txtbetszám.AccessibleName = labszópárok.Caption;
  udbetszám.Format = [](int letters) { return letters == no_limit ? Text(u"korlátlan") : to_text(letters); };
  opt_nyelv.Click = [this](int language) { Chk_szótagolva.Enabled = language == 0; };
  set_fields({&udbetszám, &chk_betűk_szétválasztása, &chk_képválasztás, &opt_betűhelyzet[0], &opt_betűhelyzet[1],
              &Chk_szótagolva, &opt_nyelv[0], &opt_nyelv[1]});
  set_factory_file(u"\\cserko\\betűnézegető.ini");
  set_buttons(cmd_ok, cmd_mégsem);
  set_help(cmd_súgó, u"Betűnézegető - a feladat.mht");
  keep_button_fonts();
}

void frm_betűnézegető_beáll::after_read(bool /*from_file*/) {
  opt_betűhelyzet.repair(1);
  opt_nyelv.repair(0);
  Chk_szótagolva.Enabled = !english();
}

void frm_betűnézegető_beáll::apply() {
  auto& exercise = session().window<frm_betűnézegető>();
  exercise.lay_out_tiles();
  exercise.véletlenkép();
}

frm_betűnézegető::frm_betűnézegető(Session& session)
    : ExerciseWindow(session, u"frm_betűnézegető", {7335, 8175}, u"Cserkó - Betűnézegető") {
  választáskép.design_places(
      {{120, 360}, {1920, 360}, {3720, 360}, {5520, 360}, {120, 2160}, {1920, 2160}, {3720, 2160}, {5520, 2160}});
  választáskép.each([](PictureBox& choice) {
    choice.Border = true;
    choice.Visible = false;
  });
  kép.Border = true;
  kép.Tag = u"-1";
  lbl_feladat.Visible = false;
  lbl_feladat.WordWrap = false;
  Label_kisbetű.Choosable = true;
  Label_nagybetű.Choosable = true;
  letter_tile[0].Visible = false;
  letter_tile[0].Choosable = true;
  letter_tile[0].Border = true;
  letter_tile[0].Opaque = true;
  bind();
}

void frm_betűnézegető::bind() {
  kép.Click = [this] { véletlenkép(); };
  választáskép.Click = [this](int place) { picture_chosen(place); };
  választáskép.MouseDown = [this](int place, const MouseEvent& event) {
    if (event.button != MouseButton::Left) ask(place);
  };
  row_.Clicked = [this](int letter) { repeat(Label_betű[letter].Caption); };
  letter_tile.Click = [this](int tile) { repeat(letter_tile[tile].Caption); };
  const auto repeat_letter = [this] { repeat(Label_kisbetű.Caption); };
  Label_kisbetű.Click = repeat_letter;
  Label_nagybetű.Click = repeat_letter;
  Timer1.Tick = repeat_letter;
  timer_megold.Tick = [this] { megoldás_letelt_ = true; };
  mnu_letter_tiles.Click = [this] {
    mnu_letter_tiles.Checked = !mnu_letter_tiles.Checked;
    arrange();
  };
  set_settings_entry<frm_betűnézegető_beáll>(mneu_fájl_beállítások, DialogAtClose::Goes);
  set_close_entry(mnu_fájl_kilép);
  set_help_entry(mnu_súgó_súgó, u"Betűnézegető - a feladat.mht");
}

void frm_betűnézegető::Load() {
  settings();
  arrange();
  deal_first([this] { véletlenkép(); });
}

// The tiles lengthen the window, so everything else becomes smaller with them, and larger again without.
void frm_betűnézegető::arrange() {
  const double to_design = picture_size / kép.Width;
  for (Element* element : elements()) {
    element->move_to(element->Left * to_design, element->Top * to_design);
    element->Width *= to_design;
    element->Height *= to_design;
  }
  lay_out_tiles();
  ablak_méretezés(*this, 0.95);
  lay_out_tiles();
  szöveg_illesztés(lbl_feladat, Text(task));
  // The one step by which fitting overfills may be too much for so long a line.
  if (platform().measure(lbl_feladat.Font, task).width > lbl_feladat.Width) lbl_feladat.Font.size -= 1;
  if (!Label_kisbetű.Caption.empty()) betűméret_illesztése();
  if (const Text word = row_.text(); !word.empty()) szó_kiírása(word);
  ablak_középre(session(), *this);
}

void frm_betűnézegető::lay_out_tiles() {
  letter_tile.unload_from(1);
  letter_tile[0].Visible = mnu_letter_tiles.Checked;
  letter_tile[0].move_to(Label_kisbetű.Left, Label_kisbetű.Top); // nothing that counts for the size of the window
  if (!mnu_letter_tiles.Checked) return;
  const bool english = settings().english();
  const std::vector<Text> letters = letters_of(english ? english_alphabet : hungarian_alphabet);
  const int columns = english ? 9 : 11;
  const int rows = (static_cast<int>(letters.size()) + columns - 1) / columns;
  const double scale = kép.Width / picture_size;
  Label& first = letter_tile[0];
  first.Width = tile_area.width * scale / columns;
  first.Height = tile_area.height * scale / rows;
  first.Font.size = 6;
  first.Font.size =
      first_overfilling_size(platform(), first.Font, u"dzs", {0.85 * first.Width, 0.85 * first.Height}) - 1;
  for (int i = 0; i < static_cast<int>(letters.size()); ++i) {
    Label& tile = i == 0 ? first : letter_tile.load(i);
    const int row = i / columns;
    tile.move_to(tile_area.left * scale + i % columns * first.Width, tile_area.top * scale + row * first.Height);
    tile.Caption = letters[static_cast<std::size_t>(i)];
    tile.Visible = true;
  }
}

void frm_betűnézegető::véletlenkép() {
  const TextView letters = settings().english() ? random_english : random_hungarian;
  betű_mutatása(letters[static_cast<std::size_t>(random_below(platform(), static_cast<double>(letters.size())))]);
}

void frm_betűnézegető::KeyDown(KeyEvent& event) {
  // What no mouse asks is asked with Ctrl and Enter: every key that types belongs to the letters.
  const Element* focused = focus();
  if (event.code == key::enter && event.shift == shift::control && focused != nullptr &&
      focused->Name == választáskép[0].Name) {
    event.code = 0;
    ask(focused->Index);
    return;
  }
  // Some letters are typed with AltGr, which is Ctrl and Alt. The space bar presses what has the focus.
  const int held = event.shift & (shift::control | shift::alt);
  const bool types = event.character > u' ' && (held == shift::none || held == (shift::control | shift::alt));
  if (!types) {
    ExerciseWindow::KeyDown(event);
    return;
  }
  event.code = 0;
  betű_mutatása(event.character);
}

void frm_betűnézegető::betű_mutatása(char16_t character) {
  // Whatever comes while a solution has its second, the last of it is shown after it.
  next_ = character;
  if (megoldás_látszik_) return;
  if (choice_is_open()) show_solution();
  Timer1.Enabled = false;
  hang_lejátszás(session(), session().alapkönyvtár + u"cserko\\moving.wav");
  const Text letter = letter_of(next_, settings().english());
  if (letter.empty()) return;
  deal([&] { show_letter(letter); });
}

void frm_betűnézegető::show_solution() {
  megoldás_látszik_ = true;
  struct Done {
    bool& shown;
    ~Done() { shown = false; }
  } done{megoldás_látszik_};
  show_picture();
  megoldás_letelt_ = false;
  timer_megold.restart();
  live_wait(session(), *this, [this] { return megoldás_letelt_; });
  timer_megold.Enabled = false;
}

void frm_betűnézegető::show_letter(const Text& letter) {
  Label_kisbetű.Caption = letter;
  Label_nagybetű.Caption = upper_case(letter.front()) + letter.substr(1);
  betűméret_illesztése();
  const int record = szó_keresése(letter);
  szó_törlése();
  if (record < 0) {
    clear_picture(kép);
    show_picture();
  } else {
    show_word(record);
  }
  lbl_feladat.Visible = !kép.Visible;
}

void frm_betűnézegető::show_word(int record) {
  show_record_picture(session(), kép, record);
  szó_kiírása(képek().word(record, word_form(settings().english(), settings().Chk_szótagolva.ticked())));
  if (settings().chk_képválasztás.ticked()) {
    képválasztás_felállítása();
  } else {
    show_picture();
  }
}

void frm_betűnézegető::no_puzzle() {
  clear_picture(kép);
  kép.Tag = u"-1";
  shown_ = -1;
  show_picture();
  szó_törlése();
}

int frm_betűnézegető::szó_keresése(const Text& letter) {
  const Records& records = képek();
  const bool english = settings().english();
  const bool first = settings().opt_betűhelyzet[0].value();
  const int longest = settings().longest();
  const auto fits = [&](int index) {
    const Text& word = english ? records[index].angol : records[index].név;
    if (word.empty() || records.word_length(index, english) > longest) return false;
    if (english) return first ? word.front() == letter.front() : word.find(letter) != Text::npos;
    if (!first) return records.vanebenne(index, letter);
    return lower_case(word.front()) == letter.front() && kszöveg(word).magyarleft(1) == letter;
  };
  found_.clear();
  for (int i = 0; i <= records.képszám; ++i) {
    if (fits(i)) found_.push_back(i);
  }
  const int place = draw_found();
  if (place < 0) return -1;
  shown_ = found_[static_cast<std::size_t>(place)];
  kép.Tag = to_text(shown_);
  return shown_;
}

int frm_betűnézegető::draw_found() {
  const int longest = settings().longest();
  // English words are judged by the letters of the Hungarian one as well, which is intended.
  const auto allowed = [&](int record) { return képek().MAGYARBETŰKSZÁMA(record) <= longest; };
  const auto another = [&](int record) { return record != shown_ && allowed(record); };
  // A word follows itself only where there is no other one.
  const bool others = std::any_of(found_.begin(), found_.end(), another);
  if (!others && std::none_of(found_.begin(), found_.end(), allowed)) return -1;
  return draw_below(
      platform(), static_cast<int>(found_.size()),
      [&](int place) {
        const int record = found_[static_cast<std::size_t>(place)];
        return others ? another(record) : allowed(record);
      },
      Records::general_advice);
}

void frm_betűnézegető::szó_törlése() { row_.clear(); }

void frm_betűnézegető::szó_kiírása(const Text& word) {
  kszöveg text;
  text.szövegnyelv(settings().english() ? kszöveg::angol : kszöveg::magyar);
  text.value(word);
  row_.clear();
  row_.show(text);
  const bool apart = settings().chk_betűk_szétválasztása.ticked();
  row_.letter_width = [this, apart](const Label& letter) {
    const double width = platform().measure(Label_betű[0].Font, letter.Caption).width;
    return apart ? width + Label_betű[0].Font.size * 8 : width;
  };
  fit_word();
  Label_betű.each([&](Label& letter) {
    const bool sought = letter.Caption == Label_kisbetű.Caption || letter.Caption == Label_nagybetű.Caption;
    letter.ForeColor = sought ? Color{255, 0, 0} : black;
    letter.Border = apart;
  });
  row_.lay_out({kép.Left + kép.Width / 2 - word_width() / 2, kép.Top + kép.Height});
}

void frm_betűnézegető::fit_word() {
  double& size = Label_betű[0].Font.size;
  size = 8;
  const double height = rounded((Label_kisbetű.Top - kép.Top - kép.Height) * 0.9);
  const double just_below = std::nextafter(height, 0.0);
  size = first_overfilling_size(platform(), Label_betű[0].Font, row_.text(),
                                {std::numeric_limits<double>::infinity(), just_below});
  while (word_width() > inner_width() - 2 * margin && size > 1) size -= 1;
}

double frm_betűnézegető::word_width() const {
  double width = 0;
  Label_betű.each([&](const Label& letter) { width += row_.letter_width(letter); });
  return width;
}

void frm_betűnézegető::betűméret_illesztése() {
  const double size = std::min(overfilling_size(Label_kisbetű), overfilling_size(Label_nagybetű));
  Label_kisbetű.Font.size = size;
  Label_nagybetű.Font.size = size;
}

void frm_betűnézegető::képválasztás_felállítása() {
  // Record 0 is never among the wrong ones: all places stand for it until they are filled. That is intended.
  std::vector<int> records(static_cast<std::size_t>(választáskép.count()), 0);
  const int right = random_below(platform(), választáskép.count());
  records[static_cast<std::size_t>(right)] = shown_;
  const auto is_new = [&](int index) { return std::find(records.begin(), records.end(), index) == records.end(); };
  for (int place = 0; place < választáskép.count(); ++place) {
    int& record = records[static_cast<std::size_t>(place)];
    if (place != right) record = draw_below(platform(), képek().képszám, is_new, advice);
    választáskép[place].Tag = to_text(record);
    választáskép[place].ToolTipText = képek()[record].név;
    show_record_picture(session(), választáskép[place], record);
  }
  választáskép.each([](PictureBox& choice) { choice.Visible = true; });
  kép.Visible = false;
}

void frm_betűnézegető::show_picture() {
  választáskép.each([](PictureBox& choice) { choice.Visible = false; });
  kép.Visible = true;
  lbl_feladat.Visible = false;
}

void frm_betűnézegető::picture_chosen(int place) {
  if (!has_puzzle()) return;
  if (!answer_sound(session(), választáskép[place].Tag == kép.Tag)) return;
  show_picture();
  // By keyboard the next choice begins on its first picture.
  set_focus(&kép);
  Timer1.restart();
}

void frm_betűnézegető::ask(int place) { show_hint(session(), választáskép[place], választáskép[place].ToolTipText); }

void frm_betűnézegető::repeat(TextView letter) {
  if (!letter.empty()) betű_mutatása(typed_as(letter));
}

} // namespace cserko
