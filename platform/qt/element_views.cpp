// The views of what is looked at and pressed: labels, pictures, buttons, boxes to tick, frames, lines.
#include "platform/button_face.h"
#include "platform/input.h"
#include "platform/qt/keys.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_picture.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/theme.h"
#include "platform/qt/view.h"

#include <QCheckBox>
#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QTabletEvent>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace cserko {

namespace {

QColor text_color(const QWidget& widget, const Element& element) {
  return widget.isEnabled() ? to_qt(element.ForeColor) : theme::faded_text;
}

bool shows_focus(const QWidget& widget, const ViewContext& context) {
  return context.keyboard_used && widget.hasFocus();
}

/// A widget that hands the mouse to its element, in the element's own coordinates.
class ElementWidget : public QWidget {
 public:
  ElementWidget(QWidget* parent, Element& element, ViewContext& context)
      : QWidget(parent), element_(element), context_(context) {
    setMouseTracking(true);
    setTabletTracking(true);
  }

 protected:
  Element& element() const { return element_; }
  ViewContext& context() const { return context_; }

  void mousePressEvent(QMouseEvent* event) override {
    if (element_.DragAutomatic) setCursor(Qt::ClosedHandCursor);
    take_every_move(true);
    send(event, to_mouse_button(event->button()),
         [](Element& to, const MouseEvent& mouse) { input::mouse_down(to, mouse); });
  }
  void mouseDoubleClickEvent(QMouseEvent* event) override {
    take_every_move(true);
    send(event, to_mouse_button(event->button()),
         [](Element& to, const MouseEvent& mouse) { input::double_click(to, mouse); });
  }
  void mouseMoveEvent(QMouseEvent* event) override {
    send(event, held_button(event->buttons()),
         [](Element& to, const MouseEvent& mouse) { input::mouse_move(to, mouse); });
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    unsetCursor();
    take_every_move(event->buttons() != Qt::NoButton);
    send(event, to_mouse_button(event->button()),
         [](Element& to, const MouseEvent& mouse) { input::mouse_up(to, mouse); });
  }
#if QT_CONFIG(tabletevent)
  // The pen of a graphics tablet is a mouse whose tip is the left button. A Qt without such events leaves it to the
  // system to make the same mouse of it.
  void tabletEvent(QTabletEvent* event) override {
    const auto send_on = [&](MouseButton button, auto handler) { send(event, button, handler); };
    if (event->type() == QEvent::TabletPress) {
      send_on(to_mouse_button(event->button()),
              [](Element& to, const MouseEvent& mouse) { input::mouse_down(to, mouse); });
    } else if (event->type() == QEvent::TabletMove) {
      send_on(held_button(event->buttons()),
              [](Element& to, const MouseEvent& mouse) { input::mouse_move(to, mouse); });
    } else if (event->type() == QEvent::TabletRelease) {
      send_on(to_mouse_button(event->button()),
              [](Element& to, const MouseEvent& mouse) { input::mouse_up(to, mouse); });
    }
  }
#endif
  void focusInEvent(QFocusEvent*) override { update(); }
  void focusOutEvent(QFocusEvent*) override { update(); }

 private:
  template<class F> void send(QSinglePointEvent* event, MouseButton button, F handler) {
    event->accept();
    if (button == MouseButton::None && !element_.MouseMove) return;
    // The element may have moved since the event was made: its present place counts.
    const QPointF place = event->globalPosition() - QPointF(mapToGlobal(QPoint(0, 0)));
    const MouseEvent mouse{button, to_shift_mask(event->modifiers()), context_.to_twips(place.x()),
                           context_.to_twips(place.y())};
    Element& to = element_;
    context_.act([&to, mouse, handler] { handler(to, mouse); });
  }

  Element& element_;
  ViewContext& context_;
};

class LabelWidget : public ElementWidget {
 public:
  LabelWidget(QWidget* parent, Label& label, ViewContext& context)
      : ElementWidget(parent, label, context), label_(label) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    if (label_.Opaque) painter.fillRect(rect(), to_qt(label_.BackColor));
    // The ring goes under the text: on a narrow letter it would hide it.
    const bool focused = shows_focus(*this, context());
    if (focused)
      paint_focus_ring(painter, rect(), context().fonts.scale(),
                       label_.Opaque ? RingGround::AnyColor : RingGround::Paper);
    // What is faded is meant for the paper; a label with a ground of its own says itself what can be read there.
    const QColor color = label_.Opaque ? to_qt(label_.ForeColor) : text_color(*this, label_);
    if (label_.Opaque && theme::contrast(color, to_qt(label_.BackColor)) < theme::readable_contrast)
      paint_edge(painter);
    painter.setPen(color);
    paint_text(painter, {});
    // Beside a black border the ring would hardly be seen: it takes the border's place.
    if (label_.Border && !focused) paint_border(painter, rect(), theme::text, context().fonts.scale());
  }

