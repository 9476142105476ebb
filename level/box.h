// What every box-like object shares: the unit box of 24 vertices, its texture rules, its faces.
// Faces by letter: "A" front (z = 0), "B" left (x = 0), "C" right (x = 1), "D" top (y = 1); the box
// is open at the back and at the bottom. Planes by number: 1 left, 2 right, 3 top, 4 front, 5
// bottom.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "level/collision_plane.h"
#include "platform/resources.h"
#include "platform/values.h"

namespace box {

using Vertices = std::array<Vertex, 24>;
using Corners = std::array<Vector3, 4>;

inline constexpr uint32_t kSideColour = 0x9A9A9A;
inline constexpr uint32_t kSideTopEdgeColour = 0xBBBBBB;
inline constexpr uint32_t kTopColour = 0xFFFFFF;
inline constexpr uint32_t kSelectedColour = 0x888888;
inline constexpr size_t kFirstTopVertex = 18;  ///< vertices before it belong to the sides
inline constexpr int kPlaneCount = 5;

/// Texture repeats along the three axes.
struct Factors {
  double x = 1, y = 1, z = 1;
};

/// Positions, unscaled texture coordinates, flat colours.
Vertices Unit();

/// Rewrites the texture coordinates of the side faces, or of the top face.
void StretchSides(Vertices& vertices, const Factors& factors);
void StretchTop(Vertices& vertices, const Factors& factors);

enum class Axis { X, Y, Z };
/// Rewrites the vertices of the faces that span `axis`: positions, the texture coordinate that runs
/// along the axis, and colours, the sides by their height (0 or 1), the top white.
void Resize(Vertices& vertices, Axis axis, double sideFactor, double topFactor,
            const std::array<uint32_t, 2>& sideColours);

void Colour(Vertices& vertices, uint32_t sides, uint32_t top);

/// Planes 1 to 5 of the box with this smallest corner and these sizes; index 0 is plane 1.
std::array<CollisionPlane, 5> Planes(const Vector3& position, const Vector3& size);
/// The face's axis-aligned box; zero for an unknown plane.
void PlaneBounds(const Vector3& position, const Vector3& size, int planenumber, Vector3& greatest,
                 Vector3& smallest);
/// Clockwise corners for the point test; zero for an unknown plane.
Corners FaceCorners(const Vector3& position, const Vector3& size, int planenumber);

/// Index 0 to 3 of face letter "A" to "D" in either letter case, otherwise −1.
int FaceIndex(const std::string& face);

/// Sets the world transform that scales the unit box, then moves it to its place.
void PlaceInWorld(const Vector3& position, const Vector3& size, Matrix4& worldMatrix,
                  Matrix4& scaleMatrix);

}  // namespace box
