// The level files that a command line names.
#pragma once

#include <string>
#include <vector>

namespace track_tool {

/// Files as they are; for each folder the level files in it and in the folders inside, sorted.
/// Throws std::runtime_error for a folder that cannot be read or holds none.
std::vector<std::string> TracksIn(const std::vector<std::string>& paths);

}  // namespace track_tool
