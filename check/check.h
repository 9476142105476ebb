// Looks a whole track over.
#pragma once

#include "check/findings.h"
#include "check/named_files.h"
#include "drive/frozen_track.h"

namespace check {

/// What is wrong with a track, the worst first. On the fullest track it takes some hundredths of a
/// second.
Findings FindFaults(const drive::FrozenTrack& track, const NamedFiles& files);

/// The same for the track that stands in the document in edit mode.
Findings FindFaultsOfDocument();

}  // namespace check
