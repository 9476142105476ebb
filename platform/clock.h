// The two time sources, replaceable by a virtual clock.
#pragma once

#include <cstdint>

class Clock {
 public:
  virtual ~Clock() = default;
  /// High-resolution counter, in counts.
  virtual int64_t Counter() = 0;
  /// Counts per second.
  virtual int64_t Frequency() = 0;
  /// Milliseconds since some fixed moment; wraps round.
  virtual int32_t TickCount() = 0;
};

/// The machine's own clock.
class SystemClock : public Clock {
 public:
  int64_t Counter() override;
  int64_t Frequency() override;
  int32_t TickCount() override;
};

/// The tick count that animations read.
namespace ticks {

/// Names the clock that is read; it must outlive its use. Null: the machine's own.
void Use(Clock* clock);
/// The one that was named last.
Clock* InUse();
/// Milliseconds since some fixed moment; wraps round.
int32_t Count();
/// Milliseconds from `start` to `now`, across a wrap too.
uint32_t Between(int32_t start, int32_t now);

}  // namespace ticks
