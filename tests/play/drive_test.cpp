// One small track per behaviour; expected numbers worked out by hand from the law of motion:
// start at (0, 3.5, 1), gravity 0.025 a frame, speed 0.02 more a frame up to 0.6.
#include "play/collision_response.h"
#include "tests/play/play_test.h"

namespace {

using DriveTest = PlayTest;

TEST_F(DriveTest, FallsUnderBothGravitiesAndStartsOver) {
  AddBlock({100, 0, 100}, {1, 1, 1});
  for (const double gravity : {0.025, 0.0125}) {
    Document.Gravity = static_cast<float>(gravity);
    // The height is tested before the frame's step.
    int end = 1;
    while (3.5 - gravity * end * (end - 1) / 2 >= -40) ++end;
    const auto rows = Run(std::to_string(end + 1) + " -");
    EXPECT_TRUE(Near({rows[9].vv, rows[9].y}, {-gravity * 10, 3.5 - gravity * 55}));
    EXPECT_EQ(FirstWith(rows, "fall").frame, end);
    EXPECT_NEAR(rows.back().y, 3.5 - gravity, kNear) << "the next frame starts over";
  }
}

TEST_F(DriveTest, LandsAndJumpsWheneverItStands) {
  AddFloor();
  const auto rows = Run("44 jump");
  EXPECT_TRUE(!rows[kLanding - 2].onGround && rows[kLanding - 1].onGround)
      << "n (n + 1) / 2 * 0.025 passes 2.5 at n = 14";
  EXPECT_NEAR(rows[kLanding - 1].y, kStanding, kNear);
  EXPECT_NEAR(rows[kLanding].vv, 0.325, kNear) << "one frame after landing, and gravity";
  EXPECT_NEAR(rows[kLanding + 12].y, 1.001 + 0.35 * 13 - 0.025 * 91, kNear);
  EXPECT_TRUE(rows[kLanding + 27].onGround) << "the parabola is back after 28 frames";
  EXPECT_NEAR(rows[kLanding + 28].vv, 0.325, kNear) << "and the key is still held";
  for (const float right : {-0.39F, -0.41F}) {
    Document.Blocks[0].scaleX(right + 20);
    EXPECT_EQ(Last(kLand).onGround, right == -0.39F) << "its left corners, at -0.4, are enough";
  }
}

TEST_F(DriveTest, AWallStopsTheSlowAndExplodesTheFast) {
  AddFloor();
  AddBlock({-2, 1, 20}, {4, 3, 1});
  const Row slow = Last("15 up\n100 -");
  EXPECT_NEAR(slow.z, 19.999, kNear);
  EXPECT_FALSE(slow.exploding);

  const auto rows = Run("30 up\n62 -");
  // 1 + 0.02 * 465 = 10.3 after 30 frames, 19.9 after 46.
  const Row crash = FirstWith(rows, "explode");
  EXPECT_EQ(crash.frame, 47);
  EXPECT_NEAR(crash.z, 19.9, 1e-4) << "an exploding car does not move";
  // Picture 2 at once, then one every third frame: picture 16 after 42 more, death one later.
  EXPECT_TRUE(!rows[46 + 42].dead && rows[46 + 43].dead && !rows[46 + 44].exploding);
  EXPECT_EQ(rows[46 + 44].z, 1);
}

TEST_F(DriveTest, SlidesOnIce) {
  AddFloor(clsblock::Ice);
  const auto rows = Run(kLand + "5 right+up\n10 -\n1 left\n3 down\n1 jump\n1 -");
  EXPECT_TRUE(rows[kLanding - 1].onIce && !rows[kLanding + 19].onIce);
  // Without steering the slide goes on; in the air steering is what it always was.
  EXPECT_TRUE(Near({rows[kLanding + 14].hv, rows[kLanding + 15].hv, rows[kLanding + 20].hv},
                   {0.12, -0.12, 0}));
  EXPECT_NEAR(rows[kLanding + 18].fv, 0.1 - 3 * 0.01, kNear) << "weak brakes";
}

TEST_F(DriveTest, PadsThrowAndDriveItAndKillPadsWin) {
  AddFloor(clsblock::JumpPad);
  const Row thrown = Last(kLand);
  EXPECT_FALSE(thrown.onGround);
  EXPECT_TRUE(
      Near({thrown.vv, thrown.y, Document.Blocks[0].Ypos()}, {0.45, 3.5 - 0.025 * 91 + 0.45, 0}));
  Document.Blocks[0].changeactioncode(clsblock::TurboPad);
  const auto rows = Run(kLand + "5 up\n1 down");
  EXPECT_TRUE(Near({rows[kLanding - 1].fv, rows[kLanding + 5].fv}, {1, 1})) << "braking or not";
  AddFloor(clsblock::InstantKill);  // at the same height
  EXPECT_EQ(FirstWith(Run("20 -"), "explode").frame, kLanding);
}

TEST_F(DriveTest, RidesAFallingBlock) {
  AddFloor(clsblock::FallingBlock);
  const auto rows = Run("40 -");
  for (size_t falls = 0; falls + kLanding <= 40; ++falls) {
    const double top = 1 - 0.0125 * static_cast<double>(falls * (falls + 1));
    EXPECT_NEAR(rows[kLanding + falls - 1].y, top, 1e-4) << "before its next fall";
  }
}

TEST_F(DriveTest, CollectsStarsUntilTheTrackIsRestoredOrWon) {
  AddFloor();
  for (const int z : {8, 12, 16}) AddStar(0, 1, z);
  AddStar(1, 1, 20);
  EXPECT_EQ(Last("20 up\n60 -").stars, 3) << "one of them one unit aside";
  EXPECT_EQ(Particles.ParticleCount(), 90);
  Player.DeathStatus(true);
  EXPECT_EQ(Continue("1 -").back().stars, 0);
  EXPECT_EQ(Particles.ParticleCount(), 0);
  Document.Blocks[0].changeactioncode(clsblock::WinLevel);
  const Row win = RunFrom({0, 1.02F, 8.5F}, "1 -").back();
  EXPECT_NEAR(win.y, kStanding, kNear);
  EXPECT_EQ(std::pair(std::string(win.event), win.stars), std::pair(std::string("win"), 0))
      << "winning ends the update before the star here is collected";
}

TEST_F(DriveTest, StarsAtTheEdgeOfReachStay) {
  for (const float x : {-0.8F, -0.79F, 0.79F, 0.8F}) {
    for (const float y : {0.19F, 0.21F, 1.79F, 1.81F}) {
      for (const float z : {5.0F, 5.01F, 5.99F, 6.0F}) {
        PlaceCar({x, y, z});
        clsStar& star = AddStar(0, 1, 5);
        CollisionDetection::CollectStars();
        EXPECT_EQ(!star.visible(), std::abs(x) < 0.8F && y > 0.2 && y < 1.8 && z > 5 && z < 6)
            << x << ' ' << y << ' ' << z;
        star.GetStar();
      }
    }
  }
}

TEST_F(DriveTest, APlatformCarriesItWithoutDriftAtAnySpeedAndDistance) {
  AddBlock({100, 0, 100}, {1, 1, 1});
  AddPlatform({-12, 0, 0}, {24, 1, 20}, clsMovingPlatform::Right);
  const auto offset = [] { return Player.Posx() - Document.Platforms[0].Xpos(); };
  for (uint8_t speed = 1; speed <= 20; ++speed) {
    for (const uint8_t distance : {uint8_t{1}, uint8_t{3}, uint8_t{10}}) {
      Document.Platforms[0].Mspeed(speed);
      Document.Platforms[0].Mdist(distance);
      Run(kLand);
      const float landed = offset();
      for (int i = 0; i < 350; ++i) {
        ASSERT_TRUE(Continue("1 -").back().onGround);
        ASSERT_NEAR(offset(), landed, 1e-3) << int{speed} << ' ' << int{distance} << ' ' << i;
      }
      Continue("5 right");
      EXPECT_NEAR(offset(), landed + 0.6, 1e-3);
    }
  }
}

TEST_F(DriveTest, APlatformPushesAndTwoOfThemSqueeze) {
  AddFloor();
  AddPlatform({3, 1, 0}, {2, 3, 20}, clsMovingPlatform::Left);
  const Row pushed = Last("100 -");
  EXPECT_NEAR(pushed.x, 3 - 100 * 0.05 - 0.4 - 0.001, 1e-3);
  EXPECT_FALSE(pushed.exploding);

  AddPlatform({-5, 1, 0}, {2, 3, 20}, clsMovingPlatform::Right);
  const Row squeezed = FirstWith(Run("60 -"), "explode");
  // The faces, 6 units apart, close by 0.1 a frame; the car is 0.8 wide.
  EXPECT_NEAR(squeezed.frame, 52, 2);
  EXPECT_NEAR(squeezed.x, 0, 0.1);
  EXPECT_NEAR(Document.Platforms[0].Xpos(), 0.4, 0.15) << "they stop with the explosion";
}

}  // namespace
