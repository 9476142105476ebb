#include "editor/selection.h"
#include "tests/editor/editor_fixture.h"

namespace {

TEST_F(EditorTest, StartsWithANewTrack) {
  EXPECT_EQ(Document.BlockCount, 0);
  EXPECT_EQ(Document.RampCount, -1);
  const clsblock& block = Document.Blocks[0];
  EXPECT_EQ(block.scaleX(), 2);
  EXPECT_EQ(block.scaleY(), 1);
  EXPECT_EQ(block.scaleZ(), 2);
  EXPECT_EQ(block.GetTextureD(), "_default.bmp");
  EXPECT_EQ(block.GeometryVertices()[0].colour, 0x888888U);
  clsblock same;
  same.create(0, 0, 0, 1, 1, 1);
  same.scaleX(2);
  same.scaleY(1);
  same.scaleZ(2);
  same.SelectBlock();
  EXPECT_EQ(block.GeometryVertices(), same.GeometryVertices());
  EXPECT_TRUE(Document.ObjectSelected);
  EXPECT_TRUE(Document.TrackLoaded);
  EXPECT_EQ(Document.BackgroundName.Trimmed(), "_default.jpg");
  EXPECT_EQ(c.File1.FileName(), "_default.bmp");
  EXPECT_EQ(c.txt_width.Text(), "2");
  EXPECT_TRUE(c.Combo1.Enabled());
  EXPECT_FALSE(c.Check_Loop.Enabled());
  EXPECT_EQ(c.VScroll1.Value(), 1000);
  EXPECT_EQ(DirectX::CameraPosition.z, -18);
  EXPECT_EQ(world->created->samples, 4);
  EXPECT_EQ(world->created->depthBits, 16);
  EXPECT_EQ(world->cooperativeLevel, 10U);
  EXPECT_EQ(world->bufferSize, 10);
  EXPECT_EQ(Bytes().size(), 213U);
}

TEST_F(EditorTest, ControlsStandAtTheirPlaces) {
  std::string places;
  for (const Control* control : c.frmMain.controls) {
    const Place& p = control->place;
    for (const int number : {p.left, p.top, p.width, p.height}) places += std::to_string(number) + " ";
    const auto* upDown = dynamic_cast<const UpDown*>(control);
    if (upDown == nullptr) continue;
    places += std::to_string(upDown->Minimum()) + ".." + std::to_string(upDown->Maximum()) + " ";
  }
  EXPECT_EQ(places,
            "0 0 601 457 600 0 17 457 624 0 169 25 624 24 169 435 8 464 785 105 "
            "8 8 129 17 8 32 40 17 8 56 40 17 8 80 40 17 144 16 16 17 144 40 16 17 144 64 16 17 "
            "232 16 145 16 232 56 145 16 384 8 113 33 504 32 48 17 504 56 48 17 504 80 48 17 "
            "640 16 129 25 48 32 49 19 96 32 17 19 1..40 48 56 49 19 96 56 17 19 1..40 "
            "48 80 49 19 96 80 17 19 1..400 160 16 40 19 200 16 17 19 -50..50 "
            "160 40 40 19 200 40 17 19 0..50 160 64 40 19 200 64 17 19 0..2500 "
            "552 32 57 19 608 32 17 19 0..20 552 80 57 19 608 80 17 19 0..10 "
            "232 32 145 21 232 72 145 21 384 48 113 25 384 80 105 17 552 56 73 21 640 40 129 25 ");
  EXPECT_EQ(c.frmMain.clientWidth, 800);
  EXPECT_EQ(c.frmMain.clientHeight, 574);
}

TEST_F(EditorTest, FramesAreMoreThanFortyMillisecondsApart) {
  PassAfter(40.0);
  EXPECT_EQ(world->screen.frames, 0) << "exactly 40 waits";
  PassAfter(0.001);
  EXPECT_EQ(world->screen.frames, 1);
  double wait = -1;
  pump.onPump = [&](double milliseconds) { wait = milliseconds; };
  PassAfter(15);
  EXPECT_EQ(world->screen.frames, 1);
  EXPECT_NEAR(wait, 25, 0.1) << "the pump may sleep until the mark";
  PassAfter(100);
  EXPECT_EQ(world->screen.frames, 2);
}

TEST_F(EditorTest, FrameDrawsBackdropFirstWithoutDepth) {
  PassAfter(41);
  const auto& screen = world->screen;
  ASSERT_EQ(screen.commands.size(), 6U);
  EXPECT_EQ(screen.commands[0].kind, Command::Kind::Clear);
  EXPECT_EQ(screen.commands[1].primitive, Primitive::TriangleStrip);
  EXPECT_EQ(screen.commands[1].vertexCount, 4U);
  const auto corners = screen.commands[1].buffer->Vertices<ScreenVertex>();
  for (size_t i = 0; i < 4; ++i) {
    const float u = i % 2 == 0 ? 0 : 1, v = i < 2 ? 0 : 1, z = i == 0 ? 1 : 0;
    EXPECT_EQ(corners[i], (ScreenVertex{601 * u, 457 * v, z, 1, 0xFFFFFF, 0, u, v})) << i;
  }
  EXPECT_FALSE(screen.states[screen.commands[1].states].depthWrite);
  EXPECT_TRUE(screen.states[screen.commands[2].states].depthWrite);
  const DeviceStates& states = screen.states[screen.commands[2].states];
  EXPECT_FALSE(states.lighting);
  EXPECT_TRUE(states.depthTest && states.multisample && states.pointSprites);
  EXPECT_FALSE(states.alphaBlend);
  EXPECT_EQ(states.magnify, Filter::Linear);
}

TEST_F(EditorTest, PlatformsMoveUnlessPaused) {
  AddPlatform();
  PassAfter(41);
  EXPECT_EQ(Document.Platforms[0].Xpos(), 0.05F);
  Document.PlatformsPaused = true;
  PassAfter(41);
  EXPECT_EQ(Document.Platforms[0].Xpos(), 0.05F);
}

TEST_F(EditorTest, ScrollBarAndShiftArrowsMoveTheCamera) {
  c.VScroll1.UserScrolls(882);
  EXPECT_EQ(DirectX::CameraPosition.z, 100);
  EXPECT_EQ(DirectX::CameraTarget.z, 118);
  EXPECT_EQ(DirectX::CameraPosition.y, 25);
  world->keys[scancode::kUp] = kKeyHeld;
  PassAfter(41);
  EXPECT_EQ(c.VScroll1.Value(), 882) << "not without Shift";
  world->keys[scancode::kRightShift] = kKeyHeld;
  PassAfter(41);
  EXPECT_EQ(DirectX::CameraPosition.z, 101);
  c.VScroll1.Value(0);
  PassAfter(41);
  EXPECT_EQ(c.VScroll1.Value(), 0);
  world->keys[scancode::kUp] = 0;
  world->keys[scancode::kDown] = kKeyHeld;
  PassAfter(41);
  EXPECT_EQ(c.VScroll1.Value(), 1);
  c.VScroll1.Value(1000);
  PassAfter(41);
  EXPECT_EQ(c.VScroll1.Value(), 1000);
  EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(EditorTest, LostKeyboardInputEndsThePoll) {
  DirectX::CameraTarget.x = 5;
  world->failing = "GetDeviceData";
  world->failureCode = 0x80040260;
  form.ProcessKeyboard();
  EXPECT_EQ(DirectX::D3DDevice->GetTransform(Transform::View), DirectX::MatView);
  world->failing.clear();
  const Matrix4 before = DirectX::MatView;
  form.ProcessKeyboard();
  EXPECT_NE(before, DirectX::MatView) << "the camera is applied again";
}

TEST_F(EditorTest, GravityAndBackdropsCheckTheirItems) {
  c.mnu_low.UserClicks();
  EXPECT_EQ(Document.Gravity, 0.0125F);
  EXPECT_TRUE(c.mnu_low.Checked());
  EXPECT_FALSE(c.mnu_normal.Checked());
  c.mnu_background3.UserClicks();
  EXPECT_EQ(Document.BackgroundName.Trimmed(), "bk002.jpg");
  EXPECT_EQ(Document.Background.Name(), folder / "backgrounds/bk002.jpg");
  EXPECT_TRUE(c.mnu_background3.Checked());
  EXPECT_FALSE(c.mnu_background1.Checked());
  c.mnu_background5.UserClicks();
  EXPECT_EQ(Document.Background.Name(), folder / "backgrounds/bk002.jpg") << "no such picture";
  c.mnu_New.UserClicks();
  EXPECT_EQ(Document.BackgroundName.Trimmed(), "_default.jpg");
  EXPECT_TRUE(c.mnu_background1.Checked() && c.mnu_normal.Checked());
  EXPECT_FALSE(c.mnu_background5.Checked());
  EXPECT_EQ(Document.Gravity, 0.025F);
}

TEST_F(EditorTest, NewTrackKeepsFileNameAndCarriedValues) {
  Document.TrackSettings.SettingsText = "carried";
  Document.TrackRecords.RecordValues[3] = 9;
  Document.CurrentFileName = folder / "levels/t.lvl";
  c.mnu_New.UserClicks();
  c.mnu_save.UserClicks();
  EXPECT_TRUE(boxes.shown.empty());
  EXPECT_NE(ReadBytes(folder / "levels/t.lvl").find("carried"), std::string::npos);
  EXPECT_EQ(Document.TrackRecords.RecordValues[3], 9U);
}

TEST_F(EditorTest, NewTrackWithoutItsTextureKeepsTheTrack) {
  Document.Gravity = 0.5F;
  std::filesystem::remove(folder / "textures/_default.bmp");
  c.mnu_New.UserClicks();
  ASSERT_EQ(boxes.messages.size(), 1U);
  EXPECT_NE(boxes.messages[0].find("_default.bmp"), std::string::npos);
  EXPECT_EQ(Document.Gravity, 0.5F);
}

TEST_F(EditorTest, OpenTrackResetsCameraAndChecks) {
  Document.Gravity = 0.0125F;
  Document.BackgroundName = "_bk001.jpg";
  const std::string path = SaveSample("low.lvl");
  c.mnu_New.UserClicks();
  c.VScroll1.UserScrolls(500);
  boxes.answers = {path};
  c.mnu_load.UserClicks();
  EXPECT_EQ(DirectX::CameraPosition.z, -18);
  EXPECT_EQ(c.VScroll1.Value(), 1000);
  EXPECT_TRUE(c.mnu_low.Checked());
  EXPECT_TRUE(c.mnu_background2.Checked());
  EXPECT_FALSE(c.mnu_background1.Checked());
  EXPECT_EQ(Document.CurrentFileName, path);
  EXPECT_FALSE(Document.ObjectSelected) << "nothing that Delete could take unseen";
  EXPECT_EQ(c.txt_width.Text(), "1");
  EXPECT_FALSE(c.Combo1.Enabled());
  c.mnu_playmode.UserClicks();
  c.mnu_normal.UserClicks();
  c.mnu_editmode.UserClicks();
  EXPECT_TRUE(c.mnu_low.Checked() && c.mnu_background2.Checked()) << "as the track has it";
  c.mnu_background3.UserClicks();
  c.mnu_playmode.UserClicks();
  EXPECT_TRUE(c.mnu_background3.Checked()) << "both spellings of a name";
}

TEST_F(EditorTest, FailedOpenKeepsTheView) {
  c.VScroll1.UserScrolls(500);
  const std::string before = Bytes();
  WriteBytes(folder / "levels/bad.lvl", "not a track");
  boxes.answers = {folder / "levels/bad.lvl"};
  c.mnu_load.UserClicks();
  EXPECT_EQ(boxes.messages.size(), 1U);
  EXPECT_EQ(DirectX::CameraPosition.z, 482);
  EXPECT_EQ(Bytes(), before);
  EXPECT_TRUE(Document.ObjectSelected);
}

TEST_F(EditorTest, PlayModeGoesThroughTheTemporaryFile) {
  AddPlatform();
  const std::string before = Bytes();
  c.VScroll1.UserScrolls(500);
  c.mnu_playmode.UserClicks();
  EXPECT_EQ(Document.EditorMode, PlayMode);
  EXPECT_TRUE(c.mnu_playmode.Checked());
  EXPECT_FALSE(c.mnu_editmode.Checked());
  EXPECT_FALSE(Document.ObjectSelected);
  EXPECT_EQ(ReadBytes(folder / "tmp.trk"), before);
  EXPECT_EQ(DirectX::CameraPosition.z, -18);
  Document.Blocks[0].Ypos(30);
  c.mnu_playmode.UserClicks();
  EXPECT_EQ(ReadBytes(folder / "tmp.trk"), before) << "the second command does nothing";
  c.mnu_editmode.UserClicks();
  EXPECT_EQ(Bytes(), before);
  EXPECT_EQ(Document.EditorMode, EditMode);
  EXPECT_TRUE(c.mnu_editmode.Checked());
  EXPECT_FALSE(Document.PlatformsPaused);
  c.mnu_editmode.UserClicks();
  EXPECT_EQ(Document.EditorMode, EditMode);
}

TEST_F(EditorTest, LostOrForeignTemporaryFileDoesNotMatter) {
  const std::string before = Bytes();
  const std::string file = folder / "tmp.trk";
  const std::vector<std::function<void()>> mishaps = {
      [&] { std::filesystem::remove(file); }, [&] { WriteBytes(file, before.substr(0, 100)); },
      [&] {
        std::string foreign = before;
        foreign[128] = 1;
        WriteBytes(file, foreign);
      },
      [&] {
        std::filesystem::remove(file);
        std::filesystem::create_directory(file);
      }};
  for (const auto& mishap : mishaps) {
    c.mnu_playmode.UserClicks();
    mishap();
    c.mnu_editmode.UserClicks();
    EXPECT_EQ(Bytes(), before);
  }
  // The folder now stands where the file should be written.
  c.mnu_playmode.UserClicks();
  EXPECT_EQ(Document.EditorMode, PlayMode);
  c.mnu_editmode.UserClicks();
  EXPECT_EQ(Bytes(), before);
  EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(EditorTest, PlayNeedsABlock) {
  Document.BlockCount = -1;
  c.mnu_playmode.UserClicks();
  EXPECT_EQ(Document.EditorMode, EditMode);
  EXPECT_EQ(boxes.messages, std::vector<std::string>{FileIO::kNoBlocksText});
  EXPECT_FALSE(std::filesystem::exists(folder / "tmp.trk"));
}

TEST_F(EditorTest, CancelledOpenLeavesPlayMode) {
  c.mnu_playmode.UserClicks();
  Document.Blocks[0].Ypos(30);
  c.mnu_load.UserClicks();
  EXPECT_EQ(Document.EditorMode, EditMode);
  EXPECT_TRUE(c.mnu_editmode.Checked());
  EXPECT_EQ(Document.Blocks[0].Ypos(), 30) << "as play left it";
}

TEST_F(EditorTest, HelpAboutAndQuit) {
  c.mnu_Shortcut.UserClicks();
  EXPECT_EQ(shell.opened, std::vector<std::string>{folder / "readme.txt"});
  bool shown = false;
  form.about.window.show = [&] { shown = true; };
  c.mnu_about.UserClicks();
  EXPECT_TRUE(shown);
  EXPECT_EQ(form.about.window.Caption(), "About Vorbilax Level Editor");
  EXPECT_EQ(form.about.lblVersion.Caption(), "Version 1.0.0");
  pump.onPump = [this](double) {
    c.mnu_Quit.UserClicks();
    EXPECT_FALSE(form.IsRunning());
    // What was waiting behind it finds the devices, and no handler.
    EXPECT_NE(DirectX::D3DDevice, nullptr);
    c.mnu_block.UserClicks();
    EXPECT_EQ(Document.BlockCount, 0);
  };
  EXPECT_TRUE(form.Form_Load());
  EXPECT_EQ(DirectX::D3DDevice, nullptr);
}

TEST_F(EditorTest, RepeatedFrameFailureIsToldOnce) {
  world->failing = "GetDeviceData";
  PassAfter(41);
  PassAfter(41);
  EXPECT_EQ(boxes.messages.size(), 1U);
}

TEST_F(EditorTest, PanelShowsEachKind) {
  AddPlatform();
  Document.Platforms[0].scaleX(3);
  Document.PlatformsPaused = true;
  Document.SelectedType = TypePlatform;
  selection::ShowProperties();
  EXPECT_EQ(c.txt_width.Text(), "3");
  EXPECT_EQ(c.cmbo_Direction.ListIndex(), 1);
  EXPECT_TRUE(c.cmbo_Direction.Enabled() && c.Check_Loop.Enabled() && c.Combo1.Enabled());
  EXPECT_EQ(c.txt_speed.Text(), "5");
  Document.Platforms[0].Mdir(7);
  Document.Platforms[0].ScaleTextureTop(9);
  selection::ShowProperties();
  EXPECT_EQ(c.cmbo_Direction.ListIndex(), -1);
  EXPECT_EQ(c.Combo1.ListIndex(), -1);
  Document.ObjectSelected = false;
  selection::ShowProperties();
  EXPECT_EQ(c.txt_width.Text() + c.txt_height.Text() + c.txt_depth.Text(), "111");
  EXPECT_EQ(c.txt_X.Text() + c.txt_Y.Text() + c.txt_Z.Text(), "000");
  EXPECT_FALSE(c.Combo1.Enabled());
}

class FailedStartTest : public NullEditorTest {
 protected:
  void ExpectFailure(const std::string& operation, uint32_t code, const std::string& message) {
    world->failing = operation;
    world->failureCode = code;
    null_platform::VirtualClock clock;
    null_platform::NullPump pump;
    null_platform::NullShell shell;
    frmMain form({clock, pump, shell});
    bool shown = false;
    form.controls.frmMain.show = [&] { shown = true; };
    boxes.messages.clear();
    EXPECT_FALSE(form.Form_Load());
    EXPECT_EQ(boxes.messages, std::vector<std::string>{message});
    EXPECT_FALSE(shown);
    EXPECT_EQ(world->screen.frames, 0);
  }
};

TEST_F(FailedStartTest, EachDeviceHasItsMessage) {
  ExpectFailure("GetDeviceCaps", kErrorNotAvailable, "Error, no 3D card detected");
  ExpectFailure("CreateD3D", 1, "Error when communicating with DirectX");
  ExpectFailure("GetDisplayMode", 1, "Error when communicating with DirectX");
  ExpectFailure("CreateDevice", 1, "Error when communicating with DirectX");
  ExpectFailure("CreateDirectInput", 1, "Error occured trying to initalise Direct Input");
  ExpectFailure("Acquire", 1, "Error occured trying to initalise Direct Input");
}

TEST_F(FailedStartTest, SamplesFollowTheAdapter) {
  for (const auto& [supported, used] : std::vector<std::pair<int, int>>{{1, 1}, {2, 2}, {8, 4}}) {
    world->samplesSupported = supported;
    StartDevice();
    EXPECT_EQ(world->created->samples, used);
    EXPECT_EQ(DirectX::AntialiasAvailable, used > 1);
    EXPECT_EQ(DirectX::D3DDevice->States().multisample, used > 1);
  }
}

}  // namespace
