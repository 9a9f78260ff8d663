// What a screen reader is told of the elements that no control of Qt stands for.
#pragma once

#include "platform/elements.h"

class QWidget;

namespace cserko::accessible {

/// Gives a painted widget the role of the element that it shows. Kinds with a control of Qt's keep that one's.
void set_role(QWidget& widget, ElementKind kind);

/// Tells whether the element is chosen, and that it has been where that is new.
void set_selected(QWidget& widget, bool selected);

/// A window of its own: one that is shown modally is a dialog.
void set_window_role(QWidget& widget, bool modal);

} // namespace cserko::accessible
