#include "exercises/boards/frm_betűkeverő.h"

#include "core/kszöveg.h"
#include "core/numbers.h"
#include "exercises/shared/stack.h"
#include "feedback/sounds.h"

#include <algorithm>
#include <set>

namespace cserko {

namespace {

constexpr double gap = 90;      // twips between the spellings
constexpr int inner_kinds = 3;  // different letters between the first and the last
constexpr Color red{255, 0, 0}; // of the right answer
constexpr TextView advice =
    u"Nincs elég olyan szavunk, amelyiknek ennyiféleképpen keverhetők a betűi.\r\nKérlek, engedj meg a beállításokban "
    u"rövidebb vagy hosszabb szavakat, vagy kérj kevesebb választási lehetőséget!";

std::vector<Text> letters_of(const Text& word, bool english) {
  kszöveg text;
  text.szövegnyelv(english ? kszöveg::angol : kszöveg::magyar);
  text.value(word);
  std::vector<Text> letters;
  for (int i = 1; i <= text.MAGYARBETŰKSZÁMA(); ++i) letters.push_back(text.szóbetűje(int(i)));
  return letters;
}

Text joined(const std::vector<Text>& letters) {
  Text word;
  for (const Text& letter : letters) word += letter;
  return word;
}

// Between the first letter and the last; a digraph counts as the character that it begins with.
bool has_enough_kinds(const std::vector<Text>& letters) {
  std::set<char16_t> kinds;
  for (std::size_t i = 1; i + 1 < letters.size(); ++i) kinds.insert(letters[i].front());
  return static_cast<int>(kinds.size()) >= inner_kinds;
}

// Whether swaps of two inner letters make so many different words, none of them the word itself.
bool has_wrong_forms(std::vector<Text> letters, int wanted) {
  const Text word = joined(letters);
  std::set<Text> forms;
  for (std::size_t a = 1; a + 1 < letters.size(); ++a) {
    for (std::size_t b = a + 1; b + 1 < letters.size(); ++b) {
      std::swap(letters[a], letters[b]);
      if (Text form = joined(letters); form != word) forms.insert(std::move(form));
      std::swap(letters[a], letters[b]);
      if (static_cast<int>(forms.size()) >= wanted) return true;
    }
  }
  return false;
}

} // namespace

frm_betűkeverő_beáll::frm_betűkeverő_beáll(Session& session)
    : SettingsDialog(session, u"frm_betűkeverő_beáll", {5640, 4680}, u"Cserkó - Betűkeveredő beállítások",
                     u"betűkeverő.ini"),
      WordLanguage(*this, {120, 120}),
      WordLengths(*this, {120, 1140}, 5) {
  lbl_szavakszáma.Centered = false;
  txt_szavakszáma.AccessibleName = lbl_szavakszáma.Caption;
  opt_nyelv.Click = [this](int /*index*/) { show_options(); };
  set_fields({&ud_minbetűszám, &ud_maxbetűszám, &Chk_szótagolva, &ud_szavakszáma,
              OppositeOptions{&opt_nyelv[0], &opt_nyelv[1]}});
  set_buttons(OKButton, CancelButton);
  set_help(cmd_súgó, u"Bteűkeverő - beállítások.mht");
}

void frm_betűkeverő_beáll::after_read(bool /*from_file*/) { show_options(); }

void frm_betűkeverő_beáll::show_options() { Chk_szótagolva.Enabled = !english(); }

void frm_betűkeverő_beáll::apply() {
  auto& exercise = session().window<frm_betűkeverő>();
  exercise.ablakbeállítás();
  exercise.beáll();
}

frm_betűkeverő::frm_betűkeverő(Session& session)
    : ExerciseWindow(session, u"frm_betűkeverő", {9015, 6280}, u"Cserkó - Betűkeveredő"),
      results_(session, pic_eredménykép) {
  kép.TabStop = false;
  kép.Border = true;
  lbl_szó[0].Border = true;
  lbl_szó[0].Choosable = true;
  lbl_szó[0].WordWrap = false;
  pic_eredménykép.design_places({{120, 4800}, {1603, 4800}, {3086, 4800}, {4569, 4800}, {6052, 4800}, {7535, 4800}});
  lbl_szó.Click = [this](int index) { lbl_szó_click(index); };
  Timer1.Tick = [this] {
    Timer1.Enabled = false;
    találat_kész();
    beáll();
  };
  mnu_fájl_újjáték.Click = [this] { beáll(); };
  set_settings_entry<frm_betűkeverő_beáll>(mnu_fájl_beáll, DialogAtClose::Goes);
  set_close_entry(mnu_fájl_kilép);
  set_help_entry(mnu_súgó_súgó, u"Betűkeverő - a feladat.mht");
}

void frm_betűkeverő::Load() {
  fill_screen({&lbl_feladat});
  ablakbeállítás();
  results_.clear();
  deal_first([this] { beáll(); });
}

void frm_betűkeverő::ablakbeállítás() {
  stack(lbl_szó, settings().ud_szavakszáma.value(), kép.Height, gap);
  set_focus(&lbl_szó[0]);
}

void frm_betűkeverő::beáll() {
  deal([this] {
    no_puzzle();
    english_ = settings().english();
    szó_index_ = szó_választás();
    show_record_picture(session(), kép, szó_index_);
    szavak_kiírása();
    fit_spellings();
  });
}

void frm_betűkeverő::no_puzzle() {
  // A word that was just found may still be on its way into the row.
  Timer1.Enabled = false;
  clear_picture(kép);
  lbl_szó.each([](Label& spelling) {
    spelling.Caption.clear();
    spelling.Tag.clear();
  });
}

int frm_betűkeverő::szó_választás() {
  platform().seed_random();
  const LengthRange lengths = settings().lengths();
  const WordForm form = word_form(english_, false);
  const WordForm shown = word_form(english_, settings().Chk_szótagolva.ticked());
  const int wrong = lbl_szó.count() - 1;
  return képek().draw(
      platform(),
      [&](int index) {
        if (!lengths.allows(képek().word_length(index, english_)) || index == szó_index_ ||
            képek().word(index, shown).empty())
          return false;
        const std::vector<Text> letters = letters_of(képek().word(index, form), english_);
        return has_enough_kinds(letters) && has_wrong_forms(letters, wrong);
      },
      advice);
}

void frm_betűkeverő::szavak_kiírása() {
  const bool syllables = settings().Chk_szótagolva.ticked();
  const Text& word = képek().word(szó_index_, word_form(english_, false));
  // Never the uppermost, which is intended.
  const int right = random_below(platform(), lbl_szó.count() - 1) + 1;
  lbl_szó.each([&](Label& spelling) {
    if (spelling.Index == right) {
      spelling.Tag = word;
      spelling.Caption = képek().word(szó_index_, word_form(english_, syllables));
      return;
    }
    spelling.Tag = wrong_form(word, spelling.Index);
    spelling.Caption = syllables && !english_ ? szó_szótagolás(spelling.Tag) : spelling.Tag;
  });
}

// The draw of the word has seen to it that there are enough of them.
Text frm_betűkeverő::wrong_form(const Text& word, int label) {
  for (;;) {
    Text form = english_ ? keverés_angol(word) : keverés_magyar(word);
    bool taken = form == word;
    for (int above = 0; above < label; ++above) taken = taken || lbl_szó[above].Tag == form;
    if (!taken) return form;
  }
}

Text frm_betűkeverő::keverés_magyar(const Text& word) { return swapped(letters_of(word, false)); }

Text frm_betűkeverő::keverés_angol(const Text& word) { return swapped(letters_of(word, true)); }

Text frm_betűkeverő::swapped(std::vector<Text> letters) {
  const int inner = static_cast<int>(letters.size()) - 2;
  const auto letter = [&](int place) -> Text& { return letters[static_cast<std::size_t>(place) + 1]; };
  const int a = random_below(platform(), inner);
  const int b = draw_below(
      platform(), inner, [&](int place) { return letter(place) != letter(a); }, advice);
  std::swap(letter(a), letter(b));
  return joined(letters);
}

Text frm_betűkeverő::szó_szótagolás(TextView word) {
  const kszöveg text(word);
  const int n = text.MAGYARBETŰKSZÁMA();
  const auto vowel = [&](int i) { return text.EzabetűMagánhangzóE(i); };
  const auto consonant = [&](int i) { return !vowel(i) && text.szóbetűje(int(i)) != u" "; };
  Text syllables;
  bool vowel_seen = false;
  for (int i = 1; i <= n; ++i) {
    const Text letter = text.szóbetűje(int(i));
    syllables += letter;
    if (letter == u" ") continue;
    vowel_seen = vowel_seen || vowel(i);
    if (i < n && vowel(i) && vowel(i + 1)) syllables += u'-';
    if (i < n - 1 && consonant(i + 1) && vowel(i + 2) && vowel_seen) syllables += u'-';
  }
  return syllables;
}

// All in one size, the largest that suits each of them: otherwise size could tell the right one.
void frm_betűkeverő::fit_spellings() {
  double size = 0;
  lbl_szó.each([&](Label& spelling) {
    spelling.Visible = true;
    spelling.ForeColor = black;
    szöveg_illesztés(spelling);
    size = spelling.Index == 0 ? spelling.Font.size : std::min(size, spelling.Font.size);
  });
  lbl_szó.each([&](Label& spelling) { spelling.Font.size = size; });
}

bool frm_betűkeverő::is_right(const Text& spelling) const {
  const KépAdat& record = képek()[szó_index_];
  return english_ ? spelling == record.angol : spelling == record.név || spelling == record.szótagolt;
}

void frm_betűkeverő::lbl_szó_click(int index) {
  if (!has_puzzle() || Timer1.Enabled) return;
  if (!answer_sound(session(), is_right(lbl_szó[index].Caption))) return;
  lbl_szó.each([&](Label& spelling) { spelling.Visible = spelling.Index == index; });
  lbl_szó[index].ForeColor = red;
  Timer1.Enabled = true;
}

void frm_betűkeverő::találat_kész() {
  results_.add_drawn(szó_index_, {.szótagolt = settings().Chk_szótagolva.ticked()});
}

} // namespace cserko
