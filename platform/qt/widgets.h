// Widgets from control objects.
#pragma once

#include <QWidget>

#include "platform/controls.h"

namespace qt {

/// The widget for `control`, by its kind, inside `parent`, mirrored both ways. Throws
/// std::invalid_argument for a kind without a widget.
QWidget* BuildWidget(Control& control, QWidget* parent);

}  // namespace qt
