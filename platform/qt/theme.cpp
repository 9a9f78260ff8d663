#include "platform/qt/theme.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

namespace cserko::theme {

void apply() {
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QPalette colors;
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
