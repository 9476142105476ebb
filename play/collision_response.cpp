#include "play/collision_response.h"

#include "level/footprint.h"
#include "level/globals.h"
#include "platform/numbers.h"
#include "play/clsPlayer.h"
#include "render/device/clsParticles.h"

namespace CollisionDetection {
namespace {

constexpr double kHalfWidth = 0.4, kHeight = 0.8;
/// What stays between the car and a surface it stops at.
constexpr double kGap = 0.001;
constexpr double kCrashSpeed = 0.4;
constexpr float kPadSpeed = 0.45F;
constexpr float kTurboSpeed = 1.0F;
constexpr double kStarReach = 0.8;

enum Face : int16_t { LeftFace = 1, RightFace, TopFace, FrontFace, BottomFace, HighEdge };

size_t IndexOf(const CollisionCandidate& candidate) {
  return static_cast<size_t>(candidate.ObjectIndex);
}

/// Velocity along x of the candidate's platform.
float PlatformStep(const CollisionCandidate& candidate) {
  return Document.Platforms[IndexOf(candidate)].GetVelocity().x;
}

void CarryAlong(const CollisionCandidate& candidate) {
  Player.HorizontalVelocity(
      ToSingle(double{PlatformStep(candidate)} + Player.HorizontalVelocity()));
}

/// `side` is −1 at a left face, +1 at a right one.
void Stop(const CollisionCandidate& candidate, const Vector3& contact, int side, bool& pushed,
          bool pushedFromOtherSide) {
  Player.HorizontalVelocity(
      ToSingle(double{contact.x} - Player.Posx() + side * kHalfWidth + side * kGap));
  if (pushedFromOtherSide) KillFlag = true;
  if (candidate.ObjectType != PlatformObject) return;
  CarryAlong(candidate);
  pushed = true;
}

void FollowSlope(const CollisionCandidate& candidate) {
  OnGround = true;
  const clsRamp& ramp = Document.Ramps[IndexOf(candidate)];
  const bool alongZ = ramp.rotateVal() % 2 == 0;
  const double speed = alongZ ? Player.ForwardVelocity() : Player.HorizontalVelocity();
  Player.verticalvelocity(ToSingle(speed * ramp.GetGradient()));
  OnRamp = true;
}

void StandOn(const Vector3& contact) {
  OnGround = true;
  Player.verticalvelocity(ToSingle(double{contact.y} - Player.PosY() + kGap));
}

void LandOnPad(clsblock& block) {
  block.Bounce();
  Player.verticalvelocity(kPadSpeed);
  Player.SetBouncePad();
  OnGround = false;
}

void LandOnFalling(clsblock& block) {
  block.Fall();
  Player.PosY(ToSingle(double{block.Ypos()} + block.scaleY() + block.fallvel() + kGap));
  Player.verticalvelocity(ToSingle(-double{block.fallvel()} - kGap));
}

Answer LandOnBlock(clsblock& block, int16_t kindCode) {
  switch (kindCode) {
    case clsblock::WinLevel:
      Player.DeathStatus(true);
      return Answer::RunIsOver;
    case clsblock::JumpPad:
      LandOnPad(block);
      break;
    case clsblock::Ice:
      Player.SetPlayerOnIce();
      break;
    case clsblock::FallingBlock:
      LandOnFalling(block);
      break;
    case clsblock::TurboPad:
      Player.ForwardVelocity(kTurboSpeed);
      break;
    case clsblock::InstantKill:
      KillFlag = true;
      break;
    default:
      break;
  }
  return Answer::Continue;
}

Answer Land(const CollisionCandidate& candidate, const Vector3& contact) {
  if (candidate.ObjectType == RampObject) {
    FollowSlope(candidate);
    return Answer::Continue;
  }
  // A car on its way up passes.
  if (Player.verticalvelocity() > 0) return Answer::Continue;
  StandOn(contact);
  if (candidate.ObjectType == BlockObject) {
    return LandOnBlock(Document.Blocks[IndexOf(candidate)], candidate.KindCode);
  }
  CarryAlong(candidate);
  return Answer::NextCandidate;
}

void HitFront(const Vector3& contact) {
  if (OnRamp) return;
  if (Player.ForwardVelocity() > kCrashSpeed) KillFlag = true;
  Player.ForwardVelocity(ToSingle(double{contact.z} - Player.Posz() - kGap));
}

void BumpHead(const Vector3& contact) {
  if (!(Player.verticalvelocity() > 0)) return;
  Player.PosY(ToSingle(contact.y - kHeight - kGap));
  Player.verticalvelocity(0);
}

bool Between(double low, double value, double high) { return low < value && value < high; }

}  // namespace

Answer Respond(const CollisionCandidate& candidate, const Vector3& contact) {
  switch (candidate.PlaneNumber) {
    case LeftFace:
      Stop(candidate, contact, -1, PlatformLeftContact, PlatformRightContact);
      break;
    case RightFace:
      Stop(candidate, contact, 1, PlatformRightContact, PlatformLeftContact);
      break;
    case TopFace:
      return Land(candidate, contact);
    case FrontFace:
      HitFront(contact);
      break;
    case BottomFace:
      BumpHead(contact);
      break;
    case HighEdge:
      StandOn(contact);
      break;
    default:
      break;
  }
  return Answer::Continue;
}

void CollectStars() {
  for (clsStar& star : Live(Document.Stars, Document.StarCount)) {
    if (!star.visible() || !NearInDepth(star.Drawn(), Player.Posz())) continue;
    const double x = star.Xpos(), y = star.Ypos(), z = star.Zpos();
    if (!Between(x - kStarReach, Player.Posx(), x + kStarReach) ||
        !Between(y - kStarReach, Player.PosY(), y + kStarReach) ||
        !Between(z, Player.Posz(), z + 1)) {
      continue;
    }
    star.GetStar();
    Particles.AddStarExplosion(ToSingle(x), ToSingle(y), ToSingle(z));
  }
}

}  // namespace CollisionDetection
