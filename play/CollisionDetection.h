// What the car runs into during the step it is about to take: the planes of the objects near it,
// the points of its box that touch one, and whether a touch lies inside the face. The answers to a
// touch are in collision_response.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "level/collision_plane.h"
#include "platform/values.h"
#include "play/sweep.h"

namespace CollisionDetection {

enum ObjectKind : int16_t { BlockObject = 1, PlatformObject = 2, RampObject = 3 };

/// One plane of one object.
struct CollisionCandidate {
  Vector3 Normal;
  CollisionPlane Plane;
  int16_t KindCode = 0;  ///< changeactioncode; 0 for ramps
  int16_t PlaneNumber = 0;
  int16_t ObjectType = BlockObject;
  int16_t ObjectIndex = 0;
  float ObjectX = 0, ObjectY = 0, ObjectZ = 0;
  std::array<Vector3, 4> Corners{};  ///< a triangle repeats its first corner
};

// All of it is rewritten every frame.

/// This frame's candidates, in the order in which they are answered; the first has index 0.
inline std::vector<CollisionCandidate> CollisionList;
inline int32_t CollisionCount = 0;

inline bool OnGround = false;  ///< the car stands on something: a jump is possible
inline bool KillFlag = false;  ///< the car explodes at the end of this update
inline bool OnRamp = false;    ///< the car touched a ramp's top
/// A moving platform's left or right face pushed the car.
inline bool PlatformLeftContact = false, PlatformRightContact = false;

/// The car's box: its edge vectors.
inline Vector3 AxisY, AxisX, AxisZ;

/// The sweep of the current candidate.
inline SweepState Sweep;

/// The points of the box that touch the current plane.
inline std::vector<Vector3> ContactPoints;
inline int32_t ContactCount = 0;

inline constexpr const char* kTiltedPlaneText = "Whoops: You got eaten by a bug";

/// Start of a frame: clears the flags and takes the car off ice.
void ResetCollisionFlags();
/// Fills CollisionList; returns how many.
int32_t GatherCollisionCandidates();
/// Sweeps the box against the candidate. True when they touch within the step; Sweep and
/// ContactPoints are filled then.
bool SweepCandidate(const CollisionCandidate& candidate);
/// Fills ContactPoints from Sweep. A plane tilted against all three axes of the box ends the
/// program after a message.
void CalculateContactPoints();
/// Whether a contact point lies inside the candidate's face.
bool PointInCollisionFace(const CollisionCandidate& candidate, const Vector3& p);

}  // namespace CollisionDetection
