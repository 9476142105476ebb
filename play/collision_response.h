// What touching a face does to the car, and the stars it picks up.
#pragma once

#include "play/CollisionDetection.h"

namespace CollisionDetection {

enum class Answer {
  Continue,       ///< go on with the next contact point
  NextCandidate,  ///< skip the candidate's other points
  RunIsOver       ///< the track is won: nothing else of this update happens
};

/// Answers the touch of one contact point inside the candidate's face.
Answer Respond(const CollisionCandidate& candidate, const Vector3& contact);

/// Collects every visible star within reach of the car's present place.
void CollectStars();

}  // namespace CollisionDetection
