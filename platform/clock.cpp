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
