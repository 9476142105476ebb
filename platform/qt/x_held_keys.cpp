#include "platform/qt/x_held_keys.h"

#include <QGuiApplication>

// Last: this header defines macros with everyday names.
#include <X11/XKBlib.h>

namespace qt {
namespace {

Display* Server() {
  auto* native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return native != nullptr ? native->display() : nullptr;
}

}  // namespace

void StopAutoRepeatReleases() {
  if (Display* server = Server()) XkbSetDetectableAutoRepeat(server, True, nullptr);
}

std::bitset<256> KeysDown() {
  std::bitset<256> down;
  char bytes[32] = {};
  if (Display* server = Server()) XQueryKeymap(server, bytes);
  for (size_t code = 0; code < down.size(); ++code) {
    down[code] = (static_cast<unsigned char>(bytes[code / 8]) >> (code % 8) & 1U) != 0;
  }
  return down;
}

}  // namespace qt
