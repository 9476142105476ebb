#include "play/CollisionDetection.h"

#include "level/globals.h"
#include "level/maths.h"
#include "platform/dialogs.h"
#include "play/clsPlayer.h"
#include "play/end_program.h"

namespace CollisionDetection {
namespace {

constexpr int16_t kTop = 3;

/// How far the candidate's object moves along x during the step.
float ObjectStep(const CollisionCandidate& candidate) {
  if (candidate.ObjectType != PlatformObject) return 0;
  return Document.Platforms[static_cast<size_t>(candidate.ObjectIndex)].GetVelocity().x;
}

}  // namespace

void ResetCollisionFlags() {
  PlatformLeftContact = PlatformRightContact = KillFlag = OnRamp = OnGround = false;
  Player.setplayernotonice();
  AxisY = {0, Car::kEdge, 0};
  AxisX = {Car::kEdge, 0, 0};
  AxisZ = {0, 0, Car::kEdge};
}

bool SweepCandidate(const CollisionCandidate& candidate) {
  if (!SweepBox(Sweep, Player.Motion(), candidate.Plane, ObjectStep(candidate))) return false;
  CalculateContactPoints();
  return true;
}

void CalculateContactPoints() {
  Contacts contacts;
  if (!FindContacts(Sweep, contacts)) {
    dialogs::ShowMessage(kTiltedPlaneText);
    EndProgram();
  }
  ContactPoints.assign(contacts.points.begin(), contacts.points.begin() + contacts.count);
  ContactCount = static_cast<int32_t>(contacts.count);
}

bool PointInCollisionFace(const CollisionCandidate& candidate, const Vector3& p) {
  const auto& c = candidate.Corners;
  // The projection of a slope depends on its steepness, and with it the way that it is wound.
  const bool slope = candidate.ObjectType == RampObject && candidate.PlaneNumber == kTop;
  return slope ? maths::PointInQuadEitherWay(c[0], c[1], c[2], c[3], p)
               : maths::PointInQuad(c[0], c[1], c[2], c[3], p);
}

}  // namespace CollisionDetection
