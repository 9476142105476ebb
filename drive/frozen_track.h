// The document's track as plain numbers, as play would begin with it: what a car can meet, found by
// its depth. A car drives through it without objects, window or device, bit for bit as it drives
// through the objects, a hundred times as fast.
#pragma once

#include <cstdint>
#include <vector>

#include "drive/depth_index.h"
#include "drive/drive_state.h"
#include "drive/platform_way.h"
#include "level/collision_plane.h"
#include "level/extent.h"
#include "play/collision_answers.h"

namespace drive {

struct FrozenBlock {
  Extent box;
  int16_t kind = 0;
};

struct FrozenPlatform {
  Extent box;               ///< at its start
  mutable PlatformWay way;  ///< works itself out
};

struct FrozenRamp {
  Extent box;
  uint8_t rotation = 0;
  float gradient = 0;
  CollisionPlane slope;
};

struct FrozenStar {
  double x, y, z;
};

class FrozenTrack {
 public:
  FrozenTrack() = default;
  /// Of the track that stands in the document in edit mode, as a save and a read would give it.
  static FrozenTrack OfDocument();

  /// Runs one frame of play; after a dead one it starts over. The places of platforms are kept as
  /// they are worked out, so one thread at a time may drive here.
  StepEvents Step(DriveState& state, CarKeys keys) const;

  float Gravity() const { return gravity_; }
  const std::vector<FrozenBlock>& Blocks() const { return blocks_; }
  const std::vector<FrozenPlatform>& Platforms() const { return platforms_; }
  const std::vector<FrozenRamp>& Ramps() const { return ramps_; }
  const std::vector<FrozenStar>& Stars() const { return stars_; }

  /// The pieces whose footprint holds the car's next place, by kind, each in ascending order.
  struct Near;
  void FindNear(const DriveState& state, Near& near) const;
  /// Calls visit(index) for the stars that may be within reach of the point.
  template <typename Visit>
  void VisitStarsNear(const Vector3& point, Visit visit) const {
    starIndex_.At(point.x, point.z, visit);
  }

 private:
  void AddBlocks(std::vector<Reach>& reaches);
  void AddPlatforms(std::vector<Reach>& reaches);
  void AddRamps(std::vector<Reach>& reaches);
  void AddStars();

  float gravity_ = 0;
  std::vector<FrozenBlock> blocks_;
  std::vector<FrozenPlatform> platforms_;
  std::vector<FrozenRamp> ramps_;
  std::vector<FrozenStar> stars_;
  DepthIndex index_, starIndex_;
};

/// A short list of indices; long ones are rare.
class IndexList {
 public:
  void Add(int32_t index) {
    if (count_ < few_.size()) {
      few_[count_++] = index;
      return;
    }
    if (many_.empty()) many_.assign(few_.begin(), few_.end());
    many_.push_back(index);
    ++count_;
  }
  const int32_t* begin() const { return many_.empty() ? few_.data() : many_.data(); }
  const int32_t* end() const { return begin() + count_; }
  void Sort() {
    int32_t* const first = many_.empty() ? few_.data() : many_.data();
    std::sort(first, first + count_);
  }

 private:
  std::array<int32_t, 24> few_;
  size_t count_ = 0;
  std::vector<int32_t> many_;
};

struct FrozenTrack::Near {
  IndexList blocks, platforms, ramps;
};

}  // namespace drive
