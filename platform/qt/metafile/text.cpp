#include "charset.h"
#include "player.h"

#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainterPath>
#include <QTransform>
#include <algorithm>
#include <cmath>

namespace cserko {

namespace {

/// Size in pixels at which outlines are taken from the font; they are scaled from there, so that a picture has the same
/// text at every size.
constexpr int kOutlineSize = 100;
constexpr qsizetype kMostLetters = 2048; ///< of one record
constexpr qsizetype kMostFaces = 16;     ///< looked up for one picture

enum Align : int { kUpdatePosition = 1, kRight = 2, kCenter = 6, kBottom = 8, kBaseline = 24 };
enum Options : int { kOpaque = 2, kClipped = 4, kGlyphIndex = 0x10 };

QFont::StyleHint style_hint(int pitch_and_family) {
  switch (pitch_and_family & 0xF0) {
  case 0x10:
    return QFont::Serif;
  case 0x20:
    return QFont::SansSerif;
  case 0x30:
    return QFont::Monospace;
  case 0x40:
    return QFont::Cursive;
  case 0x50:
    return QFont::Decorative;
  default:
    return QFont::AnyStyle;
  }
}

} // namespace

/// Letters and where they go.
struct Player::TextRun {
  QString text;
  QList<double> advances; ///< logical units, one a letter; empty for those of the font
  QPointF at;             ///< logical
};

/// The font of the state at the outline size, and what makes device pixels of it.
struct Player::TextFont {
  QFont font;
  double scale_x = 1, scale_y = 1;
};

Player::TextFont Player::text_font() {
  const WmfFont& wanted = state_.font;
  TextFont result;
  if (!wanted.face.isEmpty() && (faces_.contains(wanted.face) || faces_.size() < kMostFaces)) {
    faces_.insert(wanted.face);
    result.font.setFamily(decode_charset(wanted.face, wanted.charset));
  }
  result.font.setStyleHint(style_hint(wanted.pitch_and_family));
  result.font.setPixelSize(kOutlineSize);
  result.font.setHintingPreference(QFont::PreferNoHinting);
  result.font.setKerning(false);
  constexpr int kBoldFrom = 600;
  result.font.setBold(wanted.weight >= kBoldFrom);
  result.font.setItalic(wanted.italic);
  result.font.setUnderline(wanted.underline);
  result.font.setStrikeOut(wanted.strikeout);
  const QFontMetricsF metrics(result.font);
  constexpr double kDefaultHeight = 16; // device pixels
  double height = kDefaultHeight;
  if (wanted.height < 0) height = -wanted.height * std::abs(scale_y_);
  if (wanted.height > 0) height = wanted.height * std::abs(scale_y_) * kOutlineSize / std::max(metrics.height(), 1.0);
  result.scale_y = height / kOutlineSize;
  result.scale_x = result.scale_y * (wanted.height == 0 ? 1 : std::abs(scale_x_ / scale_y_));
  if (wanted.width > 0) result.scale_x = wanted.width * std::abs(scale_x_) / std::max(metrics.averageCharWidth(), 1.0);
  return result;
}

void Player::draw_text_measured(const TextRun& run, QPointF at) {
  // Only for pictures that tell nothing about their size: a letter is taken as half as wide as high.
  const double height = std::abs(state_.font.height * scale_y_);
  canvas_.note(QRectF(at, QSizeF(height / 2 * static_cast<double>(run.text.size()), height)));
}

QPainterPath Player::letters(const TextRun& run, const TextFont& font, double& width) const {
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  const QFontMetricsF metrics(font.font);
  if (run.advances.isEmpty() && state_.char_extra == 0 && state_.break_extra == 0) {
    path.addText(0, 0, font.font, run.text);
    width = metrics.horizontalAdvance(run.text);
    return path;
  }
  const double to_font = std::abs(scale_x_) / font.scale_x; // logical units to font units along the line
  width = 0;
  for (qsizetype i = 0; i < run.text.size() && !budget_.spent(); ++i) {
    const QChar letter = run.text[i];
    path.addText(width, 0, font.font, QString(letter));
    if (i < run.advances.size()) {
      width += run.advances[i] * to_font;
    } else {
      width += metrics.horizontalAdvance(letter) + state_.char_extra * to_font;
      if (letter == QLatin1Char(' ')) width += state_.break_extra * to_font;
    }
  }
  return path;
}

void Player::draw_text(const TextRun& run) {
  const bool update = (state_.text_align & kUpdatePosition) != 0;
  const QPointF at = map(update ? state_.position : run.at);
  if (run.text.isEmpty()) return;
  if (canvas_.measuring()) return draw_text_measured(run, at);
  constexpr qsizetype kPointsALetter = 32;
  if (qGuiApp == nullptr || !budget_.take_points(run.text.size() * kPointsALetter)) return;
  const TextFont font = text_font();
  double width = 0;
  const QPainterPath path = letters(run, font, width);

  const QFontMetricsF metrics(font.font);
  const int across = state_.text_align & kCenter, upright = state_.text_align & kBaseline;
  const double left = across == kCenter ? -width / 2 : across == kRight ? -width : 0;
  const double base = upright == kBaseline ? 0 : upright == kBottom ? -metrics.descent() : metrics.ascent();
  QTransform turned;
  turned.rotate(-state_.font.escapement / 10.0);
  turned.scale(font.scale_x, font.scale_y);
  const QTransform to_device =
      QTransform::fromTranslate(left, base) * turned * QTransform::fromTranslate(at.x(), at.y());
  if (state_.opaque_background) {
    const QRectF cell(0, -metrics.ascent(), width, metrics.ascent() + metrics.descent());
    canvas_.fill({to_device.map(QPolygonF(cell))}, true, state_.background_color);
  }
  const QList<QPolygonF> outlines = path.toSubpathPolygons(to_device);
  canvas_.fill(Outline(outlines.begin(), outlines.end()), true, state_.text_color);
  if (!update) return;
  // Text that ends at its point moves it back to its beginning; centred text leaves it.
  const QPointF moved = turned.map(QPointF(across == kCenter ? 0 : across == kRight ? -width : width, 0));
  state_.position += QPointF(moved.x() / scale_x_, moved.y() / scale_y_);
}

void Player::text_out(const WmfRecord& r) {
  const qsizetype length = r.u16(0), string_words = (length + 1) / 2;
  if (r.words() < 1 + string_words + 2) return;
  TextRun run;
  run.text = decode_charset(r.bytes(1).first(std::min(length, kMostLetters)), state_.font.charset);
  run.at = QPointF(r.s16(2 + string_words), r.s16(1 + string_words));
  draw_text(run);
}

void Player::ext_text_out(const WmfRecord& r) {
  const int options = r.u16(3);
  const bool has_box = (options & (kOpaque | kClipped)) != 0;
  const qsizetype string_word = has_box ? 8 : 4;
  const qsizetype length = r.u16(2), string_words = (length + 1) / 2;
  if (r.words() < string_word + string_words) return;
  QRectF box;
  if (has_box) box = QRectF(map(r.s16(4), r.s16(5)), map(r.s16(6), r.s16(7))).normalized();
  if ((options & kOpaque) != 0) canvas_.fill({rect_line(box)}, true, state_.background_color);
  if ((options & kGlyphIndex) != 0) return; // numbers of glyphs in a font that is not here

  TextRun run;
  if (length > 0) {
    run.text = decode_charset(r.bytes(string_word).first(std::min(length, kMostLetters)), state_.font.charset);
  }
  run.at = QPointF(r.s16(1), r.s16(0));
  const qsizetype advance_word = string_word + string_words;
  for (qsizetype i = 0; i < run.text.size() && advance_word + i < r.words(); ++i) {
    run.advances.append(r.s16(advance_word + i));
  }
  if ((options & kClipped) == 0) return draw_text(run);
  if (!budget_.take_clip()) return;
  const QRegion inside = pixel_rect(box.topLeft(), box.bottomRight());
  canvas_.set_clip(state_.clipped ? state_.clip & inside : inside, true);
  draw_text(run);
  update_clip();
}

} // namespace cserko
