// A null device over a small install folder of its own: what most rooms are tested on.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

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

/// Gives a piece its place and size; some count in whole numbers.
template <typename Piece>
Piece& PutPiece(Piece& piece, const Vector3& at, const Vector3& size) {
  piece.Xpos(static_cast<decltype(piece.Xpos())>(at.x));
  piece.Ypos(static_cast<decltype(piece.Ypos())>(at.y));
  piece.Zpos(static_cast<decltype(piece.Zpos())>(at.z));
  piece.scaleX(static_cast<decltype(piece.scaleX())>(size.x));
  piece.scaleY(static_cast<decltype(piece.scaleY())>(size.y));
  piece.scaleZ(static_cast<decltype(piece.scaleZ())>(size.z));
  return piece;
}

class NullEditorTest : public ::testing::Test {
 protected:
  NullEditorTest() {
    const std::map<std::string, std::vector<std::string>> files = {
        {"textures",
         {"_default.bmp", "a.bmp", "B.bmp", "\xC3\xBC.bmp", "notes.txt", "concrete.bmp", "_WIN.bmp",
          "red.bmp", "Ice2.bmp", "Blue With Yellow Dot.bmp", "Red Cross on Grey.bmp",
          "buildingFront.bmp", "building Side.bmp", "buildingTop.bmp", "AnimationTest_0.bmp",
          "AnimationTest_1.bmp", "AnimationTest_2.bmp", "AnimationTest_3.bmp"}},
        {"backgrounds", {"_default.jpg", "bk001.jpg", "bk002.jpg"}},
        {"models", {"orb.x", "player.x"}},
        {"misc", {"starParticle.bmp", "shadowimage.bmp"}},
        {"skins", {"StarSkin.bmp", "StarSkin_selected.bmp"}},
        {"levels", {}}};
    for (const auto& [kind, names] : files) {
      std::filesystem::create_directory(folder / kind);
      for (const std::string& name : names) WriteBytes(folder / kind + "/" + name, "");
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
  /// What is on the screen after a frame with this in it.
  template <typename Draw>
  const null_platform::Screen& DrawFrame(Draw draw) {
    DirectX::D3DDevice->BeginScene();
    draw();
    DirectX::D3DDevice->EndScene();
    DirectX::D3DDevice->Present();
    return world->screen;
  }
};
