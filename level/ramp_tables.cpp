#include "level/ramp_tables.h"

#include <stdexcept>

#include "level/maths.h"
#include "platform/numbers.h"
#include "render/device/DirectX.h"

namespace ramp {
namespace {

/// What a texture coordinate is: zero, or one of the three sizes.
enum Length : uint8_t { O, X, Y, Z };

struct WedgeVertex {
  float x, y, z;
  Length u, v;
};

constexpr std::array<std::array<WedgeVertex, 18>, 4> kWedges = {{
    {{{0, 0, 0, O, O},
      {0, 1, 1, O, Z},
      {1, 0, 0, X, O},
      {1, 0, 0, X, O},
      {0, 1, 1, O, Z},
      {1, 1, 1, X, Z},
      {0, 0, 0, Z, Y},
      {0, 0, 1, O, Y},
      {0, 1, 1, O, O},
      {1, 0, 0, O, Y},
      {1, 1, 1, Z, O},
      {1, 0, 1, Z, Y},
      {0, 0, 1, O, O},
      {0, 1, 1, O, O},
      {1, 0, 1, O, O},
      {1, 0, 1, O, O},
      {0, 1, 1, O, O},
      {1, 1, 1, O, O}}},  // rotation 0
    {{{0, 0, 1, Z, O},
      {1, 1, 1, Z, X},
      {0, 0, 0, O, O},
      {0, 0, 0, O, O},
      {1, 1, 1, Z, X},
      {1, 1, 0, O, X},
      {0, 0, 1, X, O},
      {1, 0, 1, X, Z},
      {1, 1, 1, O, Z},
      {0, 0, 0, O, O},
      {1, 1, 0, Y, X},
      {1, 0, 0, O, X},
      {1, 0, 0, Y, O},
      {1, 1, 1, O, Z},
      {1, 0, 1, Y, Z},
      {1, 1, 0, O, O},
      {1, 1, 1, O, Z},
      {1, 0, 0, Y, O}}},  // rotation 1
    {{{0, 1, 0, O, O},
      {0, 0, 1, O, Z},
      {1, 0, 1, X, Z},
      {1, 0, 1, X, Z},
      {1, 1, 0, X, O},
      {0, 1, 0, O, O},
      {0, 1, 0, O, O},
      {0, 0, 0, Y, O},
      {0, 0, 1, Y, Z},
      {1, 1, 0, O, O},
      {1, 0, 1, Y, Z},
      {1, 0, 0, Y, O},
      {0, 0, 0, O, Y},
      {0, 1, 0, O, O},
      {1, 0, 0, X, Y},
      {1, 0, 0, X, Y},
      {0, 1, 0, O, O},
      {1, 1, 0, X, O}}},  // rotation 2
    {{{0, 1, 1, Z, O},
      {1, 0, 1, Z, X},
      {0, 1, 0, O, O},
      {1, 0, 1, Z, X},
      {1, 0, 0, O, X},
      {0, 1, 0, O, O},
      {0, 1, 0, O, O},
      {1, 0, 0, Y, X},
      {0, 0, 0, Y, O},
      {0, 1, 1, X, O},
      {1, 0, 1, X, Z},
      {0, 0, 1, O, Z},
      {0, 0, 1, O, Y},
      {0, 1, 1, O, O},
      {0, 0, 0, Z, Y},
      {0, 1, 1, O, O},
      {0, 1, 0, Z, O},
      {0, 0, 0, Z, Y}}},  // rotation 3
}};

/// A corner in steps of the sizes: 0 the low side, 1 the high side; -1 and 2 lie 0.8 beyond them.
struct Step {
  int8_t x, y, z;
};
struct FaceSteps {
  bool exists = false;
  std::array<Step, 4> corners{};
};

constexpr std::array<std::array<FaceSteps, 6>, 4> kFaces = {{
    {{{true, {{{0, 0, 0}, {0, 1, 1}, {0, 0, 1}, {0, 0, 0}}}},
      {true, {{{1, 0, 0}, {1, 1, 1}, {1, 0, 1}, {1, 0, 0}}}},
      {true, {{{0, 0, 0}, {0, 1, 1}, {1, 1, 1}, {1, 0, 0}}}},
      {},
      {true, {{{0, 0, 0}, {0, 0, 1}, {1, 0, 1}, {1, 0, 0}}}},
      {true, {{{0, 1, 1}, {0, 1, 2}, {1, 1, 2}, {1, 1, 1}}}}}},  // rotation 0
    {{{},
      {true, {{{1, 0, 0}, {1, 1, 0}, {1, 1, 1}, {1, 0, 1}}}},
      {true, {{{0, 0, 0}, {0, 0, 1}, {1, 1, 1}, {1, 1, 0}}}},
      {true, {{{0, 0, 0}, {1, 1, 0}, {1, 0, 0}, {0, 0, 0}}}},
      {true, {{{0, 0, 0}, {0, 0, 1}, {1, 0, 1}, {1, 0, 0}}}},
      {true, {{{1, 1, 0}, {1, 1, 1}, {2, 1, 1}, {2, 1, 0}}}}}},  // rotation 1
    {{{true, {{{0, 0, 0}, {0, 1, 0}, {0, 0, 1}, {0, 0, 0}}}},
      {true, {{{1, 0, 0}, {1, 1, 0}, {1, 0, 1}, {1, 0, 0}}}},
      {true, {{{0, 1, 0}, {0, 0, 1}, {1, 0, 1}, {1, 1, 0}}}},
      {true, {{{0, 0, 0}, {0, 1, 0}, {1, 1, 0}, {1, 0, 0}}}},
      {true, {{{0, 0, 0}, {0, 0, 1}, {1, 0, 1}, {1, 0, 0}}}},
      {true, {{{0, 1, 0}, {1, 1, 0}, {1, 1, -1}, {0, 1, -1}}}}}},  // rotation 2
    {{{true, {{{0, 0, 0}, {0, 1, 0}, {0, 1, 1}, {0, 0, 1}}}},
      {},
      {true, {{{1, 0, 0}, {0, 1, 0}, {0, 1, 1}, {1, 0, 1}}}},
      {true, {{{0, 0, 0}, {0, 1, 0}, {1, 0, 0}, {0, 0, 0}}}},
      {true, {{{0, 0, 0}, {0, 0, 1}, {1, 0, 1}, {1, 0, 0}}}},
      {true, {{{0, 1, 0}, {-1, 1, 0}, {-1, 1, 1}, {0, 1, 1}}}}}},  // rotation 3
}};

constexpr double kStripDepth = 0.8;

float Along(float low, float size, int8_t step) {
  const double high = double{low} + size;
  switch (step) {
    case -1:
      return ToSingle(low - kStripDepth);
    case 0:
      return low;
    case 1:
      return ToSingle(high);
    default:
      return ToSingle(high + kStripDepth);
  }
}

Vector3 CornerAt(const Vector3& position, const Vector3& size, const Step& step) {
  return {Along(position.x, size.x, step.x), Along(position.y, size.y, step.y),
          Along(position.z, size.z, step.z)};
}

float TextureCoordinate(Length length, const Vector3& size) {
  switch (length) {
    case X:
      return size.x;
    case Y:
      return size.y;
    case Z:
      return size.z;
    case O:
      break;
  }
  return 0;
}

/// A corner of the low edge, then both corners of the high edge, clockwise from above.
constexpr std::array<std::array<Step, 3>, 4> kSlopes = {{
    {{{0, 0, 0}, {0, 1, 1}, {1, 1, 1}}},
    {{{0, 0, 0}, {1, 1, 1}, {1, 1, 0}}},
    {{{0, 0, 1}, {1, 1, 0}, {0, 1, 0}}},
    {{{1, 0, 0}, {0, 1, 0}, {0, 1, 1}}},
}};

}  // namespace

Vertices MakeVertices(const Shape& shape) {
  Vertices vertices{};
  for (size_t i = 0; i < vertices.size(); ++i) {
    const uint32_t colour = i < kFirstSideVertex ? kSlopeColour : kSideColour;
    if (shape.made != 0) {
      const WedgeVertex& v = kWedges.at(shape.rotation)[i];
      vertices[i] =
          DirectX::MakeVertex(v.x, v.y, v.z, colour, 0, TextureCoordinate(v.u, shape.size),
                              TextureCoordinate(v.v, shape.size));
    }
    if (shape.selected != 0) vertices[i].colour = kSelectedColour;
  }
  return vertices;
}

float Gradient(uint8_t rotation, const Vector3& size) {
  const double length = rotation % 2 == 0 ? size.z : size.x;
  if (length == 0) return 0;
  const double gradient = size.y / length;
  return ToSingle(rotation < 2 ? gradient : -gradient);
}

CollisionPlane Plane(uint8_t rotation, const Vector3& position, const Vector3& size,
                     int planenumber) {
  const Vector3 high = CornerAt(position, size, {1, 1, 1});
  switch (planenumber) {
    case 1:
      return rotation != 1 ? CollisionPlane{-1, 0, 0, position.x} : CollisionPlane{};
    case 2:
      return rotation != 3 ? CollisionPlane{1, 0, 0, -high.x} : CollisionPlane{};
    case 3: {
      const auto& slope = kSlopes.at(rotation);
      CollisionPlane plane;
      maths::PlaneFromPoints(plane, CornerAt(position, size, slope[0]),
                             CornerAt(position, size, slope[1]),
                             CornerAt(position, size, slope[2]));
      return plane;
    }
    case 4:
      return rotation != 0 ? CollisionPlane{0, 0, -1, position.z} : CollisionPlane{};
    case 5:
      return {0, -1, 0, position.y};
    case 6:
      return {0, 1, 0, -high.y};
    default:
      throw std::out_of_range("Subscript out of range");
  }
}

std::array<CollisionPlane, 6> Planes(uint8_t rotation, const Vector3& position,
                                     const Vector3& size) {
  std::array<CollisionPlane, 6> planes;
  for (int number = 1; number <= kPlaneCount; ++number) {
    planes[static_cast<size_t>(number - 1)] = Plane(rotation, position, size, number);
  }
  return planes;
}

Corners FaceCorners(uint8_t rotation, const Vector3& position, const Vector3& size,
                    int planenumber) {
  Corners corners{};
  if (planenumber < 1 || planenumber > kPlaneCount) return corners;
  const FaceSteps& face = kFaces.at(rotation)[static_cast<size_t>(planenumber - 1)];
  if (!face.exists) return corners;
  for (size_t i = 0; i < corners.size(); ++i) {
    corners[i] = CornerAt(position, size, face.corners[i]);
  }
  return corners;
}

void PlaneBounds(uint8_t rotation, const Vector3& position, const Vector3& size, int planenumber,
                 Vector3& greatest, Vector3& smallest) {
  const Vector3 high = CornerAt(position, size, {1, 1, 1});
  greatest = smallest = {};
  switch (planenumber) {
    case 1:
      greatest.x = ToSingle(0.001);
      break;
    case 2:
      smallest.x = ToSingle(-0.001);
      break;
    case 3:
      smallest = position;
      greatest = high;
      break;
    case 4:
      if (rotation == 0) break;
      smallest = position;
      greatest = high;
      if (rotation == 1) smallest.x = high.x;
      if (rotation == 2) greatest.z = position.z;
      if (rotation == 3) greatest.x = position.x;
      break;
    case 5:
      smallest = position;
      greatest = {high.x, position.y, high.z};
      break;
    default:
      break;
  }
}

}  // namespace ramp
