#include "exercises/boards/frm_lóugrás.h"

#include "core/numbers.h"
#include "feedback/message_panels.h"

#include <algorithm>
#include <array>

namespace cserko {

namespace {

constexpr double picture_gap = 60;   // twips
constexpr double board_share = 0.8;  // of the fields that the words may take
constexpr int fruitless_draws = 200; // then all files are looked through once, without drawing
constexpr int most_rounds = 500;     // sets of words drawn for one board

constexpr Color dark_square{128, 128, 128};
constexpr Color light_square{236, 226, 204};

constexpr TextView widest_of_table = u"dzs";
constexpr TextView table =
    u"dzs,cs,dz,gy,ly,ny,sz,ty,zs,a,á,b,c,d,e,é,f,g,h,i,í,j,k,l,m,n,o,ó,ö,ő,p,q,r,s,t,u,ú,ü,ű,x,y,v,w,z,";
constexpr std::size_t single_letters = 9; // where they begin in the table

constexpr TextView advice =
    u"Kevés olyan szavunk van, amelyik elég rövid.\r\nKérlek, engedj meg a beállításokban hosszabb szavakat vagy "
    u"kevesebb képet!";
constexpr TextView board_advice = u"Ennyi hosszú szó nem fér el a táblán.\r\nKérlek, állíts be nagyobb táblát, "
                                  u"rövidebb szavakat vagy kevesebb képet!";

constexpr TextView knight_task =
    u"A képekhez tartozó szavak betűit elrejtettem a táblán. Indulj a *-tól, és mindig lépj lólépésben!";
constexpr TextView neighbour_task =
    u"A képekhez tartozó szavak betűit elrejtettem a táblán. Indulj a *-tól, és mindig lépj a szomszédos mezőkre!";

std::vector<Text> betűtábla() {
  std::vector<Text> letters(1);
  for (const char16_t character : table) {
    if (character == u',') {
      letters.emplace_back();
    } else {
      letters.back() += character;
    }
  }
  letters.pop_back();
  return letters;
}

} // namespace

std::vector<Text> path_letters(TextView words, int language) {
  static const std::vector<Text> letters = betűtábla();
  const auto first = letters.begin() + (language == kszöveg::angol ? single_letters : 0);
  std::vector<Text> path;
  while (!words.empty()) {
    const auto found =
        std::find_if(first, letters.end(), [&](const Text& letter) { return words.starts_with(letter); });
    const std::size_t length = found == letters.end() ? 1 : found->size();
    if (words.front() != u',') path.emplace_back(words.substr(0, length));
    words.remove_prefix(length);
  }
  return path;
}

frm_lóugrás::frm_lóugrás(Session& session)
    : ExerciseWindow(session, u"frm_lóugrás", {10200, 6600}, u"Cserkó - Lóugrás") {
  kép[0].Border = true;
  kép[0].Opaque = true;
  kép[0].TabStop = false;
  képnév[0].WordWrap = false;
  for (int i = 1; i < most_pictures; ++i) {
    kép.load(i);
    képnév.load(i);
  }
  nemkép.Visible = false;
  Lbl_sötétszürke.BackColor = dark_square;
  Lbl_sötétszürke.Visible = false;
  lbl_Szürke.BackColor = light_square;
  lbl_Szürke.Visible = false;
  Line1[0].Visible = false;
  Line_szegély[0].Visible = false;
  make_fields();
  bind();
}

void frm_lóugrás::make_fields() {
  Label& first = betű[0];
  first.Opaque = true;
  first.WordWrap = false;
  first.ForeColor = black;
  first.BackColor = white;
  first.Tag = u"0";
  first.Visible = false;
  for (int index = 1; index < columns * rows; ++index) {
    const int row = index / columns;
    betű.load(index).move_to(first.Left + index % columns * first.Width, first.Top + row * first.Height);
  }
  plain_ = first.BackColor;
}

void frm_lóugrás::bind() {
  betű.Click = [this](int index) {
    if (has_puzzle()) enter(index);
  };
  Command1.Click = [this] {
    if (has_puzzle()) take_back();
  };
  cmd_súgó.Click = [this] {
    if (has_puzzle()) show_next_step();
  };
  kép.Click = [this](int index) { help(index); };
  Timer1.Tick = [this] { blink(); };
  Timer_segítő.Tick = [this] { run_front(); };
  mnu_fájl_új_játék.Click = [this] { beáll(); };
  set_settings_entry<frm_lóugrás_beáll>(mnu_fájl_beállítások, DialogAtClose::Stays);
  set_close_entry(mnu_fájl_kilép);
  set_help_entry(mnu_súgó_súgó, u"Lóugrás  - A feladat.mht");
}

void frm_lóugrás::Load() {
  cmd_súgó.Enabled = settings().chk_segítség_engedélyezése.ticked();
  // The stored language does not survive the start, which is intended.
  settings().optnyelv.choose(kszöveg::magyar);
  ablak_méretezés(*this, 0.9);
  const Label& first = betű[0];
  board_ = {first.Left, first.Top, columns * first.Width, rows * first.Height};
  betűméret_tábla();
  iránybeolvasás();
  ablak_középre(session(), *this);
  szöveg_illesztés(cmd_súgó);
  Command1.Font = cmd_súgó.Font;
  deal_first([this] { beáll(); });
}

void frm_lóugrás::nyelv(int language) {
  if (language == kszöveg::magyar || language == kszöveg::angol) nyelv_ = language;
}

void frm_lóugrás::iránybeolvasás() {
  const bool knight = settings().optszabály[0].value();
  moves_ = knight ? &knight_moves : &neighbour_moves;
  szöveg_illesztés(lbl_feladat, Text(knight ? knight_task : neighbour_task));
}

void frm_lóugrás::beáll() {
  deal([this] { new_board(); });
  képbemutatás(false);
}

void frm_lóugrás::new_board() {
  clear_board();
  képek_darab_ = settings().udképekszáma.value();
  lay_out_pictures();
  lay_out_fields();
  tábla_igazítás(columns_in_play(), rows_in_play());
  const Text words = choose_words();
  for (int i = képek_darab_; i < most_pictures; ++i) {
    blank_picture(i);
    kép[i].Visible = false;
    képnév[i].Visible = false;
  }
  platform().seed_random();
  hide_words(words);
  töltelék_kitöltés();
  tábla_levágás();
  betűméret_tábla();
  kurzor_ = {};
  kurzor_be();
  betűméret_képnév();
  enter(megoldás_[0].column + columns * megoldás_[0].row);
  // The keys belong to the board and not to a button.
  set_focus(&kép[0]);
}

void frm_lóugrás::clear_board() {
  segítő_törlés();
  kurzor_ki();
  betű.each([this](Label& square) {
    square.Caption.clear();
    square.Enabled = false;
    set_ground(square, plain_);
  });
  út_.assign(1, first_entry);
  megoldás_.clear();
}

void frm_lóugrás::no_puzzle() {
  clear_board();
  betű.each([](Label& square) { square.Visible = false; });
  for (int i = 0; i < most_pictures; ++i) {
    blank_picture(i);
    kép[i].Visible = false;
    képnév[i].Visible = false;
  }
}

void frm_lóugrás::lay_out_pictures() {
  const double pitch = kép[0].Width + picture_gap;
  const double left = (inner_width() - (képek_darab_ * pitch - picture_gap)) / 2;
  for (int i = 0; i < most_pictures; ++i) {
    kép[i].move_to(left + i * pitch, kép[0].Top);
    képnév[i].move_to(kép[i].Left, kép[i].Top + kép[i].Height);
  }
}

// The fewer rows there are, the larger are the fields.
void frm_lóugrás::lay_out_fields() {
  const double side = board_.height / rows_in_play();
  betű.each([&](Label& square) {
    square.Width = side;
    square.Height = side;
    square.Top = square.Index < columns ? board_.top : betű[square.Index - columns].Top + side;
  });
}

// The words.

// A text of all words, each with a comma behind it, that leaves a fifth of the board free.
Text frm_lóugrás::choose_words() {
  const double most = board_share * rows_in_play() * columns_in_play();
  for (int round = 0; round < most_rounds; ++round) {
    Text words;
    for (int i = 0; i < képek_darab_; ++i) {
      blank_picture(i);
      words += draw_word(i, words) + u",";
    }
    if (most >= static_cast<double>(words.size())) return words;
  }
  throw NothingFits(board_advice);
}

void frm_lóugrás::blank_picture(int index) {
  clear_picture(kép[index]);
  kép[index].Picture = nemkép.Picture;
  kép[index].Visible = true;
  képnév[index].Visible = true;
  képnév[index].Caption.clear();
  képnév[index].Tag.clear();
  képnév[index].Font.size = 16;
}

// A word whose picture cannot be loaded makes room for another one; that one may have a hyphen, which is intended.
Text frm_lóugrás::draw_word(int index, const Text& words) {
  int number = draw_number(words, false, false);
  PicturePtr picture;
  while (!(picture = platform().load_picture(files_.picture(to_text(number))))) {
    without_picture_.insert(number);
    number = draw_number(words, true, true);
  }
  kép[index].Picture = picture;
  return képnév[index].Tag = szó_beolvasás(number);
}

int frm_lóugrás::draw_number(const Text& words, bool hyphens, bool with_picture) {
  const auto passes = [&](int number) {
    return fits(szó_beolvasás(number), words, hyphens) && !(with_picture && without_picture_.count(number) != 0);
  };
  for (int fruitless = 0;; ++fruitless) {
    if (fruitless == fruitless_draws &&
        !walk_on(0, files_.count(), Round::No, [&](int number) { return can_come(number) && passes(number); }))
      throw NothingFits(advice);
    if (const int number = véletlenkép(); passes(number)) return number;
  }
}

// From a drawn number on to the first whose record has a short name, whatever the language and the file of that number:
// the word of the file is looked at by whoever asked for the number.
int frm_lóugrás::véletlenkép() {
  platform().seed_random();
  const int count = files_.count();
  const int from = static_cast<int>(std::floor(platform().random() * (count - 1) + 1));
  return walk_on(from, count, Round::No, [this](int number) { return short_named(number); }).value_or(0);
}

// There is no record of the number of files: its name counts as short.
bool frm_lóugrás::short_named(int number) const {
  return number > képek().képszám || static_cast<int>(képek()[number].név.size()) <= settings().udszóbetmaxszám.value();
}

// The last number is only come to from the one before it.
bool frm_lóugrás::can_come(int number) {
  const int count = files_.count();
  return number >= 1 && short_named(number) && (number < count || count == 1 || !short_named(count - 1));
}

bool frm_lóugrás::fits(const Text& word, const Text& words, bool hyphens) const {
  return !word.empty() && word.find(u' ') == Text::npos && (hyphens || word.find(u'-') == Text::npos) &&
         static_cast<int>(word.size()) <= settings().udszóbetmaxszám.value() && words.find(word) == Text::npos;
}

// The board.

void frm_lóugrás::hide_words(const Text& words) {
  const std::vector<Text> letters = path_letters(words, nyelv_);
  PathSearch search(columns_in_play(), rows_in_play(), *moves_, [this] { return platform().random(); });
  megoldás_ = search.find(static_cast<int>(letters.size()), [this](Square start) { place_start(start); });
  for (std::size_t i = 0; i < letters.size(); ++i) {
    Label& square = field(megoldás_[i + 1]);
    square.Caption = letters[i];
    square.Enabled = true;
    square.Visible = true;
    square.Tag = u"0";
  }
}

void frm_lóugrás::place_start(Square start) {
  betű.each([](Label& square) { square.Caption.clear(); });
  Label& square = field(start);
  square.Caption = u"*";
  square.Enabled = false;
  square.Visible = true;
  square.Tag = u"0";
  show_line(0, start, start);
  segítő_törlés();
  platform().redraw(*this);
}

void frm_lóugrás::töltelék_kitöltés() {
  std::vector<Text> letters;
  for (int i = 0; i < képek_darab_; ++i) {
    const kszöveg word(képnév[i].Tag);
    for (int n = 1; n <= word.MAGYARBETŰKSZÁMA(); ++n) letters.push_back(word.szóbetűje(int(n)));
  }
  const bool hungarian = nyelv_ == kszöveg::magyar;
  const auto draw = [&]() -> Text {
    if (!hungarian) return Text(1, static_cast<char16_t>(rounded(platform().random() * (u'z' - u'a') + u'a')));
    return letters[static_cast<std::size_t>(random_below(platform(), static_cast<double>(letters.size())))];
  };
  // In English the box has the opposite sense, which is intended.
  const bool random = settings().chktöltelékbetűk.ticked() == hungarian;
  for (int column = 0; column < columns_in_play(); ++column) {
    for (int row = 0; row < rows_in_play(); ++row) {
      Label& square = field({column, row});
      if (!square.Caption.empty()) continue;
      const Text drawn = draw();
      square.Caption = random ? drawn : settings().txt_töltelékkarakter.text();
      square.Enabled = random;
      square.Visible = true;
      square.Tag = u"0";
    }
  }
}

void frm_lóugrás::tábla_levágás() {
  betű.each([&](Label& square) {
    const bool outside = square.Index % columns >= columns_in_play() || square.Index / columns >= rows_in_play();
    if (outside) square.Visible = false;
  });
}

Color frm_lóugrás::mezőszín(int x, int y) const {
  return (x + y) % 2 == 0 ? Lbl_sötétszürke.BackColor : lbl_Szürke.BackColor;
}

void frm_lóugrás::tábla_igazítás(int width, int height) {
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      Label& square = field({x, y});
      set_ground(square, mezőszín(x, y));
      square.Left = std::floor(inner_width() / 2) + (x - width / 2.0) * square.Width;
    }
  }
}

