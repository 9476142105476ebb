// Driving among stars and moving platforms.
#include "play/collision_response.h"
#include "tests/play/play_test.h"

namespace {

class DriveObjectsTest : public PlayTest {};

TEST_F(DriveObjectsTest, CollectsStarsUntilTheTrackIsRestored) {
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

TEST_F(DriveObjectsTest, StarsAtTheEdgeOfReachStay) {
  struct Case {
    float x, y, z;
    bool collected;
  };
  for (const Case& c :
       {Case{0, 1, 5.5F, true}, Case{0.8F, 1, 5.5F, false}, Case{0.79F, 1, 5.5F, true},
        Case{-0.8F, 1, 5.5F, false}, Case{0, 1.81F, 5.5F, false}, Case{0, 1.79F, 5.5F, true},
        Case{0, 0.19F, 5.5F, false}, Case{0, 1, 5, false}, Case{0, 1, 6, false},
        Case{0, 1, 5.99F, true}}) {
    Document.StarCount = -1;
    Document.Stars.clear();
    clsStar& star = AddStar(0, 1, 5);
    Player.Posx(c.x);
    Player.PosY(c.y);
    Player.Posz(c.z);
    CollisionDetection::CollectStars();
    EXPECT_EQ(star.visible(), !c.collected) << c.x << ' ' << c.y << ' ' << c.z;
  }
}

TEST_F(DriveObjectsTest, RidesAPlatformThroughItsTurns) {
  AddBlock({100, 0, 100}, {1, 1, 1});
  AddPlatform({-2, 0, 0}, {4, 1, 20}, clsMovingPlatform::Right);
  track_tool::Drive drive;
  Continue(drive, kLand);
  const float offset = Player.Posx() - Document.Platforms[0].Xpos();
  for (int i = 0; i < 350; ++i) {
    const Row row = Continue(drive, "1 -").back();
    ASSERT_NEAR(row.x - Document.Platforms[0].Xpos(), offset, 1e-3) << row.frame;
    ASSERT_TRUE(row.onGround);
  }
  const float before = Player.Posx() - Document.Platforms[0].Xpos();
  Continue(drive, "5 right");
  EXPECT_NEAR(Player.Posx() - Document.Platforms[0].Xpos(), before + 0.6, 1e-3);
}

TEST_F(DriveObjectsTest, APlatformPushesAndTwoOfThemSqueeze) {
  AddFloor();
  AddPlatform({3, 1, 0}, {2, 3, 20}, clsMovingPlatform::Left);
  const Row pushed = Last("100 -");
  EXPECT_NEAR(pushed.x, 3 - 100 * 0.05 - 0.4 - 0.001, 1e-3);
  EXPECT_FALSE(pushed.exploding);

  AddPlatform({-5, 1, 0}, {2, 3, 20}, clsMovingPlatform::Right);
  const auto rows = Run("60 -");
  const Row squeezed = FirstWith(rows, "explode");
  // The faces, 6 units apart, close by 0.1 a frame; the car is 0.8 wide.
  EXPECT_NEAR(squeezed.frame, 52, 2);
  EXPECT_NEAR(squeezed.x, 0, 0.1);
  const float stopped = Document.Platforms[0].Xpos();
  EXPECT_NEAR(stopped, 0.4, 0.15) << "they stop with the explosion";
}

}  // namespace
