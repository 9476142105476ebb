#include "play/PlayUpdate.h"

#include "level/globals.h"
#include "platform/numbers.h"
#include "play/clsPlayer.h"
#include "play/collision_response.h"

namespace cd = CollisionDetection;

namespace {

constexpr double kLowest = -40;

/// Answers all contact points of one candidate; false when the run is over.
bool Collide(const cd::CollisionCandidate& candidate) {
  if (!cd::SweepCandidate(candidate)) return true;
  for (const Vector3& contact : cd::ContactPoints) {
    if (!cd::PointInCollisionFace(candidate, contact)) continue;
    const cd::Answer answer = cd::Respond(candidate, contact);
    if (answer == cd::Answer::RunIsOver) return false;
    if (answer == cd::Answer::NextCandidate) break;
  }
  return true;
}

void Explode() {
  Player.explode();
  for (clsMovingPlatform& platform : Live(Document.Platforms, Document.PlatformCount)) {
    platform.stopMoving();
  }
}

}  // namespace

void PlayUpdate() {
  cd::ResetCollisionFlags();
  Player.verticalvelocity(ToSingle(double{Player.verticalvelocity()} - Document.Gravity));
  cd::CollisionCount = cd::GatherCollisionCandidates();
  for (const cd::CollisionCandidate& candidate : cd::CollisionList) {
    if (!Collide(candidate)) return;
  }
  cd::CollectStars();
  if (cd::KillFlag) Explode();
  if (Player.PosY() < kLowest) Player.DeathStatus(true);
}
