// Which stars the car picks up.
#pragma once

#include "platform/values.h"

namespace CollisionDetection {

/// Whether a car whose reference point is `car` takes a star at (x, y, z).
inline bool StarInReach(const Vector3& car, double x, double y, double z) {
  constexpr double kReach = 0.8;
  const auto between = [](double low, double value, double high) {
    return low < value && value < high;
  };
  return between(x - kReach, car.x, x + kReach) && between(y - kReach, car.y, y + kReach) &&
         between(z, car.z, z + 1);
}

}  // namespace CollisionDetection
