// What a screen reader is told of the elements that no control of Qt stands for.
#pragma once

#include "platform/elements.h"

class QWidget;

namespace cserko::accessible {

/// Gives a painted widget the role of the element that it shows. Kinds with a control of Qt's keep that one's.
void set_role(QWidget& widget, ElementKind kind);

} // namespace cserko::accessible
