// How the controls that Qt draws look: its plain style, as large as the rest of the suite on a large screen.
#pragma once

#include <QProxyStyle>

class QStyleOptionSlider;

namespace cserko::theme {

class ThemeStyle : public QProxyStyle {
 public:
  /// `zoom`: how much larger than on a small screen everything is.
  explicit ThemeStyle(double zoom);

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override;
  QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;

 private:
  void draw_scroll_bar(const QStyleOptionSlider& bar, QPainter& painter, const QWidget* widget) const;
  static void draw_edge_of_mark(QPainter& painter, const QStyleOption& mark, bool round);
  void draw_arrow(QPainter& painter, const QRectF& place, QPointF direction, const QColor& color) const;

  double zoom_;
};

} // namespace cserko::theme
