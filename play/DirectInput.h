// The keyboard device: started once, polled once a frame.
#pragma once

#include <array>
#include <memory>

#include "platform/keyboard.h"

namespace DirectInput {

inline std::unique_ptr<KeyboardInput> DI;
inline std::unique_ptr<::KeyboardDevice> KeyboardDevice;
inline KeyboardState KeyState{};                 ///< this frame's keys, kKeyHeld where held
inline std::array<KeyboardEvent, 11> KeyEvents;  ///< this frame's buffered events

/// Creates and acquires the system keyboard, read in the background too. Shows its own message and
/// returns false on failure.
bool InitKeyboard();

/// Reads state and buffered events into the two globals. Returns false when the buffered read
/// fails because the input was lost, in which case the frame's poll ends; throws PlatformError for
/// any other failure.
bool PollKeyboard();

bool Held(uint8_t scanCode);

}  // namespace DirectInput
