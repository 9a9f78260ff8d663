// Plays the whole suite with random events on the headless machine, as many runs of the program as it takes. Nothing
// may be reported, nothing may escape, and there must always be a way back to the main window. After a long run every
// window that is offered must have been visited, music and drums heard and every help page opened.
//
// Usage: cserko_soak [EVENTS [SEED]]
#include "core/session.h"
#include "exercises/exercises.h"
#include "feedback/feedback.h"
#include "tests/players/headless_hand.h"
#include "tests/players/played_exercise.h"
#include "tests/soak/census.h"
#include "tests/soak/restless_person.h"
#include "tests/suite/memory_pack.h"

#include <cstdlib>
#include <iostream>

namespace {

using namespace cserko;

// So many random events reach everything there is; after fewer nothing is said about what they have not reached.
constexpr int enough_for_all = 100000;

// What was on the disk when a run ended is there in the next one.
void copy_files(const MemoryFiles& from, MemoryFiles& to) {
  for (const Text& path : from.all()) to.put(path, from.read(path).value_or(""));
}

// What the person chooses in the system's dialogs: mostly something, now and then nothing. Giving up a save is told as
// an error, which would end the run: a file to save is always chosen.
void choose_in_dialogs(HeadlessPlatform& machine) {
  constexpr TextView picture = u"c:\\cserko\\rajz.bmp";
  ScriptedDialogs& dialogs = machine.dialogs();
  if (dialogs.files_to_save.empty()) dialogs.files_to_save = {Text(picture)};
  if (dialogs.files_to_open.empty())
    dialogs.files_to_open = {machine.files().exists(Text(picture)) ? std::optional(Text(picture)) : std::nullopt,
                             std::nullopt};
  if (dialogs.colors.empty()) dialogs.colors = {Color{200, 30, 90}, std::nullopt};
  machine.clipboard = PixelImage{2, 2, {black, white, white, black}};
}

using Players = std::vector<std::unique_ptr<Player>>;

Players all_players(Session& session) {
  constexpr int mistakes = 3;
  Players players;
  for (const PlayedExercise& exercise : played_exercises()) {
    const PlayMode mode = players.size() % 2 == 0 ? PlayMode::Mouse : PlayMode::Keyboard;
    players.push_back(exercise.make(session, mode, mistakes));
  }
  return players;
}

// One run of the program, from its start until the person leaves or has had enough. False if anything was reported.
bool run(CountingMachine& machine, RestlessPerson& person, Census& census) {
  person.sit_down(machine);
  Session session(machine);
  install_feedback(session);
  install_exercises(session);
  HeadlessHand hand(machine);
  Players players;
  std::size_t turn = 0;
  machine.dialogs().while_standing = [&machine] { choose_in_dialogs(machine); };
  person.sensible = [&](Window& top) {
    if (players.empty()) players = all_players(session);
    // In the main window the next player starts an exercise; elsewhere whoever knows the window plays on.
    if (top.Name == u"frm_főablak") ++turn;
    for (std::size_t i = 0; i < players.size(); ++i) {
      if (players[(turn + i) % players.size()]->step(top, hand)) return true;
    }
    return false;
  };
  session.Main();
  census.add(machine, session);
  for (const Text& error : machine.errors) std::cerr << "reported: " << to_utf8(error) << '\n';
  for (const Text& text : machine.messages) std::cerr << "message box: " << to_utf8(text) << '\n';
  return machine.errors.empty();
}

} // namespace

int main(int argc, char** argv) {
  const int events = argc > 1 ? std::atoi(argv[1]) : 100000;
  const auto seed = argc > 2 ? std::strtoull(argv[2], nullptr, 10) : std::random_device{}();
  std::cout << "cserko_soak " << events << ' ' << seed << std::endl;
  RestlessPerson person(seed, events);
  Census census(written_help_pages(HELP_DIR));
  MemoryFiles disk;
  put_sample_pack(disk);
  int runs = 0;
  while (person.events_left() > 0) {
    CountingMachine machine;
    machine.set_seed(seed + static_cast<std::uint64_t>(++runs));
    copy_files(disk, machine.files());
    try {
      if (!run(machine, person, census)) return EXIT_FAILURE;
    } catch (const std::exception& error) {
      std::cerr << "after " << events - person.events_left() << " events, run " << runs << ": " << error.what() << '\n';
      return EXIT_FAILURE;
    }
    disk = MemoryFiles();
    copy_files(machine.files(), disk);
  }
  const std::set<Text> never = census.report(std::cout, person.events_by_window());
  if (events >= enough_for_all && !never.empty()) {
    for (const Text& name : never) std::cerr << "never reached: " << to_utf8(name) << '\n';
    return EXIT_FAILURE;
  }
  std::cout << events << " events in " << runs << " runs of the program: nothing was reported\n";
  return EXIT_SUCCESS;
}
