// Somebody changes the settings of the suite without end, on the real machine's disk. Each write is told as
// `TellingFiles` does. Meant to be killed at any moment.
//
// Usage: cserko-writes-settings SEED
#include "core/frm_főablak_beállítások.h"
#include "exercises/boards/frm_hosszrövid.h"
#include "exercises/boards/frm_lóugrás_beáll.h"
#include "exercises/exercises.h"
#include "exercises/letters/frm_betűhiány.h"
#include "exercises/letters/frm_betűválogatás_beállítás.h"
#include "exercises/letters/frm_cserkó.h"
#include "feedback/feedback.h"
#include "platform/qt/qt_platform.h"
#include "tests/kills/telling_files.h"

#include <QApplication>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace {

using namespace cserko;

class TellingMachine : public QtPlatform {
 public:
  Files& files() override { return telling_; }

 private:
  TellingFiles telling_{qt_files()};
};

// Whatever its controls allow.
void change(SettingsDialog& dialog, std::minstd_rand& chance) {
  for (Element* element : dialog.elements()) {
    if (auto* number = dynamic_cast<UpDown*>(element)) {
      const auto range = static_cast<unsigned>(number->Max - number->Min + 1);
      number->set_value(number->Min + static_cast<int>(chance() % range));
    } else if (auto* box = dynamic_cast<CheckBox*>(element)) {
      box->set_value(static_cast<int>(chance() % 2));
    } else if (auto* option = dynamic_cast<OptionButton*>(element); option != nullptr && chance() % 2 == 0) {
      option->set_value(true);
    }
  }
}

} // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  TellingMachine machine;
  Session session(machine);
  install_feedback(session);
  install_exercises(session);
  const std::array<SettingsDialog*, 6> dialogs{&session.window<frm_főablak_beállítások>(),
                                               &session.window<frm_cserkó_beáll>(),
                                               &session.window<dlg_betűhiány>(),
                                               &session.window<dlg_hosszrövid>(),
                                               &session.window<frm_betűválogatás_beállítás>(),
                                               &session.window<frm_lóugrás_beáll>()};
  std::minstd_rand chance(argc > 1 ? static_cast<unsigned>(std::atoi(argv[1])) : 1);
  std::puts("begins");
  std::fflush(stdout);
  for (;;) {
    SettingsDialog& dialog = *dialogs.at(chance() % dialogs.size());
    machine.act([&] {
      change(dialog, chance);
      dialog.write();
    });
  }
}
