#include "assets/tracks.h"

#include <algorithm>
#include <array>

#include "assets/tracks_looks.h"
#include "assets/tracks_parts.h"
#include "files/level_format.h"

namespace art {
namespace {

using namespace tracks;

constexpr float kStoredNormalGravity = 10, kStoredLowGravity = 5;

int16_t TextureIndex(LevelFile& level, const char* name) {
  auto& names = level.TextureNames;
  const auto found = std::ranges::find(names, name);
  const auto index = static_cast<int16_t>(found - names.begin());
  if (found == names.end()) names.emplace_back(name);
  return index;
}

BlockRecord Box(LevelFile& level, Look look, const Place& at, const Size& size) {
  const BoxLook& style = StyleOf(look);
  BlockRecord box{.Xpos = at.x,
                  .Ypos = at.y,
                  .Zpos = static_cast<float>(at.z),
                  .scaleX = size.x,
                  .scaleY = size.y,
                  .scaleZ = size.z,
                  .Textures = {},
                  .ScaleTextureTop = style.stretchTop,
                  .ScaleTextureSide = style.stretchSide,
                  .changeactioncode = style.kind};
  const std::array names = {style.front, style.side, style.side, style.top};
  std::ranges::transform(names, box.Textures.begin(),
                         [&](const char* name) { return TextureIndex(level, name); });
  return box;
}

Place Step(const Place& at, const Place& step, int times) {
  const auto factor = static_cast<float>(times);
  return {at.x + factor * step.x, at.y + factor * step.y, at.z + times * step.z};
}

/// Hands `add` every place of a row of objects this wide, and whether it is a mirrored one.
template <typename Add>
void Lay(const Place& first, const Repeat& repeat, float width, Add add) {
  for (int i = 0; i < repeat.count; ++i) {
    const Place at = Step(first, repeat.step, i);
    add(at, false);
    if (repeat.mirrored) add(Place{-at.x - width, at.y, at.z}, true);
  }
}

void AddPlatform(LevelFile& level, const PlatformRow& row) {
  PlatformRecord platform;
  platform.Box = Box(level, row.look, row.at, row.size);
  platform.Mspeed = row.speed;
  platform.StartingDir = static_cast<uint8_t>(row.heading);
  platform.Mdist = row.distance;
  platform.MloopBack = row.loops ? 255 : 0;
  level.Platforms.push_back(platform);
}

void AddRamp(LevelFile& level, const RampRow& row, const Place& at, Rises rises) {
  const BoxLook& style = StyleOf(row.look);
  level.Ramps.push_back(
      {.Xpos = at.x,
       .Ypos = at.y,
       .Zpos = static_cast<float>(at.z),
       .scaleX = row.size.x,
       .scaleY = row.size.y,
       .scaleZ = row.size.z,
       .Textures = {TextureIndex(level, style.top), TextureIndex(level, style.side)},
       .Rotation = static_cast<uint8_t>(rises)});
}

/// The other side's ramp rises the other way.
Rises Mirror(Rises rises) {
  if (rises == Rises::Left) return Rises::Right;
  return rises == Rises::Right ? Rises::Left : rises;
}

void AddRamps(LevelFile& level, const RampRow& row) {
  Lay(row.at, row.repeat, row.size.x, [&](const Place& at, bool mirrored) {
    AddRamp(level, row, at, mirrored ? Mirror(row.rises) : row.rises);
  });
}

/// Blocks, platforms, ramps: the order in which a save meets the textures.
TrackFile Build(const Track& track) {
  LevelFile level;
  level.TrackRecords.emplace().RecordNames.fill("No Record");
  level.BackgroundName = track.backdrop;
  level.StoredGravity = track.lowGravity ? kStoredLowGravity : kStoredNormalGravity;
  for (const BoxRow& row : track.boxes) {
    Lay(row.at, row.repeat, row.size.x,
        [&](const Place& at, bool) { level.Blocks.push_back(Box(level, row.look, at, row.size)); });
  }
  for (const PlatformRow& row : track.platforms) AddPlatform(level, row);
  for (const RampRow& row : track.ramps) AddRamps(level, row);
  for (const StarRow& row : track.stars) {
    Lay(row.at, row.repeat, 0, [&](const Place& at, bool) {
      level.Stars.push_back({at.x, at.y, static_cast<float>(at.z)});
    });
  }
  return {track.file, SerializeLevel(level)};
}

}  // namespace

std::vector<TrackFile> Tracks() {
  return {Build(FirstSteps()),     Build(TwistAndHop()),   Build(FrozenAvenue()),
          Build(SkylineShuttle()), Build(EmberFields()),   Build(StarChaser()),
          Build(NoWayAcross()),    Build(TheLongWayHome())};
}

}  // namespace art
