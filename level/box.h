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

/// What tells the vertices of one box from those of another.
struct Shape {
  struct Face {
    uint32_t placed = 0;         ///< 1: its corners have their places; 0: all lie at the origin
    float u = 0, v = 0;          ///< texture repeats
    uint32_t low = 0, high = 0;  ///< colours by height
  };
  Face front, sides, top;  ///< the left and the right side are alike
};

/// Unscaled texture coordinates, flat colours.
Shape Unit();
/// Some face has its place.
bool IsVisible(const Shape& shape);
Vertices MakeVertices(const Shape& shape);

/// Sets the texture repeats of the side faces, or of the top face.
void StretchSides(Shape& shape, const Factors& factors);
void StretchTop(Shape& shape, const Factors& factors);

enum class Axis { X, Y, Z };
/// For the faces that span `axis`: places, the texture repeats that run along the axis, and
/// colours, the sides by their height (0 or 1), the top white.
void Resize(Shape& shape, Axis axis, double sideFactor, double topFactor,
            const std::array<uint32_t, 2>& sideColours);

void Colour(Shape& shape, uint32_t sides, uint32_t top);

/// Plane 1 to 5 of the box with this smallest corner and these sizes; throws std::out_of_range
/// otherwise.
CollisionPlane Plane(const Vector3& position, const Vector3& size, int planenumber);
/// All of them; index 0 is plane 1.
std::array<CollisionPlane, 5> Planes(const Vector3& position, const Vector3& size);
/// The face's axis-aligned box; zero for an unknown plane.
void PlaneBounds(const Vector3& position, const Vector3& size, int planenumber, Vector3& greatest,
                 Vector3& smallest);
/// Clockwise corners for the point test; zero for an unknown plane.
Corners FaceCorners(const Vector3& position, const Vector3& size, int planenumber);

/// Index 0 to 3 of face letter "A" to "D" in either letter case, otherwise −1.
int FaceIndex(const std::string& face);

/// Sets the world transform that scales the unit box, then moves it to its place.
void PlaceInWorld(const Vector3& position, const Vector3& size);

}  // namespace box