 private:
  void paint_text(QPainter& painter, QPointF shift) {
    const int across = label_.Centered ? Qt::AlignHCenter : Qt::AlignLeft;
    paint_caption(painter, QRectF(rect()).translated(shift + QPointF(overhang(), 0)), label_, context(),
                  across | Qt::AlignVCenter, label_.WordWrap);
  }

  // A letter such as j reaches out to the left of its own place. In a label as narrow as the letter its hook would be
  // cut off: it is moved in.
  double overhang() const {
    if (label_.Caption.empty()) return 0;
    const QFontMetricsF metrics(context().fonts.font(label_.Font));
    const double reach = -metrics.leftBearing(QChar(label_.Caption.front()));
    if (reach <= 0) return 0;
    const double free = label_.Centered ? width() - metrics.horizontalAdvance(lines_to_qt(label_.Caption)) : 0;
    return std::max(0.0, reach - std::max(0.0, free) / 2);
  }

  // Colours that chance has chosen may be as bright as each other: an edge around the letters makes them readable.
  void paint_edge(QPainter& painter) {
    const QColor back = to_qt(label_.BackColor);
    const bool dark = theme::contrast(back, Qt::black) > theme::contrast(back, Qt::white);
    painter.setPen(dark ? Qt::black : Qt::white);
    const double width = std::max(1.0, context().fonts.font(label_.Font).pixelSize() / 40.0);
    // So many copies round the letter that the edge is closed at thin serifs too.
    constexpr int copies = 16;
    for (int i = 0; i < copies; ++i) {
      const double angle = 2 * std::numbers::pi * i / copies;
      paint_text(painter, QPointF(std::cos(angle), std::sin(angle)) * width);
    }
  }

  Label& label_;
};

class LabelView : public View {
 public:
  LabelView(Label& label, ViewContext& context, QWidget* parent)
      : View(label, context, new LabelWidget(parent, label, context)), label_(label) {}

 protected:
  bool sync_content() override {
    const bool differs = wrapped_ != label_.WordWrap || centered_ != label_.Centered;
    wrapped_ = label_.WordWrap;
    centered_ = label_.Centered;
    if (differs) widget().update();
    return differs;
  }

 private:
  Label& label_;
  bool wrapped_ = true;
  bool centered_ = true;
};

// A picture in the middle of a place, as large as it goes.
void paint_picture(QPainter& painter, const Picture& picture, const QRectF& place, double ratio) {
  const QImage image = static_cast<const QtPicture&>(picture).image((place.size() * ratio).toSize());
  if (image.isNull()) return;
  QRectF whole(QPointF(), QSizeF(image.size()) / ratio);
  whole.moveCenter(place.center());
  painter.drawImage(whole.topLeft().toPoint(), image);
}

class PictureWidget : public ElementWidget {
 public:
  PictureWidget(QWidget* parent, PictureBox& box, ViewContext& context)
      : ElementWidget(parent, box, context), box_(box) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    if (box_.Opaque) painter.fillRect(rect(), to_qt(box_.BackColor));
    if (box_.Picture) paint_picture(painter, *box_.Picture, rect(), devicePixelRatioF());
    if (const auto* canvas = static_cast<const QtCanvas*>(box_.drawn_canvas()))
      painter.drawImage(0, 0, canvas->image());
    if (box_.Border) paint_border(painter, rect(), theme::line, context().fonts.scale());
    if (shows_focus(*this, context()) && box_.TabStop)
      paint_focus_ring(painter, rect(), context().fonts.scale(), RingGround::AnyColor);
  }

 private:
  PictureBox& box_;
};

class PictureView : public View {
 public:
  PictureView(PictureBox& box, ViewContext& context, QWidget* parent)
      : View(box, context, new PictureWidget(parent, box, context)), box_(box) {}

 protected:
  bool sync_content() override {
    const auto* canvas = static_cast<const QtCanvas*>(box_.drawn_canvas());
    const std::uint64_t revision = canvas != nullptr ? canvas->revision() : 0;
    if (picture_ == box_.Picture && canvas_ == canvas && revision_ == revision) return false;
    const bool only_drawn = picture_ == box_.Picture && canvas_ == canvas && canvas != nullptr;
    picture_ = box_.Picture;
    canvas_ = canvas;
    revision_ = revision;
    const QRect changes = canvas != nullptr ? canvas->take_changes().toAlignedRect() : QRect();
    if (only_drawn) {
      widget().update(changes);
    } else {
      widget().update();
    }
    return true;
  }

 private:
  PictureBox& box_;
  PicturePtr picture_;
  const QtCanvas* canvas_ = nullptr;
  std::uint64_t revision_ = 0;
};

