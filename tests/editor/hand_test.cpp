// The mouse over the picture: dragging, the wheel, and the copy behind a piece.
#include "editor/history/history.h"
#include "level/maths.h"
#include "tests/editor/editor_fixture.h"

namespace {

class HandTest : public EditorTest {
 protected:
  /// Where the camera shows the point, in the viewport's pixels.
  static std::pair<float, float> PixelOf(const Vector3& point) {
    Vector3 seen;
    maths::TransformCoord(seen, point, DirectX::MatView);
    maths::TransformCoord(seen, Vector3(seen), DirectX::MatProj);
    return {(seen.x + 1) * 300, (1 - seen.y) * 228};
  }
  void PressAt(const Vector3& point) {
    const auto [x, y] = PixelOf(point);
    c.viewport.UserPresses(1, 0, x, y);
  }
  void DragTo(const Vector3& point, int shift = 0) {
    const auto [x, y] = PixelOf(point);
    c.viewport.UserDrags(shift, x, y);
  }
};

TEST_F(HandTest, ADragIsOneStepOverTheGroundOrUpright) {
  PressAt({1, 1, 1});
  const auto [x, y] = PixelOf({1, 1, 1});
  c.viewport.UserDrags(0, x + 4, y - 4);
  EXPECT_EQ(SelectedPlace() + Words("", history::steps.StepCount()), "0 0 0 0") << "it slipped";
  for (const float way : {1.0F, 3.0F, 5.0F, 7.0F}) DragTo({1 + way, 1, 1 + way * 3 / 7});
  EXPECT_EQ(c.viewport.Pointer(), PointerShape::Drag);
  c.frmMain.UserReleasesKey(16, 0);  // another key does not end it
  DragTo({8.3F, 1, 4.4F});
  c.viewport.UserReleases();
  EXPECT_EQ(SelectedPlace() + Words("", history::steps.StepCount()), "7 0 3 1");
  EXPECT_EQ(c.viewport.Pointer(), PointerShape::Arrow);
  DragTo({1, 1, 1});
  EXPECT_EQ(SelectedPlace(), "7 0 3") << "let go";
  PressAt({8, 1, 4});
  DragTo({8, 3, 4}, 1);
  EXPECT_EQ(SelectedPlace(), "7 2 3");
  DragTo({8, 3, 4});  // Shift is let go: on from here
  DragTo({6, 3, 4});
  EXPECT_EQ(SelectedPlace(), "5 2 3");
  c.mnu_undo.UserClicks();
  EXPECT_EQ(SelectedPlace() + Words("", history::steps.StepCount()), "7 0 3 2");
}

TEST_F(HandTest, EscapePutsThePieceBack) {
  const std::string track = Bytes();
  PressAt({1, 1, 1});
  DragTo({5, 1, 9});
  c.frmMain.UserPressesKey(27, 0);
  DragTo({3, 1, 3});
  EXPECT_EQ(Bytes(), track);
  EXPECT_EQ(Words(history::steps.StepCount(), c.mnu_redo.Enabled(), Marked()), "0 0 0 0;");
}

TEST_F(HandTest, RangesAndRunningPlatformsHold) {
  PressAt({1, 1, 1});
  DragTo({9, 1, -12});
  EXPECT_EQ(SelectedPlace(), "8 0 0") << "depths begin at 0";
  DragTo({300, 1, 40});
  EXPECT_EQ(SelectedPlace(), "50 0 39") << "the panel's limit";
  c.viewport.UserReleases();
  c.mnu_New.UserClicks();
  AddRunningPlatform();
  Document.Blocks[0].Ypos(-0.9F);
  PressAt({1, 0, 1.5F});
  ASSERT_EQ(Document.SelectedType, TypePlatform);
  for (int i = 0; i < 3; ++i) DragTo({5, 0, 5});
  EXPECT_EQ(boxes.messages, Texts{selection::kPauseFirstText});
  c.mnu_playmode.UserClicks();
  PressAt({1, 1, 1});
  DragTo({5, 1, 5});
  EXPECT_NE(SelectedPlace(), "4 0 4") << "not in play";
}

TEST_F(HandTest, TheWheelScrollsFiveUnitsANotch) {
  c.viewport.UserTurnsWheel(3);
  EXPECT_EQ(DirectX::CameraTarget.z, 15);
  for (int i = 0; i < 10; ++i) c.viewport.UserTurnsWheel(-0.1);
  EXPECT_EQ(DirectX::CameraTarget.z, 10);
  c.viewport.UserTurnsWheel(-900);
  EXPECT_EQ(DirectX::CameraTarget.z, 0);
  c.mnu_playmode.UserClicks();
  c.viewport.UserTurnsWheel(5);
  EXPECT_EQ(DirectX::CameraTarget.z, 0);
}

TEST_F(HandTest, DuplicatesStandDirectlyBehind) {
  c.mnu_copy.UserClicks();
  for (MenuItem* item : c.mnu_insert.items) {
    item->UserClicks();
    selection::MoveSelection(3, 2, 1);
    const std::string looks = SelectedLooks();
    c.mnu_duplicate.UserClicks();
    EXPECT_EQ(SelectedLooks(), looks) << item->name;
    EXPECT_EQ(c.mnu_undo.Caption(), "Undo Duplicate");
  }
  std::string places;
  VisitKinds([&](auto kind) {
    const auto pieces = kind.Pieces();
    places += Words(PlaceOf(pieces[pieces.size() - 2]), "-", PlaceOf(pieces.back()), "; ");
  });
  EXPECT_EQ(places, "2 2 1 - 2 2 5 ; 3 2 1 - 3 2 3 ; 3 3 1 - 3 3 3 ; 3 3 2 - 3 3 3 ; ");
  EXPECT_EQ(Document.Clipboard.ClipScaleX, 2) << "still the first block";
  EXPECT_TRUE(Document.PlatformsPaused);
}

}  // namespace
