#include <unistd.h>

#include <cstdio>
#include <cstring>

#include "drive/object_drive.h"
#include "files/FileIO.h"
#include "files/safe_writer.h"
#include "platform/paths.h"
#include "play/clsPlayer.h"
#include "render/frame/clsShadow.h"
#include "search/drive_search.h"
#include "tools/vorbilax_track/commands.h"
#include "tools/vorbilax_track/headless.h"
#include "tools/vorbilax_track/search_answer.h"

namespace track_tool {
namespace {

int BadInput(const std::string& reason) {
  std::fprintf(stderr, "%s\n", reason.c_str());
  return kBadInput;
}

void ShowProgress(const search::Effort& effort) {
  std::fprintf(stderr, "\r%.1f million steps, %lld states ",
               static_cast<double>(effort.steps) / 1e6, static_cast<long long>(effort.states));
}

}  // namespace

SearchAnswer SearchAndConfirm(const drive::FrozenTrack& track) {
  search::Result result = search::FindDrive(track);
  const bool found = result.outcome == search::Outcome::Won;
  if (found && !drive::WinsThroughObjects(result.script)) {
    result.outcome = search::Outcome::NotFound;
  }
  return {WordsFor(result), result.outcome == search::Outcome::Won};
}

int Solve(const std::string& file, const SolveOptions& options) {
  HeadlessEditor editor;
  if (!editor.Start()) return kBadInput;
  const FileIO::Result read = FileIO::ReadLevel(file);
  if (!read.Ok()) return BadInput(read.message);
  search::Limits limits;
  limits.steps = options.steps;
  limits.states = options.states;
  search::Watch watch;
  const bool terminal = isatty(STDERR_FILENO) == 1;
  if (terminal) watch.progress = ShowProgress;
  search::Result result = search::FindDrive(drive::FrozenTrack::OfDocument(), limits, watch);
  if (terminal) std::fprintf(stderr, "\r%40s\r", "");
  // Nobody hears of a win that the real objects do not confirm.
  if (result.outcome == search::Outcome::Won && !drive::WinsThroughObjects(result.script)) {
    return BadInput(file + ": the objects drive otherwise than the search");
  }
  std::puts(WordsFor(result).c_str());
  if (result.outcome != search::Outcome::Won) return kNotWon;
  if (options.script.empty()) return kFine;
  const Written written =
      WriteFileSafely(options.script, ScriptText(result.script), OldRest::Dropped);
  return written.failure.empty() ? kFine : BadInput(options.script + ": " + written.failure);
}

}  // namespace track_tool