/// A quiet rounded button. It acts by mouse; keys are handled for all controls in one place.
class ButtonWidget : public QPushButton {
 public:
  ButtonWidget(QWidget* parent, Button& button, ViewContext& context)
      : QPushButton(parent), button_(button), context_(context) {
    setFocusPolicy(Qt::ClickFocus);
    setAttribute(Qt::WA_Hover);
    connect(this, &QPushButton::clicked, this, [this] { context_.act([&button = button_] { input::click(button); }); });
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = context_.fonts.scale();
    const double radius = std::min(120 * scale, height() / 3.0);
    painter.setPen(QPen(isEnabled() ? theme::line : theme::line.lighter(125), std::max(1.0, 15 * scale)));
    painter.setBrush(!isEnabled()   ? theme::button_disabled
                     : isDown()     ? theme::button_pressed
                     : underMouse() ? theme::button_hover
                                    : theme::button);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), radius, radius);
    painter.setPen(text_color(*this, button_));
    const double padding = 60 * scale;
    const ButtonFace face = face_of(button_);
    const auto place = [scale](const Rect& part) {
      return QRectF(part.left * scale, part.top * scale, part.width * scale, part.height * scale);
    };
    if (button_.Picture) {
      painter.setOpacity(isEnabled() ? 1 : 0.4);
      paint_picture(painter, *button_.Picture, place(face.picture), devicePixelRatioF());
      painter.setOpacity(1);
    }
    paint_caption(painter, place(face.caption).adjusted(padding, 0, -padding, 0), button_, context_, Qt::AlignCenter,
                  true);
    if (shows_focus(*this, context_)) paint_focus_ring(painter, QRectF(rect()).adjusted(1, 1, -1, -1), scale);
  }

 private:
  Button& button_;
  ViewContext& context_;
};

class ButtonView : public View {
 public:
  ButtonView(Button& button, ViewContext& context, QWidget* parent)
      : View(button, context, new ButtonWidget(parent, button, context)), button_(button) {}

 protected:
  bool sync_content() override {
    if (picture_ == button_.Picture) return false;
    picture_ = button_.Picture;
    widget().update();
    return true;
  }

 private:
  Button& button_;
  PicturePtr picture_;
};

/// A check box or option button whose caption wraps. `Native` paints the mark.
template<class Native, QStyle::PrimitiveElement mark> class TickWidget : public Native {
 public:
  TickWidget(QWidget* parent, Element& element, ViewContext& context)
      : Native(parent), element_(element), context_(context) {
    this->setFocusPolicy(Qt::ClickFocus);
    QObject::connect(this, &QAbstractButton::clicked, this,
                     [this] { context_.act([&to = element_] { input::click(to); }); });
  }

 protected:
  // What is shown follows the element, not the press.
  void nextCheckState() override {}

  bool hitButton(const QPoint& place) const override { return this->rect().contains(place); }

  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const double scale = context_.fonts.scale();
    QStyleOptionButton option;
    this->initStyleOption(&option);
    const int side = static_cast<int>(240 * scale);
    option.rect = QRect(3, (this->height() - side) / 2, side, side);
    option.state &= ~QStyle::State_HasFocus;
    this->style()->drawPrimitive(mark, &option, &painter, this);
    painter.setPen(text_color(*this, element_));
    const double left = side + 120 * scale;
    paint_caption(painter, QRectF(this->rect()).adjusted(left, 0, 0, 0), element_, context_,
                  Qt::AlignLeft | Qt::AlignVCenter, true);
    if (shows_focus(*this, context_)) paint_focus_ring(painter, this->rect(), scale);
  }

 private:
  Element& element_;
  ViewContext& context_;
};

class CheckView : public View {
 public:
  CheckView(CheckBox& box, ViewContext& context, QWidget* parent)
      : View(box, context, new TickWidget<QCheckBox, QStyle::PE_IndicatorCheckBox>(parent, box, context)), box_(box) {}

 protected:
  bool sync_content() override {
    if (value_ == box_.value()) return false;
    value_ = box_.value();
    auto& native = static_cast<QCheckBox&>(widget());
    native.setCheckState(value_ == 0 ? Qt::Unchecked : value_ == 1 ? Qt::Checked : Qt::PartiallyChecked);
    return true;
  }

 private:
  CheckBox& box_;
  int value_ = 0;
};

class OptionView : public View {
 public:
  OptionView(OptionButton& option, ViewContext& context, QWidget* parent)
      : View(option, context, new TickWidget<QRadioButton, QStyle::PE_IndicatorRadioButton>(parent, option, context)),
        option_(option) {}

 protected:
  bool sync_content() override {
    if (value_ == option_.value()) return false;
    value_ = option_.value();
    // Qt's own group, by which it tells a screen reader of an option, must not turn others on or off.
    auto& native = static_cast<QRadioButton&>(widget());
    native.setAutoExclusive(false);
    native.setChecked(value_);
    native.setAutoExclusive(true);
    return true;
  }

