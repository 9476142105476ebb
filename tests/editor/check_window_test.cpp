// The Check Track window follows the track and leads to what it names.
#include "editor/check_window/check_window.h"

#include "editor/history/history.h"
#include "tests/editor/editor_fixture.h"

namespace {

constexpr const char* kNoWin = "The track has no WIN block";

class CheckWindowTest : public EditorTest {
 protected:
  void SetUp() override {
    EditorTest::SetUp();
    checks_.window.show = [this] { ++shown_; };
    checks_.window.unload = [this] { --shown_; };
  }
  /// A fine road: block 0 and a WIN block.
  void BuildRoad() {
    PutPiece(Document.Blocks[0], {-5, 0, 0}, {10, 1, 60});
    c.mnu_Endlevel.UserClicks();
    PutPiece(LastBlock(), {-5, 0, 60}, {10, 1, 20});
    selection::DeselectCurrent();
    Document.ObjectSelected = false;
    history::steps.Reset();
  }
  /// Long enough for the list to have followed.
  const Texts& Lines() {
    for (int i = 0; i < 10; ++i) PassAfter(41);
    return checks_.lstFindings.Items();
  }
  std::string Selected() const {
    return Document.ObjectSelected ? Words(Document.SelectedType, Document.SelectedIndex) : "none";
  }

  CheckWindow& checks_ = form.checks;
  int shown_ = 0;
};

TEST_F(CheckWindowTest, FollowsEveryChangeWhileItIsOpen) {
  BuildRoad();
  c.mnu_checktrack.UserClicks();
  EXPECT_EQ(Words(shown_, checks_.lblFound.Caption()), "1 Nothing found.");
  Select(TypeBlock, 1);
  selection::DeleteSelection();
  EXPECT_EQ(Lines(), Texts{kNoWin});
  EXPECT_EQ(checks_.lblFound.Caption(), "1 finding");
  c.mnu_undo.UserClicks();
  EXPECT_EQ(Lines(), Texts{});
  c.mnu_New.UserClicks();
  EXPECT_EQ(Lines().size(), 1U) << "the track of one block is not won";
  c.mnu_undo.UserClicks();
  EXPECT_EQ(Lines(), Texts{});

  checks_.cmdClose.UserClicks();
  EXPECT_EQ(shown_, 0);
  Select(TypeBlock, 1);
  selection::DeleteSelection();
  EXPECT_EQ(Lines(), Texts{}) << "nobody sees it";
  c.mnu_checktrack.UserClicks();
  EXPECT_EQ(checks_.lstFindings.Items(), Texts{kNoWin}) << "at once";
}

TEST_F(CheckWindowTest, LooksOnlySomeTimesASecond) {
  BuildRoad();
  c.mnu_checktrack.UserClicks();
  int changes = 0;
  checks_.lblFound.mirror = [&] { ++changes; };
  Select(TypeBlock, 0);
  for (int i = 0; i < 50; ++i) {
    selection::MoveSelection(i % 2 == 0 ? 1 : -1, 0, 0);
    PassAfter(41);
  }
  EXPECT_TRUE(changes >= 6 && changes <= 9) << changes;
}

TEST_F(CheckWindowTest, AClickSelectsThePieceAndBringsTheCameraThere) {
  BuildRoad();
  c.mnu_checktrack.UserClicks();
  for (int i = 0; i < 2; ++i) {
    c.mnu_Star.UserClicks();
    Document.Stars.back().Zpos(300);
  }
  c.mnu_Ramp.UserClicks();
  PutPiece(Document.Ramps.back(), {9, 0, 200}, {2, -1, 2});
  history::steps.Reset();
  const Texts lines = Lines();
  ASSERT_EQ(lines.size(), 2U);
  checks_.lstFindings.UserSelects(0);
  EXPECT_EQ(Words(Selected(), c.txt_Z.Text(), DirectX::CameraTarget.z), "3 1 300 300");
  checks_.lstFindings.UserSelects(1);
  EXPECT_EQ(Words(Selected(), c.txt_height.Text(), DirectX::CameraTarget.z), "1 0 -1 200");
  EXPECT_EQ(Marked(), "1 0;") << "the star's mark is gone, the ramp has one";
  EXPECT_TRUE(c.cmd_ramp.Enabled());

  // What the line names has another number by now.
  Select(TypeStar, 0);
  selection::DeleteSelection();
  Document.ObjectSelected = false;
  checks_.lstFindings.UserSelects(0);
  EXPECT_EQ(Selected(), "none") << "there is no double any more";
  EXPECT_EQ(checks_.lstFindings.Items(), Texts{lines[1]});
  checks_.lstFindings.UserSelects(0);
  EXPECT_EQ(Selected(), "1 0");
  Select(TypeBlock, 0);
  selection::MoveSelection(0, 1, 0);
  EXPECT_EQ(Lines(), Texts{lines[1]});
  EXPECT_EQ(checks_.lstFindings.ListIndex(), 0) << "it stays chosen";
}

TEST_F(CheckWindowTest, RestsInPlayMode) {
  BuildRoad();
  Document.Blocks[1].changeactioncode(clsblock::Ice);
  c.mnu_checktrack.UserClicks();
  c.mnu_playmode.UserClicks();
  EXPECT_FALSE(c.mnu_checktrack.Enabled());
  EXPECT_EQ(Lines(), Texts{kNoWin});
  EXPECT_FALSE(checks_.lstFindings.Enabled());
  const float depth = DirectX::CameraTarget.z;
  checks_.lstFindings.UserSelects(0);
  EXPECT_EQ(DirectX::CameraTarget.z, depth);
  c.mnu_editmode.UserClicks();
  Lines();
  EXPECT_TRUE(c.mnu_checktrack.Enabled() && checks_.lstFindings.Enabled());
}

}  // namespace
