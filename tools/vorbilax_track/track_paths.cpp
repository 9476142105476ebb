#include "tools/vorbilax_track/track_paths.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "platform/paths.h"

namespace track_tool {
namespace {

std::vector<std::string> LevelFilesIn(const std::string& folder) {
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    std::error_code ignored;
    if (entry.is_regular_file(ignored) && paths::MatchesPattern(entry.path().string(), "*.lvl")) {
      files.push_back(entry.path().string());
    }
  }
  if (files.empty()) throw std::runtime_error(folder + ": no level files are in it");
  std::ranges::sort(files);
  return files;
}

}  // namespace

std::vector<std::string> TracksIn(const std::vector<std::string>& paths) {
  std::vector<std::string> tracks;
  for (const std::string& path : paths) {
    if (!paths::IsFolder(path)) {
      tracks.push_back(path);
      continue;
    }
    std::ranges::move(LevelFilesIn(path), std::back_inserter(tracks));
  }
  return tracks;
}

}  // namespace track_tool
