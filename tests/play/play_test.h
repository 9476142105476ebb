// Tracks built by hand and driven in play mode on the null device.
#pragma once

#include <string>
#include <vector>

#include "play/CollisionDetection.h"
#include "play/DirectInput.h"
#include "play/clsPlayer.h"
#include "render/clsShadow.h"
#include "tests/support/null_editor.h"
#include "tools/vorbilax_track/drive_run.h"
#include "tools/vorbilax_track/drive_script.h"

struct Size {
  float x, y, z;
};

class PlayTest : public DeviceTest {
 protected:
  using Row = track_tool::DriveRow;

  void SetUp() override {
    DeviceTest::SetUp();
    WriteBytes(folder / "models/player.x", "");
    for (int i = 1; i <= 16; ++i) {
      WriteBytes(folder / ("misc/explode" + std::to_string(i) + ".bmp"), "");
    }
    WriteBytes(folder / "misc/starParticle.bmp", "");
    WriteBytes(folder / "misc/shadowimage.bmp", "");
    Particles = clsParticles();
    Particles.create();
    Shadow = clsShadow();
    Shadow.create();
    Player = clsPlayer();
    Player.load(folder / "models/player.x");
  }
  ~PlayTest() override {
    Player = clsPlayer();
    Shadow = clsShadow();
    Particles = clsParticles();
    DirectInput::KeyState = {};
  }

  static clsblock& AddBlock(const Vector3& at, const Size& size, uint8_t kind = clsblock::Normal) {
    clsblock& block = Append(Document.Blocks, Document.BlockCount);
    block.create(0, 0, 0, 1, 1, 1);
    block.Xpos(at.x);
    block.Ypos(at.y);
    block.Zpos(static_cast<int32_t>(at.z));
    block.scaleX(size.x);
    block.scaleY(size.y);
    block.scaleZ(size.z);
    block.changeactioncode(kind);
    Paint(block, {"A", "B", "C", "D"});
    return block;
  }
  /// Top at height 1, below the car's start and far ahead.
  static clsblock& AddFloor(uint8_t kind = clsblock::Normal) {
    return AddBlock({-20, 0, 0}, {40, 1, 200}, kind);
  }
  static clsRamp& AddRamp(int x, int y, int z, int sx, int sy, int sz, int rotation) {
    clsRamp& ramp = Append(Document.Ramps, Document.RampCount);
    ramp.create(0, 0, 0);
    ramp.Xpos(x);
    ramp.Ypos(y);
    ramp.Zpos(z);
    for (int i = 0; i < rotation; ++i) ramp.rotate();
    ramp.scaleX(static_cast<int16_t>(sx));
    ramp.scaleY(static_cast<int16_t>(sy));
    ramp.scaleZ(static_cast<int16_t>(sz));
    Paint(ramp, {"A", "B"});
    return ramp;
  }
  /// Swings over 10 units of x, 0.05 a frame.
  static clsMovingPlatform& AddPlatform(const Vector3& at, const Size& size, uint8_t direction) {
    clsMovingPlatform& platform = Append(Document.Platforms, Document.PlatformCount);
    platform.create(0, 0, 0);
    platform.Xpos(at.x);
    platform.Ypos(at.y);
    platform.Zpos(at.z);
    platform.scaleX(size.x);
    platform.scaleY(size.y);
    platform.scaleZ(size.z);
    platform.Mdir(direction);
    platform.Mspeed(5);
    platform.Mdist(10);
    platform.MloopBack(true);
    Paint(platform, {"A", "B", "C", "D"});
    return platform;
  }
  static clsStar& AddStar(int x, int y, int z) {
    clsStar& star = Append(Document.Stars, Document.StarCount);
    star.load(paths::InInstallFolder("\\models\\orb.x"));
    star.Xpos(x);
    star.Ypos(y);
    star.Zpos(z);
    return star;
  }

  /// Enters play mode and runs the script; what each frame ended with.
  static std::vector<Row> Run(const std::string& script) {
    track_tool::Drive drive;
    return Continue(drive, script);
  }
  static std::vector<Row> Continue(track_tool::Drive& drive, const std::string& script) {
    std::vector<Row> rows;
    for (const track_tool::KeyRun& run : track_tool::ParseScript(script)) {
      for (int i = 0; i < run.frames; ++i) rows.push_back(drive.Step(KeysOf(run)));
    }
    return rows;
  }
  static Row Last(const std::string& script) { return Run(script).back(); }
  /// The first row with this event; frame 0 when there is none.
  static Row FirstWith(const std::vector<Row>& rows, const std::string& event) {
    for (const Row& row : rows) {
      if (row.event == event) return row;
    }
    return {};
  }

 private:
  template <typename Object>
  static Object& Append(std::vector<Object>& objects, int32_t& count) {
    ++count;
    return objects.emplace_back();
  }
  template <typename Object>
  static void Paint(Object& object, const std::vector<std::string>& faces) {
    for (const std::string& face : faces) {
      object.Texture("_default.bmp", face, Document.TextureDir);
    }
  }
};

/// Frames from the start until the car's box stands on a floor at height 1.
inline constexpr int kLanding = 14;
inline const std::string kLand = std::to_string(kLanding) + " -\n";
/// Height of a car that stands on a floor at height 1.
inline constexpr float kStanding = 1.001F;
/// How near sums of Singles come to the exact number.
inline constexpr float kNear = 2e-5F;

/// A script line.
inline std::string Frames(int count, const std::string& keys) {
  return std::to_string(count) + " " + keys + "\n";
}
