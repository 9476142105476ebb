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
    EXPECT_NEAR(rows[9].vv, -gravity * 10, kNear);
    EXPECT_NEAR(rows[9].y, 3.5 - gravity * 55, kNear);
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
}

TEST_F(DriveTest, SpeedsUpToTheCapAndBrakes) {
  AddFloor();
  const auto rows = Run("40 up\n5 -\n20 down");
  EXPECT_NEAR(rows[9].z, 1 + 0.02 * 55, kNear);
  EXPECT_EQ(rows[29].fv, 0.6F);
  EXPECT_EQ(rows[44].fv, 0.6F) << "no friction";
  EXPECT_EQ(rows.back().fv, 0);
  EXPECT_NEAR(DirectX::CameraPosition.z, -18 + (rows.back().z - 1), 1e-4);
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
  EXPECT_FALSE(rows[46 + 42].dead);
  EXPECT_TRUE(rows[46 + 43].dead);
  EXPECT_FALSE(rows[46 + 44].exploding);
  EXPECT_EQ(rows[46 + 44].z, 1);
}

TEST_F(DriveTest, BumpsItsHead) {
  AddFloor();
  AddBlock({-2, 3, 0}, {4, 1, 40});
  track_tool::Drive drive;
  Player.PosY(kStanding);
  const auto rows = Continue(drive, "2 -\n6 jump");
  EXPECT_NEAR(rows[5].y, 1.001 + 0.325 + 0.3 + 0.275 + 0.25, kNear);
  EXPECT_NEAR(rows[6].y, 3 - 0.8 - 0.001, kNear);
  EXPECT_EQ(rows[6].vv, 0);
  EXPECT_NEAR(rows[7].vv, -0.025, kNear);
}

TEST_F(DriveTest, PassesTopsUpwardsAndBottomsDownwards) {
  AddBlock({-2, 1, 0}, {4, 2, 20});
  track_tool::Drive drive;
  Player.PosY(2.95F);
  Player.verticalvelocity(0.35F);
  EXPECT_NEAR(Continue(drive, "1 -").back().y, 2.95 + 0.325, kNear);
  Player.PosY(0.25F);
  Player.verticalvelocity(-0.05F);
  EXPECT_NEAR(Continue(drive, "1 -").back().y, 0.25 - 0.075, kNear);
}

TEST_F(DriveTest, SidesStopIt) {
  AddFloor();
  AddBlock({2, 1, 0}, {1, 3, 20});
  AddBlock({-3, 1, 0}, {1, 3, 20});
  EXPECT_NEAR(Last("30 right").x, 1.599, kNear);
  EXPECT_NEAR(Last("30 left").x, -1.599, kNear);
  const auto rows = Run("5 right\n1 -\n2 left+right");
  EXPECT_NEAR(rows[4].x, 0.6, kNear);
  EXPECT_EQ(rows[5].hv, 0);
  EXPECT_EQ(rows[7].hv, 0.12F) << "right is answered after left";
}

TEST_F(DriveTest, SlidesOnIce) {
  AddFloor(clsblock::Ice);
  const auto rows = Run(kLand + "5 right+up\n10 -\n1 left\n3 down\n1 jump\n1 -");
  EXPECT_TRUE(rows[kLanding - 1].onIce);
  EXPECT_EQ(rows[kLanding + 14].hv, 0.12F) << "without steering the slide goes on";
  EXPECT_EQ(rows[kLanding + 15].hv, -0.12F);
  EXPECT_NEAR(rows[kLanding + 18].fv, 0.1 - 3 * 0.01, kNear) << "weak brakes";
  EXPECT_FALSE(rows[kLanding + 19].onIce);
  EXPECT_EQ(rows[kLanding + 20].hv, 0) << "in the air steering is what it always was";
}

TEST_F(DriveTest, PadsThrowAndDriveIt) {
  AddFloor(clsblock::JumpPad);
  const Row thrown = Last(kLand);
  EXPECT_EQ(thrown.vv, 0.45F);
  EXPECT_FALSE(thrown.onGround);
  EXPECT_NEAR(thrown.y, 3.5 - 0.025 * 91 + 0.45, kNear);
  EXPECT_NEAR(Document.Blocks[0].Ypos(), 0, kNear) << "s = -1: the bounce begins";
  Document.Blocks[0].changeactioncode(clsblock::TurboPad);
  const auto rows = Run(kLand + "5 up\n1 down");
  EXPECT_EQ(rows[kLanding - 1].fv, 1);
  EXPECT_EQ(rows[kLanding + 5].fv, 1) << "braking on the pad is answered by the pad";
}

TEST_F(DriveTest, KillWinsOverPlainAtTheSameHeight) {
  AddFloor();
  AddFloor(clsblock::InstantKill);
  EXPECT_EQ(FirstWith(Run("20 -"), "explode").frame, kLanding);
}

