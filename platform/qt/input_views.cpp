// The views of controls that the user types, steps or chooses in.
#include "platform/input.h"
#include "platform/qt/keys.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/theme.h"
#include "platform/qt/view.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

namespace cserko {

namespace {

/// A press that gives the box the focus keeps what its `GotFocus` has selected.
class LineNative : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;

  void select_whole() {
    selectAll();
    selected_by_suite_ = true;
  }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    const bool keep = std::exchange(selected_by_suite_, false);
    QLineEdit::mousePressEvent(event);
    if (keep) selectAll();
  }
  void keyPressEvent(QKeyEvent* event) override {
    selected_by_suite_ = false;
    QLineEdit::keyPressEvent(event);
  }

 private:
  bool selected_by_suite_ = false;
};

class LineEditView : public View {
 public:
  LineEditView(TextBox& box, ViewContext& context, QWidget* parent)
      : View(box, context, new LineNative(parent)), box_(box), edit_(static_cast<LineNative&>(widget())) {
    edit_.setFocusPolicy(Qt::ClickFocus);
    QObject::connect(&edit_, &QLineEdit::textEdited, &edit_, [this](const QString& text) {
      this->context().act([&box = box_, typed = from_qt(text)] { input::type(box, typed); });
    });
    QObject::connect(&edit_, &QLineEdit::editingFinished, &edit_,
                     [this] { this->context().act([&box = box_] { input::finish_typing(box); }); });
  }

 protected:
  bool sync_content() override {
    const QString text = to_qt(box_.text());
    const bool select = selections_ != box_.selections();
    selections_ = box_.selections();
    if (edit_.text() == text && edit_.isReadOnly() == box_.Locked && !select) return false;
    if (edit_.text() != text) edit_.setText(text);
    edit_.setReadOnly(box_.Locked);
    if (box_.MaxLength > 0) edit_.setMaxLength(box_.MaxLength);
    if (select) edit_.select_whole();
    return true;
  }

 private:
  TextBox& box_;
  LineNative& edit_;
  int selections_ = 0;
};

class TextEditView : public View {
 public:
  TextEditView(TextBox& box, ViewContext& context, QWidget* parent)
      : View(box, context, new QPlainTextEdit(parent)), box_(box), edit_(static_cast<QPlainTextEdit&>(widget())) {
    edit_.setFocusPolicy(Qt::ClickFocus);
    QObject::connect(&edit_, &QPlainTextEdit::textChanged, &edit_, [this] {
      this->context().act([&box = box_, typed = from_qt(edit_.toPlainText())] { input::type(box, typed); });
    });
  }

 protected:
  bool sync_content() override {
    const QString text = lines_to_qt(box_.text());
    if (edit_.toPlainText() == text && edit_.isReadOnly() == box_.Locked) return false;
    const QSignalBlocker quiet(edit_);
    if (edit_.toPlainText() != text) edit_.setPlainText(text);
    edit_.setReadOnly(box_.Locked);
    return true;
  }

 private:
  TextBox& box_;
  QPlainTextEdit& edit_;
};

/// Two small buttons, one over the other. Where there is no text box for the keys, it takes the focus itself.
class UpDownWidget : public QWidget {
 public:
  UpDownWidget(QWidget* parent, UpDown& updown, ViewContext& context) : QWidget(parent), context_(context) {
    auto* layout = new QVBoxLayout(this);
    const int ring = updown.focusable() ? ring_width : 0;
    if (updown.focusable()) setFocusPolicy(Qt::ClickFocus);
    layout->setContentsMargins(ring, ring, ring, ring);
    layout->setSpacing(0);
    for (const int direction : {1, -1}) {
      auto* button = new QToolButton(this);
      button->setArrowType(direction > 0 ? Qt::UpArrow : Qt::DownArrow);
      button->setAutoRepeat(true);
      button->setFocusPolicy(Qt::NoFocus);
      button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
      button->setAccessibleName(direction > 0 ? "Több" : "Kevesebb");
      connect(button, &QToolButton::clicked, this, [&updown, &context, direction] {
        context.act([&updown, direction] { input::step(updown, direction); });
      });
      layout->addWidget(button);
    }
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    if (!context_.keyboard_used || !hasFocus()) return;
    QPainter painter(this);
    paint_focus_ring(painter, rect(), context_.fonts.scale());
  }
  void focusInEvent(QFocusEvent*) override { update(); }
  void focusOutEvent(QFocusEvent*) override { update(); }

