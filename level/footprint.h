// Which objects lie near enough below or above a point to matter to the car.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

/// Whether the point (x, z) lies strictly within an object's extent, widened by 1 on every side.
/// Height does not count.
bool WithinFootprint(double x, double z, double objectX, double objectZ, double sizeX,
                     double sizeZ);

/// The same for a block, ramp or moving platform.
template <typename Object>
bool InFootprint(const Object& object, double x, double z) {
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
