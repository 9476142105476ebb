// Blocks that no car gets into.
#pragma once

#include <optional>
#include <vector>

#include "check/still_blocks.h"

namespace check {

class SolidBlocks {
 public:
  /// The track must outlive it.
  explicit SolidBlocks(const drive::FrozenTrack& track);

  /// The solid block around all places from which the star can be taken.
  std::optional<int32_t> Around(const drive::FrozenStar& star);

 private:
  enum Answer : uint8_t { Unknown, Yes, No };

  bool IsSolid(int32_t index);
  bool IsBroken(const Extent& block) const;

  StillBlocks blocks_;
  /// Faces stop a car from outside only: what moves, or lets the car climb, may get it past them.
  std::vector<Extent> breakers_;  ///< by their low z
  float longest_ = 0;             ///< of them
  std::vector<Answer> solid_;
};

}  // namespace check
