// The rules that a track is held against, each in a file of its own. They go by what play would
// begin with.
#pragma once

#include <vector>

#include "check/findings.h"
#include "drive/frozen_track.h"

namespace check {

/// Drives with no key touched for a minute. Returns how far down the car comes at the start: to the
/// ground there, or nowhere.
float CheckIdleCar(const drive::FrozenTrack& track, Findings& findings);
/// `ground` is where the car comes to stand.
void CheckPlatformsAtStart(const drive::FrozenTrack& track, float ground, Findings& findings);
/// Says nothing of a star that a car might take.
void CheckStars(const drive::FrozenTrack& track, Findings& findings);
/// Returns those that are the same as an earlier one, in order.
std::vector<PieceName> CheckDoubles(const drive::FrozenTrack& track, Findings& findings);
/// Pieces in the ordered list are left out.
void CheckFlicker(const drive::FrozenTrack& track, const std::vector<PieceName>& without,
                  Findings& findings);
void CheckSizes(const drive::FrozenTrack& track, Findings& findings);

}  // namespace check
