// Small pictures that tell what happens on a path, readable on every ground.
#pragma once

#include <cstdint>

#include "editor/ribbon/strip.h"

namespace ribbon {

/// How far marks reach sideways, upwards and forwards from the middle of the strip, world units.
inline constexpr double kMarkReach = 2.2;

/// Adds the pictures of all bits of drive::Mark in `marks`, side by side above a place, facing
/// the camera.
void AddMarks(const Vector3& place, uint8_t marks, Triangles& triangles);

}  // namespace ribbon
