#include "level/kept_track.h"

#include <utility>

#include "level/backdrop.h"

KeptTrack TakeTrack() {
  return {std::exchange(static_cast<PieceCollections&>(Document), {}),
          Document.Gravity,
          Document.BackgroundName,
          Document.TrackSettings,
          Document.TrackRecords,
          Document.Origin,
          Document.TrackNumber};
}

void PutTrack(KeptTrack&& track) {
  static_cast<PieceCollections&>(Document) = std::move(track.pieces);
  Document.Gravity = track.Gravity;
  Document.BackgroundName = track.BackgroundName;
  Document.TrackSettings = std::move(track.TrackSettings);
  Document.TrackRecords = track.TrackRecords;
  Document.Origin = std::move(track.Origin);
  Document.TrackNumber = track.TrackNumber;
  ShowBackdrop(Document.BackgroundName.Trimmed());
}
