// A key script driven through a frozen track: the path, what happens on it, and how it ends.
#pragma once

#include "drive/frozen_track.h"
#include "drive/key_script.h"
#include "drive/path.h"

namespace drive {

/// Runs from the start of the track to the first win, explosion or fall, or to the script's end, so
/// many frames at most.
class ScriptRun {
 public:
  /// More than an hour: longer drives are cut here.
  static constexpr int kMostFrames = 100'000;

  /// Both must outlive the run.
  ScriptRun(const FrozenTrack& track, const KeyScript& script)
      : track_(&track), keys_(script), path_{{state_.car.position, {}, 0}} {}

  /// Runs so many frames more, fewer where it ends; false when it has ended.
  bool Advance(int frames);
  bool IsOver() const {
    return ending_ != Ending::None || keys_.AtEnd() || state_.frame >= kMostFrames;
  }

  /// None while it goes on, and where the script ended first.
  Ending HowItEnds() const { return ending_; }
  const drive::Path& Path() const { return path_; }
  const DriveState& State() const { return state_; }

 private:
  void Mark(const StepEvents& events, size_t starsBefore);
  void MarkFlight();

  const FrozenTrack* track_;
  KeyReader keys_;
  DriveState state_;
  Ending ending_ = Ending::None;
  drive::Path path_;
  int frameOnGround_ = 0, frameOnPad_ = 0;  ///< the last ones; 0: not yet
  bool flies_ = true;                       ///< it begins above the ground
};

/// The state after so many frames of a script; fewer where it ends.
DriveState StateAfter(const FrozenTrack& track, const KeyScript& script, int frames);

}  // namespace drive
