#include "exercises/syllables/frm_szótagkereső.h"

#include "core/numbers.h"
#include "feedback/sounds.h"

namespace cserko {

namespace {

constexpr TextView help_page = u"Szótagkereső - a feladat.mht";
constexpr double right_margin = 100; // twips at the right edge of the tray where no syllable is put
constexpr double step_share = 0.02;  // of the picture's width, for an arrow key
constexpr Color red{255, 0, 0};

std::vector<Text> szótagok(TextView szótagolt) {
  std::vector<Text> pieces;
  for (std::size_t cut = szótagolt.find(u'-'); cut != TextView::npos; cut = szótagolt.find(u'-')) {
    pieces.emplace_back(szótagolt.substr(0, cut));
    szótagolt.remove_prefix(cut + 1);
  }
  pieces.emplace_back(szótagolt);
  return pieces;
}

} // namespace

frm_szótagkereső_beáll::frm_szótagkereső_beáll(Session& session)
    : SettingsDialog(session, u"frm_szótagkereső_beáll", {5640, 2640}, u"Cserkó - Szótagkereső beállítások",
                     u"szótagkereső.ini") {
  for (Label* heading : {&lbl_minszótagszám, &lbl_maxszótagszám}) heading->Centered = false;
  txt_minszótagszám.AccessibleName = lbl_minszótagszám.Caption;
  txt_maxszótagszám.AccessibleName = lbl_maxszótagszám.Caption;
  set_fields({&ud_minszótagszám, &ud_maxszótagszám, &chk_képnélkül});
  set_buttons(OKButton, CancelButton);
  set_help(cmd_súgó, help_page);
}

void frm_szótagkereső_beáll::apply() {
  auto& exercise = session().window<frm_szótagkereső>();
  exercise.megoldott_felvétele();
  exercise.beáll();
}

frm_szótagkereső::frm_szótagkereső(Session& session)
    : ExerciseWindow(session, u"frm_szótagkereső", {7455, 7935}, u"Cserkó - Szótagkereső"),
      results_(session, pic_eredmény, lbl_eredmény, ResultPanel::Fit::OneLine) {
  kép.TabStop = false;
  kép.Border = true;
  szövegtároló.Border = true;
  szövegtároló.AccessibleName = u"Szótagok";
  pic_eredmény.design_places({{5520, 360}, {5520, 2640}, {5520, 4920}});
  lbl_eredmény.design_places({{5520, 2160}, {5520, 4440}, {5520, 6720}});
  szövegtároló.MouseDown = [this](const MouseEvent& event) { szövegtároló_press(event); };
  cmd_kész.Default = true;
  cmd_kész.Click = [this] {
    kész();
    // The space bar belongs to the syllables again.
    set_focus(&szövegtároló);
  };
  Timer1.Tick = [this] {
    eredmény_felvétele();
    beáll();
  };
  set_settings_entry<frm_szótagkereső_beáll>(mnu_fájl_beáll, DialogAtClose::Goes);
  set_close_entry(mnu_fájl_kilép);
  set_help_entry(mnu_súgó_súgó, help_page);
}

void frm_szótagkereső::Load() {
  fill_screen({&lbl_feladat});
  // The edges that the arrow keys keep to are those of the picture, so that they lead out of the tray; that is
  // intended.
  pieces_.keyboard = {static_cast<double>(rounded(step_share * kép.Width)), {kép.Width, kép.Height}};
  results_.clear();
  deal_first([this] { beáll(); });
  szöveg_illesztés(cmd_kész);
}

void frm_szótagkereső::beáll() {
  deal([this] {
    szövegtároló.Visible = false;
    feladat_törlés();
    aktuális_kép_ = szóválasztás();
    if (!settings().chk_képnélkül.ticked()) show_record_picture(session(), kép, aktuális_kép_);
    szótagok_kirakása(képek()[aktuális_kép_].szótagolt);
    szövegtároló.Visible = true;
  });
}

void frm_szótagkereső::no_puzzle() {
  feladat_törlés();
  szövegtároló.Visible = true;
}

void frm_szótagkereső::feladat_törlés() {
  pieces_.clear();
  clear_picture(kép);
  Label& first = lbl_szótag[0];
  first.Height = szövegtároló.Height / 3;
  first.Width = szövegtároló.Width / 2;
  first.ForeColor = black;
  cmd_kész.Visible = true;
  Timer1.Enabled = false;
}

int frm_szótagkereső::szóválasztás() {
  const int fewest = settings().ud_minszótagszám.value();
  const int most = settings().ud_maxszótagszám.value();
  return képek().draw(
      platform(),
      [&](int index) {
        const int syllables = képek().szótagszám(index);
        return index != aktuális_kép_ && syllables >= fewest && syllables <= most;
      },
      u"Nincs elég olyan szavunk, amelyiknek ennyi szótagja van.\r\nKérlek, engedj meg a beállításokban kevesebb vagy "
      u"több szótagot is!");
}

void frm_szótagkereső::szótagok_kirakása(TextView szótagolt) {
  const std::vector<Text> texts = szótagok(szótagolt);
  // The first syllable alone makes the size of them all.
  szöveg_illesztés(lbl_szótag[0], Text(texts.front()));
  szövegtároló.Font = lbl_szótag[0].Font;
  pieces_.show(texts, ScatteredPieces::Height::AsDesigned);
  pieces_.scatter(right_margin);
}

void frm_szótagkereső::szövegtároló_press(const MouseEvent& event) {
  if (!has_puzzle()) return;
  if (event.button == MouseButton::Left) {
    if (!pieces_.put_down(event)) pieces_.scatter(right_margin);
  } else if (event.button == MouseButton::Right) {
    szótagok_sorbarakása();
  }
}

void frm_szótagkereső::KeyDown(KeyEvent& event) {
  if (has_puzzle()) pieces_.key_down(event);
}

void frm_szótagkereső::szótagok_sorbarakása() {
  szövegtároló.Font = lbl_szótag[0].Font;
  const double row_width = platform().measure(szövegtároló.Font, képek()[aktuális_kép_].név).width;
  const std::vector<int> order = pieces_.line_up(row_width, ScatteredPieces::By::ExactLeft);
  // The arrows go on moving the selected syllable; only the leftmost keeps its mark.
  for (auto number = order.begin() + 1; number != order.end(); ++number)
    lbl_szótag[*number].Border = lbl_szótag[*number].Selected = false;
}

bool frm_szótagkereső::helyes_e() {
  Text answer;
  for (const int number : pieces_.by_left(ScatteredPieces::By::ExactLeft)) answer += u"-" + lbl_szótag[number].Caption;
  answer.erase(0, 1);
  if (answer == képek()[aktuális_kép_].szótagolt) return true;
  if (!settings().chk_képnélkül.ticked()) return false;
  // Nobody has seen a picture, so every word of these syllables is right; the last record too, though it is never
  // dealt.
  for (int i = 0; i <= képek().képszám; ++i) {
    if (képek()[i].szótagolt != answer) continue;
    aktuális_kép_ = i;
    return true;
  }
  return false;
}

void frm_szótagkereső::kész() {
  if (!has_puzzle()) return;
  szótagok_sorbarakása();
  if (!helyes_e()) {
    hiba_hang(session());
    return;
  }
  if (settings().chk_képnélkül.ticked()) show_record_picture(session(), kép, aktuális_kép_);
  helyes_hang(session());
  lbl_szótag.each([](Label& syllable) { syllable.ForeColor = red; });
  cmd_kész.Visible = false;
  Timer1.Enabled = true;
}

void frm_szótagkereső::eredmény_felvétele() {
  // The congratulation may stand for longer than the pause, and the word counts once.
  Timer1.Enabled = false;
  results_.add(aktuális_kép_, képek()[aktuális_kép_].szótagolt);
}

void frm_szótagkereső::megoldott_felvétele() {
  if (Timer1.Enabled) eredmény_felvétele();
}

} // namespace cserko
