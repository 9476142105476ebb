#include <random>

#include "play/CollisionDetection.h"
#include "play/clsPlayer.h"
#include "render/device/clsParticles.h"
#include "tests/editor/editor_fixture.h"

namespace {

class PlayModeTest : public EditorTest {
 protected:
  void Frames(int count) {
    for (int i = 0; i < count; ++i) PassAfter(41);
  }
  void Hold(uint8_t key, bool held = true) { world->keys[key] = held ? kKeyHeld : 0; }
  /// Commands of the last frame that draw what no edit frame draws: the car has one subset here.
  size_t Draws() const { return world->screen.commands.size(); }
};

TEST_F(PlayModeTest, CarFallsOntoTheFirstBlockAndDrives) {
  PassAfter(41);
  const size_t before = Draws();
  c.mnu_playmode.UserClicks();
  EXPECT_EQ(Player.PosY(), 3.5F);
  Frames(1);
  EXPECT_EQ(Draws(), before + 3) << "the car; of its shadow only what has the block below it";
  Frames(30);
  EXPECT_NEAR(Player.PosY(), 1.001, 1e-4);
  EXPECT_TRUE(CollisionDetection::OnGround);
  Hold(scancode::kUp);
  Frames(2);
  EXPECT_EQ(Player.ForwardVelocity(), 0.04F);
  EXPECT_NEAR(DirectX::CameraPosition.z, -18 + (Player.Posz() - 1), 1e-5) << "the camera follows";
  Hold(scancode::kUp, false);
  Hold(scancode::kSpace);
  Frames(1);
  EXPECT_NEAR(Player.verticalvelocity(), 0.325, 1e-6);
  c.mnu_editmode.UserClicks();
  Frames(1);
  EXPECT_EQ(Draws(), before);
  EXPECT_EQ(DirectX::CameraPosition.z, -18);
}

TEST_F(PlayModeTest, DeathStartsOverWithTheTrackOfTheBeginning) {
  AddPlatform();
  const std::string track = Bytes();
  c.mnu_playmode.UserClicks();
  // The track must come back although its file is gone.
  std::filesystem::remove(folder / "tmp.trk");
  Hold(scancode::kUp);
  int frames = 0;
  while (!Player.DeathStatus() && frames++ < 500) Frames(1);
  ASSERT_LT(Player.PosY(), -40);
  EXPECT_NE(Document.Platforms[0].Xpos(), 0);
  Hold(scancode::kUp, false);
  Frames(1);
  EXPECT_EQ(Document.EditorMode, PlayMode);
  EXPECT_NEAR(Player.PosY(), 3.475, 1e-5) << "the first step of the next run";
  EXPECT_EQ(Document.Platforms[0].Xpos(), 0.05F);
  EXPECT_EQ(DirectX::CameraPosition.z, -18);
  c.mnu_editmode.UserClicks();
  EXPECT_EQ(Bytes(), track);
  EXPECT_TRUE(boxes.messages.empty());
}

/// A picture that cannot be read for a moment must not cost the track.
TEST_F(PlayModeTest, AFailedRestoreGivesTheEditedPiecesBack) {
  AddPlatform();
  Document.Blocks[0].Texture("a.bmp", "D", Document.TextureDir);
  c.mnu_low.UserClicks();
  c.mnu_background2.UserClicks();
  const std::string track = Bytes();
  const std::string picture = folder / "textures/a.bmp";
  const auto damage = [&] { WriteBytes(picture, "damaged"); };
  const auto mend = [&] { WriteBytes(picture, ""); };
  const auto expectEditedTrack = [&](size_t messages) {
    EXPECT_EQ(Document.EditorMode, EditMode);
    EXPECT_EQ(Bytes(), track);
    EXPECT_EQ(boxes.messages.size(), messages);
    EXPECT_TRUE(c.mnu_editmode.Checked() && c.mnu_low.Checked() && c.mnu_background2.Checked());
    EXPECT_EQ(Document.Background.Name(), folder / "backgrounds/bk001.jpg");
    PassAfter(41);
  };
  const auto play = [&] {
    c.mnu_playmode.UserClicks();
    Document.Blocks[0].Ypos(30);
    c.mnu_normal.UserClicks();
    c.mnu_background3.UserClicks();
    Document.Platforms.clear();
    Document.PlatformCount = -1;
  };
  damage();
  c.mnu_playmode.UserClicks();
  EXPECT_TRUE(Document.ObjectSelected) << "play was not entered";
  EXPECT_EQ(Document.Blocks[0].GeometryVertices()[0].colour, 0x888888U);
  expectEditedTrack(1);
  EXPECT_NE(boxes.messages[0].find("a.bmp"), std::string::npos);

  mend();
  play();
  damage();
  c.mnu_editmode.UserClicks();
  EXPECT_FALSE(Document.ObjectSelected);
  EXPECT_EQ(Document.Blocks[0].GeometryVertices()[0].colour, 0x9A9A9AU) << "without its old mark";
  expectEditedTrack(2);

  mend();
  play();
  damage();
  Player.DeathStatus(true);
  Frames(3);
  expectEditedTrack(3);

  // A missing picture is read as the default one; the track keeps its name.
  mend();
  play();
  std::filesystem::remove(picture);
  c.mnu_editmode.UserClicks();
  expectEditedTrack(3);
}

TEST_F(PlayModeTest, NothingOfPlayReachesTheTrack) {
  for (MenuItem* item : c.mnu_insert.items) item->UserClicks();
  c.mnu_copy.UserClicks();
  Document.CurrentFileName = "kept.lvl";
  const std::string track = Bytes();
  const size_t keptAlive = Document.Blocks.size();
  std::mt19937 random(7);
  for (int round = 0; round < 50; ++round) {
    c.mnu_playmode.UserClicks();
    for (int frame = 0; frame < 20; ++frame) {
      for (const uint8_t key :
           {scancode::kUp, scancode::kDown, scancode::kLeft, scancode::kRight, scancode::kSpace}) {
        Hold(key, random() % 2 == 0);
      }
      Frames(1);
    }
    c.mnu_editmode.UserClicks();
    ASSERT_EQ(Bytes(), track) << round;
  }
  EXPECT_EQ(Document.CurrentFileName, "kept.lvl");
  EXPECT_EQ(Document.Clipboard.ClipType, TypeStar);
  EXPECT_EQ(Document.Blocks.size(), keptAlive);
  EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(PlayModeTest, StarsBurstAndStayCollectedUntilTheRunEnds) {
  c.mnu_Star.UserClicks();
  c.mnu_playmode.UserClicks();
  Frames(30);
  EXPECT_TRUE(Document.Stars[0].visible()) << "the car stands at its front edge";
  Hold(scancode::kUp);
  Frames(3);
  EXPECT_FALSE(Document.Stars[0].visible());
  EXPECT_EQ(Particles.ParticleCount(), 30);
  c.mnu_editmode.UserClicks();
  EXPECT_TRUE(Document.Stars[0].visible());
}

}  // namespace
