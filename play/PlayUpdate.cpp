#include "play/PlayUpdate.h"

#include "level/globals.h"
#include "play/clsPlayer.h"
#include "play/collision_response.h"

namespace cd = CollisionDetection;

namespace {

void Explode() {
  Player.explode();
  for (clsMovingPlatform& platform : Live(Document.Platforms, Document.PlatformCount)) {
    platform.stopMoving();
  }
}

}  // namespace

void PlayUpdate() {
  cd::ResetCollisionFlags();
  Player.Motion().PullDown(Document.Gravity);
  cd::CollisionCount = cd::GatherCollisionCandidates();
  for (const cd::CollisionCandidate& candidate : cd::CollisionList) {
    if (cd::SweepCandidate(candidate) && !cd::Respond(candidate)) return;
  }
  cd::CollectStars();
  if (cd::KillFlag) Explode();
  if (Player.Motion().FellOffTheTrack()) Player.DeathStatus(true);
}
