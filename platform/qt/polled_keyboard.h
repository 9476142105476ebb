// What every keyboard device shares: acquisition, and buffered events made from the changes that
// its polls see.
#pragma once

#include <deque>

#include "platform/keyboard.h"

namespace qt {

class PolledKeyboard : public KeyboardDevice {
 public:
  void SetCooperativeLevel(uint32_t flags) override;
  /// Events beyond `events` waiting ones are lost. Throws PlatformError below 0.
  void SetBufferSize(int events) override;
  void Acquire() override;
  /// Throws PlatformError before Acquire, as GetDeviceData does.
  void GetDeviceState(KeyboardState& state) override;
  int GetDeviceData(std::span<KeyboardEvent> events) override;

 protected:
  /// The keys that are held now.
  virtual KeyboardState Read() = 0;

 private:
  void Poll();

  KeyboardState last_{};
  std::deque<KeyboardEvent> waiting_;
  size_t bufferSize_ = 0;
  bool acquired_ = false;
};

}  // namespace qt
