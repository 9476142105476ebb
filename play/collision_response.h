// How touching a face changes the document's objects and its car, and the stars it picks up.
#pragma once

#include "play/CollisionDetection.h"

namespace CollisionDetection {

/// Answers the touching points of the candidate that was swept last; false when the run is over.
bool Respond(const CollisionCandidate& candidate);

/// Collects every visible star within reach of the car's present place.
void CollectStars();

}  // namespace CollisionDetection
