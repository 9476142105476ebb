#include "level/box.h"

#include <algorithm>
#include <stdexcept>

#include "level/maths.h"
#include "platform/numbers.h"
#include "render/device/DirectX.h"

namespace box {
namespace {

/// Two triangles per face, clockwise from outside: front, left, right, top.
constexpr std::array<Vector3, 24> kPositions = {{
    {0, 1, 0}, {1, 1, 0}, {0, 0, 0}, {1, 1, 0}, {1, 0, 0}, {0, 0, 0},  //
    {0, 0, 0}, {0, 1, 1}, {0, 1, 0}, {0, 1, 1}, {0, 0, 0}, {0, 0, 1},  //
    {1, 1, 0}, {1, 1, 1}, {1, 0, 0}, {1, 1, 1}, {1, 0, 1}, {1, 0, 0},  //
    {0, 1, 1}, {1, 1, 1}, {0, 1, 0}, {1, 1, 1}, {1, 1, 0}, {0, 1, 0},
}};

enum FaceNumber : size_t { Front, Left, Right, Top };

Shape::Face Shape::*FaceOf(FaceNumber number) {
  return number == Front ? &Shape::front : number == Top ? &Shape::top : &Shape::sides;
}

float TextureU(const Vector3& v, FaceNumber number, float repeats) {
  const double along = number == Left ? 1.0 - v.z : double{number == Right ? v.z : v.x};
  return ToSingle(along * repeats);
}

float TextureV(const Vector3& v, FaceNumber number, float repeats) {
  return ToSingle((1.0 - (number == Top ? v.z : v.y)) * repeats);
}

/// Three corners of a face, from which plane and bounds are made.
std::array<Vector3, 3> PlanePoints(const Vector3& p, const Vector3& s, int planenumber) {
  const float x1 = ToSingle(double{p.x} + s.x), y1 = ToSingle(double{p.y} + s.y);
  const float z1 = ToSingle(double{p.z} + s.z);
  switch (planenumber) {
    case 1:
      return {{{p.x, y1, z1}, {p.x, p.y, p.z}, {p.x, p.y, z1}}};
    case 2:
      return {{{x1, y1, p.z}, {x1, p.y, z1}, {x1, p.y, p.z}}};
    case 3:
      return {{{p.x, y1, z1}, {x1, y1, z1}, {p.x, y1, p.z}}};
    case 4:
      return {{{p.x, y1, p.z}, {x1, p.y, p.z}, {p.x, p.y, p.z}}};
    case 5:
      return {{{p.x, p.y, p.z}, {x1, p.y, z1}, {p.x, p.y, z1}}};
    default:
      return {};
  }
}

/// Where a face looks, to the sign of its zeros.
struct Facing {
  float x, y, z;
  CollisionPlane Through(const Vector3& p) const {
    return {x, y, z, ToSingle(0.0 - (double{x} * p.x + double{y} * p.y + double{z} * p.z))};
  }
};
constexpr std::array<Facing, kPlaneCount> kFacings = {
    {{-1, -0.0F, 0}, {1, 0, 0}, {-0.0F, 1, 0}, {0, 0, -1}, {0, -1, 0}}};

/// No side is so thin or so large, and the box not so inside out, that a face's normal would be
/// another one than its facing, to the last bit. Most boxes of a track are ordinary and need no
/// root.
bool IsOrdinary(const Vector3& p, const Vector3& size) {
  const auto ordinary = [](float low, float length) {
    const double side = double{ToSingle(double{low} + length)} - low;
    return side > 1e-15 && side < 1e15;
  };
  return ordinary(p.x, size.x) && ordinary(p.y, size.y) && ordinary(p.z, size.z);
}

}  // namespace

Shape Unit() {
  Shape shape{{1, 1, 1, 0, 0}, {1, 1, 1, 0, 0}, {1, 1, 1, 0, 0}};
  Colour(shape, kSideColour, kTopColour);
  return shape;
}

bool IsVisible(const Shape& shape) {
  return (shape.front.placed | shape.sides.placed | shape.top.placed) != 0;
}

Vertices MakeVertices(const Shape& shape) {
  Vertices vertices;
  for (size_t i = 0; i < vertices.size(); ++i) {
    const auto number = static_cast<FaceNumber>(i / 6);
    const Shape::Face& face = shape.*FaceOf(number);
    const Vector3 p = face.placed != 0 ? kPositions[i] : Vector3();
    vertices[i] = DirectX::MakeVertex(p.x, p.y, p.z, p.y == 1 ? face.high : face.low, 0,
                                      TextureU(p, number, face.u), TextureV(p, number, face.v));
  }
  return vertices;
}

void StretchSides(Shape& shape, const Factors& factors) {
  shape.front.u = ToSingle(factors.x);
  shape.sides.u = ToSingle(factors.z);
  shape.front.v = shape.sides.v = ToSingle(factors.y);
}

void StretchTop(Shape& shape, const Factors& factors) {
  shape.top.u = ToSingle(factors.x);
  shape.top.v = ToSingle(factors.z);
}

void Resize(Shape& shape, Axis axis, double sideFactor, double topFactor,
            const std::array<uint32_t, 2>& sideColours) {
  const auto side = [&](Shape::Face& face, float Shape::Face::*repeats) {
    face.*repeats = ToSingle(sideFactor);
    face.low = sideColours[0];
    face.high = sideColours[1];
    face.placed = 1;
  };
  // A new track's block is never created: a face has its place from the first size on.
  if (axis == Axis::X) side(shape.front, &Shape::Face::u);
  if (axis == Axis::Y) side(shape.front, &Shape::Face::v);
  if (axis == Axis::Y) side(shape.sides, &Shape::Face::v);
  if (axis == Axis::Z) side(shape.sides, &Shape::Face::u);
  if (axis == Axis::Y) return;
  (axis == Axis::X ? shape.top.u : shape.top.v) = ToSingle(topFactor);
  shape.top.low = shape.top.high = kTopColour;
  shape.top.placed = 1;
}

void Colour(Shape& shape, uint32_t sides, uint32_t top) {
  for (Shape::Face* face : {&shape.front, &shape.sides}) face->low = face->high = sides;
  shape.top.low = shape.top.high = top;
}

CollisionPlane Plane(const Vector3& position, const Vector3& size, int planenumber) {
  if (planenumber < 1 || planenumber > kPlaneCount) {
    throw std::out_of_range("Subscript out of range");
  }
  const auto [p1, p2, p3] = PlanePoints(position, size, planenumber);
  if (IsOrdinary(position, size)) {
    return kFacings[static_cast<size_t>(planenumber - 1)].Through(p1);
  }
  CollisionPlane plane;
  maths::PlaneFromPoints(plane, p1, p2, p3);
  return plane;
}

std::array<CollisionPlane, 5> Planes(const Vector3& position, const Vector3& size) {
  std::array<CollisionPlane, 5> planes;
  for (int number = 1; number <= kPlaneCount; ++number) {
    planes[static_cast<size_t>(number - 1)] = Plane(position, size, number);
  }
  return planes;
}

void PlaneBounds(const Vector3& position, const Vector3& size, int planenumber, Vector3& greatest,
                 Vector3& smallest) {
  const auto points = PlanePoints(position, size, planenumber);
  greatest = smallest = points[0];
  for (const Vector3& p : points) {
    greatest = {std::max(greatest.x, p.x), std::max(greatest.y, p.y), std::max(greatest.z, p.z)};
    smallest = {std::min(smallest.x, p.x), std::min(smallest.y, p.y), std::min(smallest.z, p.z)};
  }
  // The x-facing faces get a thickness on their inner side.
  if (planenumber == 1) greatest.x = ToSingle(greatest.x + 0.001);
  if (planenumber == 2) smallest.x = ToSingle(smallest.x - 0.001);
}

Corners FaceCorners(const Vector3& p, const Vector3& size, int planenumber) {
  const float x1 = ToSingle(double{p.x} + size.x), y1 = ToSingle(double{p.y} + size.y);
  const float z1 = ToSingle(double{p.z} + size.z);
  switch (planenumber) {
    case 1:
      return {{{p.x, y1, p.z}, {p.x, y1, z1}, {p.x, p.y, z1}, {p.x, p.y, p.z}}};
    case 2:
      return {{{x1, y1, p.z}, {x1, y1, z1}, {x1, p.y, z1}, {x1, p.y, p.z}}};
    case 3:
      return {{{p.x, y1, p.z}, {p.x, y1, z1}, {x1, y1, z1}, {x1, y1, p.z}}};
    case 4:
      return {{{p.x, p.y, p.z}, {p.x, y1, p.z}, {x1, y1, p.z}, {x1, p.y, p.z}}};
    case 5:
      return {{{p.x, p.y, p.z}, {p.x, p.y, z1}, {x1, p.y, z1}, {x1, p.y, p.z}}};
    default:
      return {};
  }
}

int FaceIndex(const std::string& face) {
  if (face.size() != 1) return -1;
  const char letter = static_cast<char>(face[0] >= 'a' && face[0] <= 'd' ? face[0] - 32 : face[0]);
  return letter >= 'A' && letter <= 'D' ? letter - 'A' : -1;
}

void PlaceInWorld(const Vector3& position, const Vector3& size) {
  // Scaling × translation, written out: every track draws thousands of these.
  Matrix4 worldMatrix = d3dx::Scaling(size.x, size.y, size.z);
  worldMatrix.m[3] = {position.x, position.y, position.z, 1};
  DirectX::D3DDevice->SetTransform(Transform::World, worldMatrix);
}

}  // namespace box
