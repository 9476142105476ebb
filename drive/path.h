// The car's way through a track, a point per frame, and what happens on it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/values.h"

namespace drive {

/// What happens at a point of a path; the bits add up.
enum Mark : uint8_t {
  kTakesOff = 1,
  kLands = 2,
  kTakesStar = 4,
  kMeetsPad = 8,  ///< a jump pad or a turbo pad
  kExplodes = 16,
  kFalls = 32,
  kWins = 64
};

struct PathPoint {
  Vector3 place;     ///< the car's reference point after the frame
  Vector3 velocity;  ///< world units per frame
  uint8_t marks = 0;
};

/// Point 0 is the start, point n what frame n ended with.
using Path = std::vector<PathPoint>;

/// The point among the first `count` whose place is nearest to this depth; of equals the first.
size_t PointNearDepth(const Path& path, size_t count, float depth);
/// Whether the path passes this depth, or nearly.
bool PassesDepth(const Path& path, float depth);

}  // namespace drive
