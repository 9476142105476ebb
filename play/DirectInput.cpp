#include "play/DirectInput.h"

#include "platform/dialogs.h"
#include "render/device/DirectX.h"

namespace DirectInput {
namespace {

constexpr uint32_t kNonExclusiveBackground = 10;
constexpr int kBufferedEvents = 10;
constexpr uint32_t kErrorNoBufferedData = 0x80040260;

}  // namespace

bool InitKeyboard() {
  try {
    DI = DirectX::DX->CreateDirectInput();
    KeyboardDevice = DI->CreateDevice("GUID_SysKeyboard");
    KeyboardDevice->SetCooperativeLevel(kNonExclusiveBackground);
    KeyboardDevice->SetBufferSize(kBufferedEvents);
    KeyboardDevice->Acquire();
    return true;
  } catch (const PlatformError&) {
    dialogs::ShowMessage("Error occured trying to initalise Direct Input");
    return false;
  }
}

bool PollKeyboard() {
  KeyboardDevice->GetDeviceState(KeyState);
  try {
    KeyboardDevice->GetDeviceData(KeyEvents);
  } catch (const PlatformError& failure) {
    if (failure.code() == kErrorNoBufferedData) return false;
    throw;
  }
  return true;
}

bool Held(uint8_t scanCode) { return KeyState[scanCode] == kKeyHeld; }

}  // namespace DirectInput
