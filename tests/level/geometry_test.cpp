// Laws that the drawn geometry, the numbered planes and the face corners of boxes and wedges obey
// together, whatever their sizes.
#include <cmath>
#include <map>
#include <set>

#include "level/clsMovingPlatform.h"
#include "level/clsRamp.h"
#include "level/clsblock.h"
#include "level/maths.h"
#include "platform/d3dx_maths.h"
#include "tests/support/null_editor.h"

namespace {

/// Everything that a piece shows of its shape. Vertices lie in the unit cube, the rest in the world.
struct Solid {
  std::string name;
  std::vector<Vertex> vertices;
  Vector3 position, size;
  std::vector<std::pair<size_t, size_t>> faces;  ///< first vertex and end
  std::vector<int> planesOfFaces;                ///< the number of each face's plane, 0: none
  std::vector<CollisionPlane> planes;
  std::vector<std::array<Vector3, 4>> corners;
  int rotation = -1;  ///< of a wedge

  /// How far the point of the unit cube lies inside, negative outside.
  double Depth(double x, double y, double z) const {
    const double along[] = {z, x, 1 - z, 1 - x};
    const double top = rotation < 0 ? 1 : along[rotation];
    return std::min({x, 1 - x, y, top - y, z, 1 - z});
  }
  Vector3 Placed(const Vertex& v) const {
    return {position.x + size.x * v.x, position.y + size.y * v.y, position.z + size.z * v.z};
  }
};

double Area(const Vector3& a, const Vector3& b, const Vector3& c) {
  const Vector3 cross = d3dx::Cross(d3dx::Subtract(b, a), d3dx::Subtract(c, a));
  return std::sqrt(d3dx::Dot(cross, cross)) / 2;
}

using PointSet = std::set<std::array<float, 3>>;

class GeometryTest : public DeviceTest {
 protected:
  template <typename Object>
  static Solid Describe(const std::string& name, const Object& object, const Vector3& at,
                        const Vector3& size, int16_t planes) {
    Solid solid;
    solid.name = name;
    solid.vertices.assign(object.GeometryVertices().begin(), object.GeometryVertices().end());
    solid.position = at;
    solid.size = size;
    for (int16_t plane = 1; plane <= planes; ++plane) {
      solid.planes.push_back(object.GetCollisionPlane(plane));
      solid.corners.push_back(object.GetFaceCorners(plane));
      EXPECT_EQ(object.DrawnPlanes()[static_cast<size_t>(plane - 1)], solid.planes.back());
    }
    return solid;
  }
  template <typename Box>
  static Solid BoxSolid(const std::string& name, Box& box, const Vector3& at, const Vector3& size) {
    box.Xpos(at.x);
    box.Ypos(at.y);
    box.Zpos(static_cast<decltype(box.Zpos())>(at.z));
    box.scaleX(size.x);
    box.scaleY(size.y);
    box.scaleZ(size.z);
    if constexpr (std::is_same_v<Box, clsMovingPlatform>) box.move();
    Solid solid = Describe(name, box, at, size, 5);
    solid.faces = {{0, 6}, {6, 12}, {12, 18}, {18, 24}};
    solid.planesOfFaces = {4, 1, 2, 3};
    return solid;
  }
  static clsRamp Wedge(int rotation, const Vector3& at, const Vector3& size) {
    clsRamp ramp;
    ramp.create(0, 0, 0);
    ramp.Xpos(static_cast<int32_t>(at.x));
    ramp.Ypos(static_cast<int32_t>(at.y));
    ramp.Zpos(static_cast<int32_t>(at.z));
    ramp.scaleX(static_cast<int16_t>(size.x));
    ramp.scaleZ(static_cast<int16_t>(size.z));
    for (int i = 0; i < rotation + 4; ++i) ramp.rotate();  // four turns are none
    ramp.scaleY(static_cast<int16_t>(size.y));
    EXPECT_EQ(ramp.GetRotation(), rotation) << "a new size keeps it";
    return ramp;
  }
  static Solid WedgeSolid(int rotation, const Vector3& at, const Vector3& size) {
    Solid solid = Describe("wedge " + std::to_string(rotation), Wedge(rotation, at, size), at, size,
                           6);
    solid.rotation = rotation;
    solid.faces = {{0, 6}, {6, 9}, {9, 12}, {12, 18}};
    constexpr int kPlanes[4][4] = {{3, 1, 2, 0}, {3, 0, 4, 2}, {3, 1, 2, 4}, {3, 4, 0, 1}};
    solid.planesOfFaces.assign(kPlanes[rotation], kPlanes[rotation] + 4);
    return solid;
  }
  static std::vector<Solid> Solids() {
    std::vector<Solid> solids;
    for (const Vector3& size : {Vector3{2, 1, 4}, Vector3{3, 5, 2}, Vector3{3, 3, 3}}) {
      const Vector3 at{-4, 2, 7};
      clsblock block;
      block.create(0, 0, 0, 1, 1, 1);
      solids.push_back(BoxSolid("block", block, at, size));
      clsMovingPlatform platform;
      platform.create(0, 0, 0);
      solids.push_back(BoxSolid("platform", platform, at, size));
      for (int rotation = 0; rotation < 4; ++rotation) {
        solids.push_back(WedgeSolid(rotation, at, size));
      }
    }
    return solids;
  }
};

TEST_F(GeometryTest, TrianglesLieOnTheSolidAndFaceOutwards) {
  for (const Solid& solid : Solids()) {
    for (size_t i = 0; i < solid.vertices.size(); i += 3) {
      const Vertex* v = &solid.vertices[i];
      Vector3 corners[3], normal;
      for (int k = 0; k < 3; ++k) {
        corners[k] = {v[k].x, v[k].y, v[k].z};
        EXPECT_NEAR(solid.Depth(v[k].x, v[k].y, v[k].z), 0, 1e-6) << solid.name << " vertex " << i;
        EXPECT_EQ(v[k].specular, 0U);
      }
      maths::FaceNormal(corners[0], corners[1], corners[2], normal);
      const double x = (corners[0].x + corners[1].x + corners[2].x) / 3;
      const double y = (corners[0].y + corners[1].y + corners[2].y) / 3;
      const double z = (corners[0].z + corners[1].z + corners[2].z) / 3;
      // Two walls that face away from the camera are wound inwards.
      const bool inwards = (solid.rotation == 0 && i >= 12) || (solid.rotation == 3 && i == 9);
      for (const double step : {0.01, -0.01}) {
        const double depth =
            solid.Depth(x + step * normal.x, y + step * normal.y, z + step * normal.z);
        EXPECT_EQ(depth < 0, (step > 0) != inwards) << solid.name << " triangle " << i / 3;
      }
    }
  }
}

TEST_F(GeometryTest, DrawnFacesFillTheirNumberedPlanes) {
  for (const Solid& solid : Solids()) {
    for (size_t face = 0; face < solid.faces.size(); ++face) {
      const int number = solid.planesOfFaces[face];
      if (number == 0) continue;
      SCOPED_TRACE(solid.name + " plane " + std::to_string(number));
      const CollisionPlane& plane = solid.planes[static_cast<size_t>(number - 1)];
      const auto& c = solid.corners[static_cast<size_t>(number - 1)];
      PointSet drawn, named;
      double drawnArea = 0;
      const auto [first, end] = solid.faces[face];
      for (size_t i = first; i < end; i += 3) {
        Vector3 p[3];
        for (size_t k = 0; k < 3; ++k) {
          p[k] = solid.Placed(solid.vertices[i + k]);
          drawn.insert({p[k].x, p[k].y, p[k].z});
          EXPECT_NEAR(plane.a * p[k].x + plane.b * p[k].y + plane.c * p[k].z + plane.d, 0, 1e-5);
        }
        drawnArea += Area(p[0], p[1], p[2]);
      }
      for (const Vector3& corner : c) named.insert({corner.x, corner.y, corner.z});
      EXPECT_EQ(drawn, named);
      EXPECT_NEAR(drawnArea, Area(c[0], c[1], c[2]) + Area(c[0], c[2], c[3]), 1e-4);
    }
  }
}

TEST_F(GeometryTest, PlanesFaceOutwardsAndHoldTheMiddleOfTheirCorners) {
  for (const Solid& solid : Solids()) {
    const Vector3 heart{solid.position.x + solid.size.x / 2, solid.position.y + solid.size.y / 3,
                        solid.position.z + solid.size.z / 2};
    std::set<size_t> missing;
    for (size_t i = 0; i < solid.planes.size(); ++i) {
      SCOPED_TRACE(solid.name + " plane " + std::to_string(i + 1));
      const CollisionPlane& plane = solid.planes[i];
      const auto& c = solid.corners[i];
      if (plane == CollisionPlane()) {
        missing.insert(i + 1);
        EXPECT_EQ(c, (std::array<Vector3, 4>())) << "no plane, no corners";
        continue;
      }
      EXPECT_NEAR(plane.a * plane.a + plane.b * plane.b + plane.c * plane.c, 1, 1e-6);
      EXPECT_LT(plane.a * heart.x + plane.b * heart.y + plane.c * heart.z + plane.d, 0);
      Vector3 middle;
      for (size_t k = 0; k < 3; ++k) {
        const Vector3& p = c[k];
        EXPECT_NEAR(plane.a * p.x + plane.b * p.y + plane.c * p.z + plane.d, 0, 1e-5);
        middle = {middle.x + p.x / 3, middle.y + p.y / 3, middle.z + p.z / 3};
      }
      const bool slope = solid.rotation >= 0 && i == 2;
      EXPECT_TRUE(slope ? maths::PointInQuadEitherWay(c[0], c[1], c[2], c[3], middle)
                        : maths::PointInQuad(c[0], c[1], c[2], c[3], middle));
    }
    // The low edge of a wedge has no side; rotation 2 has it at the back, which no piece has.
    const std::map<int, std::set<size_t>> low = {{-1, {}}, {0, {4}}, {1, {1}}, {2, {}}, {3, {2}}};
    EXPECT_EQ(missing, low.at(solid.rotation)) << solid.name;
  }
}

TEST_F(GeometryTest, HighEdgesContinueAsAStrip) {
  for (const Solid& solid : Solids()) {
    if (solid.rotation < 0) continue;
    Vector3 low = solid.position, high = solid.position;
    high = {high.x + solid.size.x, high.y + solid.size.y, high.z + solid.size.z};
    // Where the strip begins and ends along its axis.
    const std::pair<double, double> ends[] = {
        {high.z, high.z + 0.8}, {high.x, high.x + 0.8}, {low.z - 0.8, low.z}, {low.x - 0.8, low.x}};
    const auto [begin, end] = ends[solid.rotation];
    PointSet expected, strip;
    for (const double along : {begin, end}) {
      const auto at = static_cast<float>(along);
      if (solid.rotation % 2 == 0) {
        expected.insert({{low.x, high.y, at}, {high.x, high.y, at}});
      } else {
        expected.insert({{at, high.y, low.z}, {at, high.y, high.z}});
      }
    }
    for (const Vector3& c : solid.corners[5]) strip.insert({c.x, c.y, c.z});
    EXPECT_EQ(strip, expected) << solid.name;
  }
}

TEST_F(GeometryTest, RotationsAreQuarterTurnsOfOneShape) {
  const auto facesOf = [](const Solid& wedge, bool turned) {
    std::set<PointSet> faces;
    for (const auto& [first, end] : wedge.faces) {
      PointSet face;
      for (size_t i = first; i < end; ++i) {
        const Vertex& v = wedge.vertices[i];
        face.insert(turned ? std::array{v.z, v.y, 1 - v.x} : std::array{v.x, v.y, v.z});
      }
      faces.insert(face);
    }
    return faces;
  };
  for (int rotation = 0; rotation < 4; ++rotation) {
    const Vector3 at{0, 0, 0}, size{2, 1, 3};
    const Solid wedge = WedgeSolid(rotation, at, size);
    const Solid next = WedgeSolid((rotation + 1) % 4, at, size);
    EXPECT_EQ(facesOf(wedge, true), facesOf(next, false)) << rotation;
    const double rise = rotation % 2 == 0 ? 1 / 3.0 : 1 / 2.0;
    EXPECT_FLOAT_EQ(Wedge(rotation, at, size).GetGradient(),
                    static_cast<float>(rotation < 2 ? rise : -rise));
  }
  EXPECT_EQ(Wedge(0, {}, {1, 1, 0}).GetGradient(), 0) << "a ramp without length";
}

/// Box textures lie upright and unmirrored on each face, once per unit or as often as asked.
TEST_F(GeometryTest, BoxTexturesFollowTheExtents) {
  for (const int stretch : {0, 1, 3}) {
    clsblock block;
    block.create(0, 0, 0, 1, 1, 1);
    block.ScaleTextureSide(static_cast<uint8_t>(stretch));
    block.ScaleTextureTop(static_cast<uint8_t>(stretch == 0 ? 0 : stretch + 1));
    Solid solid = BoxSolid("block", block, {0, 0, 0}, {2, 5, 3});
    const auto resized = solid.vertices;
    block.AlignTexureCoords(1, static_cast<int16_t>(stretch));
    block.AlignTexureCoords(0, static_cast<int16_t>(stretch == 0 ? 0 : stretch + 1));
    EXPECT_EQ(resized, std::vector(block.GeometryVertices().begin(), block.GeometryVertices().end()))
        << "new sizes and a new stretch give the same";
    for (size_t i = 0; i < 24; ++i) {
      const Vertex& v = resized[i];
      const size_t face = i / 6;  // front, left, right, top
      const double across[] = {v.x, 1.0 - v.z, v.z, v.x};
      const double lengths[] = {2, 3, 3, 2};
      const double repeats = face == 3 ? stretch + 1 : stretch;
      EXPECT_FLOAT_EQ(v.tu, static_cast<float>(across[face] * (stretch ? repeats : lengths[face])));
      const double down = face == 3 ? 1.0 - v.z : 1.0 - v.y;
      const double height = face == 3 ? 3 : 5;
      EXPECT_FLOAT_EQ(v.tv, static_cast<float>(down * (stretch ? repeats : height)));
    }
  }
}

/// Each texture coordinate of a wedge is a fraction of one of its sizes.
TEST_F(GeometryTest, WedgeTexturesFollowTheExtents) {
  // By rotation and face (slope, two sides, riser), for u then v: the size and how far along, as
  // coefficients of x, y, z and 1.
  struct Along {
    char size;
    float x, y, z, one;
  };
  constexpr Along kNone{'O', 0, 0, 0, 0}, xX{'X', 1, 0, 0, 0}, zZ{'Z', 0, 0, 1, 0},
      backZ{'Z', 0, 0, -1, 1}, downY{'Y', 0, -1, 0, 1}, upY{'Y', 0, 1, 0, 0},
      downX{'X', 0, -1, 0, 1}, downZ{'Z', 0, -1, 0, 1}, xZ{'Z', 1, 0, 0, 0}, xyX{'X', 1, 1, 0, 0};
  constexpr Along kLaws[4][4][2] = {
      {{xX, zZ}, {backZ, downY}, {zZ, downY}, {kNone, kNone}},
      {{zZ, xX}, {downX, xZ}, {upY, xX}, {downY, zZ}},
      {{xX, zZ}, {downY, zZ}, {downY, zZ}, {xX, downY}},
      {{zZ, xX}, {downY, xX}, {xyX, downZ}, {backZ, downY}}};
  const Vector3 size{2, 5, 3};
  for (int rotation = 0; rotation < 4; ++rotation) {
    const Solid solid = WedgeSolid(rotation, {0, 0, 0}, size);
    for (size_t face = 0; face < 4; ++face) {
      for (size_t i = solid.faces[face].first; i < solid.faces[face].second; ++i) {
        const Vertex& v = solid.vertices[i];
        for (const int coordinate : {0, 1}) {
          const Along& law = kLaws[rotation][face][coordinate];
          const double length = law.size == 'X'   ? size.x
                                : law.size == 'Y' ? size.y
                                : law.size == 'Z' ? size.z
                                                  : 0;
          EXPECT_EQ(coordinate == 0 ? v.tu : v.tv,
                    length * (law.x * v.x + law.y * v.y + law.z * v.z + law.one))
              << solid.name << " vertex " << i;
        }
      }
    }
  }
}

/// What the shadow asks: boxes of the faces, the upright ones with a thickness inwards.
TEST_F(GeometryTest, PlaneBoundsFollowTheCornersWhereTheyAreAsked) {
  const Vector3 at{1, 2, 3}, size{2, 1, 4};
  clsblock block;
  block.create(1, 2, 3, 2, 1, 4.1F);
  for (int16_t plane = 1; plane <= 5; ++plane) {
    Vector3 greatest, smallest, low = block.GetFaceCorners(plane)[0], high = low;
    for (const Vector3& c : block.GetFaceCorners(plane)) {
      low = {std::min(low.x, c.x), std::min(low.y, c.y), std::min(low.z, c.z)};
      high = {std::max(high.x, c.x), std::max(high.y, c.y), std::max(high.z, c.z)};
    }
    if (plane == 1) high.x = 1.001F;
    if (plane == 2) low.x = 2.999F;
    block.GetCollisionPlaneBounds(plane, greatest, smallest);
    EXPECT_EQ(greatest, high) << plane;
    EXPECT_EQ(smallest, low) << plane;
  }
  using Bounds = std::pair<Vector3, Vector3>;
  const Vector3 far{3, 3, 7};
  const Bounds walls[] = {{}, {far, {3, 2, 3}}, {{3, 3, 3}, at}, {{1, 3, 7}, at}};
  for (int rotation = 0; rotation < 4; ++rotation) {
    const Bounds expected[] = {{{0.001F, 0, 0}, {}}, {{}, {-0.001F, 0, 0}}, {far, at},
                               walls[rotation],      {{3, 2, 7}, at},       {}};
    for (int16_t plane = 1; plane <= 6; ++plane) {
      Vector3 greatest{9, 9, 9}, smallest{9, 9, 9};
      Wedge(rotation, at, size).GetCollisionPlaneBounds(plane, greatest, smallest);
      EXPECT_EQ(greatest, expected[plane - 1].first) << rotation << ' ' << plane;
      EXPECT_EQ(smallest, expected[plane - 1].second) << rotation << ' ' << plane;
    }
  }
}

}  // namespace
