// Tracks that can be driven: sections one behind the other, the same on every machine.
#pragma once

#include "files/level_format.h"

namespace bench {

/// A road of so many sections with every kind of piece, and a WIN block behind the last. Each
/// section can be passed from the one before; nobody has driven the whole.
LevelFile Road(int sections, uint32_t seed);

}  // namespace bench
