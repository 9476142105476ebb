#include "platform/qt/x_auto_repeat.h"

#include <QGuiApplication>

// Last: this header defines macros with everyday names.
#include <X11/XKBlib.h>

namespace qt {

void StopAutoRepeatReleases() {
  auto* native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (native == nullptr || native->display() == nullptr) return;
  XkbSetDetectableAutoRepeat(native->display(), True, nullptr);
}

}  // namespace qt
