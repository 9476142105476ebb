// A null device over a small install folder of its own: what most rooms are tested on.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "level/globals.h"
#include "platform/null/null_platform.h"
#include "platform/paths.h"
#include "render/device/DirectX.h"

/// A folder that is removed with the test.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "vorbilax-test-XXXXXX").string();
    path_ = mkdtemp(name.data());
  }
  ~TemporaryFolder() { std::filesystem::remove_all(path_); }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  std::string operator/(const std::string& name) const { return path_ + "/" + name; }
  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

inline void WriteBytes(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

inline std::string ReadBytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class NullEditorTest : public ::testing::Test {
 protected:
  NullEditorTest() {
    namespace fs = std::filesystem;
    for (const char* name : {"textures", "backgrounds", "models", "skins", "levels", "misc"}) {
      fs::create_directory(folder / name);
    }
    for (const char* name : {"textures/_default.bmp",
                             "textures/a.bmp",
                             "textures/B.bmp",
                             "textures/\xC3\xBC.bmp",
                             "textures/AnimationTest_0.bmp",
                             "textures/AnimationTest_1.bmp",
                             "textures/AnimationTest_2.bmp",
                             "textures/AnimationTest_3.bmp",
                             "textures/notes.txt",
                             "textures/concrete.bmp",
                             "textures/_WIN.bmp",
                             "textures/red.bmp",
                             "textures/Ice2.bmp",
                             "textures/Blue With Yellow Dot.bmp",
                             "textures/Red Cross on Grey.bmp",
                             "textures/buildingFront.bmp",
                             "textures/building Side.bmp",
                             "textures/buildingTop.bmp",
                             "backgrounds/_default.jpg",
                             "backgrounds/bk001.jpg",
                             "backgrounds/bk002.jpg",
                             "models/orb.x",
                             "models/player.x",
                             "misc/starParticle.bmp",
                             "misc/shadowimage.bmp",
                             "skins/StarSkin.bmp",
                             "skins/StarSkin_selected.bmp"}) {
      WriteBytes(folder / name, "");
    }
    for (int picture = 1; picture <= 16; ++picture) {
      WriteBytes(folder / ("misc/explode" + std::to_string(picture) + ".bmp"), "");
    }
    // An empty file decodes to a white picture; any other content is damage.
    world->decoder = [](const std::string& path) {
      if (!ReadBytes(path).empty()) throw PlatformError(path + ": damaged");
      return Image(2, 2, 0xFFFFFFFF);
    };
    paths::InstallFolder(folder.Path());
    dialogs::Use(&boxes);
    createPlatformRoot = [this] { return null_platform::CreateRoot(world); };
    viewport.place = {0, 0, 601, 457};
    Document = LevelDocument();
    Document.TextureDir = paths::InInstallFolder("\\textures\\");
    Document.BackgroundDir = paths::InInstallFolder("\\backgrounds\\");
  }
  ~NullEditorTest() override {
    Document = LevelDocument();
    DirectX::ReleaseDirectX();
    dialogs::Use(nullptr);
  }
  void StartDevice() { ASSERT_TRUE(DirectX::InitDirect3D(viewport)); }

  TemporaryFolder folder;
  std::shared_ptr<null_platform::World> world = std::make_shared<null_platform::World>();
  null_platform::Dialogs boxes;
  PictureArea viewport;
};

/// The same with the device started.
class DeviceTest : public NullEditorTest {
 protected:
  void SetUp() override { StartDevice(); }
};
