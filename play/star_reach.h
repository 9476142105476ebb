// Which stars the car picks up.
#pragma once

#include "platform/values.h"

namespace CollisionDetection {

/// Along x and along y.
inline constexpr double kStarReach = 0.8;

/// Whether a car whose reference point is `car` takes a star at (x, y, z).
inline bool StarInReach(const Vector3& car, double x, double y, double z) {
  const auto between = [](double low, double value, double high) {
    return low < value && value < high;
  };
  return between(x - kStarReach, car.x, x + kStarReach) &&
         between(y - kStarReach, car.y, y + kStarReach) && between(z, car.z, z + 1);
}

}  // namespace CollisionDetection
