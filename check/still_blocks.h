// The blocks of a track that stay where they are, found by place.
#pragma once

#include <cstdint>

#include "drive/frozen_track.h"

namespace check {

/// It falls or bounces when it is driven on.
bool Moves(const drive::FrozenBlock& block);

class StillBlocks {
 public:
  /// The track must outlive it.
  explicit StillBlocks(const drive::FrozenTrack& track);

  const Extent& Box(int32_t index) const { return blocks_[static_cast<size_t>(index)].box; }
  /// Calls visit(index) for those over whose ground the point lies, not on its rim.
  template <typename Visit>
  void At(double x, double z, Visit visit) const {
    index_.At(x, z, visit);
  }
  /// How many blocks that looks at.
  size_t Effort(double z) const { return index_.Effort(z); }

 private:
  const std::vector<drive::FrozenBlock>& blocks_;
  drive::DepthIndex index_;
};

}  // namespace check
