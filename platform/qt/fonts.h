// Fonts of the suite as Qt fonts. Measuring and painting use the same font object, so what fits by measure fits on the
// screen.
#pragma once

#include "platform/elements.h"

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QRectF>

class QPainter;

namespace cserko {

class Fonts {
 public:
  /// `scale` is the size of a twip in device-independent pixels.
  explicit Fonts(double scale) : scale_(scale) {}

  double scale() const { return scale_; }
  const QFont& font(const Font& font) const { return entry(font).font; }
  const QFontMetricsF& metrics(const Font& font) const { return entry(font).metrics; }

  /// Extents in twips; an empty text has the height of a line.
  Size measure(const Font& font, TextView text) const;
  Size measure_wrapped(const Font& font, TextView text, double width) const;

 private:
  struct Entry {
    QFont font;
    QFontMetricsF metrics;
  };
  const Entry& entry(const Font& font) const;

  double scale_;
  mutable QHash<QString, Entry> entries_;
};

} // namespace cserko
