#include "editor/panel.h"

#include "editor/selection.h"
#include "tests/editor/editor_fixture.h"

namespace {

class PanelTest : public EditorTest {
 protected:
  clsblock& Block() { return Document.Blocks[0]; }
  /// A key with its release; returns the code that the window gets back.
  int16_t Press(int16_t key, int shift = 0) {
    const int16_t left = c.frmMain.UserPressesKey(key, shift);
    c.frmMain.UserReleasesKey(key, shift);
    return left;
  }
  static float FrontRepeats(const BoxObject& box) { return box.GeometryVertices()[1].tu; }
};

TEST_F(PanelTest, UpDownsMoveAndResize) {
  c.UpDownX.UserClicks(true);
  c.UpDownY.UserClicks(true);
  c.UpDownZ.UserClicks(true);
  c.UpDownZ.UserClicks(true);
  c.UpDownX.UserClicks(false);
  EXPECT_EQ(Block().Xpos(), 0);
  EXPECT_EQ(Block().Ypos(), 1);
  EXPECT_EQ(Block().Zpos(), 2);
  c.UpDown1.UserClicks(true);
  c.UpDown2.UserClicks(true);
  c.UpDown3.UserClicks(false);
  EXPECT_EQ(Block().scaleY(), 2);
  EXPECT_EQ(Block().scaleX(), 3);
  EXPECT_EQ(Block().scaleZ(), 1);
  EXPECT_EQ(c.txt_width.Text(), "3");
  c.UpDown3.UserClicks(false);
  EXPECT_EQ(Block().scaleZ(), 1) << "the limit";
  c.mnu_Endlevel.UserClicks();
  c.UpDown2.UserClicks(true);
  EXPECT_EQ(c.txt_width.Text(), "2") << "a refusal leaves the true size";
  EXPECT_EQ(c.UpDown2.Value(), 2);
}

TEST_F(PanelTest, PlatformMotionNeedsAPause) {
  c.mnu_MovingPlatform.UserClicks();
  clsMovingPlatform& platform = Document.Platforms[0];
  c.UpDown_speed.UserClicks(true);
  c.UpDown_distance.UserClicks(false);
  c.cmbo_Direction.UserSelects(0);
  c.Check_Loop.UserClicks();
  EXPECT_EQ(platform.Mspeed(), 6);
  EXPECT_EQ(platform.Mdist(), 4);
  EXPECT_EQ(platform.GetinitalMDir(), 2);
  EXPECT_FALSE(platform.MloopBack());
  EXPECT_EQ(c.txt_speed.Text(), "6");
  c.cmd_pause.UserClicks();
  EXPECT_EQ(c.cmd_pause.Caption(), "Pause Platforms");
  EXPECT_FALSE(Document.PlatformsPaused);
  c.UpDown_speed.UserClicks(true);
  c.UpDown_distance.UserClicks(true);
  EXPECT_EQ(boxes.messages.size(), 2U);
  EXPECT_EQ(platform.Mspeed(), 6);
  EXPECT_EQ(c.UpDown_speed.Value(), 6);
  c.Check_Loop.UserClicks();
  EXPECT_FALSE(platform.MloopBack() || c.Check_Loop.Checked());
  EXPECT_EQ(boxes.messages.size(), 2U) << "the box says nothing";
  // A direction is taken even when the platform is selected no longer, but not from a ghost.
  Document.ObjectSelected = false;
  c.cmbo_Direction.UserSelects(1);
  EXPECT_EQ(platform.Mdir(), 3);
  Document.PlatformCount = -1;
  c.cmbo_Direction.UserSelects(0);
  EXPECT_EQ(boxes.messages.size(), 2U);
}

TEST_F(PanelTest, PauseStartsTheTravelAnew) {
  AddPlatform();
  Document.Platforms[0].MloopBack(true);
  for (int i = 0; i < 130; ++i) form.MovePlatforms();
  c.cmd_pause.UserClicks();
  EXPECT_EQ(Document.Platforms[0].Xpos(), 0);
  EXPECT_TRUE(Document.PlatformsPaused);
  // What swings here from now on swings as in play.
  std::vector<float> places[2];
  for (const int run : {0, 1}) {
    run == 0 ? c.cmd_pause.UserClicks() : c.mnu_playmode.UserClicks();
    for (int i = 0; i < 250; ++i) {
      form.MovePlatforms();
      places[run].push_back(Document.Platforms[0].Xpos());
    }
  }
  EXPECT_EQ(places[0], places[1]);
}

TEST_F(PanelTest, NewPlatformsPauseThoseThatRunWhateverTheButtonSays) {
  c.mnu_MovingPlatform.UserClicks();
  c.mnu_copy.UserClicks();
  for (MenuItem* item : {&c.mnu_MovingPlatform, &c.mnu_Paste}) {
    c.mnu_playmode.UserClicks();
    c.mnu_editmode.UserClicks();
    EXPECT_FALSE(Document.PlatformsPaused);
    EXPECT_EQ(c.cmd_pause.Caption(), "UnPause Platforms") << "a read leaves it alone";
    item->UserClicks();
    EXPECT_TRUE(Document.PlatformsPaused);
    EXPECT_EQ(c.cmd_pause.Caption(), "UnPause Platforms");
  }
}

TEST_F(PanelTest, StretchActsOnPlainBlocksAndPlatforms) {
  c.Combo2.UserSelects(3);
  EXPECT_EQ(Block().ScaleTextureSide(), 3);
  EXPECT_EQ(FrontRepeats(Block()), 3);
  c.Combo1.UserSelects(2);
  EXPECT_EQ(Block().ScaleTextureTop(), 2);
  Block().changeactioncode(clsblock::Ice);
  c.Combo1.UserSelects(4);
  EXPECT_EQ(Block().ScaleTextureTop(), 2);
  selection::ShowProperties();
  EXPECT_FALSE(c.Combo1.Enabled() || c.Combo2.Enabled());
  EXPECT_EQ(c.Combo1.ListIndex(), 2);
  EXPECT_EQ(c.Combo2.ListIndex(), 3);
  c.mnu_MovingPlatform.UserClicks();
  EXPECT_TRUE(c.Combo1.Enabled() && c.Combo2.Enabled());
  c.Combo2.UserSelects(5);
  EXPECT_EQ(Document.Platforms[0].ScaleTextureSide(), 5);
}

TEST_F(PanelTest, RampButtonAndTextureList) {
  c.mnu_Ramp.UserClicks();
  c.cmd_ramp.UserClicks();
  EXPECT_EQ(Document.Ramps[0].rotateVal(), 1);
  EXPECT_EQ(Document.Ramps[0].GeometryVertices()[0].colour, 0x888888U) << "still marked";
  Document.ObjectSelected = false;
  c.cmd_ramp.UserClicks();
  EXPECT_EQ(Document.Ramps[0].rotateVal(), 2) << "the type is enough";
  EXPECT_EQ(Document.Ramps[0].GeometryVertices()[0].colour, 0xFFFFFFU);
  Document.ObjectSelected = true;
  c.File1.UserDoubleClicks(1);
  EXPECT_EQ(Document.Ramps[0].GetTextureA(), c.File1.Entries()[1]);
  Document.ObjectSelected = false;
  c.File1.UserDoubleClicks(2);
  Document.ObjectSelected = true;
  Document.EditorMode = PlayMode;
  c.File1.UserDoubleClicks(2);
  EXPECT_EQ(Document.Ramps[0].GetTextureA(), c.File1.Entries()[1]);
}

TEST_F(PanelTest, KeysMoveResizeAndPaint) {
  for (const auto& [key, x, y, z] : std::vector<std::array<int16_t, 4>>{{39, 1, 0, 0},
                                                                        {38, 1, 0, 1},
                                                                        {'A', 1, 1, 1},
                                                                        {37, 0, 1, 1},
                                                                        {40, 0, 1, 0},
                                                                        {'Z', 0, 0, 0}}) {
    EXPECT_EQ(Press(key), 111);
    EXPECT_EQ((std::array<float, 3>{Block().Xpos(), Block().Ypos(), float(Block().Zpos())}),
              (std::array<float, 3>{float(x), float(y), float(z)}));
  }
  for (const int key : {103, 105, 97, 102, 102, 100, 104, 98, 104})
    Press(static_cast<int16_t>(key));
  EXPECT_EQ(Block().scaleY(), 2);
  EXPECT_EQ(Block().scaleX(), 3);
  EXPECT_EQ(Block().scaleZ(), 3);
  for (int i = 0; i < 60; ++i) Press(103);
  EXPECT_EQ(Block().scaleY(), 40);
  const int last = static_cast<int>(c.File1.Entries().size()) - 1;
  Press(188);
  EXPECT_EQ(c.File1.ListIndex(), last);
  Press(190);
  EXPECT_EQ(c.File1.ListIndex(), 0);
  Press(190);
  Press(13);
  EXPECT_EQ(Block().GetTextureA(), c.File1.Entries()[1]);
  Press(46);
  EXPECT_EQ(Document.BlockCount, -1);
  EXPECT_EQ(c.txt_width.Text(), "1") << "the panel shows the empty selection";
  Press(32);
  EXPECT_EQ(Document.BlockCount, 0);
  Press(123);
  EXPECT_EQ(Document.Gravity, 0.0125F);
  Press(122);
  EXPECT_EQ(Document.Gravity, 0.025F);
}

TEST_F(PanelTest, HeldCommandsRunOncePerPress) {
  c.frmMain.UserPressesKey(116, 0);
  EXPECT_EQ(Document.StarCount, -1) << "one release must come first";
  c.frmMain.UserReleasesKey(116, 0);
  for (int i = 0; i < 5; ++i) c.frmMain.UserPressesKey(116, 0);
  EXPECT_EQ(Document.StarCount, 0);
  c.frmMain.UserReleasesKey(116, 0);
  for (int i = 0; i < 5; ++i) c.frmMain.UserPressesKey('I', 2);
  EXPECT_EQ(Document.BlockCount, 1);
  for (int i = 0; i < 5; ++i) c.frmMain.UserPressesKey(32, 0);
  c.frmMain.UserReleasesKey('I', 2);
  c.frmMain.UserPressesKey(32, 0);
  EXPECT_EQ(Document.BlockCount, 2) << "one block per press";
  c.frmMain.UserReleasesKey(0, 0);
  Press(32);
  EXPECT_EQ(Document.BlockCount, 3) << "the release went to a message box";
  selection::DeleteSelection();
  selection::DeleteSelection();
  Document.BlockCount = 1;
  c.frmMain.UserReleasesKey('I', 2);
  c.frmMain.UserPressesKey(17, 2);
  c.frmMain.UserPressesKey('I', 2);
  EXPECT_EQ(Document.BlockCount, 1) << "Ctrl itself was the press";
  Press('I', 1);
  EXPECT_EQ(Document.BlockCount, 1) << "not with Shift";
}

TEST_F(PanelTest, NoEditingKeysInPlayMode) {
  c.mnu_playmode.UserClicks();
  EXPECT_EQ(Press(32), 111);
  EXPECT_EQ(Document.BlockCount, 0);
}

}  // namespace