 private:
  OptionButton& option_;
  bool value_ = false;
};

/// A group: a rounded line with the caption in its upper edge.
class FrameWidget : public ElementWidget {
 public:
  using ElementWidget::ElementWidget;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = context().fonts.scale();
    const QFontMetricsF& metrics = context().fonts.metrics(element().Font);
    const QString title = to_qt(without_mnemonic(element().Caption));
    const double top = title.isEmpty() ? std::max(1.0, twips_per_pixel * scale) : metrics.height() / 2;
    const QRectF title_place(150 * scale, 0, metrics.horizontalAdvance(title) + 120 * scale, metrics.height());
    if (!title.isEmpty()) painter.setClipRegion(QRegion(rect()).subtracted(title_place.toAlignedRect()));
    const double width = std::max(1.0, twips_per_pixel * scale);
    painter.setPen(QPen(theme::line, width));
    painter.drawRoundedRect(QRectF(rect()).adjusted(width, top, -width, -width), 90 * scale, 90 * scale);
    painter.setClipping(false);
    painter.setPen(text_color(*this, element()));
    painter.setFont(context().fonts.font(element().Font));
    painter.drawText(title_place, Qt::AlignCenter, title);
  }
};

// What a line needs around its box: lying and standing lines have a box without height or width.
int line_margin(const Line& line, const ViewContext& context) {
  return 1 + static_cast<int>(line.BorderWidth * context.fonts.scale() / 2);
}

class LineWidget : public QWidget {
 public:
  LineWidget(QWidget* parent, Line& line, ViewContext& context) : QWidget(parent), line_(line), context_(context) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // Round ends stay within the margin and join the lines of a way without corners.
    painter.setPen(
        QPen(to_qt(line_.ForeColor), line_.BorderWidth * context_.fonts.scale(), Qt::SolidLine, Qt::RoundCap));
    const int margin = line_margin(line_, context_);
    const QRect box = rect().adjusted(margin, margin, -margin, -margin);
    const QPoint left(box.left(), line_.Rising ? box.top() + box.height() : box.top());
    const QPoint right(box.left() + box.width(), line_.Rising ? box.top() : box.top() + box.height());
    painter.drawLine(QPointF(left), QPointF(right));
  }

 private:
  Line& line_;
  ViewContext& context_;
};

class LineView : public View {
 public:
  LineView(Line& line, ViewContext& context, QWidget* parent)
      : View(line, context, new LineWidget(parent, line, context)), line_(line) {}

 protected:
  bool sync_content() override {
    const bool differs = width_ != line_.BorderWidth || rising_ != line_.Rising;
    width_ = line_.BorderWidth;
    rising_ = line_.Rising;
    if (differs) {
      widget().setGeometry(widget_place({line_.Left, line_.Top, line_.Width, line_.Height}));
      widget().update();
    }
    return differs;
  }

  QRect widget_place(const Rect& place) const override {
    const int margin = line_margin(line_, context());
    return context().to_pixels(place).adjusted(-margin, -margin, margin, margin);
  }

 private:
  Line& line_;
  double width_ = twips_per_pixel;
  bool rising_ = false;
};

/// An outline that follows the mouse and lets it through.
class ShapeWidget : public QWidget {
 public:
  ShapeWidget(QWidget* parent, ViewContext& context) : QWidget(parent), context_(context) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    paint_border(painter, rect(), theme::text, context_.fonts.scale());
  }

 private:
  ViewContext& context_;
};

} // namespace

std::unique_ptr<View> make_view(Element& element, ViewContext& context, QWidget* parent) {
  switch (element.kind()) {
  case ElementKind::Label:
    return std::make_unique<LabelView>(static_cast<Label&>(element), context, parent);
  case ElementKind::PictureBox:
    return std::make_unique<PictureView>(static_cast<PictureBox&>(element), context, parent);
  case ElementKind::Button:
    return std::make_unique<ButtonView>(static_cast<Button&>(element), context, parent);
  case ElementKind::CheckBox:
    return std::make_unique<CheckView>(static_cast<CheckBox&>(element), context, parent);
  case ElementKind::OptionButton:
    return std::make_unique<OptionView>(static_cast<OptionButton&>(element), context, parent);
  case ElementKind::Frame:
    return std::make_unique<View>(element, context, new FrameWidget(parent, element, context));
  case ElementKind::Line:
    return std::make_unique<LineView>(static_cast<Line&>(element), context, parent);
  case ElementKind::Shape:
    return std::make_unique<View>(element, context, new ShapeWidget(parent, context));
  case ElementKind::Timer:
  case ElementKind::MenuItem:
    return nullptr;
  default:
    return make_input_view(element, context, parent);
  }
}

} // namespace cserko
