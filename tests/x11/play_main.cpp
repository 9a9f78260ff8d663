// cserko-x11-play EXERCISE mouse|keyboard: plays an exercise of the real program by events of the X server alone, from
// the main window through a whole set with wrong answers on the way, its congratulation panel, and into the next set.
// Exit status 1 and a line that says why where it is stuck or goes otherwise than it should.
#include "exercises/exercises.h"
#include "feedback/feedback.h"
#include "feedback/frm_gratuláció.h"
#include "tests/x11/games.h"
#include "tests/x11/x_hand.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <stdexcept>

namespace {

using namespace cserko;

constexpr int pace = 20;         // ms between two looks
constexpr int patience = 120000; // ms for all of it

void expect(bool holds, const std::string& otherwise) {
  if (!holds) throw std::runtime_error(otherwise);
}

/// Sits at the screen: looks, and lets the player take its next step when the one before has had its effect.
class Person : public QObject {
 public:
  Person(Session& session, HeardPlatform& platform, const GameEntry& entry, bool by_keyboard)
      : session_(session),
        platform_(platform),
        entry_(entry),
        by_keyboard_(by_keyboard),
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
      if (!game_) game_ = entry_.make(session_, by_keyboard_);
      check_progress(*front);
      if (next_set_begun(*front) && game_->wrong_answers() > 0) {
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
    return front.Name == game_->window && game_->sets() > 0 && game_->gathered(front) > 0;
  }

  // The player itself says how many wrong answers it has given; whether they were taken as such shows here.
  void step(Window& front) {
    const int before = game_->wrong_answers();
    game_->player->step(front, hand_);
    if (Window* exercise = shown_exercise(); exercise != nullptr && game_->wrong_answers() > before)
      gathered_before_mistake_ = game_->gathered(*exercise);
  }

  void check_progress(Window& front) {
    Window* exercise = shown_exercise();
    if (dynamic_cast<frm_gratuláció*>(&front) != nullptr) {
      expect(exercise != nullptr && game_->gathered(*exercise) == game_->tasks, "the praise comes before its time");
    }
    if (&front != exercise || !gathered_before_mistake_) return;
    expect(game_->gathered(front) == gathered_before_mistake_, "a wrong answer has changed what is solved");
    gathered_before_mistake_.reset();
  }

  // The next set has begun: all that was answered was also heard.
  void check_answers(Window& exercise) {
    const int right = game_->sets() * game_->tasks + game_->gathered(exercise);
    expect(hand_.lost() == 0, "presses of the hand reached no window");
    if (game_->heard_right)
      expect(game_->heard_right(platform_) == right,
             "right answers heard: " + of(game_->heard_right(platform_), right));
    if (game_->heard_wrong)
      expect(game_->heard_wrong(platform_) == game_->wrong_answers(),
             "wrong answers heard: " + of(game_->heard_wrong(platform_), game_->wrong_answers()));
  }

  static std::string of(int count, int all) { return std::to_string(count) + " of " + std::to_string(all); }

  Window* shown_exercise() const {
    for (Window* window : platform_.shown_windows()) {
      if (window->Name == game_->window) return window;
    }
    return nullptr;
  }

  void stop() {
    std::printf("%d sets solved, %d wrong answers, %d presses reached no window\n", game_ ? game_->sets() : 0,
                game_ ? game_->wrong_answers() : 0, hand_.lost());
    timer_.stop();
    platform_.end_process();
  }

  Session& session_;
  HeardPlatform& platform_;
  const GameEntry& entry_;
  bool by_keyboard_;
  XHand hand_;
  std::optional<Game> game_;
  std::optional<int> gathered_before_mistake_;
  QTimer timer_;
  QElapsedTimer waiting_;
  bool done_ = false;
  std::string trouble_;
};

// A data pack and a user folder of its own, so that settings may be written as one who looks after the program would.
void move_in(const QTemporaryDir& home) {
  const QString pack = QtFiles::find_pack();
  expect(!pack.isEmpty(), "there is no data pack");
  std::filesystem::copy(pack.toStdU16String(), home.filePath("pack").toStdU16String(),
                        std::filesystem::copy_options::recursive);
  qputenv("CSERKO_PACK_DIR", home.filePath("pack").toUtf8());
  qputenv("CSERKO_USER_DIR", home.filePath("user").toUtf8());
}

int play(const GameEntry& entry, bool by_keyboard) {
  const QTemporaryDir home;
  move_in(home);
  HeardPlatform platform;
  entry.prepare(platform.files());
  Session session(platform);
  install_feedback(session);
  install_exercises(session);
  const Person person(session, platform, entry, by_keyboard);
  session.Main();
  if (!person.done()) std::fprintf(stderr, "%s\n", person.trouble().c_str());
  return person.done() ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const GameEntry* entry = argc == 3 ? find_game(argv[1]) : nullptr;
  const std::string_view way = argc == 3 ? argv[2] : "";
  if (entry == nullptr || (way != "mouse" && way != "keyboard")) {
    std::fputs("usage: cserko-x11-play EXERCISE mouse|keyboard\n", stderr);
    return 2;
  }
  try {
    return play(*entry, way == "keyboard");
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