 private:
  static constexpr int ring_width = 3;

  ViewContext& context_;
};

/// Getting the focus selects nothing: only the user chooses. An entry is chosen where it is pressed and let go, so that
/// a finger can scroll the list; what is selected then is told by the element. Only whole entries are shown.
class ListNative : public QListWidget {
 public:
  explicit ListNative(QWidget* parent) : QListWidget(parent) {
    // The strip below the last entry looks like the list.
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
  }

  std::function<void(int row, Qt::KeyboardModifiers)> chosen;

 protected:
  void updateGeometries() override {
    const int entry = sizeHintForRow(0);
    const int room = height() - 2 * frameWidth();
    const int strip = entry > 0 && count() * entry > room ? room % entry : 0;
    if (viewportMargins().bottom() != strip) setViewportMargins(0, 0, 0, strip);
    QListWidget::updateGeometries();
  }
  void focusInEvent(QFocusEvent* event) override {
    const QSignalBlocker quiet(this);
    const int row = currentRow();
    QListWidget::focusInEvent(event);
    setCurrentRow(row, QItemSelectionModel::NoUpdate);
  }
  void mousePressEvent(QMouseEvent* event) override {
    pressed_ = event->button() == Qt::LeftButton ? row_at(event) : -1;
    event->accept();
  }
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void mouseMoveEvent(QMouseEvent* event) override { event->accept(); }
  void mouseReleaseEvent(QMouseEvent* event) override {
    event->accept();
    const int pressed = std::exchange(pressed_, -1);
    if (pressed >= 0 && event->button() == Qt::LeftButton && row_at(event) == pressed)
      chosen(pressed, event->modifiers());
  }

 private:
  int row_at(const QMouseEvent* event) const {
    const QModelIndex index = indexAt(event->position().toPoint());
    return index.isValid() ? index.row() : -1;
  }

  int pressed_ = -1;
};

class ListView : public View {
 public:
  ListView(ListBox& list, ViewContext& context, QWidget* parent)
      : View(list, context, new ListNative(parent)), list_(list), native_(static_cast<ListNative&>(widget())) {
    native_.setFocusPolicy(Qt::ClickFocus);
    native_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    native_.setTextElideMode(Qt::ElideMiddle);
    native_.setEditTriggers(QAbstractItemView::NoEditTriggers);
    if (list.MultiSelect) native_.setSelectionMode(QAbstractItemView::MultiSelection);
    native_.chosen = [this](int row, Qt::KeyboardModifiers held) {
      this->context().act([&list = list_, row, shift = to_shift_mask(held)] { input::select(list, row, shift); });
    };
    // Keys that the native list works with itself: the arrows of a list of one selection, and the first letters.
    QObject::connect(&native_, &QListWidget::currentRowChanged, &native_, [this](int row) { moved_by_key(row); });
  }

 protected:
  bool sync_content() override {
    if (items_ == list_.Items && row_ == list_.list_index() && several_ == wanted_selection()) return false;
    const QSignalBlocker quiet(native_);
    if (items_ != list_.Items) {
      items_ = list_.Items;
      native_.clear();
      for (const Text& item : items_) native_.addItem(to_qt(item));
    }
    row_ = list_.list_index();
    several_ = wanted_selection();
    native_.setCurrentRow(row_,
                          list_.MultiSelect ? QItemSelectionModel::NoUpdate : QItemSelectionModel::ClearAndSelect);
    for (std::size_t i = 0; i < several_.size(); ++i) native_.item(static_cast<int>(i))->setSelected(several_[i]);
    return true;
  }

 private:
  std::vector<bool> wanted_selection() const { return list_.MultiSelect ? list_.selection() : std::vector<bool>(); }

  void moved_by_key(int row) {
    if (row < 0) return;
    row_ = row;
    context().act([&list = list_, row] {
      if (list.MultiSelect) {
        list.set_list_index(row);
      } else {
        input::select(list, row);
      }
    });
  }

