// cserko-x11-play EXERCISE mouse|keyboard: plays an exercise of the real program by events of the X server alone, from
// the main window through a whole set with wrong answers on the way, its congratulation panel, and into the next set.
// Exit status 1 and a line that says why where it is stuck or goes otherwise than it should.
#include "exercises/exercises.h"
#include "feedback/feedback.h"
#include "feedback/frm_gratuláció.h"
#include "feedback/frm_hangbeáll.h"
#include "tests/players/played_exercise.h"
#include "tests/x11/heard_platform.h"
#include "tests/x11/own_folders.h"
#include "tests/x11/x_hand.h"

#include <QApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>
#include <optional>
#include <stdexcept>

namespace {

using namespace cserko;

constexpr int pace = 20;         // ms between two looks
constexpr int patience = 120000; // ms for all of it

void expect(bool holds, const std::string& otherwise) {
  if (!holds) throw std::runtime_error(otherwise);
}

constexpr int mistakes = 3; // of so many tasks one is answered wrong first

class ScreenEars : public Ears {
 public:
  ScreenEars(const HeardPlatform& platform, Session& session) : platform_(platform), session_(session) {}

  int heard(TextView file) const override { return platform_.heard(file); }
  int heard_right() const override { return platform_.heard_any(lists().lst_helyeshang.Items); }
  int heard_wrong() const override { return platform_.heard_any(lists().Lst_hibahang.Items); }

 private:
  const frm_hangbeáll& lists() const { return session_.window<frm_hangbeáll>(); }

  const HeardPlatform& platform_;
  Session& session_;
};

/// Sits at the screen: looks, and lets the player take its next step when the one before has had its effect.
class Person : public QObject {
 public:
  Person(Session& session, HeardPlatform& platform, const PlayedExercise& game, PlayMode mode)
      : session_(session),
        platform_(platform),
        game_(game),
        mode_(mode),
        hand_([&platform](const Element& element, Point point) { return platform.spot_of(element, point); }) {
    connect(&timer_, &QTimer::timeout, this, [this] { look(); });
    timer_.start(pace);
    waiting_.start();
  }

  bool done() const { return done_; }
  const std::string& trouble() const { return trouble_; }

 private:
  void look() {
    try {
      expect(waiting_.elapsed() <= patience, "nothing goes on");
      Window* front = platform_.active_window();
      if (!hand_.idle() || front == nullptr || !front->Enabled || !platform_.settled(*front)) return;
      if (!player_) player_ = game_.make(session_, mode_, game_.tasks == 1 ? 1 : mistakes);
      check_progress(*front);
      if (next_set_begun(*front) && player_->wrong_answers() > 0) {
        check_answers(*front);
        done_ = true;
        stop();
      } else {
        step(*front);
      }
    } catch (const std::exception& error) {
      const Window* front = platform_.active_window();
      trouble_ = std::string(error.what()) + ", with " + (front == nullptr ? "no window" : to_utf8(front->Name)) +
                 " at the front";
      stop();
    }
  }

  bool next_set_begun(Window& front) const {
    return front.Name == game_.window && player_->sets() > 0 && game_.gathered(front, *player_) > 0;
  }

  // The player itself says how many wrong answers it has given; whether they were taken as such shows here.
  void step(Window& front) {
    const int before = player_->wrong_answers();
    player_->step(front, hand_);
    if (Window* exercise = shown_exercise(); exercise != nullptr && player_->wrong_answers() > before)
      gathered_before_mistake_ = game_.gathered(*exercise, *player_);
  }

  void check_progress(Window& front) {
    Window* exercise = shown_exercise();
    if (dynamic_cast<frm_gratuláció*>(&front) != nullptr) {
      expect(exercise != nullptr && game_.gathered(*exercise, *player_) == game_.tasks,
             "the praise comes before its time");
    }
    if (&front != exercise || !gathered_before_mistake_) return;
    expect(game_.gathered(front, *player_) == gathered_before_mistake_, "a wrong answer has changed what is solved");
    gathered_before_mistake_.reset();
  }

  // The next set has begun: all that was answered was also heard.
  void check_answers(Window& exercise) {
    const int right = player_->sets() * game_.tasks + game_.gathered(exercise, *player_);
#ifndef _WIN32 // whose side does not see what lies under the pointer on the server: a press may come too early there
    expect(hand_.lost() == 0, "presses of the hand reached no window");
#endif
    const ScreenEars ears(platform_, session_);
    const auto heard = [&ears](const char* what, int (*count)(const Ears&), int given) {
      if (count == nullptr) return;
      expect(count(ears) == given,
             what + std::string(" answers heard: ") + std::to_string(count(ears)) + " of " + std::to_string(given));
    };
    heard("right", game_.heard_right, right);
    heard("wrong", game_.heard_wrong, player_->wrong_answers());
  }

  Window* shown_exercise() const {
    for (Window* window : platform_.shown_windows()) {
      if (window->Name == game_.window) return window;
    }
    return nullptr;
  }

  void stop() {
    std::printf("%d sets solved, %d wrong answers, %d presses reached no window\n", player_ ? player_->sets() : 0,
                player_ ? player_->wrong_answers() : 0, hand_.lost());
    timer_.stop();
    platform_.end_process();
  }

  Session& session_;
  HeardPlatform& platform_;
  const PlayedExercise& game_;
  PlayMode mode_;
  XHand hand_;
  std::unique_ptr<Player> player_;
  std::optional<int> gathered_before_mistake_;
  QTimer timer_;
  QElapsedTimer waiting_;
  bool done_ = false;
  std::string trouble_;
};

int play(const PlayedExercise& game, PlayMode mode) {
  const QTemporaryDir home;
  move_in(home);
  HeardPlatform platform;
  game.prepare(platform.files());
  Session session(platform);
  install_feedback(session);
  install_exercises(session);
  const Person person(session, platform, game, mode);
  session.Main();
  if (!person.done()) std::fprintf(stderr, "%s\n", person.trouble().c_str());
  return person.done() ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const std::string_view name = argc == 3 ? argv[1] : "";
  const std::string_view way = argc == 3 ? argv[2] : "";
  const std::vector<PlayedExercise> all = played_exercises();
  const auto game = std::find_if(all.begin(), all.end(), [&](const PlayedExercise& any) { return any.name == name; });
  if (game == all.end() || (way != "mouse" && way != "keyboard")) {
    std::fputs("usage: cserko-x11-play EXERCISE mouse|keyboard\n", stderr);
    return 2;
  }
  try {
    return play(*game, way == "keyboard" ? PlayMode::Keyboard : PlayMode::Mouse);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
