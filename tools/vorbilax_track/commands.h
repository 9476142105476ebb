// The commands of vorbilax-track. Each returns the exit status: 0 fine, 1 the input is bad (the
// reason has been written to stderr).
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tools/vorbilax_track/search_answer.h"

namespace track_tool {

inline constexpr int kFine = 0, kBadInput = 1, kWrongUsage = 2, kNotWon = 3;

/// Writes version, counts, gravity, backdrop and textures of a level file to stdout.
int Info(const std::string& file, bool json);

/// Reads any version, writes the current one exactly as the editor's Save does.
int Convert(const std::string& input, const std::string& output);

struct RenderOptions {
  double depth = 0;    ///< what the camera looks at, world units along the track
  int frames = 1;      ///< the picture is the last of so many frames
  bool plain = false;  ///< draw with the plain executor
};
/// Writes the viewport as a PNG picture.
int Render(const std::string& file, const std::string& picture, const RenderOptions& options);

/// Drives the track by a key script, a row of the car's numbers per frame on stdout. Until the end:
/// stops at the first dead row and returns kNotWon unless the track was won.
int DriveTrack(const std::string& file, const std::string& script, bool untilEnd);

struct SolveOptions {
  std::string script;  ///< file for the keys that win; empty: none is written
  int64_t steps;       ///< limits of the search
  int32_t states;
};
/// Looks for a drive that wins the track and says on stdout what came of it; kNotWon where none was
/// found.
int Solve(const std::string& file, const SolveOptions& options);
struct VerifyOptions {
  bool json = false;
  size_t jobs = 1;                   ///< so many tracks at a time
  Search search = SearchAndConfirm;  ///< for tracks without a drive that wins
};
/// Tells of every track whether it can be won and what is wrong with it. kBadInput when anything
/// is, kNotWon when nothing is but some track has no win.
int Verify(const std::vector<std::string>& paths, const VerifyOptions& options);

}  // namespace track_tool
