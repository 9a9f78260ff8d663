// cserko-x11-roads ROAD: goes one of the roads between the main windows of the real program by events of the X server
// alone, into exercises and back, and out of the program. Exit status 1 and a line that says why where it leads
// elsewhere.
#include "core/frm_folyamat.h"
#include "core/frm_főablak.h"
#include "core/frm_grafikus_főablak.h"
#include "exercises/exercises.h"
#include "exercises/letters/frm_betűnézegető.h"
#include "exercises/letters/frm_cserkó.h"
#include "feedback/feedback.h"
#include "tests/players/played_exercise.h"
#include "tests/x11/steps.h"

#include <QApplication>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <cstdio>

namespace {

using namespace cserko;

constexpr TextView text_window = u"frm_főablak";
constexpr TextView graphic_window = u"frm_grafikus_főablak";
constexpr TextView work_file = u"c:\\pomzu\\cserko\\temp.bmp";
constexpr int letter_viewer_place = 0;
constexpr int scrambled_word_place = 14;

/// Notes which programs are started instead of starting them, and how often the records are read. The launcher is
/// there.
class Gatekeeper : public WatchedPlatform {
 public:
  bool program_exists(const Text& path) const override { return path == application_folder() + u"portál.exe"; }
  void start_process(const Text& command_line, ProcessWindow) override { started.push_back(command_line); }
  void attach(Window& window) override {
    if (window.Name == u"FrmFolyamat") ++readings;
    WatchedPlatform::attach(window);
  }

  std::vector<Text> started;
  int readings = 0;
};

class Traveller : public Steps {
 public:
  Traveller(Session& session, Gatekeeper& platform) : Steps(platform), session_(session) {}

  /// From the text window to the graphic one, into an exercise and back, and out as one came.
  void there_and_back() {
    switch_window(text_window);
    in(graphic_window, "start an exercise by mouse", [this] {
      expect(!shown(text_window), "the text window has stayed");
      hand().click(graphic().img_játék[scrambled_word_place]);
    });
    leave_exercise(u"frm_cserkó", u"mnu_fájl_kilép");
    switch_window(graphic_window);
    in(text_window, "start an exercise", [this] {
      expect(!session_.loaded<frm_grafikus_főablak>(), "the graphic window has stayed");
      hand().click(text().cmd_játék[0]);
    });
    leave_exercise(u"frm_cserkó", u"mnu_fájl_kilép");
    in(text_window, "leave", [this] { hand().key(key::escape, shift::none); });
  }

  void out_of_text() { choose(text_window, u"mnu_fájl", u"mnu_fájl_kilépés"); }

  /// From the start to the end with pictures alone, by the keyboard.
  void out_of_graphic() {
    in(graphic_window, "light the first place", [this] {
      expect(!session_.loaded<frm_főablak>(), "the text window was loaded");
      hand().key(key::right, shift::none);
    });
    in(graphic_window, "start its exercise", [this] {
      expect(graphic().háttér[letter_viewer_place].Visible, "nothing is lit");
      hand().key(key::enter, shift::none);
    });
    leave_exercise(u"frm_betűnézegető", u"mnu_fájl_kilép");
    in(graphic_window, "leave", [this] { hand().key(key::escape, shift::none); });
  }

  /// The graphic window that was called by the text window ends the program as that does.
  void out_of_graphic_by_text() {
    switch_window(text_window);
    choose(graphic_window, u"mnu_fájl", u"mnu_fájl_kilép");
  }

  void graphic_to_text() {
    switch_window(graphic_window);
    in(text_window, "leave", [this] {
      expect(!session_.loaded<frm_grafikus_főablak>(), "the graphic window has stayed");
      hand().key(key::escape, shift::none);
    });
  }

 private:
  frm_főablak& text() { return session_.window<frm_főablak>(); }
  frm_grafikus_főablak& graphic() { return session_.window<frm_grafikus_főablak>(); }
  bool shown(TextView name) const {
    const std::vector<Window*>& all = platform().shown_windows();
    return std::any_of(all.begin(), all.end(), [&](const Window* window) { return window->Name == name; });
  }

  void switch_window(TextView from) {
    choose(from, u"mnu_fájl", from == text_window ? u"mnu_fájl_főablak_beállításai" : u"mnu_fájl_főablak_beáll");
    in(u"frm_főablak_beállítások", "choose the other main window", [this] {
      auto& settings = session_.window<frm_főablak_beállítások>();
      hand().click(settings.chk_grafikus_főablak);
      hand().click(settings.OKButton);
    });
  }

  void leave_exercise(TextView window, TextView entry) {
    in(window, "look at the exercise", [this] { expect(shown(u"frmháttér"), "there is no backdrop"); });
    choose(window, u"mnu_fájl", entry);
  }

  Session& session_;
};

struct Road {
  std::string_view name;
  bool with_pictures; ///< The graphic window greets.
  void (Traveller::*way)();
  bool to_launcher; ///< The launcher comes back at the end.
  bool with_pictures_next_time;
};

constexpr std::array roads{Road{"there_and_back", false, &Traveller::there_and_back, false, false},
                           Road{"out_of_text", false, &Traveller::out_of_text, false, false},
                           Road{"out_of_graphic", true, &Traveller::out_of_graphic, true, true},
                           Road{"out_of_graphic_by_text", false, &Traveller::out_of_graphic_by_text, false, true},
                           Road{"graphic_to_text", true, &Traveller::graphic_to_text, false, false}};

// What a drawing has left goes at the end, and what was chosen last holds at the next start.
std::string fault_behind(const Road& road, Gatekeeper& platform) {
  if (platform.readings != 1) return "the records were read " + std::to_string(platform.readings) + " times";
  const std::vector<Text> launcher{platform.application_folder() + u"portál.exe klki"};
  if (platform.started != (road.to_launcher ? launcher : std::vector<Text>()))
    return road.to_launcher ? "the launcher was not started" : "a program was started";
  if (platform.files().exists(Text(work_file))) return "the work file is still there";
  Session next(platform);
  if (next.window<frm_főablak_beállítások>().chk_grafikus_főablak.ticked() != road.with_pictures_next_time)
    return "the next start has the other window";
  return {};
}

int travel(const Road& road) {
  const QTemporaryDir home;
  qputenv("CSERKO_USER_DIR", home.filePath("user").toUtf8());
  Gatekeeper platform;
  write_user_settings(platform.files(), u"főablak.ini",
                      road.with_pictures ? " 1 \r\n 0 \r\n 0 \r\n" : " 0 \r\n 0 \r\n 0 \r\n");
  platform.files().write(Text(work_file), "BM");
  std::string fault;
  {
    Session session(platform);
    install_feedback(session);
    install_exercises(session);
    Traveller traveller(session, platform);
    (traveller.*road.way)();
    session.Main();
    fault = traveller.trouble();
  }
  if (fault.empty()) fault = fault_behind(road, platform);
  if (!fault.empty()) std::fprintf(stderr, "%s\n", fault.c_str());
  return fault.empty() ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const std::string_view name = argc == 2 ? argv[1] : "";
  const auto* const road = std::find_if(roads.begin(), roads.end(), [&](const Road& any) { return any.name == name; });
  if (road == roads.end()) {
    std::fputs("usage: cserko-x11-roads ROAD\n", stderr);
    return 2;
  }
  return travel(*road);
}
