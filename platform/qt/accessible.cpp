#include "platform/qt/accessible.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace cserko::accessible {

namespace {

constexpr char role_property[] = "cserko_role";
constexpr char selected_property[] = "cserko_selected";

QAccessible::Role role_of(ElementKind kind) {
  switch (kind) {
  case ElementKind::Label:
    return QAccessible::StaticText;
  case ElementKind::PictureBox:
    return QAccessible::Graphic;
  case ElementKind::Frame:
    return QAccessible::Grouping;
  case ElementKind::UpDown:
    return QAccessible::SpinBox;
  case ElementKind::ProgressBar:
    return QAccessible::ProgressBar;
  case ElementKind::Line:
  case ElementKind::Shape:
    return QAccessible::Separator;
  default:
    return QAccessible::NoRole;
  }
}

/// Adds to what Qt tells of a widget whether its element is chosen.
class ElementInterface : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    const QVariant selected = object()->property(selected_property);
    state.selectable = selected.isValid();
    state.selected = selected.toBool();
    return state;
  }
};

// Asked by Qt once for each widget, and only where somebody listens.
QAccessibleInterface* make_interface(const QString&, QObject* object) {
  auto* widget = qobject_cast<QWidget*>(object);
  const QVariant role = widget != nullptr ? widget->property(role_property) : QVariant();
  if (!role.isValid()) return nullptr;
  return new ElementInterface(widget, static_cast<QAccessible::Role>(role.toInt()));
}

void put_role(QWidget& widget, QAccessible::Role role) {
  QAccessible::installFactory(&make_interface);
  widget.setProperty(role_property, static_cast<int>(role));
}

} // namespace

void set_role(QWidget& widget, ElementKind kind) {
  if (const QAccessible::Role role = role_of(kind); role != QAccessible::NoRole) put_role(widget, role);
}

void set_selected(QWidget& widget, bool selected) {
  const QVariant before = widget.property(selected_property);
  if (before.toBool() == selected) return;
  widget.setProperty(selected_property, selected);
  QAccessible::State changed;
  changed.selected = true;
  QAccessibleStateChangeEvent state_event(&widget, changed);
  QAccessible::updateAccessibility(&state_event);
  QAccessibleEvent event(&widget, selected ? QAccessible::Selection : QAccessible::SelectionRemove);
  QAccessible::updateAccessibility(&event);
}

void set_window_role(QWidget& widget, bool modal) {
  put_role(widget, modal ? QAccessible::Dialog : QAccessible::Window);
}

} // namespace cserko::accessible
