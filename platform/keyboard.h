// The polled keyboard device: 256 bytes of state, one per scan code, and buffered events.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

/// Scan codes of the keys that the program reads.
namespace scancode {
inline constexpr uint8_t kLeftCtrl = 29, kLeftShift = 42, kRightShift = 54, kSpace = 57;
inline constexpr uint8_t kRightCtrl = 157, kUp = 200, kLeft = 203, kRight = 205, kDown = 208;
}  // namespace scancode

inline constexpr uint8_t kKeyHeld = 128;

using KeyboardState = std::array<uint8_t, 256>;

struct KeyboardEvent {
  uint8_t scanCode = 0;
  bool pressed = false;
};

/// The system keyboard. Every operation throws PlatformError when it fails.
class KeyboardDevice {
 public:
  virtual ~KeyboardDevice() = default;
  virtual void SetCooperativeLevel(uint32_t flags) = 0;
  virtual void SetBufferSize(int events) = 0;
  virtual void Acquire() = 0;
  virtual void GetDeviceState(KeyboardState& state) = 0;
  /// Moves waiting events into `events`, oldest first; returns how many.
  virtual int GetDeviceData(std::span<KeyboardEvent> events) = 0;
};

class KeyboardInput {
 public:
  virtual ~KeyboardInput() = default;
  virtual std::unique_ptr<KeyboardDevice> CreateDevice(std::string_view id) = 0;
};
