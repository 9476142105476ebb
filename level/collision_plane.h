// The flat face that a placeable object offers to picking, shadow and collision.
#pragma once

/// The plane a·x + b·y + c·z + d = 0; (a, b, c) is a unit normal pointing out of the object.
struct CollisionPlane {
  float a = 0, b = 0, c = 0, d = 0;
  bool operator==(const CollisionPlane&) const = default;
};
