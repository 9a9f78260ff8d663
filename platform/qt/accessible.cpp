#include "platform/qt/accessible.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace cserko::accessible {

namespace {

constexpr char role_property[] = "cserko_role";

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

// Asked by Qt once for each widget, and only where somebody listens.
QAccessibleInterface* make_interface(const QString&, QObject* object) {
  auto* widget = qobject_cast<QWidget*>(object);
  const QVariant role = widget != nullptr ? widget->property(role_property) : QVariant();
  if (!role.isValid()) return nullptr;
  return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()));
}

} // namespace

void set_role(QWidget& widget, ElementKind kind) {
  const QAccessible::Role role = role_of(kind);
  if (role == QAccessible::NoRole) return;
  QAccessible::installFactory(&make_interface);
  widget.setProperty(role_property, static_cast<int>(role));
}

} // namespace cserko::accessible
