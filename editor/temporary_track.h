// The track as it was when play began: in the temporary track file, should that file be lost or
// overwritten in memory, and should neither be readable as the edited pieces themselves.
#pragma once

#include <optional>
#include <string>

#include "files/FileIO.h"
#include "level/kept_track.h"

class TemporaryTrack {
 public:
  /// Starts play: writes the document to the temporary track file, reads it straight back and keeps
  /// the edited pieces aside. After a failure the document is as it was. A file that cannot be
  /// written does not matter.
  FileIO::Result Enter();

  /// Puts the track of the beginning back, as a read produces it, for the next run. After a failure
  /// the edited pieces themselves stand in the document and play cannot go on.
  FileIO::Result Restart();

  /// Puts the track of the beginning back and forgets it; after a failure, and where a read gives
  /// another track, the edited pieces themselves.
  FileIO::Result Leave();

  /// Ends play without a restore; hands out the edited pieces.
  std::optional<KeptTrack> Forget();
  /// The track's bytes as they were when play began.
  const std::string& Bytes() const { return bytes_; }

 private:
  FileIO::Result Read(KeptTrack* replaced = nullptr) const;
  void GiveBack();

  std::string bytes_;
  std::optional<KeptTrack> edited_;
};
