#include "platform/qt/polled_keyboard.h"

#include "platform/error.h"

namespace qt {

void PolledKeyboard::SetCooperativeLevel(uint32_t) {
  // Reading the keys takes nothing away from other programs: every level is met.
}

void PolledKeyboard::SetBufferSize(int events) {
  if (events < 0) throw PlatformError("The keyboard buffer's size is below 0");
  bufferSize_ = static_cast<size_t>(events);
}

void PolledKeyboard::Acquire() {
  if (acquired_) return;
  acquired_ = true;
  last_ = Read();
}

void PolledKeyboard::GetDeviceState(KeyboardState& state) {
  Poll();
  state = last_;
}

int PolledKeyboard::GetDeviceData(std::span<KeyboardEvent> events) {
  Poll();
  const size_t count = std::min(events.size(), waiting_.size());
  const auto end = waiting_.begin() + static_cast<std::ptrdiff_t>(count);
  std::copy(waiting_.begin(), end, events.begin());
  waiting_.erase(waiting_.begin(), end);
  return static_cast<int>(count);
}

void PolledKeyboard::Poll() {
  if (!acquired_) throw PlatformError("The keyboard is not acquired");
  const KeyboardState now = Read();
  for (size_t code = 0; code < now.size(); ++code) {
    if (now[code] == last_[code] || waiting_.size() >= bufferSize_) continue;
    waiting_.push_back({static_cast<uint8_t>(code), now[code] == kKeyHeld});
  }
  last_ = now;
}

}  // namespace qt
