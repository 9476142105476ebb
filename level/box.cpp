#include "level/box.h"

#include <algorithm>

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

enum Face : size_t { Front, Left, Right, Top };
Face FaceOf(size_t vertex) { return static_cast<Face>(vertex / 6); }

float TextureU(const Vertex& v, Face face, const Factors& f) {
  switch (face) {
    case Left:
      return ToSingle((1.0 - v.z) * f.z);
    case Right:
      return ToSingle(v.z * f.z);
    case Front:
    case Top:
      break;
  }
  return ToSingle(v.x * f.x);
}

float TextureV(const Vertex& v, Face face, const Factors& f) {
  return face == Top ? ToSingle((1.0 - v.z) * f.z) : ToSingle((1.0 - v.y) * f.y);
}

void Stretch(Vertices& vertices, size_t first, size_t end, const Factors& factors) {
  for (size_t i = first; i < end; ++i) {
    vertices[i].tu = TextureU(vertices[i], FaceOf(i), factors);
    vertices[i].tv = TextureV(vertices[i], FaceOf(i), factors);
  }
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

}  // namespace

Vertices Unit() {
  Vertices vertices;
  for (size_t i = 0; i < vertices.size(); ++i) {
    const Vector3& p = kPositions[i];
    vertices[i] = DirectX::MakeVertex(p.x, p.y, p.z, 0, 0, 0, 0);
  }
  Stretch(vertices, 0, vertices.size(), {});
  Colour(vertices, kSideColour, kTopColour);
  return vertices;
}

void StretchSides(Vertices& vertices, const Factors& factors) {
  Stretch(vertices, 0, kFirstTopVertex, factors);
}

void StretchTop(Vertices& vertices, const Factors& factors) {
  Stretch(vertices, kFirstTopVertex, vertices.size(), factors);
}

void Resize(Vertices& vertices, Axis axis, double sideFactor, double topFactor,
            const std::array<uint32_t, 2>& sideColours) {
  for (size_t i = 0; i < vertices.size(); ++i) {
    Vertex& v = vertices[i];
    const Face face = FaceOf(i);
    const double factor = face == Top ? topFactor : sideFactor;
    const Factors factors{factor, factor, factor};
    const bool alongU = face == Left || face == Right ? axis == Axis::Z : axis == Axis::X;
    const bool alongV = face == Top ? axis == Axis::Z : axis == Axis::Y;
    if (!alongU && !alongV) continue;
    // The whole vertex but its other coordinate: the block of a new track is never created.
    const Vector3& position = kPositions[i];
    v = DirectX::MakeVertex(position.x, position.y, position.z, v.colour, 0, v.tu, v.tv);
    if (alongU) v.tu = TextureU(v, face, factors);
    if (alongV) v.tv = TextureV(v, face, factors);
    v.colour = face == Top ? kTopColour : sideColours[v.y == 1 ? 1 : 0];
  }
}

void Colour(Vertices& vertices, uint32_t sides, uint32_t top) {
  for (size_t i = 0; i < vertices.size(); ++i)
    vertices[i].colour = i < kFirstTopVertex ? sides : top;
}

std::array<CollisionPlane, 5> Planes(const Vector3& position, const Vector3& size) {
  std::array<CollisionPlane, 5> planes;
  for (int number = 1; number <= kPlaneCount; ++number) {
    const auto [p1, p2, p3] = PlanePoints(position, size, number);
    maths::PlaneFromPoints(planes[static_cast<size_t>(number - 1)], p1, p2, p3);
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

void PlaceInWorld(const Vector3& position, const Vector3& size, Matrix4& worldMatrix,
                  Matrix4& scaleMatrix) {
  scaleMatrix = d3dx::Scaling(size.x, size.y, size.z);
  // Scaling × translation, written out: every track draws thousands of these.
  worldMatrix = scaleMatrix;
  worldMatrix.m[3] = {position.x, position.y, position.z, 1};
  DirectX::D3DDevice->SetTransform(Transform::World, worldMatrix);
}

}  // namespace box
