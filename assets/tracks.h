// The tracks of the install folder, as level files.
#pragma once

#include <string>
#include <vector>

namespace art {

struct TrackFile {
  std::string file;
  std::string bytes;
};
/// From gentle to hard.
std::vector<TrackFile> Tracks();

}  // namespace art
