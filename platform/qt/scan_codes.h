// Keyboard scan codes from Linux input codes.
#pragma once

#include <cstdint>

#include "platform/keyboard.h"

namespace qt {

/// 0 for a key without a scan code. Codes up to 88 are the same in both numberings.
constexpr uint8_t ScanCodeOfInput(uint32_t inputCode) {
  constexpr uint32_t kLastShared = 88;
  if (inputCode <= kLastShared) return static_cast<uint8_t>(inputCode);
  switch (inputCode) {
    case 97:
      return scancode::kRightCtrl;
    case 103:
      return scancode::kUp;
    case 105:
      return scancode::kLeft;
    case 106:
      return scancode::kRight;
    case 108:
      return scancode::kDown;
    default:
      return 0;
  }
}

}  // namespace qt
