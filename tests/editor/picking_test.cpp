#include "editor/picking.h"

#include "tests/editor/editor_fixture.h"

namespace {

/// Looks straight ahead along z from the origin, so that the centre of the viewport meets what
/// stands at (0, 0, z).
class PickingTest : public EditorTest {
 protected:
  void SetUp() override {
    EditorTest::SetUp();
    DirectX::D3DDevice->SetTransform(Transform::View, d3dx::Identity());
    Document.BlockCount = -1;
    Document.Blocks.clear();
    Document.ObjectSelected = false;
  }
  /// A block whose front face is at depth z, around the ray through the centre.
  clsblock& AddBlock(float z, uint8_t code = 0) {
    ++Document.BlockCount;
    clsblock& block = Document.Blocks.emplace_back();
    block.create(-1, -1, z, 2, 2, 2);
    block.changeactioncode(code);
    for (const char* face : {"A", "B", "C", "D"})
      block.Texture("_default.bmp", face, Document.TextureDir);
    return block;
  }
  void Click(int button = 1, int shift = 0, float x = 300, float y = 228) {
    c.viewport.UserPresses(button, shift, x, y);
  }
  void UseTexture(const std::string& name) {
    const auto& entries = c.File1.Entries();
    c.File1.ListIndex(static_cast<int>(std::ranges::find(entries, name) - entries.begin()));
  }
};

TEST_F(PickingTest, NearestFaceWins) {
  AddBlock(30);
  AddBlock(10);
  Click();
  EXPECT_TRUE(Document.ObjectSelected);
  EXPECT_EQ(Document.SelectedIndex, 1);
  EXPECT_EQ(Document.SelectedPlane, 4);
  EXPECT_EQ(Document.Blocks[1].GeometryVertices()[0].colour, 0x888888U);
  Click(1, 0, 0, 0);
  EXPECT_FALSE(Document.ObjectSelected);
  EXPECT_EQ(Document.Blocks[1].GeometryVertices()[0].colour, 0x9A9A9AU);
  EXPECT_EQ(Document.SelectedPlane, 4) << "kept until the next pick";
  EXPECT_FALSE(c.Combo1.Enabled());
}

TEST_F(PickingTest, DistancesAreComparedInWholeUnits) {
  // Distances count from one unit in front of the eye: 4.2 and 4.4, then 5.6 and 5.8.
  AddBlock(5.4F);
  AddBlock(5.2F);
  Click();
  EXPECT_EQ(Document.SelectedIndex, 0) << "4.2 is not less than 4";
  Document.Blocks.clear();
  Document.BlockCount = -1;
  AddBlock(6.6F);
  AddBlock(6.8F);
  Document.ObjectSelected = false;
  Click();
  EXPECT_EQ(Document.SelectedIndex, 1) << "5.8 is less than 6";
}

TEST_F(PickingTest, NothingBeyondAHundredUnits) {
  AddBlock(102);
  Click();
  EXPECT_FALSE(Document.ObjectSelected);
}

TEST_F(PickingTest, RightClickTellsKindsAndPaints) {
  AddBlock(10, clsblock::JumpPad);
  Click(2);
  EXPECT_EQ(boxes.messages, std::vector<std::string>{"2"});
  UseTexture("a.bmp");
  Click(2, 1);
  EXPECT_EQ(Document.Blocks[0].GetTextureA(), "_default.bmp") << "special blocks are not painted";
  EXPECT_TRUE(Document.ObjectSelected);
  Document.Blocks[0].changeactioncode(0);
  Click(2, 1);
  EXPECT_EQ(Document.Blocks[0].GetTextureA(), "a.bmp");
  EXPECT_EQ(Document.Blocks[0].GetTextureB(), "_default.bmp");
}

TEST_F(PickingTest, TopAndBottomFaces) {
  clsblock& block = AddBlock(10);
  block.Ypos(-0.99F);  // the eye looks onto the top of a low block, from y = 0
  block.scaleY(0.5F);
  UseTexture("B.bmp");
  // Half a unit below the ray at depth 11.
  Click(2, 1, 300, 228 + 228 * 0.49F / 11 / 0.41421356F);
  EXPECT_EQ(Document.SelectedPlane, 3);
  EXPECT_EQ(block.GetTextureD(), "B.bmp");
  block.Ypos(0.5F);
  block.UnSelectBlock();
  Click(2, 1, 300, 228 - 228 * 0.5F / 11 / 0.41421356F);
  EXPECT_EQ(Document.SelectedPlane, 5);
  EXPECT_EQ(block.GetTextureA() + block.GetTextureC(), "_default.bmp_default.bmp");
}

TEST_F(PickingTest, PlatformsRampsAndStars) {
  Document.RampCount = 0;
  clsRamp& ramp = Document.Ramps.emplace_back();
  ramp.create(-1, 0, 20);
  ramp.rotate();
  ramp.rotate();
  ramp.scaleX(3);
  ramp.scaleY(4);
  ramp.Texture("_default.bmp", "A", Document.TextureDir);
  Click(1, 0, 300, 220);
  EXPECT_EQ(Document.SelectedType, TypeRamp);
  EXPECT_EQ(Document.SelectedPlane, 4) << "the riser of rotation 2";
  EXPECT_TRUE(c.cmd_ramp.Enabled());
  UseTexture("a.bmp");
  Click(2, 1, 300, 220);
  EXPECT_EQ(ramp.GetTextureA() + ramp.GetTextureB(), "_default.bmpa.bmp");
  Click(2, 0, 300, 220);
  EXPECT_EQ(ramp.GetTextureA(), "a.bmp");
  EXPECT_EQ(ramp.GeometryVertices()[0].colour, 0xFFFFFFU) << "painting removes the mark";

  Document.StarCount = 0;
  clsStar& star = Document.Stars.emplace_back();
  star.load(paths::InInstallFolder("\\models\\orb.x"));
  star.Zpos(10);
  Click(2, 0, 300, 220);
  EXPECT_EQ(Document.SelectedType, TypeStar);
  EXPECT_FALSE(c.cmd_ramp.Enabled());

  AddPlatform();
  clsMovingPlatform& platform = Document.Platforms[0];
  platform.Zpos(5);
  platform.scaleX(2);
  platform.scaleY(2);
  platform.scaleZ(2);
  platform.move();
  Click(2, 0, 330, 200);
  EXPECT_EQ(Document.SelectedType, TypePlatform);
  EXPECT_EQ(platform.GetTextureD(), "a.bmp");
}

TEST_F(PickingTest, FailedPaintingKeepsTheSelection) {
  AddBlock(10);
  UseTexture("a.bmp");
  std::filesystem::remove(folder / "textures/a.bmp");
  Click(2, 1);
  EXPECT_TRUE(Document.ObjectSelected);
  EXPECT_EQ(boxes.messages.size(), 1U);
}

}  // namespace
