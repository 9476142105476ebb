// Places where a car can stand: samples of the tops of all pieces that do not kill.
#pragma once

#include <cstdint>
#include <vector>

#include "drive/frozen_track.h"

namespace search {

/// One sample. All of it is generous: what a car may do from here or how it may get here, it never
/// does more.
struct Node {
  float x = 0, y = 0, z = 0;
  float slackX = 0, slackZ = 0;  ///< how far from it the car may be and still count as here
  float lowest = 0;              ///< height at which the car may come to stand here
  float highest = 0;             ///< height from which it may leave
  float launch = 0;              ///< upward speed with which it may leave
  int32_t platform = -1;         ///< that it belongs to; it may be there at some times only
  int32_t falling = -1;          ///< block that it belongs to; it stays until it is touched
  bool anyTime = false;          ///< met on the way up, too: ramps, and tops that move up and down
  bool win = false;
};

struct NodeSet {
  std::vector<Node> nodes;
  float fastest = 0;   ///< forward speed that no car exceeds, world units per frame
  float sideways = 0;  ///< the same across the track, where no platform pushes
};

NodeSet NodesOf(const drive::FrozenTrack& track);

}  // namespace search
