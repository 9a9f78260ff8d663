#include "platform/qt/fonts.h"

#include "platform/qt/qt_text.h"

#include <algorithm>
#include <cmath>

namespace cserko {

namespace {

constexpr double twips_per_point = 20;
constexpr double endless = 1e6;

QFont make_font(const Font& font, double scale) {
  const bool serif = font.name.starts_with(u"Times New Roman");
  QFont result(serif ? QString("Liberation Serif") : to_qt(font.name));
  result.setStyleHint(serif ? QFont::Serif : QFont::AnyStyle);
  result.setPixelSize(std::max(1, static_cast<int>(std::lround(font.size * twips_per_point * scale))));
  result.setBold(font.bold);
  // Glyphs keep their ideal widths, so that measured texts are as wide at every size as the font says.
  result.setHintingPreference(QFont::PreferNoHinting);
  return result;
}

} // namespace

const Fonts::Entry& Fonts::entry(const Font& font) const {
  const QString key = to_qt(font.name) + QString("/%1/%2").arg(font.size).arg(font.bold);
  auto found = entries_.find(key);
  if (found == entries_.end()) {
    const QFont made = make_font(font, scale_);
    found = entries_.insert(key, {made, QFontMetricsF(made)});
  }
  return *found;
}

Size Fonts::measure(const Font& font, TextView text) const {
  const QFontMetricsF& metrics = entry(font).metrics;
  double width = 0;
  int lines = 0;
  for (const QString& line : lines_to_qt(text).split('\n')) {
    width = std::max(width, metrics.horizontalAdvance(line));
    ++lines;
  }
  // As text is painted: the font's leading stands between lines, not behind the last one.
  const double height = metrics.height() + (lines - 1) * metrics.lineSpacing();
  return {std::ceil(width / scale_), std::ceil(height / scale_)};
}

Size Fonts::measure_wrapped(const Font& font, TextView text, double width) const {
  // Lines are broken where they are painted: in whole pixels, of which a place may get one less than its twips have.
  const QRectF place(0, 0, std::floor(width * scale_ + 1e-6), endless);
  const QString lines = text.empty() ? QString(" ") : lines_to_qt(text);
  const QRectF extent = entry(font).metrics.boundingRect(place, Qt::TextWordWrap | Qt::AlignLeft, lines);
  return {std::ceil(extent.width() / scale_), std::ceil(extent.height() / scale_)};
}

} // namespace cserko
