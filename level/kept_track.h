// A track taken out of the document and put back whole.
#pragma once

#include "level/globals.h"

/// Pieces and track-wide values. They are moved, never copied.
struct KeptTrack {
  PieceCollections pieces;
  float Gravity = 0;
  FixedText<50> BackgroundName;
  TrackSettingsRecord TrackSettings;
  TrackRecordsRecord TrackRecords;
  std::string Origin;
  uint32_t TrackNumber = 0;
};

/// Takes the document's track out; what stays has no pieces.
KeptTrack TakeTrack();
/// Puts a track into the document in place of the present one, and shows its backdrop.
void PutTrack(KeptTrack&& track);
