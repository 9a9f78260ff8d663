// The main of every test that shows or paints: a machine without a screen and without a sound card, nothing scaled. It
// reads the headers that these tests share, once for all of them.
#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  if (qEnvironmentVariableIsEmpty("SDL_AUDIODRIVER")) qputenv("SDL_AUDIODRIVER", "dummy");
  qputenv("CSERKO_ZOOM", "1");
  const QApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
