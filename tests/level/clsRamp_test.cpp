#include "level/clsRamp.h"

#include <cmath>

#include "level/maths.h"
#include "platform/d3dx_maths.h"
#include "tests/support/null_editor.h"

namespace {

class RampTest : public DeviceTest {
 protected:
  /// A ramp 2 wide, 1 high, 4 deep at (1, 2, 3).
  static clsRamp Ramp(int rotation) {
    clsRamp ramp;
    ramp.create(1, 2, 3);
    for (int i = 0; i < rotation; ++i) ramp.rotate();
    ramp.scaleX(2);
    ramp.scaleY(1);
    ramp.scaleZ(4);
    return ramp;
  }
};

TEST_F(RampTest, FourTurnsAreNone) {
  clsRamp ramp = Ramp(2);
  const auto before = ramp.GeometryVertices();
  for (int i = 0; i < 4; ++i) ramp.rotate();
  EXPECT_EQ(ramp.rotateVal(), 2);
  EXPECT_EQ(ramp.GeometryVertices(), before);
  ramp.rotate();
  EXPECT_NE(ramp.GeometryVertices(), before);
}

TEST_F(RampTest, ResizingKeepsTheRotation) {
  clsRamp ramp = Ramp(0);
  for (int rotation = 0; rotation < 4; ++rotation, ramp.rotate()) {
    ramp.scaleZ(4);
    EXPECT_EQ(ramp.GetRotation(), rotation);
  }
}

TEST_F(RampTest, GradientsRiseTheirOwnWay) {
  EXPECT_EQ(Ramp(0).GetGradient(), 0.25F);
  EXPECT_EQ(Ramp(1).GetGradient(), 0.5F);
  EXPECT_EQ(Ramp(2).GetGradient(), -0.25F);
  EXPECT_EQ(Ramp(3).GetGradient(), -0.5F);
}

TEST_F(RampTest, SlopePlaneFacesUpAndOut) {
  clsRamp ramp;
  ramp.create(0, 0, 0);
  ramp.scaleZ(2);
  const double length = std::sqrt(5.0);
  const CollisionPlane slope = ramp.GetCollisionPlane(3);
  EXPECT_FLOAT_EQ(slope.b, static_cast<float>(2 / length));
  EXPECT_FLOAT_EQ(slope.c, static_cast<float>(-1 / length));
  const std::array<Vector3, 4> normals = {{{0, 4, -1}, {-1, 2, 0}, {0, 4, 1}, {1, 2, 0}}};
  for (int rotation = 0; rotation < 4; ++rotation) {
    const Vector3 expected = d3dx::Normalize(normals[static_cast<size_t>(rotation)]);
    const Vector3 actual = Ramp(rotation).GetPlaneNormal(3);
    EXPECT_NEAR(maths::Distance(expected, actual), 0, 1e-6) << rotation;
  }
}

TEST_F(RampTest, MissingSidesAreZero) {
  EXPECT_EQ(Ramp(0).GetCollisionPlane(4), CollisionPlane());
  EXPECT_EQ(Ramp(1).GetCollisionPlane(1), CollisionPlane());
  EXPECT_EQ(Ramp(1).GetCollisionPlane(2), (CollisionPlane{1, 0, 0, -3}));
  EXPECT_EQ(Ramp(3).GetCollisionPlane(2), CollisionPlane());
  EXPECT_EQ(Ramp(2).GetCollisionPlane(4), (CollisionPlane{0, 0, -1, 3}));
  EXPECT_EQ(Ramp(2).GetCollisionPlane(5), (CollisionPlane{0, -1, 0, 2}));
  EXPECT_EQ(Ramp(2).GetCollisionPlane(6), (CollisionPlane{0, 1, 0, -3}));
  EXPECT_THROW(Ramp(0).GetCollisionPlane(7), std::out_of_range);
}

/// Every existing side lies in its plane, and its outline contains its own middle; the slope of
/// rotation 1 is the one that is wound the other way.
TEST_F(RampTest, CornersLieInTheirPlanes) {
  for (int rotation = 0; rotation < 4; ++rotation) {
    const clsRamp ramp = Ramp(rotation);
    for (int16_t number = 1; number <= 6; ++number) {
      const CollisionPlane plane = ramp.GetCollisionPlane(number);
      const auto corners = ramp.GetFaceCorners(number);
      if (plane == CollisionPlane()) {
        EXPECT_EQ(corners, ramp::Corners()) << rotation << ' ' << number;
        continue;
      }
      Vector3 middle;
      for (size_t i = 0; i < 3; ++i) {
        const Vector3& c = corners[i];
        EXPECT_NEAR(plane.a * c.x + plane.b * c.y + plane.c * c.z + plane.d, 0, 1e-5)
            << rotation << ' ' << number;
        middle = {middle.x + c.x / 3, middle.y + c.y / 3, middle.z + c.z / 3};
      }
      const auto& c = corners;
      const bool forwards = maths::PointInQuad(c[0], c[1], c[2], c[3], middle);
      const bool backwards = maths::PointInQuad(c[2], c[1], c[0], c[3], middle);
      EXPECT_TRUE(forwards || backwards) << rotation << ' ' << number;
    }
  }
}

TEST_F(RampTest, HighEdgeStripReachesBeyondTheRamp) {
  EXPECT_EQ(Ramp(0).GetFaceCorners(6)[1], (Vector3{1, 3, 7.8F}));
  EXPECT_EQ(Ramp(1).GetFaceCorners(6)[2], (Vector3{3.8F, 3, 7}));
  EXPECT_EQ(Ramp(2).GetFaceCorners(6)[2], (Vector3{3, 3, 2.2F}));
  EXPECT_EQ(Ramp(3).GetFaceCorners(6)[1], (Vector3{0.2F, 3, 3}));
}

TEST_F(RampTest, SettersAndColours) {
  clsRamp ramp = Ramp(0);
  ramp.Ypos(-1);
  ramp.Xpos(-5);
  EXPECT_EQ(ramp.Ypos(), 2);
  EXPECT_EQ(ramp.Xpos(), -5);
  ramp.scaleX(-2);
  EXPECT_EQ(ramp.scaleX(), -2);
  ramp.SelectRamp();
  EXPECT_EQ(ramp.GeometryVertices()[17].colour, 0x888888U);
  ramp.UnSelectramp();
  EXPECT_EQ(ramp.GeometryVertices()[5].colour, 0xFFFFFFU);
  EXPECT_EQ(ramp.GeometryVertices()[6].colour, 0x9A9A9AU);
  ramp.Texture("a.bmp", "b", Document.TextureDir);
  ramp.Texture("a.bmp", "C", Document.TextureDir);
  EXPECT_EQ(ramp.GetTextureA(), "");
  EXPECT_EQ(ramp.GetTextureB(), "a.bmp");
}

}  // namespace
