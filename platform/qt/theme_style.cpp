#include "platform/qt/theme_style.h"

#include "platform/qt/theme.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <algorithm>
#include <array>
#include <cmath>

namespace cserko::theme {

namespace {

// Pixels of a small screen.
constexpr double text_inset = 2;
constexpr double largest_arrow = 4; // half its width
constexpr double handle_rounding = 3;
constexpr double focus_width = 2;

constexpr double edge_of_mark = 14; // so many edges would fill the mark of a choice

} // namespace

ThemeStyle::ThemeStyle(double zoom) : QProxyStyle(QStyleFactory::create("Fusion")), zoom_(zoom) {}

int ThemeStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  const int given = QProxyStyle::pixelMetric(metric, option, widget);
  switch (metric) {
  case PM_ScrollBarExtent:
  case PM_ScrollBarSliderMin:
  case PM_MenuBarItemSpacing:
  case PM_MenuBarHMargin:
  case PM_MenuHMargin:
  case PM_MenuVMargin:
  case PM_FocusFrameHMargin:
    return static_cast<int>(std::lround(given * zoom_));
  default:
    return given;
  }
}

QSize ThemeStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                   const QWidget* widget) const {
  const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  if (type != CT_MenuBarItem && type != CT_MenuItem) return size;
  const QSize zoomed = size + (QSizeF(size - contents) * (zoom_ - 1)).toSize();
  // An entry has a line at its lower edge, which is meant to be the edge of the bar.
  const int bar = static_cast<int>(std::lround(menu_bar_height * zoom_));
  return type == CT_MenuBarItem ? zoomed.expandedTo({0, bar}) : zoomed;
}

QRect ThemeStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
  const QRect place = QProxyStyle::subElementRect(element, option, widget);
  if (element != SE_LineEditContents) return place;
  const int inset = static_cast<int>(std::lround(text_inset * zoom_));
  return place.adjusted(inset, 0, -inset, 0);
}

void ThemeStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                    const QWidget* widget) const {
  const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
  if (control == CC_ScrollBar && bar != nullptr) {
    draw_scroll_bar(*bar, *painter, widget);
  } else {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
}

// The plain style paints groove and handle in nearly the same colour, the handle the lighter one.
void ThemeStyle::draw_scroll_bar(const QStyleOptionSlider& bar, QPainter& painter, const QWidget* widget) const {
  const auto place = [&](SubControl part) { return QRectF(subControlRect(CC_ScrollBar, &bar, part, widget)); };
  const bool usable = bar.state.testFlag(State_Enabled);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(bar.rect, button_disabled);
  painter.setPen(Qt::NoPen);
  painter.setBrush(usable ? scroll_handle : button);
  const QRectF handle = place(SC_ScrollBarSlider).adjusted(1, 1, -1, -1);
  if (bar.state.testFlag(State_HasFocus)) painter.setPen(QPen(accent, focus_width * zoom_));
  painter.drawRoundedRect(handle, handle_rounding * zoom_, handle_rounding * zoom_);
  const bool lies = bar.orientation == Qt::Horizontal;
  const QPointF back = lies ? QPointF(-1, 0) : QPointF(0, -1);
  const QColor color = usable ? text : faded_text;
  draw_arrow(painter, place(SC_ScrollBarSubLine), back, color);
  draw_arrow(painter, place(SC_ScrollBarAddLine), -back, color);
  painter.restore();
}

void ThemeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  if (element == PE_IndicatorArrowUp || element == PE_IndicatorArrowDown) {
    const QPointF direction(0, element == PE_IndicatorArrowUp ? -1 : 1);
    draw_arrow(*painter, option->rect, direction, option->palette.buttonText().color());
  } else {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton)
      draw_edge_of_mark(*painter, *option, element == PE_IndicatorRadioButton);
  }
}

// The edge of the plain style is hardly darker than the paper, and a pixel wide however large the mark is.
void ThemeStyle::draw_edge_of_mark(QPainter& painter, const QStyleOption& mark, bool round) {
  const double width = std::max(1.0, mark.rect.width() / edge_of_mark);
  const QRectF place = QRectF(mark.rect).adjusted(width / 2, width / 2, -width / 2, -width / 2);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(mark.state.testFlag(State_Enabled) ? faded_text : line, width));
  if (round) {
    painter.drawEllipse(place);
  } else {
    painter.drawRoundedRect(place, width, width);
  }
  painter.restore();
}

void ThemeStyle::draw_arrow(QPainter& painter, const QRectF& place, QPointF direction, const QColor& color) const {
  const double side = std::min({place.width() / 3, place.height() / 3, largest_arrow * zoom_});
  const QPointF across(direction.y() * side, direction.x() * side);
  const QPointF tip = direction * side / 2;
  const QPointF middle = place.center();
  const std::array corners{middle - tip - across, middle - tip + across, middle + tip};
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  painter.drawConvexPolygon(corners.data(), static_cast<int>(corners.size()));
  painter.restore();
}

} // namespace cserko::theme
