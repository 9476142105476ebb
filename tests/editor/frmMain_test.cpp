#include "tests/editor/editor_fixture.h"

namespace {

TEST_F(EditorTest, StartsWithANewTrack) {
  EXPECT_EQ(SelectedPlace(), "0 0 0");
  EXPECT_EQ(SelectedLooks(),
            "2 1 2 stretch 0 0 kind 0 "
            "_default.bmp/_default.bmp/_default.bmp/_default.bmp");
  EXPECT_EQ(Marked(), "0 0;");
  EXPECT_EQ(Checked(), "Edit Mode;Background 1;Normal;");
  EXPECT_EQ(Document.BackgroundName.Trimmed(), "_default.jpg");
  EXPECT_EQ(
      Words(Document.TrackLoaded, Document.PlatformsPaused, Document.SelectedPlane,
            c.File1.FileName(), c.VScroll1.Value(), DirectX::CameraPosition.z, Bytes().size()),
      "1 0 1 _default.bmp 1000 -18 213");
  EXPECT_EQ(Words(world->created->samples, world->created->depthBits, world->cooperativeLevel,
                  world->bufferSize),
            "4 16 10 10");
}

/// Places, first values and ranges in one line each.
std::string Layout(const Window& window) {
  std::string said = Words(window.clientWidth, window.clientHeight);
  for (const Control* control : window.controls) {
    const Place& p = control->place;
    said += "; " + Words(p.left, p.top, p.width, p.height);
    if (const auto* label = dynamic_cast<const Label*>(control); label && label->bold) said += "B";
    if (const auto* box = dynamic_cast<const TextBox*>(control)) said += " " + box->Text();
    if (const auto* number = dynamic_cast<const UpDown*>(control)) {
      said += Words("", number->Minimum(), number->Value(), number->Maximum());
    }
    if (const auto* bar = dynamic_cast<const ScrollBar*>(control)) {
      said += Words("", bar->Maximum(), bar->smallStep, bar->largeStep);
    }
  }
  return said;
}

TEST(MainControls, StandAtTheirPlacesWithTheirFirstValues) {
  const MainControls controls;
  EXPECT_EQ(
      Layout(controls.frmMain),
      "800 574; 0 0 601 457; 600 0 17 457 1000 1 20; 624 0 169 25B; 624 24 169 435; 8 464 785 105; "
      "8 8 129 17B; 8 32 40 17; 8 56 40 17; 8 80 40 17; 144 16 16 17; 144 40 16 17; 144 64 16 17; "
      "232 16 145 16; 232 56 145 16; 384 8 113 33B; 504 32 48 17; 504 56 48 17; 504 80 48 17; "
      "640 16 129 25B; 48 32 49 19 1; 96 32 17 19 1 1 40; 48 56 49 19 1; 96 56 17 19 1 1 40; "
      "48 80 49 19 1; 96 80 17 19 1 1 400; 160 16 40 19 0; 200 16 17 19 -50 0 50; "
      "160 40 40 19 0; 200 40 17 19 0 0 50; 160 64 40 19 0; 200 64 17 19 0 0 2500; "
      "552 32 57 19 5; 608 32 17 19 0 5 20; 552 80 57 19 5; 608 80 17 19 0 5 10; "
      "232 32 145 21; 232 72 145 21; 384 48 113 25; 384 80 105 17; 552 56 73 21; 640 40 129 25");
  EXPECT_EQ(Layout(frmAbout().window),
            "320 120; 16 16 48 48; 80 16 224 20B; 80 40 224 20; 224 80 80 26");
  for (const MenuItem* menu : controls.frmMain.menus) {
    const std::string& name = menu->Caption();
    for (const MenuItem* item : menu->items) {
      const bool checkable = name == "Mode" || name == "Background" || name == "Gravity" ||
                             item == &controls.mnu_showdrive || item == &controls.mnu_finddrive ||
                             item == &controls.mnu_bestwin;
      EXPECT_EQ(item->checkable, checkable) << item->name;
    }
  }
}

TEST_F(EditorTest, FramesAreMoreThanFortyMillisecondsApart) {
  PassAfter(40.0);
  EXPECT_EQ(world->screen.frames, 0) << "exactly 40 waits";
  PassAfter(0.001);
  EXPECT_EQ(world->screen.frames, 1);
  const Command& backdrop = world->screen.commands.at(1);
  EXPECT_FALSE(world->screen.states[backdrop.states].depthWrite);
  for (size_t i = 0; i < 4; ++i) {
    const float u = i % 2 == 0 ? 0 : 1, v = i < 2 ? 0 : 1, z = i == 0 ? 1 : 0;
    EXPECT_EQ(backdrop.buffer->Vertices<ScreenVertex>()[i],
              (ScreenVertex{601 * u, 457 * v, z, 1, 0xFFFFFF, 0, u, v}));
  }
  const DeviceStates& states = world->screen.states[world->screen.commands.at(2).states];
  EXPECT_TRUE(states.depthWrite && states.depthTest && states.multisample && states.pointSprites);
  EXPECT_FALSE(states.lighting || states.alphaBlend);
  double wait = -1;
  pump.onPump = [&](double milliseconds) { wait = milliseconds; };
  PassAfter(15);
  EXPECT_EQ(world->screen.frames, 1);
  EXPECT_NEAR(wait, 25, 0.1) << "the pump may sleep until the mark";
  PassAfter(100);
  EXPECT_EQ(world->screen.frames, 2);
  EXPECT_EQ(wait, 0);
}

TEST_F(EditorTest, PlatformsMoveUnlessPaused) {
  AddRunningPlatform();
  for (const bool paused : {false, true}) {
    Document.PlatformsPaused = paused;
    PassAfter(41);
    EXPECT_EQ(Document.Platforms[0].Xpos(), 0.05F);
  }
}

TEST_F(EditorTest, ScrollBarAndShiftArrowsMoveTheCamera) {
  c.VScroll1.UserScrolls(882);
  EXPECT_EQ(Words(DirectX::CameraPosition.z, DirectX::CameraTarget.z, DirectX::CameraPosition.y),
            "100 118 25");
  world->keys[scancode::kUp] = kKeyHeld;
  PassAfter(41);
  EXPECT_EQ(c.VScroll1.Value(), 882) << "not without Shift";
  for (const uint8_t shift : {scancode::kLeftShift, scancode::kRightShift}) {
    world->keys[shift] = kKeyHeld;
    for (const auto& [arrow, from, to] : {std::tuple{scancode::kUp, 882, 881},
                                          {scancode::kUp, 0, 0},
                                          {scancode::kDown, 0, 1},
                                          {scancode::kDown, 1000, 1000}}) {
      world->keys[scancode::kUp] = world->keys[scancode::kDown] = 0;
      world->keys[arrow] = kKeyHeld;
      c.VScroll1.Value(from);
      PassAfter(41);
      EXPECT_EQ(c.VScroll1.Value(), to);
      EXPECT_EQ(DirectX::CameraPosition.z, static_cast<float>(982 - to));
    }
    world->keys[shift] = 0;
  }
  EXPECT_TRUE(boxes.messages.empty());
  world->failing = "GetDeviceData";
  for (int frame = 0; frame < 3; ++frame) PassAfter(41);
  EXPECT_EQ(boxes.messages.size(), 1U) << "told once";
}

TEST_F(EditorTest, GravityAndBackdropsCheckTheirItems) {
  c.mnu_low.UserClicks();
  c.mnu_background3.UserClicks();
  EXPECT_EQ(Document.Gravity, 0.0125F);
  EXPECT_EQ(Document.BackgroundName.Trimmed(), "bk002.jpg");
  EXPECT_EQ(Document.Background.Name(), folder / "backgrounds/bk002.jpg");
  EXPECT_EQ(Checked(), "Edit Mode;Background 3;Low;");
  c.mnu_background5.UserClicks();
  EXPECT_EQ(Document.Background.Name(), folder / "backgrounds/bk002.jpg") << "no such picture";
  EXPECT_EQ(Checked(), "Edit Mode;Background 5;Low;");
  for (int i = 0; i < 3; ++i) c.mnu_undo.UserClicks();
  EXPECT_EQ(Checked(), "Edit Mode;Background 1;Normal;");
  c.mnu_playmode.UserClicks();
  c.mnu_New.UserClicks();
  EXPECT_EQ(Document.BackgroundName.Trimmed(), "_default.jpg");
  EXPECT_EQ(Document.Gravity, 0.025F);
}

TEST_F(EditorTest, NewTrackKeepsFileNameAndCarriedValues) {
  for (MenuItem* item : c.mnu_insert.items) item->UserClicks();
  c.VScroll1.UserScrolls(500);
  Document.TrackSettings.SettingsText = "carried";
  Document.TrackRecords.RecordValues[3] = 9;
  Document.CurrentFileName = folder / "levels/t.lvl";
  c.mnu_New.UserClicks();
  EXPECT_EQ(Counts(), "0 -1 -1 -1");
  EXPECT_EQ(Marked(), "0 0;");
  EXPECT_EQ(Words(c.VScroll1.Value(), Document.PlatformsPaused, Document.SelectedPlane),
            "1000 0 1");
  c.mnu_save.UserClicks();
  EXPECT_TRUE(boxes.shown.empty());
  EXPECT_NE(ReadBytes(folder / "levels/t.lvl").find("carried"), std::string::npos);
  EXPECT_EQ(Document.TrackRecords.RecordValues[3], 9U);
}

TEST_F(EditorTest, OpenTrackResetsCameraAndChecksButOnlyWhenItWasRead) {
  Document.Gravity = 0.0125F;
  Document.BackgroundName = "_bk001.jpg";
  const std::string path = folder / "levels/low.lvl";
  EXPECT_TRUE(FileIO::WriteLevel(path).Ok());
  c.mnu_New.UserClicks();
  c.VScroll1.UserScrolls(500);
  const std::string before = Bytes();
  WriteBytes(folder / "levels/bad.lvl", "not a track");
  boxes.answers = {folder / "levels/bad.lvl", path};
  c.mnu_load.UserClicks();
  EXPECT_EQ(boxes.messages.size(), 1U);
  EXPECT_EQ(DirectX::CameraPosition.z, 482);
  EXPECT_EQ(Bytes(), before);
  EXPECT_TRUE(Document.ObjectSelected);

  c.mnu_load.UserClicks();
  EXPECT_EQ(Words(DirectX::CameraPosition.z, c.VScroll1.Value()), "-18 1000");
  EXPECT_EQ(Checked(), "Edit Mode;Background 2;Low;");
  EXPECT_EQ(Document.CurrentFileName, path);
  EXPECT_FALSE(Document.ObjectSelected) << "nothing that Delete could take unseen";
  EXPECT_EQ(Panel(), "1 1 1 0 0 0 5 5 stretch 0 0 direction -1 loop 0");
  c.mnu_playmode.UserClicks();
  c.mnu_normal.UserClicks();
  c.mnu_editmode.UserClicks();
  EXPECT_EQ(Checked(), "Edit Mode;Background 2;Low;") << "as the track has it";
  c.mnu_background3.UserClicks();
  c.mnu_playmode.UserClicks();
  EXPECT_EQ(Checked(), "Play Mode!;Background 3;Low;") << "both spellings of a name";
}

TEST_F(EditorTest, HelpAboutAndQuit) {
  c.mnu_Shortcut.UserClicks();
  EXPECT_EQ(shell.opened, Texts{folder / "readme.txt"});
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

class StartTest : public EditorTest {
 protected:
  void SetUp() override {
    c.frmMain.show = [] { ADD_FAILURE() << "nothing to show"; };
  }
};

TEST_F(StartTest, EachMissingDeviceHasItsMessageAndEndsTheStart) {
  const std::string graphics = "Error when communicating with DirectX",
                    input = "Error occured trying to initalise Direct Input";
  world->failureCode = kErrorNotAvailable;
  for (const auto& [failing, message] : std::vector<std::pair<std::string, std::string>>{
           {"GetDeviceCaps", "Error, no 3D card detected"},
           {"CreateD3D", graphics},
           {"GetDisplayMode", graphics},
           {"CreateDevice", graphics},
           {"CreateDirectInput", input},
           {"Acquire", input}}) {
    world->failing = failing;
    EXPECT_FALSE(form.Form_Load());
    EXPECT_EQ(boxes.messages, Texts{message}) << failing;
    boxes.messages.clear();
  }
  EXPECT_EQ(world->screen.frames, 0);
}

}  // namespace
