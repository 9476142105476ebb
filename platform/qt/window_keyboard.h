// The keyboard as the program's own windows see it, for window systems that show no more.
#pragma once

#include <QKeyEvent>
#include <QObject>

#include "platform/qt/polled_keyboard.h"

namespace qt {

/// All keys count as released when the program loses the keyboard focus.
class WindowKeyboard : public QObject, public PolledKeyboard {
 public:
  WindowKeyboard();
  bool eventFilter(QObject* receiver, QEvent* event) override;

 protected:
  KeyboardState Read() override { return held_; }

 private:
  KeyboardState held_{};
};

}  // namespace qt
