// The ray from the camera through a point of the viewport.
#pragma once

#include "level/extent.h"

/// From one unit in front of the eye to a hundred: `start` and the way to the other end.
struct PickRay {
  Vector3 start, direction;

  /// False only when no point of the box can be met.
  bool MayMeet(const Extent& box) const;
};

/// (x, y) in the viewport's pixels.
PickRay RayThrough(float x, float y);
