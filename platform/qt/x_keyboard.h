// The X server's key map: which keys are held, whichever window has the focus.
#pragma once

#include <memory>

#include "platform/keyboard.h"

namespace qt {

/// Opens a connection of its own to the application's X server. Throws PlatformError when it cannot
/// or when the server has no keyboard.
std::unique_ptr<KeyboardDevice> OpenXKeyboard();

}  // namespace qt
