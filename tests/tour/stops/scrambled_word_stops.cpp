#include "core/codepage.h"
#include "core/kszöveg.h"
#include "exercises/letters/frm_cserkó.h"
#include "feedback/frm_gratuláció.h"
#include "feedback/message_panels.h"
#include "platform/input.h"
#include "tests/tour/tour_hand.h"
#include "tests/tour/window_stops.h"

#include <algorithm>
#include <map>
#include <stdexcept>

namespace cserko::tour {

namespace {

constexpr TextView main_window = u"frm_főablak";
constexpr TextView exercise = u"frm_cserkó";
constexpr TextView settings_dialog = u"frm_cserkó_beáll";
constexpr TextView message = u"szövegüzenet";
constexpr TextView congratulation = u"frm_gratuláció";

frm_cserkó& game(Window& window) { return static_cast<frm_cserkó&>(window); }

int letters_of(const Text& word) { return kszöveg(word).MAGYARBETŰKSZÁMA(); }

/// A record whose letters are those of another word that has no picture.
struct TwoWords {
  int record = 0;
  Text other;
};

TwoWords record_with_other_word(const Session& session) {
  std::map<Text, int> by_letters;
  std::set<Text> names;
  for (int i = 0; i < session.képek.képszám; ++i) {
    const Text& name = session.képek[i].név;
    names.insert(name);
    if (letters_of(name) != static_cast<int>(name.size())) continue;
    Text letters = name;
    std::sort(letters.begin(), letters.end());
    by_letters.emplace(letters, i);
  }
  const auto bytes = session.platform().files().read(session.alapkönyvtár + u"ms.skt");
  if (!bytes) throw std::runtime_error("the word list is missing");
  LineReader lines(*bytes);
  while (!lines.end()) {
    const Text word = from_cp1250(lines.next());
    Text letters = word;
    std::sort(letters.begin(), letters.end());
    const auto found = by_letters.find(letters);
    if (found != by_letters.end() && names.count(word) == 0) return {found->second, word};
  }
  throw std::runtime_error("no record has the letters of another word");
}

// The record with the fewest or most letters of those that the exercise deals: the frame must hold the word.
template<class Better> int record_by_length(const Session& session, const frm_cserkó& window, Better better) {
  int chosen = -1;
  for (int i = 0; i < session.képek.képszám; ++i) {
    const Text& name = session.képek[i].név;
    const double width = session.platform().measure(window.kép.Font, name).width;
    if (letters_of(name) > 12 || width > 0.9 * window.kép.Width) continue;
    if (chosen < 0 || better(letters_of(name), letters_of(session.képek[chosen].név))) chosen = i;
  }
  return chosen;
}

// The deeds of the stops keep a copy of this, as it is gone when they happen.
class ScrambledWordStops {
 public:
  ScrambledWordStops(Guide& guide, Session& session, WatchedPlatform& platform)
      : guide_(guide), session_(session), platform_(platform) {}

  void all() const {
    open();
    play();
    answers();
    solve("solved", "congratulation-with-count");
    guide_.act(exercise, [*this](Window&) { session_.játékszámláló = 1; });
    solve("solved-again", "congratulation-with-rewards");
    settings();
    other_helps();
    longest_and_shortest();
    missing_picture();
    nothing_fits();
    guide_.act(exercise, [](Window& window) { input::click(game(window).mnu_fájl_kilép); });
  }

 private:
  // The next draw of a word takes this record.
  void deal(int record) const {
    platform_.chance = {(record + 0.5) / session_.képek.képszám};
    session_.window<frm_cserkó>().beáll();
  }

  void open() const {
    guide_.act(main_window, [*this](Window& window) {
      platform_.chance = {0.5};
      input::click(*window.find(u"cmd_játék", 0));
    });
    guide_.picture(exercise, "scrambled-word");
  }

  void play() const {
    guide_.act(exercise, [](Window& window) { input::key_down(window, {key::space, shift::none, u' '}); });
    guide_.picture(exercise, "scrambled-word-letter-selected");
    guide_.act(exercise, [](Window& window) { input::click(game(window).cmd_rendez); });
    guide_.picture(exercise, "scrambled-word-sorted");
    guide_.act(exercise, [](Window& window) { input::click(game(window).cmd_egybetűtfelfed); });
    close_message("scrambled-word-reveal");
  }

  void answers() const {
    guide_.act(exercise, [*this](Window& window) {
      const Text& word = session_.képek[game(window).feladat_index()].név;
      lay(game(window), Text(word.rbegin(), word.rend()));
      input::click(game(window).cmd_kész);
    });
    close_message("scrambled-word-wrong-answer");
    guide_.act(exercise, [*this](Window& window) {
      const TwoWords words = record_with_other_word(session_);
      deal(words.record);
      lay(game(window), words.other);
      input::click(game(window).cmd_kész);
    });
    close_message("scrambled-word-other-word");
  }

  void close_message(const std::string& name) const {
    guide_.picture(message, name);
    guide_.act(message, [](Window& window) { input::click(static_cast<szövegüzenet&>(window).Command1); });
  }

