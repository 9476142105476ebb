// Ramps in their four rotations, from both ends.
#include <cmath>

#include "tests/play/play_test.h"

namespace {

/// A ramp 4 long and 2 high on the floor, with a plateau as high beyond its high edge.
class RampDriveTest : public PlayTest {
 protected:
  void SetUp() override {
    PlayTest::SetUp();
    AddFloor();
  }
  /// The slope is below the car's touching edge.
  static void ExpectOnSlope(const Row& row, int rotation, double step) {
    const double heights[] = {1 + (row.z - 10) * 0.5, 1 + (row.x - 1.6) * 0.5,
                              3 - (row.z - 10.8) * 0.5, 3 - (row.x + 5.6) * 0.5};
    EXPECT_GE(row.y, heights[rotation] - 1e-4) << rotation << " frame " << row.frame;
    EXPECT_LE(row.y, heights[rotation] + step + 0.03) << rotation << " frame " << row.frame;
  }
};

TEST_F(RampDriveTest, ClimbsForwardsAndStandsBeyondTheHighEdgeForItsOwnLength) {
  AddRamp({-2, 1, 10}, {4, 2, 4}, 0);
  const auto rows = Run("2 up\n360 -");
  int standing = 0;
  for (const Row& row : rows) {
    if (row.z > 10.4F && row.z < 14) ExpectOnSlope(row, 0, 0.15);
    if (row.z < 14.2F || row.z > 14.75F) continue;
    EXPECT_NEAR(row.y, 3.001, 1e-4) << row.frame;
    standing += row.onGround;
  }
  EXPECT_GT(standing, 10);
  EXPECT_LT(rows.back().y, 3) << "and falls then";
  AddBlock({-2, 1, 14}, {4, 2, 20});
  const Row row = Last("15 up\n50 -");
  EXPECT_TRUE(Near({row.y, row.fv}, {3.001, 0.3}));
}

TEST_F(RampDriveTest, DescendsForwardsAndCannotClimbTheRiser) {
  AddRamp({-2, 1, 10}, {4, 2, 4}, 2);
  EXPECT_NEAR(Last("15 up\n60 -").z, 9.999, kNear) << "the riser faces the car";
  AddBlock({-2, 1, 2}, {4, 2, 8});
  const auto rows = RunFrom({0, 3.001F, 4}, "10 up\n60 -");
  for (const Row& row : rows) {
    // It falls behind the slope first.
    if (row.z > 11.2F && row.z < 13.8F) ExpectOnSlope(row, 2, 0.2);
  }
  EXPECT_NEAR(rows.back().y, kStanding, kNear);
  EXPECT_GT(rows.back().z, 14.8F);
}

TEST_F(RampDriveTest, ClimbsAndDescendsSideways) {
  for (const int rotation : {1, 3}) {
    RemoveRamps();
    const bool right = rotation == 1;
    AddRamp({right ? 2.0F : -6.0F, 1, 0}, {4, 2, 20}, rotation);
    AddBlock({right ? 6.0F : -10.0F, 1, 0}, {4, 2, 20});
    const auto rows = Run(kLand + (right ? "58 right\n58 left" : "58 left\n58 right"));
    for (const Row& row : rows) {
      if (std::abs(row.x) > 1.9F && std::abs(row.x) < 5.5F) ExpectOnSlope(row, rotation, 0.06);
    }
    const Row &top = rows[kLanding + 57], &back = rows.back();
    EXPECT_TRUE(Near({top.x, top.y, back.x, back.y}, {right ? 6.96 : -6.96, 3.001, 0, kStanding}));
  }
}

TEST_F(RampDriveTest, EverySlopeHoldsACarWithOneEndOfItsTouchingEdge) {
  for (const float height : {1.0F, 4.0F, 9.0F}) {
    for (int rotation = 0; rotation < 4; ++rotation) {
      RemoveRamps();
      AddRamp({-2, 1, 10}, {4, height, 4}, rotation);
      // The edge runs along x, from 0.4 to both sides, or along z, from 0 to 0.8 back.
      for (const float aside : {-2.5F, -2.3F, 0.0F, 2.3F, 2.5F}) {
        const bool alongX = rotation % 2 == 0;
        const Row row =
            RunFrom({alongX ? aside : 0, 1 + height, alongX ? 12.4F : 12.4F + aside}, "60 -")
                .back();
        EXPECT_TRUE(row.onGround);
        // It lies 0.4 above the middle of the slope, seen along it.
        const double expected = std::abs(aside) < 2.4F ? 1 + height * 0.6 : 1;
        EXPECT_NEAR(row.y, expected, 0.1) << height << ' ' << rotation << ' ' << aside;
      }
    }
  }
}

}  // namespace
