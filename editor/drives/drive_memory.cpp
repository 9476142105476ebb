#include "editor/drives/drive_memory.h"

#include <utility>

#include "drive/script_run.h"
#include "editor/drives/drive_file.h"
#include "level/globals.h"

namespace drives {
namespace {

bool IsBetter(const Attempt& attempt, const std::optional<Attempt>& best) {
  return attempt.ending == drive::Ending::Wins &&
         (!best || FrameCount(attempt.script) < FrameCount(best->script));
}

/// The drive as it goes on the document's track.
Attempt Driven(drive::KeyScript script) {
  const auto track = drive::FrozenTrack::OfDocument();
  drive::ScriptRun run(track, script);
  run.Advance(drive::ScriptRun::kMostFrames);
  return {std::move(script), run.Path(), run.HowItEnds()};
}

}  // namespace

TrackDrives& DriveMemory::Present() { return byTrack_[Document.TrackNumber]; }

void DriveMemory::Keep(Attempt attempt) {
  ++changes_;
  TrackDrives& drives = Present();
  if (IsBetter(attempt, drives.best)) drives.best = attempt;
  drives.last = std::move(attempt);
  drives.unreadable.clear();
}

void DriveMemory::LookBeside(const std::string& trackFile) {
  FoundDrive found = ReadDriveBeside(trackFile);
  if (!found.script.empty()) Keep(Driven(std::move(found.script)));
  Present().unreadable = std::move(found.failure);
}

}  // namespace drives
