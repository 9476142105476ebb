#include "level/maths.h"

#include <cmath>

#include "tests/support/null_editor.h"

namespace {

constexpr CollisionPlane kFloor{0, 1, 0, -1};

TEST(Maths, RayMeetsPlaneOnlyWithinItsSegment) {
  Vector3 hit;
  EXPECT_TRUE(maths::IntersectRayPlane(kFloor, {0, 5, 0}, {0, -10, 0}, hit));
  EXPECT_EQ(hit, (Vector3{0, 1, 0}));
  hit = {};
  EXPECT_FALSE(maths::IntersectRayPlane(kFloor, {0, 5, 0}, {0, -3, 0}, hit));
  EXPECT_EQ(hit, (Vector3{0, 1, 0})) << "the hit is written all the same";
  EXPECT_TRUE(maths::IntersectRayPlane(kFloor, {0, 5, 0}, {0, -4, 0}, hit)) << "touching counts";
  hit = {7, 7, 7};
  EXPECT_FALSE(maths::IntersectRayPlane(kFloor, {0, 5, 0}, {1, 0, 0}, hit));
  EXPECT_EQ(hit, (Vector3{7, 7, 7})) << "a parallel ray leaves it alone";
  EXPECT_TRUE(maths::IntersectRayPlane(kFloor, {0, 1, 0}, {1, 1, 0}, hit)) << "starting on it";
}

TEST(Maths, PointInQuadIsStrictAndClockwise) {
  const std::array<Vector3, 4> c = {{{0, 0, 0}, {0, 1, 0}, {1, 1, 0}, {1, 0, 0}}};
  EXPECT_TRUE(maths::PointInQuad(c[0], c[1], c[2], c[3], {0.5F, 0.5F, 0}));
  EXPECT_FALSE(maths::PointInQuad(c[0], c[1], c[2], c[3], {0.5F, 0, 0})) << "on an edge";
  EXPECT_FALSE(maths::PointInQuad(c[3], c[2], c[1], c[0], {0.5F, 0.5F, 0}));
  // A triangle repeats its first corner.
  EXPECT_TRUE(maths::PointInQuad(c[0], c[1], c[2], c[0], {0.3F, 0.6F, 0}));
  EXPECT_FALSE(maths::PointInQuad(c[0], c[1], c[2], c[0], {0.6F, 0.3F, 0}));
}

using PickRayTest = DeviceTest;

/// What is seen at a pixel is what the ray through that pixel meets.
TEST_F(PickRayTest, IsTheInverseOfTheProjection) {
  DirectX::CameraPosition = {3, 20, -10};
  DirectX::CameraTarget = {-4, 5, 30};
  DirectX::ApplyCamera();
  for (const auto& [x, y] : {std::pair{0, 0}, {150, 400}, {300, 228}, {590, 20}}) {
    Vector3 nearPoint, farPoint, seen;
    maths::GetPickRay(static_cast<float>(x), static_cast<float>(y), DirectX::kFieldOfView, 601, 457,
                      nearPoint, farPoint, 1, 100);
    for (const auto& [point, depth] : {std::pair{nearPoint, 1.0}, {farPoint, 100.0}}) {
      maths::TransformCoord(seen, point, DirectX::MatView);
      EXPECT_NEAR(seen.z, depth, 1e-3);
      maths::TransformCoord(seen, Vector3(seen), DirectX::MatProj);
      EXPECT_NEAR((seen.x + 1) * 300, x, 0.05);
      EXPECT_NEAR((1 - seen.y) * 228, y, 0.05);
      EXPECT_NEAR(seen.z, 500.0 / 499 * (1 - 1 / depth), 1e-4) << "depth 0 at 1, 1 at 500";
    }
  }
  Vector3 up, left;
  EXPECT_THROW(maths::GetPickRay(0, 0, 1, 0, 9, up, left, 1, 100), std::overflow_error);
  maths::TransformCoord(up, {-4, 6, 30}, DirectX::MatView);
  maths::TransformCoord(left, {-5, 5, 30}, DirectX::MatView);
  EXPECT_TRUE(std::abs(up.x) < 1e-4 && up.y > 0 && left.x < 0) << "upright, x to the right";
}

}  // namespace
