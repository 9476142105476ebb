#include "editor/panel.h"

#include "tests/editor/editor_fixture.h"

namespace {

class PanelTest : public EditorTest {
 protected:
  /// A key with its release; returns the code that the window gets back.
  int16_t Press(int key, int shift = 0) {
    const int16_t left = c.frmMain.UserPressesKey(static_cast<int16_t>(key), shift);
    c.frmMain.UserReleasesKey(static_cast<int16_t>(key), shift);
    return left;
  }
  void Hold(int key, int shift = 0) {
    for (int i = 0; i < 5; ++i) c.frmMain.UserPressesKey(static_cast<int16_t>(key), shift);
  }
};

TEST_F(PanelTest, ShowsEachKind) {
  const std::string motion = " 5 5 stretch 0 0 direction ";
  EXPECT_EQ(Panel(), "1 2 2 0 0 0" + motion + "-1 loop 0 Combo1 Combo2");
  c.mnu_Ramp.UserClicks();
  EXPECT_EQ(Panel(), "1 1 2 0 1 0" + motion + "-1 loop 0 cmd_ramp");
  c.mnu_MovingPlatform.UserClicks();
  EXPECT_EQ(Panel(), "0 2 2 0 0 0" + motion + "1 loop 1 Combo1 Combo2 cmbo_Direction Check_Loop");
  c.mnu_Star.UserClicks();
  EXPECT_EQ(Panel(), "1 1 1 0 1 1" + motion + "1 loop 1");
  Select(TypePlatform, 0);
  Document.Platforms[0].Mdir(7);
  Document.Platforms[0].ScaleTextureTop(9);
  selection::ShowProperties();
  EXPECT_EQ(c.cmbo_Direction.ListIndex() + c.Combo1.ListIndex(), -2) << "no such entries";
  Document.ObjectSelected = false;
  selection::ShowProperties();
  EXPECT_TRUE(Panel().starts_with("1 1 1 0 0 0 "));
}

TEST_F(PanelTest, UpDownsMoveAndResize) {
  for (UpDown* upDown : {&c.UpDownX, &c.UpDownY, &c.UpDownZ, &c.UpDownZ, &c.UpDown1, &c.UpDown2})
    upDown->UserClicks(true);
  for (UpDown* upDown : {&c.UpDownX, &c.UpDown3, &c.UpDown3}) upDown->UserClicks(false);
  EXPECT_TRUE(Panel().starts_with("2 3 1 0 1 2 ")) << Panel();
  EXPECT_EQ(SelectedPlace() + " " + SelectedLooks().substr(0, 5), "0 1 2 3 2 1");
  c.mnu_Endlevel.UserClicks();
  c.UpDown2.UserClicks(true);
  EXPECT_EQ(c.txt_width.Text(), "2") << "a refusal leaves the true size";
  EXPECT_EQ(c.UpDown2.Value(), 2);
  Document.ObjectSelected = false;
  c.UpDown2.UserClicks(true);
  EXPECT_EQ(c.txt_width.Text(), "3") << "just a number";
}

TEST_F(PanelTest, PlatformsChangeOnlyWhilePaused) {
  c.mnu_MovingPlatform.UserClicks();
  const auto change = [&] {
    for (UpDown* upDown : {&c.UpDownX, &c.UpDown3, &c.UpDown_speed}) upDown->UserClicks(true);
    c.UpDown_distance.UserClicks(false);
    c.Check_Loop.UserClicks();
  };
  change();
  c.cmbo_Direction.UserSelects(0);
  const auto expectChanged = [&] {
    EXPECT_EQ(SelectedPlace() + " " + SelectedLooks(),
              "1 0 0 2 0 3 stretch 0 0 kind 0 concrete.bmp/concrete.bmp/concrete.bmp/concrete.bmp "
              "direction 2 speed 6 distance 4 loop 0");
  };
  expectChanged();
  c.cmd_pause.UserClicks();
  EXPECT_EQ(Words(c.cmd_pause.Caption(), Document.PlatformsPaused), "Pause Platforms 0");
  change();
  EXPECT_EQ(boxes.messages, Texts(4, selection::kPauseFirstText)) << "the check box says nothing";
  expectChanged();
  EXPECT_EQ(Words(c.txt_speed.Text(), c.UpDown_speed.Value(), c.UpDown_distance.Value(),
                  c.Check_Loop.Checked(), c.cmbo_Direction.Enabled()),
            "6 6 4 0 0");
  // A direction is taken even when the platform is selected no longer, but not from a ghost.
  Document.ObjectSelected = false;
  c.cmbo_Direction.UserSelects(1);
  EXPECT_EQ(Document.Platforms[0].Mdir(), 3);
  Document.PlatformCount = -1;
  change();
  c.cmbo_Direction.UserSelects(0);
  EXPECT_EQ(Document.Platforms[0].Mdir(), 3);
  EXPECT_EQ(boxes.messages.size(), 4U);
}

TEST_F(PanelTest, PauseStartsTheTravelAnewAsPlayDoes) {
  AddRunningPlatform();
  for (int i = 0; i < 130; ++i) form.MovePlatforms();
  c.cmd_pause.UserClicks();
  EXPECT_EQ(Document.Platforms[0].Xpos(), 0);
  EXPECT_TRUE(Document.PlatformsPaused);
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

TEST_F(PanelTest, KeysMoveResizeAndPaint) {
  std::string seen;
  for (const int key : std::initializer_list<int>{39, 38, 'A', 37, 40, 'Z', 103, 105, 97, 99, 97,
                                                  102, 102, 100, 104, 98}) {
    EXPECT_EQ(Press(key), 111);
    seen += SelectedPlace() + " " + SelectedLooks().substr(0, 5) + "; ";
  }
  EXPECT_EQ(seen,
            "1 0 0 2 1 2; 1 0 1 2 1 2; 1 1 1 2 1 2; 0 1 1 2 1 2; 0 1 0 2 1 2; 0 0 0 2 1 2; "
            "0 0 0 2 2 2; 0 0 0 2 3 2; 0 0 0 2 2 2; 0 0 0 2 1 2; 0 0 0 2 1 2; 0 0 0 3 1 2; "
            "0 0 0 4 1 2; 0 0 0 3 1 2; 0 0 0 3 1 3; 0 0 0 3 1 2; ");
  for (int i = 0; i < 60; ++i) Press(103);
  EXPECT_EQ(LastBlock().scaleY(), 40);
  const int last = static_cast<int>(c.File1.Entries().size()) - 1;
  for (const auto& [key, index] : {std::pair{188, last}, {190, 0}, {190, 1}, {188, 0}, {190, 1}}) {
    Press(key);
    EXPECT_EQ(c.File1.ListIndex(), index);
  }
  Press(13);
  EXPECT_EQ(LastBlock().GetTextureA(), c.File1.Entries()[1]);
  for (int times = 0; times < 2; ++times) Press(46);
  EXPECT_EQ(Document.BlockCount, -1);
  EXPECT_EQ(c.txt_width.Text(), "1") << "the panel shows the empty selection";
  Press(123);
  EXPECT_EQ(Document.Gravity, 0.0125F);
  Press(122);
  EXPECT_EQ(Document.Gravity, 0.025F);
}

TEST_F(PanelTest, CtrlKeysInsertCopyCutAndPaste) {
  Press('A');  // one release must come first
  std::string kinds;
  for (const char key : std::string("FKIWJTBMR")) {
    Press(key, 2);
    kinds += Words(Document.SelectedType, +LastBlock().changeactioncode()) + ";";
  }
  EXPECT_EQ(kinds, "0 4;0 6;0 3;0 1;0 2;0 5;0 10;2 10;1 10;");
  for (const auto& [key, ramps] : {std::pair{'C', 0}, {'V', 1}, {'X', 0}, {'V', 1}}) {
    Press(key, 2);
    EXPECT_EQ(Document.RampCount, ramps);
  }
}

TEST_F(PanelTest, HeldCommandsRunOncePerPress) {
  Hold(116);
  EXPECT_EQ(Document.StarCount, -1) << "one release must come first";
  c.frmMain.UserReleasesKey(116, 0);
  Hold(116);
  EXPECT_EQ(Document.StarCount, 0);
  c.frmMain.UserReleasesKey(116, 0);
  Hold('I', 2);
  EXPECT_EQ(Document.BlockCount, 1);
  Hold(32);
  c.frmMain.UserReleasesKey('I', 2);
  Hold(32);
  EXPECT_EQ(Document.BlockCount, 2) << "one block per press";
  c.frmMain.UserReleasesKey(0, 0);
  Press(32);
  EXPECT_EQ(Document.BlockCount, 3) << "the release went to a message box";
  c.frmMain.UserPressesKey(17, 2);
  Hold('I', 2);
  EXPECT_EQ(Document.BlockCount, 3) << "Ctrl itself was the press";
  Press('I', 1);
  EXPECT_EQ(Document.BlockCount, 3) << "not with Shift";
  c.mnu_playmode.UserClicks();
  EXPECT_EQ(Press(32), 111);
  EXPECT_EQ(Document.BlockCount, 3) << "not in play mode";
}

}  // namespace
