// The look of every window: fonts, colours and the drawing style.
#pragma once

#include <QApplication>
#include <QFont>

namespace qt {

void ApplyTheme(QApplication& application);

/// The font of a window's controls: small enough for the captions at their places.
QFont ControlFont(bool bold = false);

}  // namespace qt
