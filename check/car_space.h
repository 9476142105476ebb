// How far a car can come on a track.
#pragma once

#include "drive/frozen_track.h"

namespace check {

/// A box that no car leaves, rather too large than too small; endless where cars fly without end.
struct CarSpace {
  double lowX = 0, highX = 0, highY = 0, highZ = 0;
};
CarSpace CarSpaceOf(const drive::FrozenTrack& track);

}  // namespace check
