// What the camera of the measurements sees.
#pragma once

#include "files/level_format.h"

namespace bench {

/// Whether the camera at (0, 25, depth - 18) that looks at (0, 8, depth) sees all of the box.
bool SeesWhole(const BlockRecord& box, float depth);

}  // namespace bench
