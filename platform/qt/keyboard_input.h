// Chooses where the keyboard's state comes from.
#pragma once

#include "platform/keyboard.h"

namespace qt {

/// On an X server its key map, also while the window is in the background; elsewhere the key events
/// of the program's windows.
class SystemKeyboardInput : public KeyboardInput {
 public:
  /// Only "GUID_SysKeyboard" exists. Throws PlatformError for another id and when there is no
  /// keyboard.
  std::unique_ptr<KeyboardDevice> CreateDevice(std::string_view id) override;
};

}  // namespace qt
