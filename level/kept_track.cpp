#include "level/kept_track.h"

#include <utility>

#include "level/backdrop.h"

KeptTrack TakeTrack() {
  return {std::exchange(Document.Blocks, {}),
          std::exchange(Document.Ramps, {}),
          std::exchange(Document.Platforms, {}),
          std::exchange(Document.Stars, {}),
          std::exchange(Document.BlockCount, -1),
          std::exchange(Document.RampCount, -1),
          std::exchange(Document.PlatformCount, -1),
          std::exchange(Document.StarCount, -1),
          Document.Gravity,
          Document.BackgroundName,
          Document.TrackSettings,
          Document.TrackRecords};
}

void PutTrack(KeptTrack&& track) {
  Document.Blocks = std::move(track.Blocks);
  Document.Ramps = std::move(track.Ramps);
  Document.Platforms = std::move(track.Platforms);
  Document.Stars = std::move(track.Stars);
  Document.BlockCount = track.BlockCount;
  Document.RampCount = track.RampCount;
  Document.PlatformCount = track.PlatformCount;
  Document.StarCount = track.StarCount;
  Document.Gravity = track.Gravity;
  Document.BackgroundName = track.BackgroundName;
  Document.TrackSettings = std::move(track.TrackSettings);
  Document.TrackRecords = track.TrackRecords;
  ShowBackdrop(Document.BackgroundName.Trimmed());
}