  ListBox& list_;
  ListNative& native_;
  std::vector<Text> items_;
  std::vector<bool> several_;
  int row_ = -1;
};

/// Keys to the right and down go up in value. Qt's own treatment turns the arrows of a lying bar round.
class ScrollNative : public QScrollBar {
 public:
  using QScrollBar::QScrollBar;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    switch (event->key()) {
    case Qt::Key_Right:
    case Qt::Key_Down:
      return triggerAction(SliderSingleStepAdd);
    case Qt::Key_Left:
    case Qt::Key_Up:
      return triggerAction(SliderSingleStepSub);
    case Qt::Key_PageDown:
      return triggerAction(SliderPageStepAdd);
    case Qt::Key_PageUp:
      return triggerAction(SliderPageStepSub);
    case Qt::Key_Home:
      return triggerAction(SliderToMinimum);
    case Qt::Key_End:
      return triggerAction(SliderToMaximum);
    default:
      event->ignore();
    }
  }
};

class ScrollView : public View {
 public:
  ScrollView(ScrollBar& bar, ViewContext& context, QWidget* parent)
      : View(bar, context, new ScrollNative(Qt::Horizontal, parent)),
        bar_(bar),
        native_(static_cast<QScrollBar&>(widget())) {
    native_.setFocusPolicy(Qt::ClickFocus);
    QObject::connect(&native_, &QScrollBar::valueChanged, &native_,
                     [this](int value) { this->context().act([&to = bar_, value] { input::scroll(to, value); }); });
  }

 protected:
  bool sync_content() override {
    const bool same = native_.value() == bar_.value() && native_.minimum() == bar_.Min && native_.maximum() == bar_.Max;
    if (same) return false;
    const QSignalBlocker quiet(native_);
    native_.setRange(bar_.Min, bar_.Max);
    native_.setSingleStep(bar_.SmallChange);
    native_.setPageStep(bar_.LargeChange);
    native_.setValue(bar_.value());
    return true;
  }

 private:
  ScrollBar& bar_;
  QScrollBar& native_;
};

class ProgressWidget : public QWidget {
 public:
  using QWidget::QWidget;

  /// Fills the bar up to a number of pixels; returns whether that is another than before.
  bool fill(int pixels) {
    if (pixels == filled_) return false;
    filled_ = pixels;
    update();
    return true;
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double radius = height() / 4.0;
    painter.setPen(QPen(theme::line, 1));
    painter.setBrush(theme::field);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), radius, radius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme::accent);
    painter.drawRoundedRect(QRectF(3, 3, filled_, height() - 6), radius, radius);
  }

 private:
  int filled_ = 0;
};

class ProgressView : public View {
 public:
  ProgressView(ProgressBar& bar, ViewContext& context, QWidget* parent)
      : View(bar, context, new ProgressWidget(parent)), bar_(bar) {}

 protected:
  bool sync_content() override {
    const int range = std::max(1, bar_.Max - bar_.Min);
    const int inner = widget().width() - 6;
    return static_cast<ProgressWidget&>(widget()).fill(inner * (bar_.Value - bar_.Min) / range);
  }

 private:
  ProgressBar& bar_;
};

} // namespace

std::unique_ptr<View> make_input_view(Element& element, ViewContext& context, QWidget* parent) {
  switch (element.kind()) {
  case ElementKind::TextBox: {
    auto& box = static_cast<TextBox&>(element);
    if (box.Multiline) return std::make_unique<TextEditView>(box, context, parent);
    return std::make_unique<LineEditView>(box, context, parent);
  }
  case ElementKind::UpDown:
    return std::make_unique<View>(element, context, new UpDownWidget(parent, static_cast<UpDown&>(element), context));
  case ElementKind::ListBox:
  case ElementKind::FileListBox:
    return std::make_unique<ListView>(static_cast<ListBox&>(element), context, parent);
  case ElementKind::ScrollBar:
    return std::make_unique<ScrollView>(static_cast<ScrollBar&>(element), context, parent);
  case ElementKind::ProgressBar:
    return std::make_unique<ProgressView>(static_cast<ProgressBar&>(element), context, parent);
  default:
    return nullptr;
  }
}

} // namespace cserko
