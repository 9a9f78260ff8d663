#include <QGuiApplication>
#include <gtest/gtest.h>

int main(int argc, char* argv[]) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication app(argc, argv); // text needs fonts
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
