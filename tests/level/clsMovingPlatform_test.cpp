#include "level/clsMovingPlatform.h"

#include "tests/support/null_editor.h"

namespace {

constexpr uint8_t kLeft = clsMovingPlatform::Left, kRight = clsMovingPlatform::Right;

class PlatformTest : public DeviceTest {
 protected:
  void SetUp() override {
    DeviceTest::SetUp();
    Start(0, kRight, 5, 5);
  }
  void Start(float x, uint8_t direction, uint8_t speed, uint8_t distance) {
    platform.create(x, 0, 0);
    platform.Xpos(x);
    platform.Mdir(direction);
    platform.Mspeed(speed);
    platform.Mdist(distance);
    platform.MloopBack(true);
  }
  /// Place, direction and whether it has just turned, after so many steps.
  using State = std::tuple<float, uint8_t, bool>;
  State After(int steps) {
    for (int i = 0; i < steps; ++i) platform.move();
    return {platform.Xpos(), platform.Mdir(), platform.GetChangeDir()};
  }
  clsMovingPlatform platform;
};

TEST_F(PlatformTest, SwingsBackAndForth) {
  for (const uint8_t start : {kLeft, kRight}) {
    const uint8_t back = start == kLeft ? kRight : kLeft;
    const float end = start == kLeft ? -5 : 5;
    Start(0, start, 5, 5);
    EXPECT_EQ(After(100), State(end, start, false));
    EXPECT_EQ(platform.GetVelocity(), Vector3()) << "the next step turns round";
    EXPECT_EQ(After(1), State(end, back, true));
    EXPECT_EQ(After(1), State(end * 0.99F, back, false));
    EXPECT_EQ(After(99), State(0, back, false));
    EXPECT_EQ(After(1), State(0, start, true));
    EXPECT_EQ(std::pair(platform.GetInitalXpos(), platform.GetinitalMDir()),
              std::pair(0.0F, start));
  }
  platform.MloopBack(false);
  EXPECT_EQ(After(100), State(5, kRight, false));
  EXPECT_EQ(platform.GetVelocity(), Vector3()) << "a jump carries nobody";
  EXPECT_EQ(After(1), State(0, kRight, false)) << "without loop";
}

TEST_F(PlatformTest, VelocityIsWhatTheNextStepAdds) {
  for (uint8_t speed = 0; speed <= 20; ++speed) {
    for (uint8_t distance = 0; distance <= 10; ++distance) {
      Start(-7.3F, distance % 2 == 0 ? kLeft : kRight, speed, distance);
      for (int i = 0; i < 300; ++i) {
        const float before = platform.Xpos(), velocity = platform.GetVelocity().x;
        platform.move();
        ASSERT_NEAR(platform.Xpos() - before, velocity, 1e-3) << int{speed} << ' ' << int{distance};
      }
    }
  }
}

TEST_F(PlatformTest, StandsStillWithoutDirectionOrWhenStopped) {
  for (const uint8_t direction : {uint8_t{1}, uint8_t{4}}) {
    platform.Mdir(direction);
    EXPECT_EQ(After(3), State(0, direction, false));
    EXPECT_EQ(platform.GetVelocity(), Vector3());
  }
  platform.Mdir(kRight);
  platform.stopMoving();
  EXPECT_EQ(After(3), State(0, kRight, false));
  EXPECT_EQ(platform.GetVelocity(), (Vector3{0.05F, 0, 0})) << "what it would do";
}

TEST_F(PlatformTest, ReturnsToItsOriginOrLeg) {
  After(10);
  platform.ResetToOrigin();
  EXPECT_EQ(After(10), State(0.5F, kRight, false));
  platform.Mdir(1);
  platform.ResetToOrigin();
  EXPECT_EQ(platform.Xpos(), 0.5F) << "not with this direction";
  Start(0, kRight, 5, 5);
  After(110);
  platform.StartAnimation();
  After(30);
  platform.StopAnimation();
  EXPECT_EQ(After(0), State(5, kLeft, false)) << "where the leg began";
}

}  // namespace
