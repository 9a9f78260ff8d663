// cserko-x11-play mouse|keyboard: solves puzzles of Scrambled word in the real program by events of the X server alone,
// from the main window through the congratulation panel to the next word. Exit status 1 and a line where it is stuck.
#include "exercises/exercises.h"
#include "feedback/feedback.h"
#include "tests/players/cserkó_player.h"
#include "tests/x11/watched_platform.h"
#include "tests/x11/x_hand.h"

#include <QApplication>
#include <QElapsedTimer>
#include <cstdio>
#include <cstring>
#include <optional>

namespace {

using namespace cserko;

constexpr int pace = 20;         // ms between two looks
constexpr int words = 2;         // to be solved
constexpr int mistakes = 2;      // of so many puzzles one gets a wrong answer first
constexpr int patience = 120000; // ms for all of it

/// Sits at the screen: looks, and lets the player take its next step when the one before has had its effect.
class Person : public QObject {
 public:
  Person(Session& session, WatchedPlatform& platform, CserkóPlayer::Mode mode)
      : session_(session),
        platform_(platform),
        mode_(mode),
        hand_([&platform](const Element& element, Point point) { return platform.place_on_screen(element, point); }) {
    connect(&timer_, &QTimer::timeout, this, [this] { look(); });
    timer_.start(pace);
    waiting_.start();
  }

  bool done() const { return done_; }
  const std::string& trouble() const { return trouble_; }

 private:
  void look() {
    if (waiting_.elapsed() > patience) return stop("nothing goes on");
    Window* front = platform_.active_window();
    if (!hand_.idle() || front == nullptr || !platform_.settled(*front)) return;
    if (!player_) player_.emplace(session_, mode_, mistakes);
    if (player_->solved() >= words && front->Name == u"frm_cserkó") {
      done_ = true;
      return stop({});
    }
    try {
      player_->step(*front, hand_);
    } catch (const std::exception& error) {
      stop(error.what());
    }
  }

  void stop(const std::string& why) {
    const Window* front = platform_.active_window();
    const std::string place = front == nullptr ? "no window" : to_utf8(front->Name);
    if (!done_) trouble_ = why + ", with " + place + " at the front";
    std::printf("%d words solved, %d wrong answers, %d strokes of the hand reached no window\n",
                player_ ? player_->solved() : 0, player_ ? player_->wrong_answers() : 0, hand_.unheard());
    timer_.stop();
    platform_.end_process();
  }

  Session& session_;
  WatchedPlatform& platform_;
  CserkóPlayer::Mode mode_;
  XHand hand_;
  std::optional<CserkóPlayer> player_;
  QTimer timer_;
  QElapsedTimer waiting_;
  bool done_ = false;
  std::string trouble_;
};

} // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  const bool keyboard = argc == 2 && std::strcmp(argv[1], "keyboard") == 0;
  if (!keyboard && (argc != 2 || std::strcmp(argv[1], "mouse") != 0)) {
    std::fputs("usage: cserko-x11-play mouse|keyboard\n", stderr);
    return 2;
  }
  WatchedPlatform platform;
  Session session(platform);
  install_feedback(session);
  install_exercises(session);
  const Person person(session, platform, keyboard ? CserkóPlayer::Mode::Keyboard : CserkóPlayer::Mode::Mouse);
  session.Main();
  if (!person.done()) std::fprintf(stderr, "%s\n", person.trouble().c_str());
  return person.done() ? 0 : 1;
}