// Filler may be wider than any letter of the table: doubled digraphs are letters there.
void frm_lóugrás::betűméret_tábla() {
  cserko::Font font = betű[0].Font;
  font.size = 8;
  widest_letter_ = widest_of_table;
  double widest = platform().measure(font, widest_letter_).width;
  betű.each([&](const Label& square) {
    if (square.Caption.size() < widest_of_table.size()) return;
    const double width = platform().measure(font, square.Caption).width;
    if (width <= widest) return;
    widest = width;
    widest_letter_ = square.Caption;
  });
  fit_letter(betű[0]);
  betű.each([this](Label& square) { square.Font.size = betű[0].Font.size; });
}

void frm_lóugrás::betűméret_képnév() {
  cserko::Font font = képnév[0].Font;
  font.size = 8;
  Text widest;
  double width = -1;
  for (int i = 0; i < képek_darab_; ++i) {
    const double own = platform().measure(font, képnév[i].Tag).width;
    if (own <= width) continue;
    widest = képnév[i].Tag;
    width = own;
  }
  name_size_ = first_overfilling_size(platform(), font, widest, {0.9 * képnév[0].Width, 0.9 * képnév[0].Height});
  for (int i = 0; i < képek_darab_; ++i) show_name(i, képnév[i].Caption);
}

} // namespace cserko
