#include "play/collision_response.h"

#include "level/footprint.h"
#include "level/globals.h"
#include "play/clsPlayer.h"
#include "play/collision_answers.h"
#include "play/star_reach.h"
#include "render/device/clsParticles.h"

namespace CollisionDetection {
namespace {

size_t Slot(int32_t index) { return static_cast<size_t>(index); }

/// The document's objects, for the rules of touching.
struct ObjectWorld {
  static Car& TheCar() { return Player.Motion(); }
  static bool& OnGround() { return CollisionDetection::OnGround; }
  static bool& KillFlag() { return CollisionDetection::KillFlag; }
  static bool& OnRamp() { return CollisionDetection::OnRamp; }
  static bool& PlatformLeftContact() { return CollisionDetection::PlatformLeftContact; }
  static bool& PlatformRightContact() { return CollisionDetection::PlatformRightContact; }
  static float PlatformStep(int32_t i) { return Document.Platforms[Slot(i)].GetVelocity().x; }
  static bool RampAlongZ(int32_t i) { return Document.Ramps[Slot(i)].rotateVal() % 2 == 0; }
  static float RampGradient(int32_t i) { return Document.Ramps[Slot(i)].GetGradient(); }
  static void Bounce(int32_t i) { Document.Blocks[Slot(i)].Bounce(); }
  static void Fall(int32_t i) { Document.Blocks[Slot(i)].Fall(); }
  static float FallStep(int32_t i) { return Document.Blocks[Slot(i)].fallvel(); }
  static double TopOf(int32_t i) {
    const clsblock& block = Document.Blocks[Slot(i)];
    return double{block.Ypos()} + block.scaleY() + block.fallvel();
  }
  static void MetJumpPad() { Player.SetBouncePad(); }
  static void MetTurboPad() {}
};

}  // namespace

bool Respond(const CollisionCandidate& candidate) {
  Contacts contacts;
  contacts.count = ContactPoints.size();
  std::ranges::copy(ContactPoints, contacts.points.begin());
  ObjectWorld world;
  return AnswerContacts(
      world,
      {candidate.KindCode, candidate.PlaneNumber, candidate.ObjectType, candidate.ObjectIndex},
      contacts,
      [&candidate](const Vector3& contact) { return PointInCollisionFace(candidate, contact); });
}

void CollectStars() {
  for (clsStar& star : Live(Document.Stars, Document.StarCount)) {
    if (!star.visible() || !NearInDepth(star.Drawn(), Player.Posz())) continue;
    const double x = star.Xpos(), y = star.Ypos(), z = star.Zpos();
    if (!StarInReach(Player.GetPosition(), x, y, z)) continue;
    star.GetStar();
    Particles.AddStarExplosion(ToSingle(x), ToSingle(y), ToSingle(z));
  }
}

}  // namespace CollisionDetection
