// The whole editor on the null backends, started.
#pragma once

#include "editor/frmMain.h"
#include "files/FileIO.h"
#include "play/DirectInput.h"
#include "tests/support/null_editor.h"

class EditorTest : public NullEditorTest {
 protected:
  void SetUp() override { ASSERT_TRUE(form.Start()); }
  ~EditorTest() override {
    DirectInput::KeyboardDevice.reset();
    DirectInput::DI.reset();
  }
  /// Moves the clock and runs the pass that follows.
  void PassAfter(double milliseconds) {
    clock.microseconds += static_cast<int64_t>(milliseconds * 1000);
    form.Pass();  // sees the time
    form.Pass();  // acts on it
  }
  static std::string Bytes() {
    std::string bytes;
    EXPECT_TRUE(FileIO::LevelBytes(bytes).Ok());
    return bytes;
  }
  std::string SaveSample(const std::string& name) {
    const std::string path = folder / ("levels/" + name);
    EXPECT_TRUE(FileIO::WriteLevel(path).Ok());
    return path;
  }
  void AddPlatform() {
    Document.PlatformCount = 0;
    clsMovingPlatform& platform = Document.Platforms.emplace_back();
    platform.create(0, 0, 0);
    for (const char* face : {"A", "B", "C", "D"}) {
      platform.Texture("_default.bmp", face, Document.TextureDir);
    }
    platform.Mdir(clsMovingPlatform::Right);
    platform.Mspeed(5);
    platform.Mdist(5);
  }

  null_platform::VirtualClock clock;
  null_platform::NullPump pump;
  null_platform::NullShell shell;
  frmMain form{{clock, pump, shell}};
  MainControls& c = form.controls;
};
