#include "editor/insert.h"

#include "tests/editor/editor_fixture.h"

namespace {

TEST_F(EditorTest, EachInsertItemAddsItsMarkedPieceWhereTheCameraLooks) {
  const auto all = [](const std::string& name) {
    return " " + name + ("/" + name + "/" + name + "/" + name);
  };
  struct Row {
    MenuItem& item;
    std::string leftAndBottom;
    int ahead;
    std::string looks;
  };
  const Row rows[] = {
      {c.mnu_block, "0 0", 0, "1 1 0.9 stretch 0 0 kind 0" + all("_default.bmp")},
      {c.mnu_BouncePad, "-1 0", 0, "2 1 2 stretch 1 0 kind 2" + all("Blue With Yellow Dot.bmp")},
      {c.mnu_building, "-1 0", 0,
       "3 4 4 stretch 1 1 kind 10 "
       "buildingFront.bmp/building Side.bmp/building Side.bmp/buildingTop.bmp"},
      {c.mnu_Endlevel, "-1 0", 0, "2 1 2 stretch 1 0 kind 1" + all("_WIN.bmp")},
      {c.mnu_fallingBlock, "-1 0", 0, "2 1 2 stretch 0 0 kind 4" + all("red.bmp")},
      {c.mnu_ice, "-1 0", 0, "2 1 2 stretch 0 0 kind 3" + all("Ice2.bmp")},
      {c.mnu_instantkill, "-1 0", 0, "2 1 2 stretch 0 0 kind 6" + all("Red Cross on Grey.bmp")},
      {c.mnu_turbo, "-1 0", 0,
       "2 1 3 stretch 1 0 kind 5 buildingTop.bmp/buildingTop.bmp/buildingTop.bmp/"
       "AnimationTest_0.bmp"},
      {c.mnu_Ramp, "0 1", 0, "1 1 2 turned 0 _default.bmp/_default.bmp"},
      {c.mnu_MovingPlatform, "0 0", 0,
       "2 0 2 stretch 0 0 kind 0" + all("concrete.bmp") + " direction 3 speed 5 distance 5 loop 1"},
      {c.mnu_Star, "0 1", 1, ""}};
  std::string last;
  for (const auto& [scroll, depth] : {std::pair{1000, 0}, std::pair{882, 118}}) {
    c.VScroll1.Value(scroll);
    for (const Row& row : rows) {
      SCOPED_TRACE(row.item.name);
      row.item.UserClicks();
      EXPECT_EQ(SelectedPlace(), Words(row.leftAndBottom, depth + row.ahead));
      EXPECT_EQ(SelectedLooks(), row.looks);
      const std::string own = Words(Document.SelectedType, Document.SelectedIndex) + ";";
      EXPECT_EQ(Marked(), &row.item == &c.mnu_Star ? "" : own);
      EXPECT_NE(std::exchange(last, own), own);
      EXPECT_EQ(c.txt_Z.Text(), std::to_string(depth + row.ahead));
    }
  }
  EXPECT_EQ(Counts(), "16 1 1 1");
  c.mnu_Ramp.UserClicks();
  c.VScroll1.Value(900);
  c.mnu_BouncePad.UserClicks();
  EXPECT_EQ(c.txt_Z.Text(), "118") << "a jump pad leaves the ramp's numbers";
  EXPECT_FALSE(c.cmd_ramp.Enabled());
}

TEST_F(EditorTest, NewPlatformsEndUpPausedWhateverTheButtonSays) {
  bool focused = false;
  c.frmMain.takeFocus = [&] { focused = true; };
  c.mnu_MovingPlatform.UserClicks();
  EXPECT_TRUE(focused && Document.PlatformsPaused && c.cmbo_Direction.Enabled());
  c.mnu_copy.UserClicks();
  for (MenuItem* item : {&c.mnu_MovingPlatform, &c.mnu_Paste}) {
    c.mnu_playmode.UserClicks();
    c.mnu_editmode.UserClicks();
    EXPECT_FALSE(Document.PlatformsPaused);
    for (int times = 0; times < 2; ++times) {
      EXPECT_EQ(c.cmd_pause.Caption(), "UnPause Platforms") << "a read leaves it alone";
      item->UserClicks();
      EXPECT_TRUE(Document.PlatformsPaused);
    }
  }
}

TEST_F(EditorTest, NothingIsInsertedInPlayModeOrWhenFullOrWithoutPictures) {
  c.mnu_playmode.UserClicks();
  for (MenuItem* item : c.mnu_insert.items) item->UserClicks();
  EXPECT_EQ(Counts(), "0 -1 -1 -1");
  c.mnu_editmode.UserClicks();
  std::filesystem::remove(folder / "textures/buildingTop.bmp");
  c.mnu_building.UserClicks();
  EXPECT_EQ(Counts(), "0 -1 -1 -1");
  EXPECT_EQ(boxes.messages.size(), 1U);
  Select(TypeBlock, 0);
  c.mnu_copy.UserClicks();

  VisitKinds([](auto kind) { kind.Count() = kGreatestIndex; });
  boxes.messages.clear();
  for (MenuItem* item : c.mnu_insert.items) item->UserClicks();
  selection::PasteClipboard();
  EXPECT_EQ(boxes.messages, Texts(12, selection::kTrackFullText));
  EXPECT_EQ(Counts(), "32767 32767 32767 32767");
  VisitKinds([](auto kind) { kind.Count() = static_cast<int32_t>(kind.All().size()) - 1; });
}

}  // namespace
