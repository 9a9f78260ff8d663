#include "exercises/syllables/frm_merremutat.h"

#include "core/codepage.h"
#include "feedback/sounds.h"

#include <algorithm>

namespace cserko {

namespace {

constexpr int directions = 4;
constexpr TextView help_page = u"Merre mutat - a feladat.mht";
constexpr TextView no_pictures =
    u"Nem találom azokat a képeket, amelyek mutatnak valamerre.\r\nKérlek, szólj egy felnőttnek: a programot újra "
    u"kell telepíteni!";
constexpr TextView none_that_way =
    u"Nincs olyan képünk, amelyik a kért irányba mutat.\r\nKérlek, válassz a beállításokban más irányokat!";

struct Irányszó {
  TextView in_file_names;
  TextView answer;
};
constexpr std::array<Irányszó, directions> irányszó{
    {{u"bal", u"balra"}, {u"fel", u"fel"}, {u"jobb", u"jobbra"}, {u"le", u"le"}}};

const Irányszó& word_of(int direction) { return irányszó.at(static_cast<std::size_t>(direction)); }

// The first line of the file without a mark of its own: one is added when it is asked.
Text question_in(std::string_view bytes) {
  Text question = from_cp1250(LineReader(bytes).next().substr(0, Records::longest_field));
  question.resize(question.find_last_not_of(u"? \t") + 1);
  return question;
}

// The name of a file up to its ending.
TextView base_of(TextView name) {
  const std::size_t ending = name.find(u".swm");
  return name.substr(0, ending == TextView::npos ? name.rfind(u'.') : ending);
}

} // namespace

frm_merremutat_beáll::frm_merremutat_beáll(Session& session)
    : SettingsDialog(session, u"frm_merremutat_beáll", {5640, 2880}, u"Cserkó - Merre mutat? - Beállítások",
                     u"merremutat.ini") {
  set_fields({&opt_irány[0], &opt_irány[1], &opt_irány[2]});
  set_buttons(OKButton, CancelButton);
  set_help(cmd_súgó, help_page);
}

bool frm_merremutat_beáll::allows(int direction) const {
  const bool sideways = direction % 2 == 0;
  return opt_irány[2].value() || opt_irány[0].value() == sideways;
}

void frm_merremutat_beáll::apply() { session().window<frm_merremutat>().beáll(); }

frm_merremutat::frm_merremutat(Session& session)
    : ExerciseWindow(session, u"frm_merremutat", {10815, 8055}, u"Cserkó - Merre mutat?"),
      results_(session, pic_eredmény, lbl_eredmény, ResultPanel::Fit::OneLine) {
  Picture2.TabStop = false;
  kép.TabStop = false;
  kép.Border = true;
  pic_eredmény.design_places({{120, 240}, {120, 2760}, {120, 5520}, {2040, 240}, {2040, 2760}, {2040, 5520}});
  lbl_eredmény.design_places({{120, 2040}, {120, 4560}, {120, 7320}, {2040, 2040}, {2040, 4560}, {2040, 7320}});
  cmd_irány.design_places({{240, 120}, {3360, 120}, {1800, 120}, {4920, 120}});
  cmd_irány.Click = [this](int button) { cmd_irány_click(button); };
  set_settings_entry<frm_merremutat_beáll>(mnu_fájl_beáll, DialogAtClose::Goes);
  set_close_entry(mnu_fájl_kilép);
  set_help_entry(mnu_súgó_súgó, help_page);
}

void frm_merremutat::Load() {
  fill_screen({});
  irányképek_betöltése();
  results_.clear();
  settings();
  deal_first([this] { beáll(); });
}

void frm_merremutat::irányképek_betöltése() {
  const Files& files = platform().files();
  const Text folder = session().alapkönyvtár + u"irkep\\";
  irányképek_.assign(1, {});
  for (const Text& name : files.list(folder + u"*.swm")) {
    IrányKép& motif = irányképek_.emplace_back();
    motif.kérdés = question_in(files.read(folder + name).value_or(std::string()));
    // Without a question nothing can be asked about its pictures.
    if (motif.kérdés.empty()) continue;
    for (int direction = 0; direction < directions; ++direction) {
      const Text path = folder + Text(base_of(name)) + u"_" + Text(word_of(direction).in_file_names) + u".wmf";
      if (files.exists(path)) motif.képfájl.at(static_cast<std::size_t>(direction)) = path;
    }
  }
}

void frm_merremutat::beáll() {
  deal([this] {
    platform().seed_random();
    képválasztás();
    // Some order always leaves no word where it was.
    while (!szavak_keverése()) {
    }
  });
}

void frm_merremutat::no_puzzle() {
  clear_picture(kép);
  lbl_feladat.Caption.clear();
  cmd_irány.each([](Button& button) {
    button.Caption.clear();
    button.Visible = false;
  });
}

const Text& frm_merremutat::képfájl(int motif, int direction) const {
  return irányképek_.at(static_cast<std::size_t>(motif)).képfájl.at(static_cast<std::size_t>(direction));
}

// Whether any motif is pictured that way.
bool frm_merremutat::mutat(int direction) const {
  return walk_on(0, static_cast<int>(irányképek_.size()) - 1, Round::No,
                 [&](int motif) { return !képfájl(motif, direction).empty(); })
      .has_value();
}

void frm_merremutat::képválasztás() {
  const int count = static_cast<int>(irányképek_.size());
  kép.Picture = nullptr;
  // A picture that cannot be drawn counts as missing from then on, so that the turns end.
  while (!kép.Picture) {
    const bool any = mutat(0) || mutat(1) || mutat(2) || mutat(3);
    irány_ = draw_below(
        platform(), directions, [this](int direction) { return settings().allows(direction) && mutat(direction); },
        any ? none_that_way : no_pictures);
    const int drawn = draw_below(
        platform(), count, [this](int motif) { return !képfájl(motif, irány_).empty(); }, none_that_way);
    IrányKép& motif = irányképek_.at(static_cast<std::size_t>(drawn));
    kép.Picture = platform().load_picture(képfájl(drawn, irány_));
    if (!kép.Picture) motif.képfájl.at(static_cast<std::size_t>(irány_)).clear();
    szöveg_illesztés(lbl_feladat, motif.kérdés + u"?");
  }
}

// Puts the words on the buttons; false where one of them would stay on the button that it is on.
bool frm_merremutat::szavak_keverése() {
  std::array<TextView, directions> words;
  const auto at = [&words](int place) -> TextView& { return words.at(static_cast<std::size_t>(place)); };
  for (int direction = 0; direction < directions; ++direction) {
    const int place = draw_below(
        platform(), directions, [&](int free) { return at(free).empty(); }, none_that_way);
    at(place) = word_of(direction).answer;
    if (cmd_irány[place].Caption == at(place)) return false;
  }
  cmd_irány.each([&](Button& button) {
    szöveg_illesztés(button, Text(at(button.Index)));
    button.Visible = true;
  });
  return true;
}

void frm_merremutat::cmd_irány_click(int button) {
  if (!has_puzzle()) return;
  if (!answer_sound(session(), cmd_irány[button].Caption == word_of(irány_).answer)) return;
  eredmény_felvétele();
  beáll();
}

void frm_merremutat::eredmény_felvétele() { results_.add(kép, word_of(irány_).answer); }

} // namespace cserko
