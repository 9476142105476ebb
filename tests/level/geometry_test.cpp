// Laws that the drawn geometry, the numbered planes and the face corners of boxes and wedges obey
// together, whatever their sizes.
#include <bit>
#include <cmath>
#include <map>
#include <set>

#include "level/clsMovingPlatform.h"
#include "level/clsRamp.h"
#include "level/clsStar.h"
#include "level/clsblock.h"
#include "level/maths.h"
#include "platform/d3dx_maths.h"
#include "tests/support/null_editor.h"

namespace {

using Corners = std::array<Vector3, 4>;
using Point = std::array<float, 3>;

struct Face {
  size_t first, end;  ///< vertices
  size_t plane;       ///< its number; 0: the back, which has none
};

/// Everything that a piece shows of its shape. Vertices lie in the unit cube, the rest in the
/// world.
struct Solid {
  std::string name;
  int rotation;  ///< of a wedge, −1: a box
  Vector3 position, size;
  std::vector<Face> faces;
  std::vector<Vertex> vertices;
  std::vector<CollisionPlane> planes;
  std::vector<Corners> corners;
  std::vector<std::pair<Vector3, Vector3>> bounds;  ///< greatest and smallest

  /// How far the point lies inside the piece if that were a unit cube or its wedge.
  double Depth(const Vector3& p) const {
    const double x = (p.x - position.x) / size.x, y = (p.y - position.y) / size.y;
    const double z = (p.z - position.z) / size.z;
    const double along[] = {z, x, 1 - z, 1 - x};
    const double top = rotation < 0 ? 1 : along[rotation];
    return std::min({x, 1 - x, y, top - y, z, 1 - z});
  }
  Vector3 Placed(const Vertex& v) const {
    return {position.x + size.x * v.x, position.y + size.y * v.y, position.z + size.z * v.z};
  }
};

Point AsPoint(const Vector3& p) { return {p.x, p.y, p.z}; }
Vector3 Middle(const Vector3& a, const Vector3& b, const Vector3& c) {
  return {(a.x + b.x + c.x) / 3, (a.y + b.y + c.y) / 3, (a.z + b.z + c.z) / 3};
}
double Above(const CollisionPlane& plane, const Vector3& p) {
  return double{plane.a} * p.x + double{plane.b} * p.y + double{plane.c} * p.z + plane.d;
}
double Area(const Vector3& a, const Vector3& b, const Vector3& c) {
  const Vector3 cross = d3dx::Cross(d3dx::Subtract(b, a), d3dx::Subtract(c, a));
  return std::sqrt(d3dx::Dot(cross, cross)) / 2;
}
double Area(const Corners& c) { return Area(c[0], c[1], c[2]) + Area(c[0], c[2], c[3]); }

template <typename Piece>
Solid Describe(const std::string& name, const Piece& piece, const Vector3& at, const Vector3& size,
               int rotation, const std::vector<Face>& faces) {
  Solid solid{name, rotation, at, size, faces, {}, {}, {}, {}};
  const auto drawn = piece.GeometryVertices();
  solid.vertices.assign(drawn.begin(), drawn.end());
  for (const CollisionPlane& plane : piece.DrawnPlanes()) {
    const auto number = static_cast<int16_t>(solid.planes.size() + 1);
    solid.planes.push_back(piece.GetCollisionPlane(number));
    solid.corners.push_back(piece.GetFaceCorners(number));
    auto& [greatest, smallest] = solid.bounds.emplace_back(Vector3{9, 9, 9}, Vector3{9, 9, 9});
    piece.GetCollisionPlaneBounds(number, greatest, smallest);
    EXPECT_EQ(plane, solid.planes.back());
  }
  return solid;
}
template <typename Box>
Solid DescribeBox(const Box& box, const Vector3& at, const Vector3& size) {
  return Describe("box", box, at, size, -1, {{0, 6, 4}, {6, 12, 1}, {12, 18, 2}, {18, 24, 3}});
}
clsRamp Wedge(int rotation, const Vector3& at, const Vector3& size) {
  clsRamp ramp;
  ramp.create(0, 0, 0);
  for (int i = 0; i < rotation + 4; ++i) ramp.rotate();  // four turns are none
  PutPiece(ramp, at, size);
  EXPECT_EQ(ramp.GetRotation(), rotation) << "a new size keeps it";
  return ramp;
}
Solid WedgeSolid(int rotation, const Vector3& at, const Vector3& size) {
  constexpr size_t kPlanes[4][4] = {{3, 1, 2, 0}, {3, 0, 4, 2}, {3, 1, 2, 4}, {3, 4, 0, 1}};
  const auto& planes = kPlanes[rotation];
  return Describe("wedge " + std::to_string(rotation), Wedge(rotation, at, size), at, size,
                  rotation,
                  {{0, 6, planes[0]}, {6, 9, planes[1]}, {9, 12, planes[2]}, {12, 18, planes[3]}});
}

/// The high edge continues for 0.8 beyond the wedge.
void ExpectStrip(const Solid& wedge, const Corners& c) {
  const bool alongZ = wedge.rotation % 2 == 0, forwards = wedge.rotation < 2;
  const double beyond = 1 + 0.4 / (alongZ ? wedge.size.z : wedge.size.x);
  const auto on = static_cast<float>(forwards ? beyond : 1 - beyond);
  const Vector3 middle = wedge.Placed({alongZ ? 0.5F : on, 1, alongZ ? on : 0.5F, 0, 0, 0, 0});
  EXPECT_NEAR(maths::Distance(middle, Middle(c[0], c[2], middle)), 0, 1e-5);
  EXPECT_NEAR(Area(c), 0.8 * (alongZ ? wedge.size.x : wedge.size.z), 1e-4);
}

class GeometryTest : public DeviceTest {
 protected:
  static std::vector<Solid> Solids() {
    std::vector<Solid> solids;
    const Vector3 at{-4, 2, 7};
    clsblock fresh;
    fresh.create(-4, 2, 7, 3, 1, 2.1F);
    solids.push_back(DescribeBox(fresh, at, {3, 1, 2}));
    for (const Vector3& size : {Vector3{2, 1, 4}, Vector3{3, 5, 2}, Vector3{3, 3, 3}}) {
      clsblock block;
      block.create(0, 0, 0, 1, 1, 1);
      solids.push_back(DescribeBox(PutPiece(block, at, size), at, size));
      clsMovingPlatform platform;
      platform.create(0, 0, 0);
      PutPiece(platform, at, size).move();
      solids.push_back(DescribeBox(platform, at, size));
      for (int rotation = 0; rotation < 4; ++rotation) {
        solids.push_back(WedgeSolid(rotation, at, size));
      }
    }
    return solids;
  }
};

TEST_F(GeometryTest, DrawnFacesFillTheirNumberedPlanesAndFaceAsTheyDo) {
  for (const Solid& solid : Solids()) {
    for (const auto& [first, end, number] : solid.faces) {
      SCOPED_TRACE(solid.name + " plane " + std::to_string(number));
      std::set<Point> drawn, named;
      std::set<std::pair<Point, Point>> edges;
      double drawnArea = 0;
      const CollisionPlane back{0, 0, 1, -(solid.position.z + solid.size.z)};
      const CollisionPlane& plane = number == 0 ? back : solid.planes[number - 1];
      // Two walls that face away from the camera are wound inwards.
      const bool inwards = number == 0 && solid.rotation != 1;
      for (size_t i = first; i < end; i += 3) {
        Vector3 p[3], normal;
        for (size_t k = 0; k < 3; ++k) {
          p[k] = solid.Placed(solid.vertices[i + k]);
          drawn.insert(AsPoint(p[k]));
          EXPECT_NEAR(Above(plane, p[k]), 0, 1e-5);
          EXPECT_EQ(solid.vertices[i + k].specular, 0U);
        }
        maths::FaceNormal(p[0], p[1], p[2], normal);
        EXPECT_NEAR(d3dx::Dot(normal, {plane.a, plane.b, plane.c}), inwards ? -1 : 1, 1e-5);
        for (size_t k = 0; k < 3; ++k) {
          const bool once = edges.insert({AsPoint(p[k]), AsPoint(p[(k + 1) % 3])}).second;
          EXPECT_TRUE(once) << "its triangles do not overlap";
        }
        drawnArea += Area(p[0], p[1], p[2]);
      }
      if (number == 0) {
        EXPECT_NEAR(drawnArea, solid.size.x * solid.size.y / (solid.rotation == 0 ? 1 : 2), 1e-4);
        continue;
      }
      const Corners& c = solid.corners[number - 1];
      for (const Vector3& corner : c) named.insert(AsPoint(corner));
      EXPECT_EQ(drawn, named);
      EXPECT_NEAR(drawnArea, Area(c), 1e-4);
    }
    EXPECT_NEAR(Area(solid.corners[4]), solid.size.x * solid.size.z, 1e-4) << "the bottom";
  }
}

TEST_F(GeometryTest, PlanesFaceOutwardsAndHoldTheirCorners) {
  for (const Solid& solid : Solids()) {
    const Vector3 heart = solid.Placed({0.5F, 1 / 3.0F, 0.5F, 0, 0, 0, 0});
    std::set<size_t> missing;
    for (size_t i = 0; i < solid.planes.size(); ++i) {
      SCOPED_TRACE(solid.name + " plane " + std::to_string(i + 1));
      const CollisionPlane& plane = solid.planes[i];
      const Corners& c = solid.corners[i];
      if (plane == CollisionPlane()) {
        missing.insert(i + 1);
        EXPECT_EQ(c, Corners()) << "no plane, no corners";
        continue;
      }
      EXPECT_NEAR(plane.a * plane.a + plane.b * plane.b + plane.c * plane.c, 1, 1e-6);
      EXPECT_LT(Above(plane, heart), 0);
      for (const Vector3& p : c) {
        EXPECT_NEAR(Above(plane, p), 0, 1e-5);
        EXPECT_NEAR(solid.Depth(p), 0, i == 5 ? 1 : 1e-6);
      }
      if (i == 5) ExpectStrip(solid, c);
      const bool slope = solid.rotation >= 0 && i == 2;
      const auto inside = slope ? maths::PointInQuadEitherWay : maths::PointInQuad;
      EXPECT_TRUE(inside(c[0], c[1], c[2], c[3], Middle(c[0], c[1], c[2])));
    }
    // The low edge of a wedge has no side; rotation 2 has it at the back, which no piece has.
    const std::map<int, std::set<size_t>> low = {{-1, {}}, {0, {4}}, {1, {1}}, {2, {}}, {3, {2}}};
    EXPECT_EQ(missing, low.at(solid.rotation)) << solid.name;
  }
}

TEST_F(GeometryTest, GradientsRiseToTheHighEdge) {
  const float gradients[] = {1 / 3.0F, 0.5F, -1 / 3.0F, -0.5F};
  for (int rotation = 0; rotation < 4; ++rotation) {
    EXPECT_FLOAT_EQ(Wedge(rotation, {}, {2, 1, 3}).GetGradient(), gradients[rotation]);
  }
  EXPECT_EQ(Wedge(0, {}, {1, 1, 0}).GetGradient(), 0) << "a ramp without length";
}

/// Box textures lie upright and unmirrored on each face, once per unit or as often as asked.
TEST_F(GeometryTest, BoxTexturesFollowTheExtents) {
  for (const auto& [stretch, onTop] : {std::pair{0, 0}, {1, 2}, {3, 1}}) {
    clsblock block;
    block.create(0, 0, 0, 1, 1, 1);
    block.ScaleTextureSide(static_cast<uint8_t>(stretch));
    block.ScaleTextureTop(static_cast<uint8_t>(onTop));
    const auto resized = PutPiece(block, {0, 0, 0}, {2, 5, 3}).GeometryVertices();
    block.AlignTexureCoords(1, static_cast<int16_t>(stretch));
    block.AlignTexureCoords(0, static_cast<int16_t>(onTop));
    EXPECT_EQ(resized, block.GeometryVertices()) << "new sizes and a new stretch give the same";
    for (size_t i = 0; i < 24; ++i) {
      const Vertex& v = resized[i];
      const size_t face = i / 6;  // front, left, right, top
      const double across[] = {v.x, 1.0 - v.z, v.z, v.x}, lengths[] = {2, 3, 3, 2};
      const double down = face == 3 ? 1.0 - v.z : 1.0 - v.y, height = face == 3 ? 3 : 5;
      const double repeats = face == 3 ? onTop : stretch;
      EXPECT_FLOAT_EQ(v.tu, static_cast<float>(across[face] * (stretch ? repeats : lengths[face])));
      EXPECT_FLOAT_EQ(v.tv, static_cast<float>(down * (stretch ? repeats : height)));
    }
  }
}

/// The textures of wedges, the bounds of walls and the faces of stars follow no law; they stay what
/// they are.
TEST_F(GeometryTest, WhatFollowsNoLawDoesNotChange) {
  uint64_t hash = 0xCBF29CE484222325U;
  const auto add = [&hash](float value) {
    hash = (hash ^ std::bit_cast<uint32_t>(value)) * 0x100000001B3U;
  };
  for (const Solid& solid : Solids()) {
    for (const Vertex& v : solid.vertices) {
      add(v.tu);
      add(v.tv);
    }
    for (const auto& [high, low] : solid.bounds) {
      for (const float value : {high.x, high.y, high.z, low.x, low.y, low.z}) add(value);
    }
  }
  clsStar star;
  star.Xpos(2);
  for (int16_t number = 1; number <= 5; ++number) {
    const CollisionPlane plane = star.GetCollisionPlanes(number);
    for (const float value : {plane.a, plane.b, plane.c, plane.d}) add(value);
    for (const Vector3& corner : star.GetFaceCorners(number)) {
      for (const float value : AsPoint(corner)) add(value);
    }
  }
  EXPECT_EQ(hash, 13841223817487561686U);
}

}  // namespace
