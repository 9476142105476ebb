#include "bench/roads.h"

#include <algorithm>

#include "bench/dice.h"
#include "level/clsblock.h"

namespace bench {
namespace {

class RoadBuilder {
 public:
  explicit RoadBuilder(uint32_t seed) : dice_(seed) {
    level_.TextureNames = {kDefaultTexture};
    level_.BackgroundName = FixedText<50>(kDefaultBackdrop);
    level_.StoredGravity = StoredGravityOf(kNormalGravity);
    Floor(12, 6);
  }

  void AddSection() {
    // A run-up between whatever needs one.
    Floor(Whole(6, 16), Whole(3, 7));
    switch (Whole(0, 13)) {
      case 0:
        z_ += Whole(3, 12);
        break;
      case 1:
        x_ = std::clamp(x_ + Whole(-3, 3), -20, 20);
        break;
      case 2:
        y_ = std::min(y_ + Whole(1, 2), 30);
        break;
      case 3:
        y_ = std::max(y_ - Whole(1, 3), 0);
        break;
      case 4:
        Slope();
        break;
      case 5:
        Shuttle();
        break;
      case 6:
        FallingSteps();
        break;
      case 7:
        Block(clsblock::Ice, {float(x_ - 3), float(y_), float(z_)}, {6, 1, 14});
        z_ += 14;
        break;
      case 8:
        Pad(clsblock::TurboPad);
        z_ += Whole(8, 20);
        break;
      case 9:
        Pad(clsblock::JumpPad);
        z_ += Whole(2, 5);
        y_ = std::min(y_ + 3, 30);
        break;
      case 10:
        KillOnOneSide();
        break;
      case 11:
        Door();
        break;
      case 12:
        SideLanes();
        break;
      default:
        Stones();
    }
  }

  LevelFile Finish() {
    Floor(10, 6);
    Block(clsblock::WinLevel, {float(x_ - 3), float(y_), float(z_)}, {6, 1, 4});
    return std::move(level_);
  }

 private:
  int Whole(int low, int high) { return dice_.Whole(low, high); }

  void Block(uint8_t kind, const Vector3& at, const Vector3& size) {
    BlockRecord record{at.x, at.y, at.z, size.x, size.y, size.z};
    record.changeactioncode = kind;
    level_.Blocks.push_back(record);
  }
  /// A floor of this length and width from here on, a star over it.
  void Floor(int length, int width) {
    const float left = static_cast<float>(x_) - static_cast<float>(width) / 2;
    Block(clsblock::Normal, {left, float(y_), float(z_)}, {float(width), 1, float(length)});
    level_.Stars.push_back({float(x_), float(y_ + 1), float(z_) + float(length) / 2});
    z_ += length;
  }
  void Slope() {
    const int rise = Whole(1, 3), length = Whole(4, 8);
    level_.Ramps.push_back(
        {float(x_ - 3), float(y_ + 1), float(z_), 6, float(rise), float(length), {}, 0});
    Block(clsblock::Normal, {float(x_ - 3), float(y_), float(z_)}, {6, 1, float(length)});
    z_ += length;
    y_ += rise;
  }
  void Shuttle() {
    z_ += 2;
    PlatformRecord record;
    record.Box = {float(x_ - 3), float(y_), float(z_), 6, 1, 6};
    record.Mspeed = static_cast<uint8_t>(Whole(3, 10));
    record.Mdist = static_cast<uint8_t>(Whole(2, 6));
    record.StartingDir = static_cast<uint8_t>(Whole(2, 3));
    record.MloopBack = 255;
    level_.Platforms.push_back(record);
    z_ += 8;
  }
  void FallingSteps() {
    for (int i = Whole(2, 4); i > 0; --i) {
      Block(clsblock::FallingBlock, {float(x_ - 2), float(y_), float(z_ + 1)}, {4, 1, 3});
      z_ += 4;
    }
    z_ += 1;
  }
  void Pad(uint8_t kind) {
    Block(kind, {float(x_ - 2), float(y_), float(z_)}, {4, 1, 4});
    z_ += 4;
  }
  void KillOnOneSide() {
    const int side = Whole(0, 1);
    Block(clsblock::Normal, {float(x_ - 3), float(y_), float(z_)}, {6, 1, 10});
    Block(clsblock::InstantKill, {float(x_ - 3 + 3 * side), float(y_), float(z_ + 3)}, {3, 1, 3});
    z_ += 10;
  }

  /// A wall too high to jump, with a door somewhere.
  void Door() {
    const int door = Whole(-4, 2);
    Block(clsblock::Normal, {float(x_ - 5), float(y_), float(z_)}, {10, 1, 14});
    Block(clsblock::Building, {float(x_ - 5), float(y_ + 1), float(z_ + 9)},
          {float(door + 5), 4, 1});
    Block(clsblock::Building, {float(x_ + door + 2), float(y_ + 1), float(z_ + 9)},
          {float(3 - door), 4, 1});
    z_ += 14;
  }
  /// Three lanes; only one goes on.
  void SideLanes() {
    const int open = Whole(-1, 1);
    Block(clsblock::Normal, {float(x_ - 7), float(y_), float(z_)}, {14, 1, 8});
    z_ += 8;
    for (int lane = -1; lane <= 1; ++lane) {
      const float length = lane == open ? 20 : float(Whole(4, 10));
      Block(clsblock::Normal, {float(x_ + 5 * lane - 1), float(y_), float(z_)}, {2, 1, length});
    }
    z_ += 20;
    x_ += 5 * open;
  }
  /// Small ones, one jump apart, to and fro.
  void Stones() {
    for (int i = Whole(2, 4); i > 0; --i) {
      z_ += Whole(4, 9);
      Block(clsblock::Normal, {float(x_ + Whole(-2, 1)), float(y_), float(z_)}, {1, 1, 2});
      z_ += 2;
    }
    z_ += Whole(2, 6);
  }

  Dice dice_;
  LevelFile level_;
  int x_ = 0, y_ = 0, z_ = 0;
};

}  // namespace

LevelFile Road(int sections, uint32_t seed) {
  RoadBuilder road(seed);
  for (int i = 0; i < sections; ++i) road.AddSection();
  return road.Finish();
}

}  // namespace bench
