#include "platform/clock.h"

#include <chrono>

int64_t SystemClock::Counter() {
  return std::chrono::duration_cast<std::chrono::microseconds>(
             std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

int64_t SystemClock::Frequency() { return 1'000'000; }

int32_t SystemClock::TickCount() {
  return static_cast<int32_t>(static_cast<uint32_t>(Counter() / 1000));
}

namespace ticks {
namespace {

Clock*& Named() {
  static Clock* clock = nullptr;
  return clock;
}

}  // namespace

void Use(Clock* clock) { Named() = clock; }
Clock* InUse() { return Named(); }

int32_t Count() {
  static SystemClock own;
  return Named() != nullptr ? Named()->TickCount() : own.TickCount();
}

uint32_t Between(int32_t start, int32_t now) {
  return static_cast<uint32_t>(now) - static_cast<uint32_t>(start);
}

}  // namespace ticks
