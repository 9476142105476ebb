// Random tracks in the document: roads that a car gets along on for a while, with pieces of every
// kind around it, some of them as no sane person would build them.
#pragma once

#include <random>

#include "play/car.h"
#include "tests/support/null_editor.h"

class RandomTrack {
 public:
  explicit RandomTrack(uint32_t seed) : random_(seed) {}

  /// Replaces the document's pieces.
  void Build() {
    static_cast<PieceCollections&>(Document) = {};
    Document.Gravity = Chance(4) ? kLowGravity : Chance(9) ? Between(0.001, 0.2) : kNormalGravity;
    Block({-4, 0, 0}, {8, 1, 4}, 0);  // a track needs one
    float z = 4;
    for (int section = Whole(3, 24); section > 0; --section) z = AddSection(z);
    for (int odd = Whole(0, 6); odd > 0; --odd) AddOddPiece(z);
    Edit();
  }
  CarKeys NextKeys() {
    int keys = Chance(3) ? 0 : kUpKey;
    if (Chance(6)) keys |= kDownKey;
    if (Chance(8)) keys |= Chance(2) ? kLeftKey : kRightKey;
    if (Chance(4)) keys |= kJumpKey;
    return static_cast<CarKeys>(keys);
  }
  int Whole(int low, int high) { return std::uniform_int_distribution(low, high)(random_); }

 private:
  bool Chance(int oneIn) { return Whole(1, oneIn) == 1; }
  float Between(double low, double high) {
    return static_cast<float>(std::uniform_real_distribution(low, high)(random_));
  }
  template <typename Object>
  Object& Append(std::vector<Object>& objects, int32_t& count) {
    ++count;
    return objects.emplace_back();
  }
  template <typename Object>
  void Texture(Object& object) {
    for (const char* face : {"A", "B", "C", "D"}) {
      object.Texture("_default.bmp", face, Document.TextureDir);
    }
  }

  clsblock& Block(const Vector3& at, const Vector3& size, int kind) {
    clsblock& block = Append(Document.Blocks, Document.BlockCount);
    block.create(0, 0, 0, 1, 1, 1);
    PutPiece(block, at, size).changeactioncode(static_cast<uint8_t>(kind));
    Texture(block);
    return block;
  }
  clsRamp& Ramp(const Vector3& at, const Vector3& size, int rotation) {
    clsRamp& ramp = Append(Document.Ramps, Document.RampCount);
    ramp.create(0, 0, 0);
    for (int i = 0; i < rotation; ++i) ramp.rotate();
    PutPiece(ramp, at, size);
    Texture(ramp);
    return ramp;
  }
  clsMovingPlatform& Platform(const Vector3& at, const Vector3& size) {
    clsMovingPlatform& platform = Append(Document.Platforms, Document.PlatformCount);
    platform.create(0, 0, 0);
    PutPiece(platform, at, size);
    platform.Mdir(static_cast<uint8_t>(Chance(8) ? Whole(0, 5) : Whole(2, 3)));
    platform.Mspeed(static_cast<uint8_t>(Chance(8) ? Whole(0, 255) : Whole(1, 20)));
    platform.Mdist(static_cast<uint8_t>(Chance(8) ? Whole(0, 255) : Whole(1, 10)));
    platform.MloopBack(!Chance(3));
    Texture(platform);
    return platform;
  }
  void Star(const Vector3& at) {
    clsStar& star = Append(Document.Stars, Document.StarCount);
    star.load(paths::InInstallFolder("\\models\\orb.x"));
    star.Xpos(static_cast<int32_t>(at.x));
    star.Ypos(static_cast<int32_t>(at.y));
    star.Zpos(static_cast<int32_t>(at.z));
  }

  int Kind() {
    constexpr std::array kinds = {0, 0, 0, 0, 2, 2, 3, 3, 4, 4, 4, 5, 6, 1, 10, 9};
    return kinds[static_cast<size_t>(Whole(0, kinds.size() - 1))];
  }
  /// A piece of road from this depth on; where the next may begin.
  float AddSection(float z) {
    const Vector3 at{Chance(3) ? Between(-5, -2) : static_cast<float>(Whole(-6, -2)),
                     Chance(3) ? Between(0, 1.5) : static_cast<float>(Whole(0, 1)), z};
    const Vector3 size{static_cast<float>(Whole(5, 14)), Chance(3) ? Between(0.2, 2) : 1,
                       static_cast<float>(Whole(2, 14))};
    switch (Whole(0, 5)) {
      case 0:
        Platform(at, size);
        break;
      case 1:
        Ramp({std::round(at.x), std::round(at.y), z}, {size.x, std::ceil(size.y), size.z},
             Whole(0, 3));
        break;
      default:
        Block(at, size, Kind());
    }
    for (int star = Whole(0, 2); star > 0; --star) {
      Star({static_cast<float>(Whole(-2, 2)), static_cast<float>(Whole(1, 3)),
            z + static_cast<float>(Whole(0, 10))});
    }
    if (Chance(6)) AddObstacle(z, size.z);
    return z + size.z + static_cast<float>(Chance(3) ? Whole(0, 5) : 0);
  }
  void AddObstacle(float z, float length) {
    const Vector3 at{Between(-4, 3), Between(1, 3), z + std::floor(Between(0, length))};
    const Vector3 size{Between(0.5, 4), Between(0.2, 2), static_cast<float>(Whole(1, 4))};
    if (Chance(3)) {
      Platform(at, size);
    } else {
      Block(at, size, Kind());
    }
  }

  float Odd() {
    constexpr std::array values = {0.0F, 1e-7F, 1e-20F, 0.05F, 1e6F, 3e7F, 1e9F, 40.0F, 2.5F};
    return values[static_cast<size_t>(Whole(0, values.size() - 1))];
  }
  void AddOddPiece(float end) {
    const float z = std::floor(Between(0, std::max(1.0F, end)));
    switch (Whole(0, 4)) {
      case 0:
        Block({-Odd() / 2, Chance(2) ? -0.75F : 0, Chance(4) ? 1e6F : z}, {Odd(), Odd(), Odd()},
              Kind());
        break;
      case 1:
        Ramp({static_cast<float>(Whole(-3, 3)), 0, z},
             {static_cast<float>(Whole(-4, 6)), static_cast<float>(Whole(-4, 6)),
              static_cast<float>(Whole(-4, 6))},
             Whole(0, 3));
        break;
      case 2:
        Platform({Chance(3) ? -Odd() : Between(-9, 9), Between(-0.9, 2), Between(0, end)},
                 {Odd(), Odd(), Odd()});
        break;
      case 3:
        Star({static_cast<float>(Whole(-2, 2)), 0, z});
        break;
      default:
        Block({-30, 0, 0}, {60, 0.25F, 400}, Chance(2) ? 0 : Kind());
    }
  }
  /// Leaves planes behind and platforms on their way, as editing does.
  void Edit() {
    for (int i = Whole(0, 30); i > 0; --i) {
      for (clsMovingPlatform& platform : Document.Platforms) platform.move();
    }
    for (clsblock& block : Document.Blocks) {
      if (Chance(5)) block.Xpos(block.Xpos() + static_cast<float>(Whole(-1, 1)));
    }
    for (clsRamp& ramp : Document.Ramps) {
      if (Chance(4)) ramp.Ypos(ramp.Ypos() + Whole(0, 1));
    }
  }

  std::mt19937 random_;
};
