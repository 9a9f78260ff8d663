// cserko-tour FOLDER: plays the tour on the screen of the environment and leaves the pictures in the folder. Exit
// status 1 and one line for each fault where something is wrong.
#include "core/frm_folyamat.h"
#include "exercises/exercises.h"
#include "feedback/feedback.h"
#include "tests/tour/story.h"

#include <QApplication>
#include <QElapsedTimer>
#include <cstdio>

namespace {

// A window manager takes its time to bring a window up, and the records of the pack are read before that.
void wait_for_paint(cserko::WatchedPlatform& platform, cserko::Window& window) {
  QElapsedTimer waiting;
  waiting.start();
  while (!platform.settled(window) && waiting.elapsed() < 5000)
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  platform.view_of(window)->repaint();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

// The progress window lets no event happen: it is looked at when half of the records are read.
void watch_progress(cserko::WatchedPlatform& platform, cserko::tour::Guide& guide) {
  platform.redrawn = [&platform, &guide, taken = false](cserko::Window& window) mutable {
    if (taken || window.Name != u"FrmFolyamat") return;
    const auto& bar = static_cast<cserko::FrmFolyamat&>(window).ProgressBar;
    if (bar.Value == 0 || bar.Value < bar.Max / 2) return;
    taken = true;
    wait_for_paint(platform, window);
    guide.look_at(window, "progress");
  };
}

} // namespace

int main(int argc, char** argv) {
  using namespace cserko;
  const QApplication application(argc, argv);
  if (argc != 2) {
    std::fputs("usage: cserko-tour FOLDER\n", stderr);
    return 2;
  }
  WatchedPlatform platform;
  Session session(platform);
  install_feedback(session);
  install_exercises(session);
  tour::Guide guide(platform, QString::fromLocal8Bit(argv[1]));
  watch_progress(platform, guide);
  tour::lay_out(guide, session, platform);
  guide.start();
  session.Main();

  for (const std::string& fault : guide.faults()) std::fprintf(stderr, "%s\n", fault.c_str());
  std::printf("%d pictures, %zu faults\n", guide.pictures(), guide.faults().size());
  return guide.faults().empty() ? 0 : 1;
}
