#include "tests/tour/story.h"

#include "core/exercise_table.h"
#include "core/frame.h"
#include "core/frm_főablak.h"
#include "core/frm_grafikus_főablak.h"
#include "core/settings.h"
#include "feedback/frm_dobszerkó.h"
#include "feedback/frm_hangbeáll.h"
#include "feedback/frm_zenebeáll.h"
#include "feedback/message_panels.h"
#include "feedback/névjegy.h"
#include "platform/input.h"
#include "platform/qt/sound_player.h"
#include "tests/tour/tour_hand.h"
#include "tests/tour/window_stops.h"

#include <QApplication>
#include <QMenuBar>
#include <QWindow>
#include <algorithm>

namespace cserko::tour {

namespace {

constexpr TextView long_text =
    u"Ez a szó sajnos nem szerepel az általam használt adatbázisban. Nézd meg még egyszer jól a betűket, olvasd el "
    u"lassan, és próbáld meg más sorrendben kirakni! Ha nem megy, kérj segítséget!";

template<class W> W& as(Window& window) { return static_cast<W&>(window); }

void lay_out_main_window(Guide& guide, Session& session) {
  guide.picture(main_window, "main-slide-show", true);
  guide.act(main_window, [](Window& window) { input::click(as<frm_főablak>(window).dísz); });
  guide.act(main_window, [](Window& window) { as<frm_főablak>(window).cserélő = 20; });
  guide.picture(main_window, "main-next-slide", true);
  guide.act(main_window, [&session](Window& window) {
    session.window<frm_főablak_beállítások>().Chkcserkózás.set_value(1);
    as<frm_főablak>(window).cserélő = 21;
  });
  guide.act(
      main_window, [](Window&) {}, [](Window& window) { return as<frm_főablak>(window).cserélő < 21; });
  guide.picture(main_window, "main-letters-swapped", true);
}

// The menus of a main window, one after the other.
void lay_out_menus(Guide& guide, WatchedPlatform& platform, TextView name, const std::vector<std::string>& pictures) {
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    guide.act(name, [&platform, i](Window& window) {
      auto* bar = platform.view_of(window)->findChild<QMenuBar*>();
      bar->setActiveAction(bar->actions().at(static_cast<int>(i)));
    });
    guide.act(
        name, [](Window&) {},
        [](Window&) {
          const QWidget* menu = QApplication::activePopupWidget();
          return menu != nullptr && menu->windowHandle() != nullptr && menu->windowHandle()->isExposed();
        });
    guide.picture(name, pictures[i]);
    guide.act(name, [](Window&) { QApplication::activePopupWidget()->close(); });
  }
}

// The decoration stands still behind them.
void lay_out_main_menus(Guide& guide, WatchedPlatform& platform) {
  guide.act(main_window, [](Window& window) { as<frm_főablak>(window).Timer1.Enabled = false; });
  lay_out_menus(guide, platform, main_window, {"main-menu-file", "main-menu-rewards"});
  guide.act(main_window, [](Window& window) { as<frm_főablak>(window).Timer1.Enabled = true; });
}

void lay_out_figures(Guide& guide, Session& session) {
  constexpr TextView settings = u"frm_főablak_beállítások";
  guide.act(main_window, [](Window& window) { input::click(as<frm_főablak>(window).mnu_fájl_főablak_beállításai); });
  guide.picture(settings, "main-settings");
  guide.act(settings, [](Window& window) { input::toggle(as<frm_főablak_beállítások>(window).rajz); });
  guide.picture(settings, "main-settings-drawing");
  guide.act(settings, [](Window& window) { input::click(as<frm_főablak_beállítások>(window).OKButton); });
  for (int figure = 0; figure < LineDrawing::figures; ++figure) {
    guide.act(main_window, [figure](Window& window) {
      auto& main = as<frm_főablak>(window);
      input::click(main.dísz);
      main.drawing.alak = static_cast<std::int16_t>(figure);
      main.drawing.szürke = 0;
      const int ticks = figure < 7 ? 28 : 400;
      for (int i = 0; i < ticks; ++i) input::tick(main.Timer1);
    });
    guide.picture(main_window, "main-figure-" + std::to_string(figure), true);
  }
  guide.act(main_window, [&session](Window&) { session.window<frm_főablak_beállítások>().rajz.set_value(0); });
}

// There by the settings and back again: in between the same entry stands in the menu of the other window.
void lay_out_graphic_window(Guide& guide, WatchedPlatform& platform) {
  constexpr TextView graphic = u"frm_grafikus_főablak";
  constexpr TextView settings = u"frm_főablak_beállítások";
  const auto change_over = [&](const std::string& name) {
    guide.act(settings,
              [](Window& window) { input::toggle(as<frm_főablak_beállítások>(window).chk_grafikus_főablak); });
    guide.picture(settings, name);
    guide.act(settings, [](Window& window) { input::click(as<frm_főablak_beállítások>(window).OKButton); });
  };
  guide.act(main_window, [](Window& window) { input::click(as<frm_főablak>(window).mnu_fájl_főablak_beállításai); });
  change_over("main-settings-graphic");
  guide.picture(graphic, "graphic");
  lay_out_menus(guide, platform, graphic, {"graphic-menu-file", "graphic-menu-rewards", "graphic-menu-help"});
  guide.act(graphic, [](Window& window) {
    input::mouse_move(as<frm_grafikus_főablak>(window).img_játék[7], {MouseButton::None, shift::none, 300, 300});
  });
  guide.picture(graphic, "graphic-lit");
  guide.act(graphic, [](Window&) { press_key(Qt::Key_Down); });
  guide.picture(graphic, "graphic-lit-by-keyboard");
  guide.act(graphic, [](Window& window) {
    touch_mouse();
    input::mouse_move(as<frm_grafikus_főablak>(window).lbl_feladat[19], {MouseButton::None, shift::none, 60, 60});
  });
  guide.picture(graphic, "graphic-longest-name-lit");
  guide.act(graphic, [](Window& window) { input::click(as<frm_grafikus_főablak>(window).mnu_fájl_főablak_beáll); });
  change_over("main-settings-text");
}

void lay_out_sounds(Guide& guide) {
  constexpr TextView sounds = u"frm_hangbeáll";
  guide.act(main_window,
            [](Window& window) { input::click(as<frm_főablak>(window).mnu_file_eseményhangok_beállításai); });
  guide.picture(sounds, "event-sounds");
  guide.act(sounds, [](Window& window) {
    auto& dialog = as<frm_hangbeáll>(window);
    input::select(dialog.Filelist, 0);
    input::click(dialog.cmd_helyeshang_add);
    input::select(dialog.lst_gratulahang, 0);
  });
  guide.picture(sounds, "event-sounds-selected");
  guide.act(sounds, [](Window& window) { input::click(as<frm_hangbeáll>(window).cmd_mégsem); });
}

void lay_out_music(Guide& guide) {
  constexpr TextView music = u"frm_zenebeáll";
  guide.act(main_window, [](Window& window) { input::click(as<frm_főablak>(window).mnu_fájl_zenebeállítások); });
  guide.picture(music, "music");
  guide.act(music, [](Window& window) { input::select(as<frm_zenebeáll>(window).list_playlist, 1); });
  guide.picture(music, "music-title-selected");
  guide.act(music, [](Window& window) { input::select(as<frm_zenebeáll>(window).filelist_zene, 3); });
  guide.picture(music, "music-selected-in-both-lists");
  for (const auto& [name, reason] :
       {std::pair{"music-without-device", no_device}, {"music-without-instruments", no_instruments}}) {
    guide.act(music, [reason](Window& window) { as<frm_zenebeáll>(window).lbl_csend.Caption = reason; });
    guide.picture(music, name);
  }
  guide.act(music, [](Window& window) { input::click(as<frm_zenebeáll>(window).cmd_mégsem); });
}

void lay_out_drum(Guide& guide) {
  constexpr TextView drum = u"frm_dobszerkó";
  guide.act(main_window, [](Window& window) { input::click(as<frm_főablak>(window).mnu_jutalomjáték_dobolás); });
  guide.picture(drum, "drum");
  guide.act(drum, [](Window& window) { input::key_down(window, {'G', shift::none, u'g'}); });
  guide.picture(drum, "drum-struck");
  guide.act(drum, [](Window& window) { input::click(as<frm_dobszerkó>(window).billentyű[u',']); });
  guide.picture(drum, "drum-comma");
  guide.act(drum, [](Window& window) { input::close(window); });
}

template<class Panel>
void lay_out_panel(Guide& guide, Session& session, TextView name, const std::string& picture,
                   std::function<void(Panel&)> fill, Button Panel::*button) {
  guide.act(main_window, [&session, fill](Window&) {
    auto& panel = session.window<Panel>();
    fill(panel);
    session.platform().show_modal(panel);
  });
  guide.picture(name, picture);
  guide.act(name, [button](Window& window) { input::click(as<Panel>(window).*button); });
}

void lay_out_timed_panel(Guide& guide, Session& session, const std::string& picture, TextView text) {
  constexpr TextView name = u"frm_szövegüzenet";
  guide.act(main_window, [&session, text](Window&) { szöveges_üzenet(session, Text(text), 0); });
  guide.picture(name, picture);
  guide.act(name, [](Window& window) { input::click(as<frm_szövegüzenet>(window).cmd_ok); });
}

void lay_out_panels(Guide& guide, Session& session) {
  const auto text_panel = [&](const std::string& picture, TextView text) {
    lay_out_panel<szövegüzenet>(
        guide, session, u"szövegüzenet", picture, [text](szövegüzenet& panel) { panel.szöveg.set_caption(text); },
        &szövegüzenet::Command1);
  };
  text_panel("panel-short-text", u"Ügyes!");
  text_panel("panel-long-text", long_text);
  const auto picture_panel = [&](const std::string& picture, TextView text) {
    lay_out_panel<üzenet>(
        guide, session, u"üzenet", picture,
        [&session, text](üzenet& panel) {
          panel.üzenet_kép.Picture = session.platform().load_picture(session.képek[0].wmf);
          panel.üzenet_szöveg.set_caption(text);
        },
        &üzenet::Command1);
  };
  picture_panel("picture-panel", u"Kérlek, olvasd fel a kép nevét!");
  picture_panel("picture-panel-long-text", long_text);
  lay_out_timed_panel(guide, session, "timed-panel", u"Nyomtatok.");
  lay_out_timed_panel(guide, session, "timed-panel-long-text", u"Gyere, játszunk egy kicsit újra a betűkkel!");
  lay_out_timed_panel(guide, session, "timed-panel-without-text", u"");
  lay_out_panel<frm_üzenet>(
      guide, session, u"frm_üzenet", "named-picture-panel",
      [&session](frm_üzenet& panel) {
        panel.kép.Picture = session.platform().load_picture(session.képek[0].wmf);
        szöveg_illesztés(panel.név, Text(session.képek[0].név));
      },
      &frm_üzenet::cmd_ok);
  lay_out_panel<Névjegy>(
      guide, session, u"Névjegy", "about", [](Névjegy&) {}, &Névjegy::cmdOK);
}

bool is_exercise(TextView window) {
  return std::any_of(exercise_table.begin(), exercise_table.end(),
                     [window](const ExerciseEntry& entry) { return entry.window == window; });
}

// The stops of the windows beside the exercises that have any.
void lay_out_other_windows(Guide& guide, Session& session, WatchedPlatform& platform) {
  for (const Text& name : session.offered()) {
    const LayOut lay_out = is_exercise(name) ? nullptr : stops_in(name);
    if (lay_out != nullptr) lay_out(guide, session, platform);
  }
}

// The stops of each exercise, or a first look at one that has none.
void lay_out_exercises(Guide& guide, Session& session, WatchedPlatform& platform) {
  for (std::size_t i = 0; i < exercise_table.size(); ++i) {
    const TextView exercise = exercise_table[i].window;
    if (!session.offers(exercise)) continue;
    if (const LayOut lay_out = stops_in(exercise)) {
      lay_out(guide, session, platform);
      continue;
    }
    guide.act(main_window,
              [i](Window& window) { input::click(as<frm_főablak>(window).cmd_játék[static_cast<int>(i)]); });
    guide.picture(exercise, "exercise-" + std::to_string(i));
    guide.act(exercise, [](Window& window) { input::close(window); });
  }
}

} // namespace

void lay_out(Guide& guide, Session& session, WatchedPlatform& platform) {
  for (const Text& name : session.offered()) guide.must_see(name);
  platform.attached = [&guide](Window& window) {
    if (dynamic_cast<SettingsDialog*>(&window) != nullptr) guide.must_see(window.Name);
  };
  guide.for_help("main-next-slide", "main_window", 602);
  guide.for_help("event-sounds-selected", "event_sounds", 642);
  guide.for_help("music-selected-in-both-lists", "music", 522);
  guide.for_help("graphic-lit", "graphic_main_window", 602);
  guide.intended.push_back({u"frm_grafikus_főablak", u"img_játék", u"háttér"}); // the light lies around the picture
  lay_out_main_window(guide, session);
  lay_out_main_menus(guide, platform);
  lay_out_figures(guide, session);
  lay_out_graphic_window(guide, platform);
  lay_out_sounds(guide);
  lay_out_music(guide);
  lay_out_drum(guide);
  lay_out_other_windows(guide, session, platform);
  lay_out_panels(guide, session);
  lay_out_exercises(guide, session, platform);
  guide.act(main_window, [](Window& window) { input::click(as<frm_főablak>(window).mnu_fájl_kilépés); });
}

} // namespace cserko::tour
