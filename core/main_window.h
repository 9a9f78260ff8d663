// What the text and the graphic main window have in common: title, menu entries, help, and the start of an exercise.
#pragma once

#include "core/frm_főablak_beállítások.h"

namespace cserko {

/// The captions of the menu entries that both main windows have, under names of their own.
namespace main_menu {
inline constexpr TextView file = u"&Fájl";
inline constexpr TextView settings = u"&Főablak beállításai";
inline constexpr TextView sounds = u"&Eseményhangok beállításai";
inline constexpr TextView music = u"&Zene beállítások";
inline constexpr TextView leave = u"Kilépés";
inline constexpr TextView rewards = u"Jutalomjáték";
inline constexpr TextView drum = u"Dobolás időkorlát nélkül";
inline constexpr TextView drawing = u"Rajzolás időkorlát nélkül";
} // namespace main_menu

class MainWindow : public Window {
 public:
  /// Starts an exercise on the backdrop and returns when it is over.
  virtual void indítás(TextView exercise);

  void Activate() override;

 protected:
  MainWindow(Session& session, TextView name, Size design);

  Session& session() const { return session_; }
  frm_főablak_beállítások& settings() const { return session_.window<frm_főablak_beállítások>(); }

  struct Entries {
    MenuItem& sounds;
    MenuItem& music;
    MenuItem& drum;
    MenuItem& drawing;
  };
  /// Binds the entries; one whose window is not built is disabled.
  void bind_entries(const Entries& entries);

  /// Shows the settings of the music, which is silent meanwhile.
  virtual void zenebeállítások();
  /// Opens the help of the suite.
  void open_help();

 private:
  void free_reward(TextView window, TextView closing_timer);

  Session& session_;
};

} // namespace cserko
