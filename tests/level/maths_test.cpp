#include "level/maths.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "tests/support/null_editor.h"

namespace {

constexpr CollisionPlane kFloor{0, 1, 0, -1};

TEST(Maths, DistanceAndPlanes) {
  EXPECT_EQ(maths::Distance({0, 0, 0}, {1, 2, 2}), 3.0F);
  CollisionPlane plane;
  maths::PlaneFromPoints(plane, {0, 1, 1}, {1, 1, 1}, {0, 1, 0});
  EXPECT_EQ(plane, kFloor);
  Vector3 normal{9, 9, 9};
  maths::FaceNormal({1, 1, 1}, {1, 1, 1}, {2, 1, 1}, normal);
  EXPECT_EQ(normal, (Vector3{0, 0, 0})) << "three points on a line have no normal";
  EXPECT_EQ(maths::FloatToLong(1.0F), 0x3F800000);
}

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

TEST(Maths, HitNearTheMiddleSnapsInXOnly) {
  Vector3 hit;
  maths::IntersectRayPlane(kFloor, {0.0004F, 5, 0.0004F}, {0, -10, 0}, hit);
  EXPECT_EQ(hit.x, 0.0F);
  EXPECT_EQ(hit.z, 0.0004F);
  maths::IntersectRayPlane(kFloor, {0.002F, 5, 0}, {0, -10, 0}, hit);
  EXPECT_EQ(hit.x, 0.002F);
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

TEST(Maths, TransformAndTranslation) {
  Matrix4 move;
  maths::MakeTranslationMatrix(move, {1, 2, 3});
  Vector3 r;
  maths::TransformCoord(r, {1, 1, 1}, move);
  EXPECT_EQ(r, (Vector3{2, 3, 4}));
  move.m[3][3] = 0;
  maths::TransformCoord(r, {5, 5, 5}, move);
  EXPECT_EQ(r, (Vector3{2, 3, 4})) << "no perspective division by zero";
}

class PickRayTest : public DeviceTest {};

TEST_F(PickRayTest, PassesThroughTheClickedPoint) {
  DirectX::D3DDevice->SetTransform(Transform::View, d3dx::Identity());
  Vector3 nearPoint, farPoint;
  maths::GetPickRay(300, 228, DirectX::kFieldOfView, 601, 457, nearPoint, farPoint, 1, 100);
  // Half of an odd size is rounded to even: 300 and 228.
  EXPECT_EQ(nearPoint, (Vector3{0, 0, 1}));
  EXPECT_EQ(farPoint, (Vector3{0, 0, 100}));
  maths::GetPickRay(600, 0, DirectX::kFieldOfView, 600, 400, nearPoint, farPoint, 1, 100);
  EXPECT_NEAR(nearPoint.x, std::tan(DirectX::kFieldOfView / 2), 1e-6);
  EXPECT_NEAR(nearPoint.y, std::tan(DirectX::kFieldOfView / 2), 1e-6);
  EXPECT_THROW(maths::GetPickRay(0, 0, 1, 0, 400, nearPoint, farPoint, 1, 100),
               std::overflow_error);
}

TEST_F(PickRayTest, StartsInFrontOfTheCamera) {
  DirectX::ResetCamera();
  Vector3 nearPoint, farPoint;
  maths::GetPickRay(300, 228, DirectX::kFieldOfView, 601, 457, nearPoint, farPoint, 1, 100);
  EXPECT_NEAR(maths::Distance(DirectX::CameraPosition, nearPoint), 1.0, 1e-4);
  // The centre ray goes towards the target, 24.76 away.
  const double length = maths::Distance(DirectX::CameraPosition, DirectX::CameraTarget);
  EXPECT_NEAR(length, 24.76, 0.01);
  EXPECT_NEAR(farPoint.x, 0, 1e-4);
  EXPECT_NEAR((farPoint.z + 18) / 100, 18 / length, 1e-4);
}

}  // namespace
