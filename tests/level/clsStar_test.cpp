#include "level/clsStar.h"

#include "tests/support/null_editor.h"

namespace {

class StarTest : public DeviceTest {
 protected:
  void SetUp() override {
    DeviceTest::SetUp();
    DirectX::D3DDevice->BeginScene();
    star.load(paths::InInstallFolder("\\models\\orb.x"));
  }
  clsStar star;
};

TEST_F(StarTest, SpinsByFiveAndStartsAgainAtOne) {
  for (int frame = 0; frame < 72; ++frame) star.draw();
  EXPECT_EQ(star.SpinAngle(), 360);
  star.draw();
  EXPECT_EQ(star.SpinAngle(), 1);
  star.draw();
  EXPECT_EQ(star.SpinAngle(), 6);
  star.GetStar();
  star.draw();
  EXPECT_EQ(star.SpinAngle(), 6) << "a collected star stands still";
}

TEST_F(StarTest, CollectedStarIsNotDrawn) {
  star.draw();
  star.GetStar();
  star.draw();
  DirectX::D3DDevice->EndScene();
  DirectX::D3DDevice->Present();
  EXPECT_EQ(world->screen.commands.size(), 1U);
}

TEST_F(StarTest, PlacesPlanesAndWindows) {
  star.Xpos(-3);
  star.Ypos(-1);
  EXPECT_EQ(star.Xpos(), -3);
  EXPECT_EQ(star.Ypos(), 0);
  star.Xpos(2);
  star.Ypos(1);
  star.Zpos(30);
  EXPECT_EQ(star.GetCollisionPlanes(1), (CollisionPlane{-1, 0, 0, 2}));
  EXPECT_EQ(star.GetCollisionPlanes(2), (CollisionPlane{1, 0, 0, -3}));
  EXPECT_EQ(star.GetCollisionPlanes(3), (CollisionPlane{0, 1, 0, -2}));
  EXPECT_EQ(star.GetCollisionPlanes(4), (CollisionPlane{0, 0, -1, 30}));
  EXPECT_EQ(star.GetFaceCorners(3)[2], (Vector3{2.5F, 2, 30.5F}));
  EXPECT_EQ(star.GetFaceCorners(4)[0], (Vector3{1.6F, 1, 29.6F}));
}

TEST_F(StarTest, MissingModelOrSkinFails) {
  std::filesystem::remove(folder / "skins/StarSkin_selected.bmp");
  EXPECT_THROW(star.selectstar(), PlatformError);
  std::filesystem::remove(folder / "models/orb.x");
  clsStar other;
  EXPECT_THROW(other.load(paths::InInstallFolder("\\models\\orb.x")), PlatformError);
}

}  // namespace