TEST_F(DriveTest, RidesAFallingBlock) {
  AddFloor(clsblock::FallingBlock);
  const auto rows = Run("40 -");
  for (int n = kLanding; n <= 40; ++n) {
    const int falls = n - kLanding;
    const Row& row = rows[static_cast<size_t>(n - 1)];
    EXPECT_NEAR(row.y, 1 - 0.025 * falls * (falls + 1) / 2, 1e-4) << "the top before its next fall";
  }
}

TEST_F(DriveTest, WinningEndsTheUpdateAtOnce) {
  AddFloor(clsblock::WinLevel);
  AddStar(0, 1, 0);
  track_tool::Drive drive;
  Continue(drive, "13 -");
  Player.Posz(0.5F);
  const Row win = Continue(drive, "1 -").back();
  EXPECT_STREQ(win.event, "win");
  EXPECT_NEAR(win.y, kStanding, kNear);
  EXPECT_EQ(win.stars, 0);
}

TEST_F(DriveTest, HalfOverAnEdgeStillStands) {
  AddBlock({-3, 0, 0}, {2.61F, 1, 20});
  EXPECT_TRUE(Last(kLand).onGround) << "the left corners, at -0.4, are above it";
  Document.Blocks[0].scaleX(2.59F);
  EXPECT_FALSE(Last(kLand).onGround);
}

TEST_F(DriveTest, CollectsStarsUntilTheTrackIsRestored) {
  AddFloor();
  for (const int z : {8, 12, 16}) AddStar(0, 1, z);
  AddStar(1, 1, 20);
  track_tool::Drive drive;
  EXPECT_EQ(Continue(drive, "20 up\n60 -").back().stars, 3) << "one of them one unit aside";
  EXPECT_EQ(Particles.ParticleCount(), 90);
  Player.DeathStatus(true);
  EXPECT_EQ(Continue(drive, "1 -").back().stars, 0);
  EXPECT_EQ(Particles.ParticleCount(), 0);
}

TEST_F(DriveTest, StarsAtTheEdgeOfReachStay) {
  const auto collects = [](float x, float y, float z) {
    Document.StarCount = -1;
    Document.Stars.clear();
    const clsStar& star = AddStar(0, 1, 5);
    Player.Posx(x);
    Player.PosY(y);
    Player.Posz(z);
    CollisionDetection::CollectStars();
    return !star.visible();
  };
  EXPECT_TRUE(collects(0.79F, 1, 5.5F) && !collects(0.8F, 1, 5.5F));
  EXPECT_TRUE(collects(-0.79F, 1, 5.5F) && !collects(-0.8F, 1, 5.5F));
  EXPECT_TRUE(collects(0, 1.79F, 5.5F) && !collects(0, 1.81F, 5.5F));
  EXPECT_TRUE(collects(0, 0.21F, 5.5F) && !collects(0, 0.19F, 5.5F));
  EXPECT_TRUE(collects(0, 1, 5.99F) && !collects(0, 1, 6) && !collects(0, 1, 5));
}

TEST_F(DriveTest, RidesAPlatformThroughItsTurns) {
  AddBlock({100, 0, 100}, {1, 1, 1});
  AddPlatform({-2, 0, 0}, {4, 1, 20}, clsMovingPlatform::Right);
  track_tool::Drive drive;
  Continue(drive, kLand);
  const auto offset = [] { return Player.Posx() - Document.Platforms[0].Xpos(); };
  const float landed = offset();
  for (int i = 0; i < 350; ++i) {
    ASSERT_TRUE(Continue(drive, "1 -").back().onGround);
    ASSERT_NEAR(offset(), landed, 1e-3) << i;
  }
  Continue(drive, "5 right");
  EXPECT_NEAR(offset(), landed + 0.6, 1e-3);
}

TEST_F(DriveTest, AStandingCarDoesNotDriftAtAnySpeedOrDistance) {
  AddBlock({100, 0, 100}, {1, 1, 1});
  AddPlatform({-12, 0, 0}, {24, 1, 20}, clsMovingPlatform::Right);
  for (uint8_t speed = 1; speed <= 20; ++speed) {
    for (const uint8_t distance : {uint8_t{1}, uint8_t{3}, uint8_t{10}}) {
      Document.Platforms[0].Mspeed(speed);
      Document.Platforms[0].Mdist(distance);
      track_tool::Drive drive;
      const clsMovingPlatform& platform = Document.Platforms[0];
      const auto offsetAtTheLeftEnd = [&] {
        do {
          Continue(drive, "1 -");
        } while (!platform.GetChangeDir() || platform.Mdir() != clsMovingPlatform::Right);
        return Player.Posx() - platform.Xpos();
      };
      Continue(drive, kLand);
      const float first = offsetAtTheLeftEnd();
      offsetAtTheLeftEnd();
      EXPECT_NEAR(offsetAtTheLeftEnd(), first, 1e-3) << int{speed} << ' ' << int{distance};
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