  void solve(const std::string& solved, const std::string& praised) const {
    guide_.act(exercise, [*this](Window& window) {
      lay(game(window), session_.képek[game(window).feladat_index()].név);
      input::click(game(window).cmd_kész);
    });
    guide_.picture(exercise, solved);
    guide_.picture(congratulation, praised);
    if (praised == "congratulation-with-rewards") focus_on_praise();
    guide_.act(congratulation, [](Window& window) { input::click(static_cast<frm_gratuláció&>(window).cmd_ok); });
  }

  void settings() const {
    guide_.act(exercise, [](Window& window) { input::click(game(window).mnu_fájl_beálítások); });
    guide_.picture(settings_dialog, "scrambled-word-settings");
    guide_.act(settings_dialog,
               [](Window& window) { input::click(static_cast<frm_cserkó_beáll&>(window).CancelButton); });
  }

  // Without the help that is allowed at first, and with the one that is not.
  void other_helps() const {
    const auto change = [this](const std::string& name) {
      guide_.act(exercise, [](Window& window) { input::click(game(window).mnu_fájl_beálítások); });
      guide_.act(settings_dialog, [](Window& window) {
        auto& dialog = static_cast<frm_cserkó_beáll&>(window);
        for (CheckBox* help :
             {&dialog.chk_ismételt_keverés_engedélyezése, &dialog.chk_szórendezés_engedélyezés, &dialog.Chk_betűfelfed})
          input::toggle(*help);
        input::click(dialog.OKButton);
      });
      guide_.picture(exercise, name);
    };
    change("scrambled-word-reshuffle-allowed");
    guide_.act(exercise, [](Window& window) { input::click(game(window).cmd_újrakever); });
    guide_.picture(exercise, "scrambled-word-reshuffled");
    change("scrambled-word-usual-helps");
  }

  void focus_on_praise() const {
    guide_.act(congratulation, [](Window& window) {
      press_key(Qt::Key_Tab);
      input::focus(static_cast<frm_gratuláció&>(window).cmd_ok);
    });
    guide_.picture(congratulation, "congratulation-focus");
    guide_.act(congratulation, [](Window&) { touch_mouse(); });
  }

  void longest_and_shortest() const {
    const auto show = [this](const std::string& name, auto better) {
      guide_.act(exercise, [*this, better](Window& window) { deal(record_by_length(session_, game(window), better)); });
      guide_.picture(exercise, name);
      guide_.act(exercise, [](Window& window) { input::click(game(window).cmd_rendez); });
      guide_.picture(exercise, name + "-sorted");
    };
    show("scrambled-word-shortest", [](int letters, int best) { return letters < best; });
    show("scrambled-word-longest", [](int letters, int best) { return letters > best; });
  }

  void missing_picture() const {
    guide_.act(exercise, [*this](Window& window) {
      platform_.missing_pictures = {session_.képek[game(window).feladat_index()].wmf};
    });
    solve("solved-without-picture", "congratulation-again");
    guide_.act(exercise, [*this](Window&) { platform_.missing_pictures.clear(); });
  }

  void nothing_fits() const {
    guide_.act(exercise, [*this](Window& window) {
      // Of one word alone it is known which length it has not.
      const std::int16_t last = session_.képek.képszám;
      session_.képek.képszám = 1;
      auto& dialog = session_.window<frm_cserkó_beáll>();
      dialog.opt_betszám[0].set_value(true);
      dialog.udbetszám.set_value(letters_of(session_.képek[0].név) == 12 ? 11 : 12);
      input::click(game(window).mnu_fájl_újfeladat);
      session_.képek.képszám = last;
    });
    close_message("nothing-fits");
  }

  // Lays the letters out in a row that reads as the word.
  void lay(frm_cserkó& window, const Text& word) const {
    std::set<int> used;
    double left = 0;
    Text rest = word;
    while (!rest.empty()) {
      const int letter = letter_for(window, rest, used);
      used.insert(letter);
      Label& label = window.betű[letter];
      label.move_to(left, window.kép.Height / 3);
      left += label.Width;
      rest.erase(0, label.Caption.size());
    }
  }

  // The longest unused letter with which the text begins.
  static int letter_for(frm_cserkó& window, const Text& text, const std::set<int>& used) {
    int chosen = -1;
    for (int i = 0; i < window.betű.count(); ++i) {
      const Text& caption = window.betű[i].Caption;
      if (used.count(i) != 0 || !text.starts_with(caption)) continue;
      if (chosen < 0 || caption.size() > window.betű[chosen].Caption.size()) chosen = i;
    }
    // What was reversed letter by letter may split a letter of two characters: any order of its letters will do.
    for (int i = 0; chosen < 0 && i < window.betű.count(); ++i) {
      if (used.count(i) == 0) chosen = i;
    }
    if (chosen < 0) throw std::runtime_error("the board lacks letters");
    return chosen;
  }

  Guide& guide_;
  Session& session_;
  WatchedPlatform& platform_;
};

void lay_out(Guide& guide, Session& session, WatchedPlatform& platform) {
  guide.intended.push_back({exercise, u"lbl_megoldás", u"kép"}); // by one pixel of the design
  guide.for_help("scrambled-word", "scrambled_word");
  guide.for_help("scrambled-word-settings", "scrambled_word_settings");
  guide.for_help("congratulation-with-count", "congratulation", 422);
  ScrambledWordStops(guide, session, platform).all();
}

const Stops stops{exercise, lay_out};

} // namespace

} // namespace cserko::tour
