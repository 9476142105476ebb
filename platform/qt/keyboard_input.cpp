#include "platform/qt/keyboard_input.h"

#include <QGuiApplication>
#include <string>

#include "platform/error.h"
#include "platform/qt/window_keyboard.h"
#include "platform/qt/x_keyboard.h"

namespace qt {

std::unique_ptr<KeyboardDevice> SystemKeyboardInput::CreateDevice(std::string_view id) {
  if (id != "GUID_SysKeyboard") throw PlatformError("No input device " + std::string(id));
  if (QGuiApplication::platformName() == "xcb") return OpenXKeyboard();
  return std::make_unique<WindowKeyboard>();
}

}  // namespace qt
