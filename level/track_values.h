// The track-wide values that objects read. The level document contains them.
#pragma once

#include <string>

struct TrackValues {
  float Gravity = 0.025F;  ///< downward acceleration, world units per frame²
  std::string TextureDir;  ///< folder of all texture pictures, with trailing separator
};

/// The values of the one level document.
TrackValues& Track();
