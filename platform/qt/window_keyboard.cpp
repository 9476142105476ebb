#include "platform/qt/window_keyboard.h"

#include <QGuiApplication>
#include <QWindow>

#include "platform/qt/scan_codes.h"

namespace qt {
namespace {

// 0 for a key that is not followed here.
uint8_t ScanCode(const QKeyEvent& event) {
  // The window system's own code tells left from right.
  constexpr quint32 kFirst = 8;
  if (QGuiApplication::platformName().startsWith("wayland") && event.nativeScanCode() > kFirst) {
    return ScanCodeOfInput(event.nativeScanCode() - kFirst);
  }
  switch (event.key()) {
    case Qt::Key_Left:
      return scancode::kLeft;
    case Qt::Key_Right:
      return scancode::kRight;
    case Qt::Key_Up:
      return scancode::kUp;
    case Qt::Key_Down:
      return scancode::kDown;
    case Qt::Key_Shift:
      return scancode::kLeftShift;
    case Qt::Key_Control:
      return scancode::kLeftCtrl;
    case Qt::Key_Space:
      return scancode::kSpace;
    default:
      return 0;
  }
}

}  // namespace

WindowKeyboard::WindowKeyboard() {
  QCoreApplication::instance()->installEventFilter(this);
  connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* window) {
    if (window == nullptr) held_.fill(0);
  });
}

bool WindowKeyboard::eventFilter(QObject*, QEvent* event) {
  // A shortcut's key arrives as an override only, its release as every other.
  const bool pressed =
      event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
  if (event->type() == QEvent::ApplicationDeactivate) held_.fill(0);
  if (!pressed && event->type() != QEvent::KeyRelease) return false;
  const auto& key = *static_cast<QKeyEvent*>(event);
  if (key.isAutoRepeat()) return false;
  const uint8_t code = ScanCode(key);
  if (code != 0) held_[code] = pressed ? kKeyHeld : uint8_t{0};
  return false;
}

}  // namespace qt
