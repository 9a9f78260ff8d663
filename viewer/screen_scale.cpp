#include "viewer/screen_scale.h"

#include "platform/qt/theme.h"

#include <QGuiApplication>

namespace cserko {

namespace {

constexpr const char* factor_name = "QT_SCALE_FACTOR";

} // namespace

void scale_to_screen(int argc, char** argv) {
  double zoom = 1;
  {
    // The factor has to be known before the application is made, and the screen only afterwards.
    const QGuiApplication measuring(argc, argv);
    zoom = theme::screen_zoom();
  }
  if (zoom == 1) return;
  bool given = false;
  const double factor = qEnvironmentVariable(factor_name).toDouble(&given);
  qputenv(factor_name, QByteArray::number(given ? factor * zoom : zoom));
}

} // namespace cserko
