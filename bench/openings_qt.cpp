// openings_qt [EXERCISE...]: opens every exercise a hundred times in the real windows, touches it once each time, and
// compares the memory that the program holds behind the last opening with that behind the tenth. What is kept of
// pictures does not count: it grows with every new picture up to a limit of its own. The toolkit's fonts do, which it
// keeps in all sizes for a while: they make up to a megabyte. Exit status 1 where an exercise leaves more behind than
// it may. It takes a minute or more, so it is run by hand.
#include "bench/stage.h"
#include "tests/soak/openings.h"
#include "tests/tour/tour_hand.h"
#include "tests/x11/own_folders.h"

#include <QPixmapCache>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

using namespace cserko;

// What all of the program has asked for and not given back, C libraries included; 0 where nobody tells.
std::int64_t memory_in_use() {
#ifdef __GLIBC__
  const auto info = mallinfo2();
  return static_cast<std::int64_t>(info.uordblks + info.hblkhd);
#else
  return 0;
#endif
}

/// Takes a step whenever a window is at the front and hears somebody.
class Opener : public QObject {
 public:
  Opener(QtPlatform& platform, Session& session, const PlayedExercise& exercise)
      : platform_(platform),
        openings_(
            session, exercise,
            [&platform] {
              platform.forget_pictures();
              QPixmapCache::clear();
              return memory_in_use();
            },
            1) {
    look_soon();
  }
  const Openings& openings() const { return openings_; }

 private:
  // A step may show a window and come back only when that one is gone: who looks next does not wait for it.
  void look_soon() {
    QTimer::singleShot(1, this, [this] {
      if (platform_.ended()) return;
      look_soon();
      Window* front = platform_.active_window();
      if (front == nullptr || !front->Enabled || !front->visible()) return;
      platform_.act([&] {
        tour::TourHand hand(*front);
        openings_.step(*front, hand);
        if (openings_.done()) platform_.end_process();
      });
    });
  }

  QtPlatform& platform_;
  Openings openings_;
};

bool open_again_and_again(const PlayedExercise& exercise) {
  QtPlatform platform;
  exercise.prepare(platform.files());
  Session session(platform);
  install_feedback(session);
  install_exercises(session);
  const Opener opener(platform, session, exercise);
  session.Main();
  print_openings(exercise, opener.openings());
  return opener.openings().steady();
}

} // namespace

int main(int argc, char** argv) {
  qputenv("SDL_AUDIODRIVER", "dummy");
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  const QTemporaryDir home;
  move_in(home);
  return open_each(argc, argv, open_again_and_again) ? 0 : 1;
}
