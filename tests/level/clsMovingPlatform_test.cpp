#include "level/clsMovingPlatform.h"

#include "tests/support/null_editor.h"

namespace {

class PlatformTest : public DeviceTest {
 protected:
  void SetUp() override {
    DeviceTest::SetUp();
    platform.create(0, 0, 0);
    platform.Xpos(0);
    platform.Mdir(clsMovingPlatform::Right);
    platform.Mspeed(5);
    platform.Mdist(5);
    platform.MloopBack(true);
  }
  void Move(int steps) {
    for (int i = 0; i < steps; ++i) platform.move();
  }
  clsMovingPlatform platform;
};

TEST_F(PlatformTest, SwingsBackAndForth) {
  Move(100);
  EXPECT_EQ(platform.Xpos(), 5.0F);
  EXPECT_FALSE(platform.GetChangeDir());
  EXPECT_EQ(platform.GetVelocity(), Vector3()) << "the next step turns round";
  Move(1);
  EXPECT_EQ(platform.Xpos(), 5.0F);
  EXPECT_TRUE(platform.GetChangeDir());
  EXPECT_EQ(platform.Mdir(), clsMovingPlatform::Left);
  EXPECT_EQ(platform.GetinitalMDir(), clsMovingPlatform::Right);
  Move(1);
  EXPECT_FALSE(platform.GetChangeDir());
  EXPECT_EQ(platform.GetVelocity(), (Vector3{-0.05F, 0, 0}));
  Move(99);
  EXPECT_EQ(platform.Xpos(), 0.0F);
  Move(1);
  EXPECT_EQ(platform.Mdir(), clsMovingPlatform::Right);
  EXPECT_EQ(platform.GetInitalXpos(), 0.0F);
}

TEST_F(PlatformTest, VelocityIsWhatTheNextStepAdds) {
  for (uint8_t speed = 0; speed <= 20; ++speed) {
    for (uint8_t distance = 0; distance <= 10; ++distance) {
      platform.create(-7.3F, 0, 0);
      platform.Xpos(-7.3F);
      platform.Mdir(distance % 2 == 0 ? clsMovingPlatform::Left : clsMovingPlatform::Right);
      platform.Mspeed(speed);
      platform.Mdist(distance);
      for (int i = 0; i < 300; ++i) {
        const float before = platform.Xpos(), velocity = platform.GetVelocity().x;
        platform.move();
        ASSERT_NEAR(platform.Xpos() - before, velocity, 1e-3) << int{speed} << ' ' << int{distance};
      }
    }
  }
}

TEST_F(PlatformTest, WithoutLoopJumpsBackToItsStart) {
  platform.MloopBack(false);
  Move(100);
  EXPECT_EQ(platform.GetVelocity(), Vector3()) << "a jump carries nobody";
  Move(1);
  EXPECT_EQ(platform.Xpos(), 0.0F);
  EXPECT_EQ(platform.Mdir(), clsMovingPlatform::Right);
}

TEST_F(PlatformTest, LeftIsTheMirrorImage) {
  platform.Mdir(clsMovingPlatform::Left);
  Move(101);
  EXPECT_EQ(platform.Xpos(), -5.0F);
  EXPECT_TRUE(platform.GetChangeDir());
}

TEST_F(PlatformTest, StandsStillWithoutSpeedOrDirection) {
  platform.Mspeed(0);
  Move(3);
  EXPECT_EQ(platform.Xpos(), 0.0F);
  EXPECT_EQ(platform.GetVelocity(), Vector3());
  platform.Mspeed(5);
  for (const uint8_t direction : {uint8_t{1}, uint8_t{4}}) {
    platform.Mdir(direction);
    Move(3);
    EXPECT_EQ(platform.Xpos(), 0.0F);
    EXPECT_EQ(platform.GetVelocity(), Vector3());
  }
}

TEST_F(PlatformTest, StopFreezesButStillReportsTheNextStep) {
  platform.stopMoving();
  Move(3);
  EXPECT_EQ(platform.Xpos(), 0.0F);
  EXPECT_EQ(platform.GetVelocity(), (Vector3{0.05F, 0, 0}));
}

TEST_F(PlatformTest, PlanesFollowMotionNotSize) {
  platform.scaleX(2);
  platform.scaleY(1);
  platform.scaleZ(1);
  EXPECT_EQ(platform.GetCollisionPlane(2), CollisionPlane()) << "created without a width";
  Move(20);
  EXPECT_EQ(platform.GetCollisionPlane(2), (CollisionPlane{1, 0, 0, -3}));
}

TEST_F(PlatformTest, ResetReturnsUnlessTheDirectionIsOne) {
  Move(10);
  platform.ResetToOrigin();
  EXPECT_EQ(platform.Xpos(), 0.0F);
  platform.Mdir(clsMovingPlatform::Right);
  Move(10);
  platform.Mdir(1);
  platform.ResetToOrigin();
  EXPECT_EQ(platform.Xpos(), 0.5F);
}

TEST_F(PlatformTest, AnimationIsSavedAndRestored) {
  Move(110);
  platform.StartAnimation();
  Move(30);
  platform.StopAnimation();
  EXPECT_EQ(platform.Xpos(), 5.0F) << "where the leg began";
  EXPECT_EQ(platform.Mdir(), clsMovingPlatform::Left);
}

TEST_F(PlatformTest, PositionsKeepFractionsAndRefuseDepths) {
  platform.Zpos(2.5F);
  platform.Zpos(-1.0F);
  platform.Ypos(-1.0F);
  EXPECT_EQ(platform.Zpos(), 2.5F);
  EXPECT_EQ(platform.GetInitalZpos(), 2.5F);
  EXPECT_EQ(platform.Ypos(), 0.0F);
}

TEST_F(PlatformTest, ResizedSidesHaveNoGradient) {
  platform.scaleY(2);
  EXPECT_EQ(platform.GeometryVertices()[0].colour, 0x9A9A9AU);
  platform.scaleZ(2);
  EXPECT_EQ(platform.GeometryVertices()[6].colour, 0xFFFFFFU);
  EXPECT_EQ(platform.GeometryVertices()[0].colour, 0x9A9A9AU) << "the front does not span z";
}

}  // namespace
