// A track taken out of the document and put back whole.
#pragma once

#include "level/globals.h"

/// Pieces and track-wide values. They are moved, never copied.
struct KeptTrack {
  std::vector<clsblock> Blocks;
  std::vector<clsRamp> Ramps;
  std::vector<clsMovingPlatform> Platforms;
  std::vector<clsStar> Stars;
  int32_t BlockCount = -1, RampCount = -1, PlatformCount = -1, StarCount = -1;
  float Gravity = 0;
  FixedText<50> BackgroundName;
  TrackSettingsRecord TrackSettings;
  TrackRecordsRecord TrackRecords;
};

/// Takes the document's track out; what stays has no pieces.
KeptTrack TakeTrack();
/// Puts a track into the document in place of the present one, and shows its backdrop.
void PutTrack(KeptTrack&& track);
