// How a drive ended, in words.
#pragma once

#include <string>

#include "drive/drive_state.h"

namespace drive {

/// So many frames as time, such as "8.3 s".
std::string Seconds(int frames);
/// Such as "falls after 8.3 s".
std::string HowItEnds(Ending ending, int frames);
/// Such as " with 5 of 7 stars"; nothing where there are none.
std::string WithStars(size_t taken, size_t all);

}  // namespace drive
