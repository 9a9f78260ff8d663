#include "core/kszöveg.h"
#include "exercises/sentences/frm_szóvillám.h"
#include "tests/players/szóvillám_player.h"
#include "tests/tour/visit.h"

namespace cserko::tour {

namespace {

using FlashVisit = Visit<frm_szóvillám, SzóvillámPlayer>;

constexpr TextView settings_window = u"frm_szóvillám_beáll";
constexpr int long_flash = 60000; // ms, so that a word stands still for its picture

// Counts on to the word and lets it stand.
void show_word(frm_szóvillám& window) {
  while (!window.Timer_villám.Enabled) window.Timer_visszaszámláló.Tick();
  window.Timer_villám.Interval = long_flash;
}

// Makes the record whose word is the longest the right one, and shows it.
void show_longest_word(const FlashVisit& visit, frm_szóvillám& window) {
  const int longest = worst_record(visit.session().képek, [](const KépAdat& record) {
    return kszöveg::letter_count(record.név) <= 17 ? record.név.size() : 0;
  });
  PictureBox& right = window.pic_feladványkép[window.helyes_hely()];
  const auto show = [&visit](PictureBox& picture, int record) {
    show_record_picture(visit.session(), picture, record);
    picture.Tag = to_text(record);
  };
  // Where chance has laid it into the ring already, the two change places: no word stands there twice.
  const int drawn = number_in(right.Tag).value();
  window.pic_feladványkép.each([&](PictureBox& picture) {
    if (picture.Tag == to_text(longest)) show(picture, drawn);
  });
  show(right, longest);
  show_word(window);
}

void lay_out_settings(Guide& guide, const FlashVisit& visit) {
  const auto in_dialog = [&guide](void (*deed)(frm_szóvillám_beáll&)) {
    guide.act(settings_window, [deed](Window& window) { deed(static_cast<frm_szóvillám_beáll&>(window)); });
  };
  visit.act([](frm_szóvillám& window) { input::click(window.mnu_fájl_beáll); });
  guide.picture(settings_window, "word-flash-settings");
  in_dialog([](frm_szóvillám_beáll& dialog) { dialog.ud_mp.set_value(0); });
  guide.picture(settings_window, "word-flash-settings-no-time");
  in_dialog([](frm_szóvillám_beáll& dialog) {
    for (UpDown* number :
         {&dialog.ud_betszámmax, &dialog.ud_betszámmin, &dialog.ud_mp, &dialog.ud_tizedmp, &dialog.ud_századmp})
      number->set_value(number->Max);
  });
  guide.picture(settings_window, "word-flash-settings-longest");
  in_dialog([](frm_szóvillám_beáll& dialog) { input::click(dialog.CancelButton); });
}

void look_at_english(Guide& guide, const FlashVisit& visit) {
  const auto speak = [&](int language, const std::string& name) {
    visit.act([](frm_szóvillám& window) { input::click(window.mnu_fájl_beáll); });
    guide.act(settings_window, [language](Window& window) {
      input::choose(static_cast<frm_szóvillám_beáll&>(window).opt_nyelv[language]);
    });
    guide.picture(settings_window, name);
    guide.act(settings_window,
              [](Window& window) { input::click(static_cast<frm_szóvillám_beáll&>(window).OKButton); });
  };
  speak(1, "word-flash-settings-english");
  visit.act(show_word);
  visit.look("-english");
  speak(0, "word-flash-settings-hungarian");
}

void lay_out(Guide& guide, Session& session, WatchedPlatform& platform) {
  const FlashVisit visit(guide, session, platform, u"frm_szóvillám", "word-flash");
  // The design lays the strip one pixel into the ring and its button.
  guide.intended.push_back({u"frm_szóvillám", u"pic_feladványkép", u"Frame1"});
  guide.intended.push_back({u"frm_szóvillám", u"Frame1", u"cmd_újra"});
  guide.for_help("word-flash-word", "word_flash", 522);
  guide.for_help("word-flash-settings", "word_flash_settings");
  visit.open();
  visit.act([](frm_szóvillám& window) {
    window.Timer_visszaszámláló.Enabled = false;
    while (window.visszaszámlálás() != 3) window.Timer_visszaszámláló.Tick();
    window.Timer_villám.Enabled = false;
  });
  visit.look("-countdown");
  visit.act(show_word);
  visit.look("-word");
  visit.act([](frm_szóvillám& window) {
    window.Timer_villám.Tick();
    window.Timer_kérdőjelmegjelenítő.Tick();
  });
  visit.look("-question-mark");
  visit.look_at_focus();
  lay_out_settings(guide, visit);
  visit.err();
  solve_one(visit, "-one-result");
  visit.act([visit](frm_szóvillám& window) { show_longest_word(visit, window); });
  visit.look("-longest-word");
  solve_one(visit, "-longest-result");
  look_at_english(guide, visit);
  visit.act([visit](frm_szóvillám& window) {
    // Cancel has kept the longest time, since there is no file to take another from.
    auto& settings = visit.session().window<frm_szóvillám_beáll>();
    for (UpDown* number : {&settings.ud_mp, &settings.ud_tizedmp}) number->set_value(0);
    window.Timer_visszaszámláló.Interval = 50;
    window.Timer_kérdőjelmegjelenítő.Interval = 100;
  });
  visit.solve_all();
  visit.close();
}

const Stops stops{u"frm_szóvillám", lay_out};

} // namespace

} // namespace cserko::tour
