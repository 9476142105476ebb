#include "bench/scenes.h"

#include "bench/dice.h"
#include "bench/view_volume.h"

namespace bench {
namespace {

constexpr int kGreatestSide = 4;
constexpr float kSmall = 0.15F;

LevelFile EmptyTrack() {
  LevelFile level;
  level.TextureNames = {"brick.bmp",       "concrete.bmp",   "grass.bmp", "marble.bmp",
                        "metal plate.bmp", "red.bmp",        "road.bmp",  "stone wall.bmp",
                        "water.bmp",       "wood planks.bmp"};
  level.BackgroundName = kDefaultBackdrop;
  level.StoredGravity = 10;  // the normal one
  return level;
}

template <size_t N>
void Paint(std::array<int16_t, N>& textures, Dice& dice) {
  for (int16_t& texture : textures) texture = static_cast<int16_t>(dice.Whole(0, 9));
}

template <typename Record>
void PlaceInCorridor(Record& record, Dice& dice) {
  record.Xpos = dice.Single(-50, 50);
  record.Ypos = dice.Single(0, 50);
  record.Zpos = dice.Single(0, 2500);
}

template <typename Record>
void Size(Record& record, Dice& dice, float scale) {
  record.scaleX = scale * dice.Single(1, kGreatestSide);
  record.scaleY = scale * dice.Single(1, kGreatestSide);
  record.scaleZ = scale * dice.Single(1, kGreatestSide);
}

BlockRecord Box(Dice& dice, float scale) {
  BlockRecord box;
  Size(box, dice, scale);
  Paint(box.Textures, dice);
  box.ScaleTextureTop = dice.Once(4) ? 1 : 0;
  box.ScaleTextureSide = dice.Once(4) ? 1 : 0;
  return box;
}

void PlaceInView(BlockRecord& box, Dice& dice) {
  constexpr int kDepth = static_cast<int>(kSceneDepth);
  do {
    box.Xpos = dice.Half(-32, 32);
    box.Ypos = dice.Half(0, 24);
    box.Zpos = dice.Single(kDepth - 18, kDepth + 60);
  } while (!SeesWhole(box, kSceneDepth));
}

BlockRecord CorridorBlock(Dice& dice) {
  BlockRecord block = Box(dice, 1);
  PlaceInCorridor(block, dice);
  return block;
}

PlatformRecord CorridorPlatform(Dice& dice) {
  PlatformRecord platform;
  platform.Box = CorridorBlock(dice);
  platform.Mspeed = dice.Byte(1, 20);
  platform.StartingDir = dice.Byte(clsMovingPlatform::Left, clsMovingPlatform::Right);
  platform.Mdist = dice.Byte(1, 20);
  platform.MloopBack = dice.Once(2) ? 255 : 0;
  return platform;
}

RampRecord CorridorRamp(Dice& dice) {
  RampRecord ramp;
  Size(ramp, dice, 1);
  PlaceInCorridor(ramp, dice);
  Paint(ramp.Textures, dice);
  ramp.Rotation = dice.Byte(0, 3);
  return ramp;
}

StarRecord CorridorStar(Dice& dice) {
  StarRecord star;
  PlaceInCorridor(star, dice);
  return star;
}

void Add(LevelFile& level, Kind kind, Dice& dice) {
  switch (kind) {
    case Kind::Block:
      level.Blocks.push_back(CorridorBlock(dice));
      break;
    case Kind::Ramp:
      level.Ramps.push_back(CorridorRamp(dice));
      break;
    case Kind::Platform:
      level.Platforms.push_back(CorridorPlatform(dice));
      break;
    case Kind::Star:
      level.Stars.push_back(CorridorStar(dice));
      break;
  }
}

}  // namespace

LevelFile BlockTrack(Layout layout, int count, uint32_t seed) {
  Dice dice(seed);
  LevelFile level = EmptyTrack();
  for (int i = 0; i < count; ++i) {
    if (layout == Layout::Corridor) {
      Add(level, Kind::Block, dice);
    } else {
      level.Blocks.push_back(Box(dice, layout == Layout::Small ? kSmall : 1.0F));
      PlaceInView(level.Blocks.back(), dice);
    }
  }
  return level;
}

LevelFile EveryKindTrack(int countOfEach, uint32_t seed) {
  Dice dice(seed);
  LevelFile level = EmptyTrack();
  for (int i = 0; i < countOfEach; ++i) {
    for (const Kind kind : {Kind::Block, Kind::Ramp, Kind::Platform, Kind::Star}) {
      Add(level, kind, dice);
    }
  }
  return level;
}

LevelFile KindTrack(Kind kind, int count, uint32_t seed) {
  Dice dice(seed);
  LevelFile level = EmptyTrack();
  Add(level, Kind::Block, dice);
  for (int i = 0; i < count; ++i) Add(level, kind, dice);
  return level;
}

}  // namespace bench
