// Which states are near enough to each other for one of them to stand for all.
#pragma once

#include <cstdint>
#include <vector>

#include "drive/frozen_track.h"

namespace search {

class StateCells {
 public:
  /// The scales make cells finer: 1, 1/2, 1/4; along the track more than otherwise where a jump
  /// must begin at the very edge. The track must outlive this.
  StateCells(const drive::FrozenTrack& track, double scale, double scaleAlong);

  /// The number of the state's cell; states of other cells have another, but for a few in 2^64.
  /// At an edge, where little decides over a jump, they are finer.
  uint64_t Of(const drive::DriveState& state, bool atEdge) const;

 private:
  const drive::FrozenTrack* track_;
  double scale_, scaleAlong_;
  std::vector<int32_t> byFarEnd_;  ///< platforms, those that end first before the others
};

}  // namespace search
