#include "render/frame/clsShadow.h"

#include "level/maths.h"
#include "tests/play/play_test.h"

namespace {

class ShadowTest : public PlayTest {
 protected:
  struct Corner {
    Vector3 place;
    float u, v;
  };
  /// The shadow of a car at this place: its corners in the world, six for every drawn piece.
  std::vector<Corner> ShadowOf(const Vector3& car, const Vector4& velocity = {}) {
    std::vector<Corner> corners;
    const auto& screen = DrawFrame([&] { Shadow.draw(car, velocity); });
    for (const Command& draw : screen.commands) {
      EXPECT_TRUE(screen.states[draw.states].alphaBlend);
      for (uint32_t i = 0; i < draw.vertexCount; ++i) {
        const Vertex& v = Shadow.ShadowVertices()[draw.firstVertex + i];
        corners.push_back({{}, v.tu, v.tv});
        maths::TransformCoord(corners.back().place, {v.x, v.y, v.z}, screen.worlds[draw.world]);
      }
    }
    return corners;
  }
};

TEST_F(ShadowTest, FourPiecesMakeOnePictureUnderTheCar) {
  AddFloor();
  const auto corners = ShadowOf({1, 5, 10});
  ASSERT_EQ(corners.size(), 24U);
  for (const auto& [place, u, v] : corners) {
    EXPECT_NEAR(place.y, 1.02, 1e-5);
    // From the left front corner of a square of 0.9 to its right back one, without a seam.
    EXPECT_NEAR(place.x, 1 - 0.45 + 0.9 * u, 1e-5);
    EXPECT_NEAR(place.z, 10 + 0.05 - 0.9 * v, 1e-5);
  }
  for (size_t i = 0; i < corners.size(); i += 3) {
    const Vector3 &a = corners[i].place, &b = corners[i + 1].place, &c = corners[i + 2].place;
    const double area = (double{c.x} - a.x) * (b.z - a.z) - (double{b.x} - a.x) * (c.z - a.z);
    EXPECT_NEAR(area, 0.45 * 0.45, 1e-5) << "half a piece, clockwise from above";
  }
}

TEST_F(ShadowTest, EachPieceLiesOnTheNearestGroundBelowIt) {
  AddFloor();
  AddBlock({-10, 2, 0}, {11, 1, 50});
  AddBlock({-10, 8, 0}, {20, 1, 50});
  const auto corners = ShadowOf({1, 5, 10});
  ASSERT_EQ(corners.size(), 24U);
  for (size_t i = 0; i < 24; ++i) {
    EXPECT_NEAR(corners[i].place.y, i / 6 % 2 == 0 ? 3.02 : 1.02, 1e-5) << "left and right in turn";
  }
  AddPlatform({-10, 3, 0}, {20, 1, 50}, clsMovingPlatform::Left).move();
  for (const Corner& corner : ShadowOf({1, 5, 10})) EXPECT_NEAR(corner.place.y, 4.02, 1e-5);
}

TEST_F(ShadowTest, NothingBelowNothingDrawn) {
  AddBlock({0, 0, 0}, {10, 1, 20});
  EXPECT_EQ(ShadowOf({0, 5, 10}).size(), 12U) << "the left half hangs over the edge";
  EXPECT_EQ(ShadowOf({5, 5, 20.5F}).size(), 12U) << "its back half is over it still";
  EXPECT_TRUE(ShadowOf({5, 5, 20.5F}, {0, 0, 0.6F, 0}).empty()) << "not where it is going to be";
  EXPECT_TRUE(ShadowOf({5, 0, 10}).empty()) << "the block is above the car";
  EXPECT_TRUE(ShadowOf({5, 98, 10}).empty()) << "that high, the search ends above the block";
}

TEST_F(ShadowTest, FollowsASlopeAsItIsSeen) {
  for (int rotation = 0; rotation < 4; ++rotation) {
    RemoveRamps();
    AddRamp({0, 0, 0}, {8, 4, 8}, rotation);
    for (const float speed : {0.0F, 0.5F}) {
      const auto corners = ShadowOf({4, 6, 4}, {0, 0, speed, 0});
      ASSERT_EQ(corners.size(), 24U);
      for (const auto& [place, u, v] : corners) {
        // The camera has made the step that the ground has not.
        const double x = place.x, z = place.z - speed;
        const double heights[] = {z / 2, x / 2, 4 - z / 2, 4 - x / 2};
        EXPECT_NEAR(place.y, heights[rotation] + 0.02, 1e-4) << rotation;
      }
    }
  }
}

}  // namespace
