#include "editor/insert.h"

#include "editor/selection.h"
#include "tests/editor/editor_fixture.h"

namespace {

using Names = std::array<std::string, 4>;

Names Textures(const BoxObject& box) {
  return {box.GetTextureA(), box.GetTextureB(), box.GetTextureC(), box.GetTextureD()};
}
Names All(const std::string& name) { return {name, name, name, name}; }

class InsertTest : public EditorTest {};

TEST_F(InsertTest, BlocksAtTwoDepths) {
  struct Expected {
    MenuItem MainControls::*item;
    float x, width, height, depth;
    int top, side;
    Names textures;
    uint8_t code;
  };
  using M = MainControls;
  const std::vector<Expected> rows = {
      {&M::mnu_block, 0, 1, 1, 0.9F, 0, 0, All("_default.bmp"), 0},
      {&M::mnu_BouncePad, -1, 2, 1, 2, 1, 0, All("Blue With Yellow Dot.bmp"), 2},
      {&M::mnu_building,
       -1,
       3,
       4,
       4,
       1,
       1,
       {"buildingFront.bmp", "building Side.bmp", "building Side.bmp", "buildingTop.bmp"},
       10},
      {&M::mnu_Endlevel, -1, 2, 1, 2, 1, 0, All("_WIN.bmp"), 1},
      {&M::mnu_fallingBlock, -1, 2, 1, 2, 0, 0, All("red.bmp"), 4},
      {&M::mnu_ice, -1, 2, 1, 2, 0, 0, All("Ice2.bmp"), 3},
      {&M::mnu_instantkill, -1, 2, 1, 2, 0, 0, All("Red Cross on Grey.bmp"), 6},
      {&M::mnu_turbo,
       -1,
       2,
       1,
       3,
       1,
       0,
       {"buildingTop.bmp", "buildingTop.bmp", "buildingTop.bmp", "AnimationTest_0.bmp"},
       5}};
  for (const auto& [scroll, depth] : {std::pair{1000, 0}, std::pair{882, 118}}) {
    c.VScroll1.Value(scroll);
    for (const Expected& row : rows) {
      (c.*row.item).UserClicks();
      const clsblock& block = Document.Blocks[static_cast<size_t>(Document.BlockCount)];
      SCOPED_TRACE((c.*row.item).name);
      EXPECT_EQ(block.Xpos(), row.x);
      EXPECT_EQ(block.Ypos(), 0);
      EXPECT_EQ(block.Zpos(), depth);
      EXPECT_EQ(block.scaleX(), row.width);
      EXPECT_EQ(block.scaleY(), row.height);
      EXPECT_EQ(block.scaleZ(), row.depth);
      EXPECT_EQ(block.ScaleTextureTop(), row.top);
      EXPECT_EQ(block.ScaleTextureSide(), row.side);
      EXPECT_EQ(Textures(block), row.textures);
      EXPECT_EQ(block.changeactioncode(), row.code);
      EXPECT_EQ(block.GeometryVertices()[18].colour, 0x888888U) << "selected";
      EXPECT_EQ(Document.SelectedIndex, Document.BlockCount);
    }
  }
  EXPECT_EQ(Document.BlockCount, 16);
  EXPECT_EQ(Document.Blocks[15].GeometryVertices()[18].colour, 0xFFFFFFU) << "no longer selected";
}

TEST_F(InsertTest, OtherPieces) {
  c.VScroll1.Value(990);
  c.mnu_Ramp.UserClicks();
  const clsRamp& ramp = Document.Ramps[0];
  EXPECT_EQ(Document.RampCount, 0);
  EXPECT_EQ(ramp.Xpos(), 0);
  EXPECT_EQ(ramp.Ypos(), 1);
  EXPECT_EQ(ramp.Zpos(), 10);
  EXPECT_EQ(ramp.scaleZ(), 2);
  EXPECT_EQ(ramp.GetTextureB(), "_default.bmp");
  EXPECT_EQ(ramp.GeometryVertices()[0].colour, 0x888888U);
  EXPECT_TRUE(c.cmd_ramp.Enabled());
  c.mnu_Star.UserClicks();
  EXPECT_EQ(Document.Stars[0].Ypos(), 1);
  EXPECT_EQ(Document.Stars[0].Zpos(), 11);
  EXPECT_EQ(c.txt_Z.Text(), "11");
  EXPECT_EQ(ramp.GeometryVertices()[0].colour, 0xFFFFFFU);
}

TEST_F(InsertTest, PlatformEndsUpPausedAndShown) {
  bool focused = false;
  c.frmMain.takeFocus = [&] { focused = true; };
  c.mnu_MovingPlatform.UserClicks();
  const clsMovingPlatform& platform = Document.Platforms[0];
  EXPECT_EQ(platform.scaleX(), 2);
  EXPECT_EQ(platform.scaleZ(), 2);
  EXPECT_EQ(platform.Mdir(), clsMovingPlatform::Right);
  EXPECT_TRUE(platform.MloopBack());
  EXPECT_EQ(platform.Mdist(), 5);
  EXPECT_EQ(platform.Mspeed(), 5);
  EXPECT_EQ(Textures(platform), All("concrete.bmp"));
  EXPECT_TRUE(Document.PlatformsPaused);
  EXPECT_EQ(c.cmd_pause.Caption(), "UnPause Platforms");
  EXPECT_TRUE(c.cmbo_Direction.Enabled());
  EXPECT_TRUE(focused);
  c.mnu_MovingPlatform.UserClicks();
  EXPECT_TRUE(Document.PlatformsPaused) << "paused platforms stay paused";
}

TEST_F(InsertTest, JumpPadLeavesThePanel) {
  c.mnu_Ramp.UserClicks();
  c.VScroll1.Value(900);
  c.mnu_BouncePad.UserClicks();
  EXPECT_FALSE(c.cmd_ramp.Enabled());
  EXPECT_EQ(c.txt_Z.Text(), "0") << "still the ramp's";
  EXPECT_EQ(Document.SelectedType, TypeBlock);
}

TEST_F(InsertTest, NothingInPlayModeOrWhenFullOrWithoutPictures) {
  c.mnu_playmode.UserClicks();
  for (MenuItem* item : c.mnu_insert.items) item->UserClicks();
  EXPECT_EQ(Document.BlockCount, 0);
  EXPECT_EQ(Document.StarCount, -1);
  c.mnu_editmode.UserClicks();

  std::filesystem::remove(folder / "textures/buildingTop.bmp");
  c.mnu_building.UserClicks();
  EXPECT_EQ(Document.BlockCount, 0);
  ASSERT_EQ(boxes.messages.size(), 1U);

  Document.Stars.resize(32768);
  Document.StarCount = 32767;
  c.mnu_Star.UserClicks();
  EXPECT_EQ(Document.StarCount, 32767);
  EXPECT_EQ(boxes.messages.back(), selection::kTrackFullText);
}

}  // namespace
