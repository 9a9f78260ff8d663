#include "platform/qt/view.h"

#include "platform/access_key.h"
#include "platform/qt/accessible.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/theme.h"

#include <QCoreApplication>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace cserko {

QRect ViewContext::to_pixels(const Rect& place) const {
  // Both edges are rounded, so that neighbours which touch in twips touch in pixels.
  const double scale = fonts.scale();
  const int left = static_cast<int>(std::lround(place.left * scale));
  const int top = static_cast<int>(std::lround(place.top * scale));
  const int right = static_cast<int>(std::lround((place.left + place.width) * scale));
  const int bottom = static_cast<int>(std::lround((place.top + place.height) * scale));
  return {left, top, std::max(0, right - left), std::max(0, bottom - top)};
}

View::View(Element& element, ViewContext& context, QWidget* widget)
    : element_(element), context_(context), widget_(widget), shown_layer_(element.serial()) {
  widget_->hide();
  accessible::set_role(*widget_, element.kind());
}

View::~View() { delete widget_.data(); }

void View::raise() {
  shown_layer_ = element_.layer();
  widget_->raise();
}

bool View::same_look() const {
  const Element& e = element_;
  return shown_.visible == e.Visible && shown_.enabled == e.Enabled &&
         shown_.place == Rect{e.Left, e.Top, e.Width, e.Height} && shown_.caption == e.Caption &&
         shown_.font == e.Font && shown_.back == e.BackColor && shown_.fore == e.ForeColor &&
         shown_.border == e.Border && shown_.opaque == e.Opaque && shown_.tool_tip == e.ToolTipText &&
         shown_.accessible_name == e.AccessibleName && shown_.selected == e.Selected;
}

void View::take_look() {
  const Element& e = element_;
  shown_ = {{e.Left, e.Top, e.Width, e.Height},
            e.Caption,
            e.ToolTipText,
            e.AccessibleName,
            e.Font,
            e.BackColor,
            e.ForeColor,
            e.Visible,
            e.Enabled,
            e.Border,
            e.Opaque,
            e.Selected};
}

void View::apply_place() { widget_->setGeometry(widget_place(shown_.place)); }

bool View::sync() {
  const bool content = sync_content();
  if (!first_ && same_look()) return content;
  const Rect before = shown_.place;
  const bool first = std::exchange(first_, false);
  take_look();
  if (first || before != shown_.place) apply_place();
  widget_->setEnabled(shown_.enabled);
  widget_->setToolTip(to_qt(shown_.tool_tip));
  const QString name = to_qt(accessible_name(element_));
  widget_->setAccessibleName(name);
  if (&focus_widget() != widget_) focus_widget().setAccessibleName(name);
  accessible::set_selected(*widget_, shown_.selected);
  look_changed();
  widget_->setVisible(shown_.visible);
  return true;
}

void View::look_changed() {
  widget_->setFont(context_.fonts.font(element_.Font));
  widget_->update();
}

void paint_caption(QPainter& painter, const QRectF& place, const Element& element, const ViewContext& context,
                   int alignment, bool wrapped) {
  painter.setFont(context.fonts.font(element.Font));
  int flags = alignment | (wrapped ? Qt::TextWordWrap : Qt::TextSingleLine);
  if (!wrapped && element.Caption.find(u'\r') != Text::npos) flags &= ~Qt::TextSingleLine;
  if (element.kind() != ElementKind::Label || box_behind(element) != nullptr)
    flags |= context.alt_held ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
  painter.drawText(place, flags | Qt::TextDontClip, lines_to_qt(element.Caption));
}

void take_every_move(bool held) { QCoreApplication::setAttribute(Qt::AA_CompressHighFrequencyEvents, !held); }

void paint_border(QPainter& painter, const QRect& place, const QColor& color, double scale) {
  const int width = std::max(1, static_cast<int>(twips_per_pixel * scale));
  painter.fillRect(QRect(place.left(), place.top(), place.width(), width), color);
  painter.fillRect(QRect(place.left(), place.bottom() - width + 1, place.width(), width), color);
  painter.fillRect(QRect(place.left(), place.top(), width, place.height()), color);
  painter.fillRect(QRect(place.right() - width + 1, place.top(), width, place.height()), color);
}

void paint_focus_ring(QPainter& painter, const QRectF& place, double scale, RingGround ground) {
  // On a narrow letter a ring of full width would run into its strokes.
  const double width = std::clamp(place.width() / 8, 1.0, std::max(3.0, 45 * scale));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  const auto draw = [&](const QColor& color, double inset) {
    painter.setPen(QPen(color, width));
    painter.drawRoundedRect(place.adjusted(inset, inset, -inset, -inset), 2 * width, 2 * width);
  };
  if (ground == RingGround::AnyColor) draw(theme::field, width);
  draw(theme::accent, width / 2);
}

} // namespace cserko
