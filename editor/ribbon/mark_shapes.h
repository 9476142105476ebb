// Small upright pictures that tell what happens on a path, readable on every ground.
#pragma once

#include <cstdint>

#include "editor/ribbon/strip.h"

namespace ribbon {

/// How far marks reach from the middle of the strip, world units.
inline constexpr Vector3 kMarkReach = {2.2F, 3.4F, 0.0F};

/// Adds the pictures of all bits of drive::Mark in `marks`, side by side above a place. They stand
/// upright, facing against the z axis.
void AddMarks(const Vector3& place, uint8_t marks, Triangles& triangles);

}  // namespace ribbon
