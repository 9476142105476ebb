// A remembered drive on the track as it is now: its keys run again after every change.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "drive/script_run.h"
#include "editor/drives/attempt.h"

namespace drives {

class ShownDrive {
 public:
  /// Shows nothing.
  void Clear();
  /// Runs the attempt's keys on the track in the document. `version` names track and attempt: while
  /// it stays the same, a call goes on where the last one left off. Each runs a few milliseconds at
  /// most; true when the path has changed.
  bool Follow(const Attempt& attempt, uint64_t version);
  /// Runs to the end, however long that takes.
  void Finish();

  bool Shown() const { return run_.has_value(); }
  // What is shown; only then.
  const drive::FrozenTrack& Track() const { return track_; }
  const drive::KeyScript& Script() const { return attempt_.script; }
  const drive::Path& Path() const { return run_->Path(); }
  /// The path that was driven, from the last point that both share; empty where nothing departs.
  std::span<const drive::PathPoint> OldRest() const;
  /// How it ends, in words.
  std::string Words() const;
  /// The frame whose place is nearest to this depth and from which one can drive on.
  int FrameNear(float depth) const;

 private:
  uint64_t version_ = 0;
  Attempt attempt_;
  drive::FrozenTrack track_;
  std::optional<drive::ScriptRun> run_;
};

}  // namespace drives
