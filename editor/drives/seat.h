// The driver's seat of play mode: whose keys the car obeys, where a run begins, and the recording
// of each attempt.
#pragma once

#include <functional>
#include <optional>

#include "drive/frozen_track.h"
#include "editor/drives/attempt.h"

namespace drives {

/// A run that does not begin at the start of the track.
struct Beginning {
  drive::FrozenTrack track;
  drive::DriveState state;
  drive::KeyScript script;  ///< that led to the state
  drive::Path path;         ///< and the way there
};

class Seat {
 public:
  /// `keep` gets every attempt that has come to its end.
  explicit Seat(std::function<void(Attempt)> keep) : keep_(std::move(keep)) {}

  // Play mode has just been entered.
  void TakeStart();
  void TakeFrom(Beginning beginning);
  /// The script drives until the user touches a driving key; after its run it begins again.
  void Watch(drive::KeyScript script);

  /// The frame's poll: the held keys, or those of the script.
  void Poll();
  /// After the game's update.
  void Updated();
  /// After the car has moved.
  void FrameEnds();
  /// The track has been put back for the next run.
  void TrackRestored();
  /// Play mode ends: what was driven is an attempt.
  void Leave();
  /// The track was replaced while it was driven on: this run is no attempt at any track.
  void Abandon() { recording_ = false; }

 private:
  void BeginAttempt();
  void EndAttempt(drive::Ending ending);

  std::function<void(Attempt)> keep_;
  std::optional<Beginning> beginning_;
  std::optional<drive::KeyScript> watched_;
  std::optional<drive::KeyReader> reader_;  ///< while the script drives
  Attempt attempt_;
  CarKeys keys_ = 0;  ///< of this frame
  bool recording_ = false;
  bool wasExploding_ = false;
  bool driven_ = false;   ///< the user has touched a key in this attempt
  bool keptOne_ = false;  ///< since play mode was entered
};

}  // namespace drives
