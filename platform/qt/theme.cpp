#include "platform/qt/theme.h"

#include "platform/qt/theme_style.h"

#include <QApplication>
#include <QDir>
#include <QFontDatabase>
#include <QPalette>
#include <QScreen>
#include <algorithm>
#include <cmath>

namespace cserko::theme {

namespace {

// The light that a colour gives off, 0 to 1, as the eye weighs it.
double luminance(const QColor& color) {
  const auto light = [](double part) { return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); };
  return 0.2126 * light(color.redF()) + 0.7152 * light(color.greenF()) + 0.0722 * light(color.blueF());
}

// What lies beside the program: a system may lack the serif that the windows are laid out for.
void load_fonts() {
  const QDir folder(QCoreApplication::applicationDirPath() + "/fonts");
  for (const QString& font : folder.entryList({"*.ttf"}, QDir::Files))
    QFontDatabase::addApplicationFont(folder.filePath(font));
}

} // namespace

double screen_zoom() {
  bool given = false;
  const double wanted = qEnvironmentVariable("CSERKO_ZOOM").toDouble(&given);
  if (given && wanted > 0) return wanted;
  const QSize size = QGuiApplication::primaryScreen()->availableGeometry().size();
  const double fit = std::min(size.width() / 1280.0, size.height() / 800.0);
  return std::max(1.0, std::floor(fit * 4) / 4);
}

double contrast(const QColor& a, const QColor& b) {
  const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
  return (lighter + 0.05) / (darker + 0.05);
}

void apply() {
  load_fonts();
  QApplication::setStyle(new ThemeStyle(screen_zoom()));
  QPalette colors; // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks): the application owns the style
  colors.setColor(QPalette::Window, paper);
  colors.setColor(QPalette::WindowText, text);
  colors.setColor(QPalette::Base, field);
  colors.setColor(QPalette::AlternateBase, paper);
  colors.setColor(QPalette::Text, text);
  colors.setColor(QPalette::Button, button);
  colors.setColor(QPalette::ButtonText, text);
  colors.setColor(QPalette::Highlight, accent);
  colors.setColor(QPalette::HighlightedText, Qt::white);
  colors.setColor(QPalette::ToolTipBase, field);
  colors.setColor(QPalette::ToolTipText, text);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    colors.setColor(QPalette::Disabled, role, faded_text);
  QApplication::setPalette(colors);
}

} // namespace cserko::theme
