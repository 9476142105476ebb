// Tracks built by hand and driven in play mode on the null device.
#pragma once

#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "drive/key_script.h"
#include "drive/object_drive.h"
#include "play/CollisionDetection.h"
#include "play/DirectInput.h"
#include "play/clsPlayer.h"
#include "render/frame/clsShadow.h"
#include "tests/support/null_editor.h"

class PlayTest : public DeviceTest {
 protected:
  using Row = drive::Row;

  void SetUp() override {
    DeviceTest::SetUp();
    Particles.create();
    Shadow.create();
    Player.load(folder / "models/player.x");
  }
  ~PlayTest() override {
    Player = clsPlayer();
    Shadow = clsShadow();
    Particles = clsParticles();
    DirectInput::KeyState = {};
  }

  static clsblock& AddBlock(const Vector3& at, const Vector3& size,
                            uint8_t kind = clsblock::Normal) {
    clsblock& block = Append(Document.Blocks, Document.BlockCount);
    block.create(0, 0, 0, 1, 1, 1);
    block.changeactioncode(kind);
    return Put(block, at, size);
  }
  /// Top at height 1, below the car's start and far ahead.
  static clsblock& AddFloor(uint8_t kind = clsblock::Normal) {
    return AddBlock({-20, 0, 0}, {40, 1, 200}, kind);
  }
  static clsRamp& AddRamp(const Vector3& at, const Vector3& size, int rotation) {
    clsRamp& ramp = Append(Document.Ramps, Document.RampCount);
    ramp.create(0, 0, 0);
    for (int i = 0; i < rotation; ++i) ramp.rotate();
    return Put(ramp, at, size);
  }
  /// Swings over 10 units of x, 0.05 a frame.
  static clsMovingPlatform& AddPlatform(const Vector3& at, const Vector3& size, uint8_t direction) {
    clsMovingPlatform& platform = Append(Document.Platforms, Document.PlatformCount);
    platform.create(0, 0, 0);
    Put(platform, at, size);
    platform.Mdir(direction);
    platform.Mspeed(5);
    platform.Mdist(10);
    platform.MloopBack(true);
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
  static void RemoveRamps() {
    Document.RampCount = -1;
    Document.Ramps.clear();
  }

  /// Enters play mode and runs the script; what each frame ended with.
  std::vector<Row> Run(const std::string& script) {
    drive_.emplace();
    return Continue(script);
  }
  std::vector<Row> RunFrom(const Vector3& at, const std::string& script) {
    drive_.emplace();
    PlaceCar(at);
    return Continue(script);
  }
  std::vector<Row> Continue(const std::string& script) {
    std::vector<Row> rows;
    for (const drive::KeyRun& run : drive::ParseScript(script)) {
      for (int i = 0; i < run.frames; ++i) rows.push_back(drive_->Step(run.keys));
    }
    return rows;
  }
  static void PlaceCar(const Vector3& at) {
    Player.Posx(at.x);
    Player.PosY(at.y);
    Player.Posz(at.z);
  }
  Row Last(const std::string& script) { return Run(script).back(); }
  /// The first row with this event; frame 0 when there is none.
  static Row FirstWith(const std::vector<Row>& rows, const std::string& event) {
    const auto found = std::ranges::find(rows, event, &Row::event);
    return found == rows.end() ? Row{} : *found;
  }

 private:
  template <typename Object>
  static Object& Append(std::vector<Object>& objects, int32_t& count) {
    ++count;
    return objects.emplace_back();
  }
  template <typename Object>
  static Object& Put(Object& object, const Vector3& at, const Vector3& size) {
    PutPiece(object, at, size);
    for (const char face : {'A', 'B', 'C', 'D'}) {
      object.Texture("_default.bmp", {face}, Document.TextureDir);
    }
    return object;
  }
  std::optional<drive::ObjectDrive> drive_;
};

/// Frames from the start until the car's box stands on a floor at height 1.
inline constexpr int kLanding = 14;
inline const std::string kLand = "14 -\n";
/// Height of a car that stands on a floor at height 1.
inline constexpr float kStanding = 1.001F;
/// How near sums of Singles come to the exact number.
inline constexpr float kNear = 2e-5F;
/// Whether the numbers are near what they should be.
inline testing::AssertionResult Near(const std::vector<double>& seen,
                                     const std::vector<double>& expected) {
  for (size_t i = 0; i < expected.size(); ++i) {
    if (std::abs(seen.at(i) - expected[i]) < kNear) continue;
    return testing::AssertionFailure() << seen[i] << " instead of " << expected[i];
  }
  return testing::AssertionSuccess();
}
