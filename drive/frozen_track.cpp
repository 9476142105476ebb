#include "drive/frozen_track.h"

#include <cmath>

#include "files/level_format.h"
#include "level/footprint.h"
#include "level/globals.h"
#include "level/ramp_tables.h"

namespace drive {
namespace {

constexpr int kKindShift = 28;
constexpr int32_t kIndexMask = (1 << kKindShift) - 1;
enum PieceKindCode : int32_t { BlockPiece = 0, PlatformPiece = 1, RampPiece = 2 };

/// The ground inside which the footprint test can hold, and a little more than rounding costs.
/// `slide` is how far the piece may be from its start along x.
Reach ReachOf(const Extent& box, double slide, PieceKindCode kind, size_t index) {
  const auto slack = [](double at) { return 0.01 + 1e-5 * std::abs(at); };
  const auto low = [&](double at) { return static_cast<float>(at - 1 - slack(at)); };
  const auto high = [&](double at) { return static_cast<float>(at + 1 + slack(at)); };
  return {low(box.corner.x - slide), high(double{box.corner.x} + box.size.x + slide),
          low(box.corner.z), high(double{box.corner.z} + box.size.z),
          static_cast<int32_t>(index) | kind << kKindShift};
}

/// The values that a read leaves where a record's are refused.
float Above(float limit, float value, float otherwise) { return value > limit ? value : otherwise; }

Extent BlockAsRead(const clsblock& block) {
  return {
      {block.Xpos(), Above(-1, block.Ypos(), 0), Above(-1, ToSingle(block.Zpos()), 0)},
      {Above(0, block.scaleX(), 1), Above(0, block.scaleY(), 1), Above(0, block.scaleZ(), 0.9F)}};
}

Extent PlatformAsRead(const clsMovingPlatform& platform) {
  return {{platform.GetInitalXpos(), Above(-1, platform.GetInitalYpos(), 0),
           Above(-1, platform.GetInitalZpos(), 0)},
          {Above(0, platform.scaleX(), 0), Above(0, platform.scaleY(), 0),
           Above(0, platform.scaleZ(), 0)}};
}

Extent RampAsRead(const clsRamp& ramp) {
  return {{ToSingle(ramp.Xpos()), Above(-1, ToSingle(ramp.Ypos()), 0),
           Above(-1, ToSingle(ramp.Zpos()), 0)},
          {static_cast<float>(ramp.scaleX()), static_cast<float>(ramp.scaleY()),
           static_cast<float>(ramp.scaleZ())}};
}

}  // namespace

FrozenTrack FrozenTrack::OfDocument() {
  FrozenTrack track;
  track.gravity_ = GravityOf(StoredGravityOf(Document.Gravity));
  std::vector<Reach> reaches;
  reaches.reserve(Document.Blocks.size() + Document.Platforms.size() + Document.Ramps.size());
  track.AddBlocks(reaches);
  track.AddPlatforms(reaches);
  track.AddRamps(reaches);
  track.index_ = DepthIndex(reaches);
  track.AddStars();
  return track;
}

void FrozenTrack::AddBlocks(std::vector<Reach>& reaches) {
  const auto blocks = Live(Document.Blocks, Document.BlockCount);
  blocks_.reserve(blocks.size());
  for (const clsblock& block : blocks) {
    const Extent box = BlockAsRead(block);
    reaches.push_back(ReachOf(box, 0, BlockPiece, blocks_.size()));
    blocks_.push_back({box, block.changeactioncode()});
  }
}

void FrozenTrack::AddPlatforms(std::vector<Reach>& reaches) {
  const auto platforms = Live(Document.Platforms, Document.PlatformCount);
  platforms_.reserve(platforms.size());
  for (const clsMovingPlatform& platform : platforms) {
    const Extent box = PlatformAsRead(platform);
    reaches.push_back(ReachOf(box, platform.Mdist(), PlatformPiece, platforms_.size()));
    platforms_.push_back({box, PlatformWay(platform.Travel(), {box.corner.x, box.corner.x,
                                                               platform.GetinitalMDir()})});
  }
}

void FrozenTrack::AddRamps(std::vector<Reach>& reaches) {
  constexpr int kSlope = 3;
  const auto ramps = Live(Document.Ramps, Document.RampCount);
  ramps_.reserve(ramps.size());
  for (const clsRamp& ramp : ramps) {
    const Extent box = RampAsRead(ramp);
    const uint8_t rotation = ramp.GetRotation() % 4;
    reaches.push_back(ReachOf(box, 0, RampPiece, ramps_.size()));
    ramps_.push_back({box, rotation, ramp::Gradient(rotation, box.size),
                      ramp::Plane(rotation, box.corner, box.size, kSlope)});
  }
}

void FrozenTrack::AddStars() {
  const auto stars = Live(Document.Stars, Document.StarCount);
  std::vector<Reach> reaches;
  reaches.reserve(stars.size());
  stars_.reserve(stars.size());
  for (const clsStar& star : stars) {
    const float y = Above(-1, ToSingle(star.Ypos()), 0), z = Above(-1, ToSingle(star.Zpos()), 0);
    const Extent box{{ToSingle(star.Xpos()), y, z}, {1, 1, 1}};
    reaches.push_back(ReachOf(box, 0, BlockPiece, stars_.size()));
    stars_.push_back({double{box.corner.x}, double{y}, double{z}});
  }
  starIndex_ = DepthIndex(reaches);
}

void FrozenTrack::FindNear(const DriveState& state, Near& near) const {
  const Car& car = state.car;
  const double x = double{car.position.x} + car.velocity.x;
  const double z = double{car.position.z} + car.velocity.z;
  const auto within = [x, z](const Extent& box, float boxX) {
    return WithinFootprint(x, z, boxX, box.corner.z, box.size.x, box.size.z);
  };
  index_.At(x, z, [&](int32_t piece) {
    const int32_t index = piece & kIndexMask;
    const auto slot = static_cast<size_t>(index);
    switch (piece >> kKindShift) {
      case BlockPiece:
        if (within(blocks_[slot].box, blocks_[slot].box.corner.x)) near.blocks.Add(index);
        break;
      case PlatformPiece: {
        const FrozenPlatform& platform = platforms_[slot];
        const float at = platform.way.At(static_cast<size_t>(state.platformSteps)).x;
        if (within(platform.box, at)) near.platforms.Add(index);
        break;
      }
      default:
        if (within(ramps_[slot].box, ramps_[slot].box.corner.x)) near.ramps.Add(index);
    }
  });
  near.blocks.Sort();
  near.platforms.Sort();
  near.ramps.Sort();
}

}  // namespace drive
