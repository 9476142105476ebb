// Puts the document's objects into the state of a drive.
#pragma once

#include "drive/frozen_track.h"

namespace drive {

/// The track must stand in the document as play begins with it, and be the frozen one; car, camera
/// and pieces then are where the drive has them.
void Resume(const FrozenTrack& track, const DriveState& state);

}  // namespace drive
