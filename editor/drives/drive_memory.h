// The drives that the editor remembers, by the track that they were driven on.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "editor/drives/attempt.h"

namespace drives {

struct TrackDrives {
  std::optional<Attempt> last;  ///< the last attempt, or the drive beside the opened file
  std::optional<Attempt> best;  ///< the quickest win
  std::string unreadable;       ///< why the file beside the opened one is no drive; may be empty
};

/// Tracks are told apart by the document's number, which undo brings back with the track.
class DriveMemory {
 public:
  /// Of the track in the document.
  TrackDrives& Present();
  void Keep(Attempt attempt);
  /// Counts what was kept.
  uint64_t Changes() const { return changes_; }
  /// The document's track was read from this file: a drive may stand beside it.
  void LookBeside(const std::string& trackFile);

 private:
  std::map<uint32_t, TrackDrives> byTrack_;
  uint64_t changes_ = 0;
};

}  // namespace drives
