// The wedge in its four rotations: vertices, face corners and planes as data.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "level/collision_plane.h"
#include "platform/values.h"

namespace ramp {

using Vertices = std::array<Vertex, 18>;
using Corners = std::array<Vector3, 4>;

inline constexpr int kPlaneCount = 6;
inline constexpr uint32_t kSlopeColour = 0xFFFFFF;
inline constexpr uint32_t kSideColour = 0x9A9A9A;
inline constexpr uint32_t kSelectedColour = 0x888888;
inline constexpr size_t kFirstSideVertex = 6;  ///< vertices before it are the slope

/// What tells the vertices of one wedge from those of another.
struct Shape {
  Vector3 size;
  uint32_t rotation = 0;
  uint32_t made = 0;  ///< 0: all corners lie at the origin
  uint32_t selected = 0;
};

/// The unit wedge; textures repeat once per world unit, so the coordinates carry the sizes.
Vertices MakeVertices(const Shape& shape);

/// Rise along the slope's axis, negative where it rises towards the lower coordinate; 0 for a ramp
/// without length.
float Gradient(uint8_t rotation, const Vector3& size);

/// Plane 1 to 6: sides at low and high x, slope, side at low z, bottom, and the horizontal plane of
/// the high edge. A side that the rotation lacks is all zero.
CollisionPlane Plane(uint8_t rotation, const Vector3& position, const Vector3& size,
                     int planenumber);
/// All of them; index 0 is plane 1.
std::array<CollisionPlane, 6> Planes(uint8_t rotation, const Vector3& position,
                                     const Vector3& size);

/// Corners for the point test; a triangle repeats its first corner, a missing face is all zero.
/// Plane 6 is a strip 0.8 deep beyond the high edge.
Corners FaceCorners(uint8_t rotation, const Vector3& position, const Vector3& size,
                    int planenumber);

/// The boxes that the shadow tests: the whole wedge for the slope, the bottom for plane 5, one
/// upright face for plane 4 (by rotation), and the empty box at the origin for the others.
void PlaneBounds(uint8_t rotation, const Vector3& position, const Vector3& size, int planenumber,
                 Vector3& greatest, Vector3& smallest);

}  // namespace ramp
