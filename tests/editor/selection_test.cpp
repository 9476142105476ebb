#include "editor/selection.h"

#include "tests/editor/editor_fixture.h"

namespace {

class SelectionTest : public EditorTest {
 protected:
  clsblock& LastBlock() { return Document.Blocks[static_cast<size_t>(Document.BlockCount)]; }
  void Select(int32_t type, int32_t index) {
    selection::DeselectCurrent();
    Document.ObjectSelected = true;
    Document.SelectedType = type;
    Document.SelectedIndex = index;
    selection::ShowProperties();
  }
  /// Five platforms at x = 0 .. 4, running.
  void AddPlatforms() {
    for (int i = 0; i < 5; ++i) {
      c.mnu_MovingPlatform.UserClicks();
      selection::MoveSelection(i, 0, 0);
    }
    c.cmd_pause.UserClicks();
    for (int i = 0; i < 10; ++i) form.MovePlatforms();
  }
};

TEST_F(SelectionTest, BlockMovesInsideThePanelsRanges) {
  c.mnu_block.UserClicks();
  selection::MoveSelection(51, 3, 4);
  EXPECT_EQ(LastBlock().Xpos(), 0);
  EXPECT_EQ(LastBlock().Ypos(), 3);
  EXPECT_EQ(LastBlock().Zpos(), 4);
  EXPECT_EQ(c.txt_Y.Text(), "3");
  selection::MoveSelection(-50, -4, 2496);
  EXPECT_EQ(LastBlock().Xpos(), -50);
  EXPECT_EQ(LastBlock().Ypos(), 3);
  EXPECT_EQ(LastBlock().Zpos(), 2500);
  EXPECT_EQ(LastBlock().GetCollisionPlane(1).d, -50.0F) << "the planes follow";
}

TEST_F(SelectionTest, RampsAndStarsMoveWithoutRange) {
  c.mnu_Ramp.UserClicks();
  selection::MoveSelection(60, -2, 3000);
  EXPECT_EQ(Document.Ramps[0].Xpos(), 60);
  EXPECT_EQ(Document.Ramps[0].Ypos(), 1) << "its own setter refuses";
  EXPECT_EQ(c.txt_X.Text(), "60") << "the true value";
  EXPECT_EQ(c.UpDownX.Value(), 50) << "the nearest in range";
  c.mnu_Star.UserClicks();
  selection::MoveSelection(-70, 1, 1);
  EXPECT_EQ(Document.Stars[0].Xpos(), -70);
}

TEST_F(SelectionTest, RunningPlatformsRefuse) {
  AddPlatforms();
  Select(TypePlatform, 0);
  selection::MoveSelection(1, 0, 0);
  selection::ResizeSelection(5, 5, 5);
  EXPECT_EQ(boxes.messages,
            (std::vector<std::string>{selection::kPauseFirstText, selection::kPauseFirstText}));
  EXPECT_EQ(Document.Platforms[0].GetInitalXpos(), 0);
  EXPECT_EQ(Document.Platforms[0].scaleX(), 2);
  EXPECT_FALSE(c.cmbo_Direction.Enabled());
  c.cmd_pause.UserClicks();
  selection::MoveSelection(1, 2, 3);
  selection::ResizeSelection(5, 3, 0);
  EXPECT_TRUE(c.cmbo_Direction.Enabled());
  EXPECT_EQ(Document.Platforms[0].GetInitalXpos(), 1);
  EXPECT_EQ(Document.Platforms[0].GetInitalYpos(), 2);
  EXPECT_EQ(Document.Platforms[0].GetInitalZpos(), 3);
  EXPECT_EQ(Document.Platforms[0].scaleX(), 5);
  EXPECT_EQ(Document.Platforms[0].scaleZ(), 2);
}

TEST_F(SelectionTest, ResizingFollowsTheKind) {
  c.mnu_ice.UserClicks();
  selection::ResizeSelection(0, 4, 7);
  EXPECT_EQ(LastBlock().scaleX(), 2);
  EXPECT_EQ(LastBlock().scaleY(), 4);
  EXPECT_EQ(LastBlock().scaleZ(), 7);
  EXPECT_EQ(LastBlock().GeometryVertices()[0].colour, 0x888888U) << "marked again";
  for (MenuItem* item : {&c.mnu_BouncePad, &c.mnu_Endlevel, &c.mnu_turbo}) {
    item->UserClicks();
    selection::ResizeSelection(9, 9, 9);
    EXPECT_EQ(LastBlock().scaleX(), 2);
    EXPECT_EQ(boxes.messages.back(), selection::kNotResizableText);
  }
  EXPECT_EQ(boxes.messages.size(), 3U);
  c.mnu_Ramp.UserClicks();
  selection::ResizeSelection(3, 0, 0);
  EXPECT_EQ(Document.Ramps[0].scaleX(), 3);
  EXPECT_EQ(Document.Ramps[0].scaleZ(), 2);
}

TEST_F(SelectionTest, PaintingFollowsTheKindAndRemovesTheMark) {
  selection::RetextureSelection("a.bmp");
  EXPECT_EQ(LastBlock().GetTextureC(), "a.bmp");
  EXPECT_EQ(LastBlock().GeometryVertices()[18].colour, 0xFFFFFFU);
  EXPECT_TRUE(Document.ObjectSelected);
  c.mnu_turbo.UserClicks();
  selection::RetextureSelection("a.bmp");
  EXPECT_EQ(LastBlock().GetTextureA() + LastBlock().GetTextureD(), "a.bmpAnimationTest_0.bmp");
  c.mnu_ice.UserClicks();
  selection::RetextureSelection("a.bmp");
  EXPECT_EQ(LastBlock().GetTextureA(), "Ice2.bmp");
  EXPECT_EQ(boxes.messages, std::vector<std::string>{selection::kSpecialBlockText});
  c.mnu_Ramp.UserClicks();
  selection::RetextureSelection("B.bmp");
  EXPECT_EQ(Document.Ramps[0].GetTextureA() + Document.Ramps[0].GetTextureB(), "B.bmpB.bmp");
  EXPECT_EQ(Document.Ramps[0].GeometryVertices()[0].colour, 0xFFFFFFU);
}

TEST_F(SelectionTest, CopiesOfEveryKind) {
  c.mnu_building.UserClicks();
  selection::MoveSelection(5, 5, 5);
  LastBlock().ScaleTextureSide(2);
  LastBlock().scaleX(2.5F);
  LastBlock().scaleZ(3.5F);
  c.mnu_copy.UserClicks();
  c.VScroll1.Value(960);
  c.mnu_Paste.UserClicks();
  EXPECT_EQ(Document.BlockCount, 2);
  EXPECT_EQ(LastBlock().Xpos(), 0);
  EXPECT_EQ(LastBlock().Ypos(), 0);
  EXPECT_EQ(LastBlock().Zpos(), 40);
  EXPECT_EQ(LastBlock().scaleY(), 4);
  EXPECT_EQ(LastBlock().scaleX(), 2) << "halves to even";
  EXPECT_EQ(LastBlock().scaleZ(), 4);
  EXPECT_EQ(LastBlock().ScaleTextureTop(), 1);
  EXPECT_EQ(LastBlock().ScaleTextureSide(), 2);
  EXPECT_EQ(LastBlock().GeometryVertices()[1].tu, 2) << "and is seen";
  EXPECT_EQ(LastBlock().GeometryVertices()[19].tu, 1);
  EXPECT_EQ(LastBlock().changeactioncode(), 10);
  EXPECT_EQ(LastBlock().GetTextureB(), "building Side.bmp");
  EXPECT_TRUE(Document.PlatformsPaused) << "the menu's paste pauses";

  c.mnu_Ramp.UserClicks();
  c.cmd_ramp.UserClicks();
  selection::ResizeSelection(4, 3, 0);
  c.mnu_cut.UserClicks();
  EXPECT_EQ(Document.RampCount, -1);
  EXPECT_FALSE(Document.ObjectSelected);
  c.mnu_Paste.UserClicks();
  EXPECT_EQ(Document.Ramps[0].rotateVal(), 1);
  EXPECT_EQ(Document.Ramps[0].scaleX(), 4);
  EXPECT_EQ(Document.Ramps[0].scaleY(), 3);
  EXPECT_EQ(Document.Ramps[0].Ypos(), 1);
  EXPECT_EQ(c.txt_width.Text(), "4");

  c.mnu_MovingPlatform.UserClicks();
  Document.Platforms[0].Mdir(2);
  Document.Platforms[0].Mspeed(9);
  Document.Platforms[0].MloopBack(false);
  c.mnu_copy.UserClicks();
  c.mnu_Paste.UserClicks();
  EXPECT_EQ(Document.Platforms[1].Mdir(), 2);
  EXPECT_EQ(Document.Platforms[1].Mspeed(), 9);
  EXPECT_FALSE(Document.Platforms[1].MloopBack());
  EXPECT_EQ(Document.Platforms[1].GetInitalZpos(), 40) << "for good";

  c.mnu_Star.UserClicks();
  c.mnu_cut.UserClicks();
  EXPECT_EQ(Document.StarCount, -1);
  c.mnu_Paste.UserClicks();
  EXPECT_EQ(Document.Stars[0].Zpos(), 41) << "where Insert would put it";
  c.mnu_New.UserClicks();
  c.mnu_Paste.UserClicks();
  EXPECT_EQ(Document.StarCount, 0) << "the clipboard outlives the track";
}

TEST_F(SelectionTest, PasteNeedsACopyAndItsPictures) {
  c.mnu_Paste.UserClicks();
  EXPECT_EQ(Document.BlockCount, 0);
  c.mnu_ice.UserClicks();
  c.mnu_copy.UserClicks();
  std::filesystem::remove(folder / "textures/Ice2.bmp");
  c.mnu_Paste.UserClicks();
  EXPECT_EQ(Document.BlockCount, 1);
  EXPECT_EQ(boxes.messages.size(), 1U);
}

TEST_F(SelectionTest, DeletingInsideTheRowSendsPlatformsToTheirStarts) {
  AddPlatforms();
  Select(TypePlatform, 2);
  selection::DeleteSelection();
  EXPECT_EQ(Document.PlatformCount, 3);
  EXPECT_FALSE(Document.ObjectSelected);
  const std::array<float, 4> starts = {0, 1, 3, 4};
  for (size_t i = 0; i < 4; ++i) EXPECT_EQ(Document.Platforms[i].Xpos(), starts[i]);
  for (int i = 0; i < 110; ++i) form.MovePlatforms();
  Select(TypePlatform, 3);
  selection::DeleteSelection();
  EXPECT_EQ(Document.Platforms[0].Mdir(), clsMovingPlatform::Left);
  EXPECT_EQ(Document.Platforms[0].Xpos(), 4.55F) << "the last one leaves the others";
  Select(TypePlatform, 2);
  Document.PlatformCount = 3;
  Document.Platforms.push_back(Document.Platforms[0]);
  selection::DeleteSelection();
  EXPECT_EQ(Document.Platforms[0].Mdir(), clsMovingPlatform::Right) << "the direction too";
}

TEST_F(SelectionTest, LastOfAKindAndLastBlock) {
  c.mnu_Star.UserClicks();
  selection::DeleteSelection();
  EXPECT_EQ(Document.StarCount, -1);
  Select(TypeBlock, 0);
  selection::DeleteSelection();
  EXPECT_EQ(Document.BlockCount, -1);
  PassAfter(41);
  boxes.answers = {folder / "levels/none.lvl"};
  c.mnu_save.UserClicks();
  EXPECT_EQ(boxes.messages, std::vector<std::string>{FileIO::kNoBlocksText});
  EXPECT_FALSE(std::filesystem::exists(folder / "levels/none.lvl"));
  EXPECT_EQ(Document.CurrentFileName, "");
  c.mnu_block.UserClicks();
  EXPECT_EQ(Document.BlockCount, 0);
  EXPECT_EQ(Bytes().size(), 213U);
}

}  // namespace
