#include <random>

#include "play/clsPlayer.h"
#include "tests/editor/editor_fixture.h"

namespace {

class PlayModeTest : public EditorTest {
 protected:
  void Frames(int count) {
    for (int i = 0; i < count; ++i) PassAfter(41);
  }
  void Hold(uint8_t key, bool held = true) { world->keys[key] = held ? kKeyHeld : 0; }
  std::string State() {
    return Words(Document.EditorMode, Document.ObjectSelected, Document.PlatformsPaused,
                 DirectX::CameraPosition.z, Checked());
  }
  const std::string file_ = folder / "tmp.trk";
};

TEST_F(PlayModeTest, CommandsLeadThroughTheTemporaryFileAndBack) {
  AddRunningPlatform();
  Document.PlatformsPaused = true;
  const std::string before = Bytes();
  c.VScroll1.UserScrolls(500);
  for (int times = 0; times < 2; ++times) {
    c.mnu_playmode.UserClicks();
    EXPECT_EQ(State(), "2 0 0 -18 Play Mode!;Background 1;Normal;");
    EXPECT_EQ(ReadBytes(file_), before) << "the second command does nothing";
    Document.Blocks[0].Ypos(30);
  }
  for (int times = 0; times < 2; ++times) {
    c.mnu_editmode.UserClicks();
    EXPECT_EQ(State(), "1 0 0 -18 Edit Mode;Background 1;Normal;");
    EXPECT_EQ(Bytes(), before);
    c.VScroll1.UserScrolls(1000);
  }
  c.mnu_playmode.UserClicks();
  Document.Blocks[0].Ypos(30);
  c.mnu_load.UserClicks();
  EXPECT_EQ(State(), "1 0 0 -18 Edit Mode;Background 1;Normal;") << "a cancelled Open leaves play";
  EXPECT_EQ(Document.Blocks[0].Ypos(), 30) << "as play left it";

  std::filesystem::remove(file_);
  Document.BlockCount = -1;
  c.mnu_playmode.UserClicks();
  EXPECT_EQ(Document.EditorMode, EditMode);
  EXPECT_EQ(boxes.messages, Texts{FileIO::kNoBlocksText});
  EXPECT_FALSE(std::filesystem::exists(file_));
}

TEST_F(PlayModeTest, DeathStartsOverWithTheTrackOfTheBeginning) {
  AddRunningPlatform();
  const std::string track = Bytes();
  c.mnu_playmode.UserClicks();
  std::filesystem::remove(file_);  // the track must come back all the same
  Hold(scancode::kUp);
  int frames = 0;
  while (!Player.DeathStatus() && frames++ < 500) Frames(1);
  ASSERT_LT(Player.PosY(), -40);
  EXPECT_NE(Document.Platforms[0].Xpos(), 0);
  Hold(scancode::kUp, false);
  Frames(1);
  EXPECT_EQ(Document.EditorMode, PlayMode);
  EXPECT_NEAR(Player.PosY(), 3.475, 1e-5) << "the first step of the next run";
  EXPECT_EQ(Document.Platforms[0].Xpos(), 0.05F);
  EXPECT_EQ(DirectX::CameraPosition.z, -18);
  c.mnu_editmode.UserClicks();
  EXPECT_EQ(Bytes(), track);
}

/// A picture that cannot be read for a moment must not cost the track.
TEST_F(PlayModeTest, AFailedRestoreGivesTheEditedPiecesBack) {
  AddRunningPlatform();
  Document.Blocks[0].Texture("a.bmp", "D", Document.TextureDir);
  c.mnu_low.UserClicks();
  c.mnu_background2.UserClicks();
  const std::string track = Bytes(), picture = folder / "textures/a.bmp";
  const auto play = [&] {
    WriteBytes(picture, "");
    c.mnu_playmode.UserClicks();
    Document.Blocks[0].Ypos(30);
    c.mnu_normal.UserClicks();
    c.mnu_background3.UserClicks();
    Document.Platforms.clear();
    Document.PlatformCount = -1;
    WriteBytes(picture, "damaged");
  };
  const auto expectEditedTrack = [&](size_t messages, const std::string& marked) {
    EXPECT_EQ(Bytes(), track);
    EXPECT_EQ(boxes.messages.size(), messages);
    EXPECT_EQ(State().substr(0, 3), marked.empty() ? "1 0" : "1 1");
    EXPECT_EQ(Marked(), marked);
    EXPECT_EQ(Checked(), "Edit Mode;Background 2;Low;");
    EXPECT_EQ(Document.Background.Name(), folder / "backgrounds/bk001.jpg");
    Frames(1);
  };
  WriteBytes(picture, "damaged");
  c.mnu_playmode.UserClicks();
  expectEditedTrack(1, "2 0;");
  EXPECT_NE(boxes.messages[0].find("a.bmp"), std::string::npos);
  play();
  c.mnu_editmode.UserClicks();
  expectEditedTrack(2, "");
  play();
  Player.DeathStatus(true);
  Frames(3);
  expectEditedTrack(3, "");
  // A missing picture is read as the default one; the track keeps its name.
  play();
  std::filesystem::remove(picture);
  c.mnu_editmode.UserClicks();
  expectEditedTrack(3, "");
}

TEST_F(PlayModeTest, NothingOfPlayNorOfALostFileReachesTheTrack) {
  for (MenuItem* item : c.mnu_insert.items) item->UserClicks();
  c.mnu_copy.UserClicks();
  Document.CurrentFileName = "kept.lvl";
  const std::string track = Bytes();
  const size_t keptAlive = Document.Blocks.size();
  std::string foreign = track;
  foreign[128] = 1;
  const std::vector<std::function<void()>> mishaps = {
      [] {}, [&] { std::filesystem::remove(file_); },
      [&] { WriteBytes(file_, track.substr(0, 100)); }, [&] { WriteBytes(file_, foreign); },
      [&] {
        std::filesystem::remove(file_);
        std::filesystem::create_directory(file_);  // where the next round would write
      }};
  std::mt19937 random(7);
  for (size_t round = 0; round < 51; ++round) {
    c.mnu_playmode.UserClicks();
    ASSERT_EQ(Document.EditorMode, PlayMode);
    for (int frame = 0; frame < 20; ++frame) {
      for (const uint8_t key :
           {scancode::kUp, scancode::kDown, scancode::kLeft, scancode::kRight, scancode::kSpace}) {
        Hold(key, random() % 2 == 0);
      }
      Frames(1);
    }
    if (round % 10 == 0) mishaps[std::min(round / 10, mishaps.size() - 1)]();
    c.mnu_editmode.UserClicks();
    ASSERT_EQ(Bytes(), track) << round;
  }
  EXPECT_EQ(Document.CurrentFileName, "kept.lvl");
  EXPECT_EQ(Document.Clipboard.ClipType, TypeStar);
  EXPECT_EQ(Document.Blocks.size(), keptAlive);
  EXPECT_TRUE(boxes.messages.empty());
}

}  // namespace
