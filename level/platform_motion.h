// How a moving platform slides along x, step by step.
#pragma once

#include <cstdint>

#include "platform/numbers.h"

/// What stays the same on the way.
struct PlatformTravel {
  uint8_t speed = 0;      ///< hundredths of a world unit per step
  uint8_t distance = 0;   ///< world units
  bool loopBack = false;  ///< turns round at the end; otherwise it jumps back to the start
};

/// Where it is on its way.
struct PlatformLeg {
  /// Directions of travel; any other value does not move.
  enum : uint8_t { Left = 2, Right = 3 };

  float x = 0;
  float startX = 0;  ///< of the present leg
  uint8_t direction = 0;
  bool operator==(const PlatformLeg&) const = default;

  /// −1 to the left, +1 to the right, 0 for any other direction.
  int Heading() const { return direction == Left ? -1 : direction == Right ? 1 : 0; }

  /// One step; true when it turned round. Without a heading it stays.
  bool Advance(const PlatformTravel& travel) {
    if (Heading() == 0) return false;
    const Step step = NextStep(travel);
    if (step.inside) {
      x = ToSingle(RoundTo3(step.next));
      return false;
    }
    if (!travel.loopBack) {
      x = startX;
      return false;
    }
    x = startX = step.limit;
    direction = direction == Left ? Right : Left;
    return true;
  }

  /// What the next step would add to x; nothing where it jumps back to the start, which carries
  /// nobody.
  float Velocity(const PlatformTravel& travel) const {
    if (Heading() == 0) return 0;
    const Step step = NextStep(travel);
    if (step.inside) return ToSingle(step.length);
    // The rest of the way to the end.
    return travel.loopBack ? ToSingle(double{step.limit} - x) : 0;
  }

 private:
  /// Where the next step leads, before it turns round or jumps back at the end of the travel.
  struct Step {
    double length;
    float next, limit;
    bool inside;  ///< next does not pass the limit
  };
  Step NextStep(const PlatformTravel& travel) const {
    const int heading = Heading();
    const double length = heading * (travel.speed / 100.0);
    const float limit = ToSingle(double{startX} + heading * travel.distance);
    const float next = ToSingle(x + length);
    return {length, next, ToSingle(RoundTo3(limit)), heading < 0 ? next >= limit : next <= limit};
  }
};
