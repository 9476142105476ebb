#include "editor/selection.h"

#include "tests/editor/editor_fixture.h"

namespace {

using SelectionTest = EditorTest;

TEST_F(SelectionTest, EachKindMovesInItsOwnRange) {
  struct Row {
    MenuItem& item;
    std::string first, second;
  };
  // A block axis by axis inside the panel's ranges; others as far as their own setters let them.
  for (const Row& row :
       {Row{c.mnu_block, "0 3 4", "-50 3 2500"}, Row{c.mnu_MovingPlatform, "51 3 4", "1 3 2500"},
        Row{c.mnu_Ramp, "51 4 4", "1 0 2500"}, Row{c.mnu_Star, "51 4 5", "1 0 2501"}}) {
    SCOPED_TRACE(row.item.name);
    row.item.UserClicks();
    selection::MoveSelection(51, 3, 4);
    EXPECT_EQ(SelectedPlace(), row.first);
    selection::MoveSelection(-50, -4, 2496);
    EXPECT_EQ(SelectedPlace(), row.second);
    EXPECT_EQ(Words(c.txt_X.Text(), c.txt_Y.Text(), c.txt_Z.Text()), row.second);
  }
  EXPECT_EQ(c.UpDownZ.Value(), 2500) << "the nearest in range";
  EXPECT_EQ(LastBlock().GetCollisionPlane(1).d, -50.0F) << "the planes follow";
  Document.ObjectSelected = false;
  selection::MoveSelection(1, 1, 1);
  EXPECT_EQ(PlaceOf(Document.Stars[0]), "1 0 2501");
}

TEST_F(SelectionTest, SizesAndPaintFollowTheKind) {
  struct Row {
    MenuItem& item;
    bool sized;
    std::string painted;
  };
  // Faces in the order of their letters; "" is refused.
  for (const Row& row : {Row{c.mnu_block, true, "a.bmp/a.bmp/a.bmp/a.bmp"},
                         {c.mnu_BouncePad, false, ""},
                         {c.mnu_building, true, ""},
                         {c.mnu_Endlevel, false, ""},
                         {c.mnu_fallingBlock, true, ""},
                         {c.mnu_ice, true, ""},
                         {c.mnu_instantkill, true, ""},
                         {c.mnu_turbo, false, "a.bmp/a.bmp/a.bmp/AnimationTest_0.bmp"},
                         {c.mnu_MovingPlatform, true, "a.bmp/a.bmp/a.bmp/a.bmp"},
                         {c.mnu_Ramp, true, "a.bmp/a.bmp"}}) {
    SCOPED_TRACE(row.item.name);
    boxes.messages.clear();
    row.item.UserClicks();
    const std::string before = SelectedLooks(), mark = Marked();
    for (const auto& [width, height, depth] : {std::array{6, 5, 0}, {0, 0, 7}, {6, 0, 0}})
      selection::ResizeSelection(width, height, depth);  // 0 leaves a size alone
    EXPECT_EQ(SelectedLooks().starts_with("6 5 7 "), row.sized);
    EXPECT_EQ(Marked(), mark);
    for (const int stretch : {2, 0}) c.Combo1.UserSelects(stretch);
    c.Combo2.UserSelects(3);
    const bool stretched = SelectedLooks().find("stretch 0 3") != std::string::npos;
    EXPECT_EQ(stretched, &row.item == &c.mnu_block || &row.item == &c.mnu_MovingPlatform);
    EXPECT_EQ(c.Combo1.Enabled() && c.Combo2.Enabled(), stretched);
    if (!row.sized) {
      EXPECT_EQ(SelectedLooks(), before);
      EXPECT_EQ(boxes.messages, Texts(3, selection::kNotResizableText));
    }
    boxes.messages.clear();
    selection::RetextureSelection("a.bmp");
    EXPECT_EQ(SelectedLooks().find("a.bmp") != std::string::npos, !row.painted.empty());
    EXPECT_NE(SelectedLooks().find(row.painted), std::string::npos) << SelectedLooks();
    EXPECT_EQ(boxes.messages, Texts(row.painted.empty() ? 1 : 0, selection::kSpecialBlockText));
    EXPECT_EQ(Marked(), "") << "the mark goes, the selection stays";
    EXPECT_TRUE(Document.ObjectSelected);
  }
  c.mnu_Star.UserClicks();
  selection::ResizeSelection(6, 5, 7);
  selection::RetextureSelection("a.bmp");
  EXPECT_EQ(SelectedPlace(), "0 1 1");
}

TEST_F(SelectionTest, APieceIsPastedAsItWasCopiedWhereTheCameraLooks) {
  for (MenuItem* item : c.mnu_insert.items) {
    for (MenuItem* take : {&c.mnu_copy, &c.mnu_cut}) {
      SCOPED_TRACE(item->name + take->name);
      c.VScroll1.Value(1000);
      item->UserClicks();
      selection::MoveSelection(5, 6, 7);
      selection::ResizeSelection(4, 3, 2);
      if (item != &c.mnu_BouncePad) c.cmd_ramp.UserClicks();
      c.Combo1.UserSelects(2);
      c.Combo2.UserSelects(3);
      c.UpDown_speed.UserClicks(true);
      c.UpDown_distance.UserClicks(false);
      c.cmbo_Direction.UserSelects(0);
      if (take == &c.mnu_cut) c.Check_Loop.UserClicks();
      const std::string looks = SelectedLooks(), before = Counts();
      take->UserClicks();
      EXPECT_EQ(Document.ObjectSelected, take == &c.mnu_copy);
      EXPECT_EQ(Counts() == before, take == &c.mnu_copy);
      c.VScroll1.Value(960);
      c.mnu_Paste.UserClicks();
      EXPECT_EQ(Counts() == before, take == &c.mnu_cut);
      // A plain block is 0.9 deep and copied in whole units, as everything.
      EXPECT_EQ(SelectedLooks(), looks);
      EXPECT_EQ(SelectedPlace(), item == &c.mnu_Star   ? "0 1 41"
                                 : item == &c.mnu_Ramp ? "0 1 40"
                                                       : "0 0 40");
      EXPECT_EQ(c.txt_Z.Text(), item == &c.mnu_Star ? "41" : "40");
      EXPECT_EQ(Marked(), item == &c.mnu_Star
                              ? ""
                              : Words(Document.SelectedType, Document.SelectedIndex) + ";");
    }
  }
  c.mnu_New.UserClicks();
  c.mnu_Paste.UserClicks();
  EXPECT_EQ(Counts(), "0 -1 -1 0") << "the clipboard outlives the track";
}

TEST_F(SelectionTest, DeletingInsideTheRowSendsPlatformsToTheirStarts) {
  for (int i = 0; i < 5; ++i) {
    c.mnu_MovingPlatform.UserClicks();
    selection::MoveSelection(i, 0, 0);
  }
  c.cmd_pause.UserClicks();
  for (int i = 0; i < 10; ++i) form.MovePlatforms();
  Select(TypePlatform, 2);
  selection::DeleteSelection();
  selection::DeleteSelection();
  EXPECT_EQ(Document.PlatformCount, 3) << "nothing was selected any more";
  const std::array<float, 4> starts = {0, 1, 3, 4};
  for (size_t i = 0; i < 4; ++i) EXPECT_EQ(Document.Platforms[i].Xpos(), starts[i]);
  for (int i = 0; i < 110; ++i) form.MovePlatforms();
  Select(TypePlatform, 3);
  selection::DeleteSelection();
  EXPECT_EQ(Document.Platforms[0].Mdir(), clsMovingPlatform::Left);
  EXPECT_EQ(Document.Platforms[0].Xpos(), 4.55F) << "the last one leaves the others";
  Select(TypePlatform, 1);
  selection::DeleteSelection();
  EXPECT_EQ(Document.Platforms[0].Mdir(), clsMovingPlatform::Right) << "the direction too";
}

}  // namespace
