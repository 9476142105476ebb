// Which objects lie near enough below or above a point to matter to the car.
#pragma once

#include <cmath>
#include <cstddef>
#include <span>
#include <vector>

#include "level/extent.h"

/// Whether the point (x, z) lies strictly within an object's extent, widened by 1 on every side.
/// Height does not count.
bool WithinFootprint(double x, double z, double objectX, double objectZ, double sizeX,
                     double sizeZ);

/// False where z is too far away for a piece that is drawn there, whatever its place is rounded to.
inline bool NearInDepth(const Extent& drawn, double z) {
  constexpr double kMargin = 2.5;  // the reach of 1, and half a unit each for place and size
  // One comparison: where pieces lie in no order, two are guessed wrong half of the time.
  const double half = drawn.size.z / 2.0;
  return std::abs(z - drawn.corner.z - half) < half + kMargin;
}

/// As WithinFootprint for a block, ramp or moving platform.
template <typename Object>
bool InFootprint(const Object& object, double x, double z) {
  // Most of a track is out of reach, and rounding its places would take most of the time.
  if (!NearInDepth(object.Drawn(), z)) return false;
  return WithinFootprint(x, z, object.Xpos(), object.Zpos(), object.scaleX(), object.scaleZ());
}

/// Indices of the objects for which that holds.
template <typename Object>
std::vector<size_t> IndicesInFootprint(std::span<const Object> objects, double x, double z) {
  std::vector<size_t> indices;
  for (size_t i = 0; i < objects.size(); ++i) {
    if (InFootprint(objects[i], x, z)) indices.push_back(i);
  }
  return indices;
}
