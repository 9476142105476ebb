// The rules of touching: what each face does to the car. They are written once for every world that
// a car can drive through: the document's objects, and a frozen track.
//
// A world has, for objects by their index:
//   Car& TheCar();                the flags of CollisionDetection as
//   bool& OnGround(), &KillFlag(), &OnRamp(), &PlatformLeftContact(), &PlatformRightContact();
//   float PlatformStep(i);        velocity of a platform along x
//   bool RampAlongZ(i);           its slope rises or falls along z, not x
//   float RampGradient(i);
//   void Bounce(i), Fall(i);      a block begins to
//   double TopOf(i); float FallStep(i);   a block's top before, and its way down in, its last frame
//   void MetJumpPad(), MetTurboPad();
#pragma once

#include "level/clsblock.h"
#include "play/CollisionDetection.h"
#include "play/car.h"

namespace CollisionDetection {

enum class Answer {
  Continue,       ///< go on with the next contact point
  NextCandidate,  ///< skip the candidate's other points
  RunIsOver       ///< the track is won: nothing else of this update happens
};

/// Which face of which object is touched.
struct TouchedFace {
  int16_t KindCode, PlaneNumber, ObjectType;
  int32_t ObjectIndex;
};

template <typename World>
class Answers {
 public:
  explicit Answers(World& world) : world_(world), car_(world.TheCar()) {}

  /// Answers the touch of one contact point inside the face.
  Answer To(const TouchedFace& face, const Vector3& contact) {
    switch (face.PlaneNumber) {
      case LeftFace:
        Stop(face, contact, -1, world_.PlatformLeftContact(), world_.PlatformRightContact());
        break;
      case RightFace:
        Stop(face, contact, 1, world_.PlatformRightContact(), world_.PlatformLeftContact());
        break;
      case TopFace:
        return Land(face, contact);
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

 private:
  enum Face : int16_t { LeftFace = 1, RightFace, TopFace, FrontFace, BottomFace, HighEdge };
  static constexpr double kHalfWidth = 0.4, kHeight = 0.8;
  /// What stays between the car and a surface it stops at.
  static constexpr double kGap = 0.001;
  static constexpr double kCrashSpeed = 0.4;
  static constexpr float kPadSpeed = 0.45F;
  static constexpr float kTurboSpeed = 1.0F;

  void CarryAlong(const TouchedFace& face) {
    car_.SteerTo(ToSingle(double{world_.PlatformStep(face.ObjectIndex)} + car_.velocity.x));
  }

  /// `side` is −1 at a left face, +1 at a right one.
  void Stop(const TouchedFace& face, const Vector3& contact, int side, bool& pushed,
            bool pushedFromOtherSide) {
    car_.SteerTo(ToSingle(double{contact.x} - car_.position.x + side * kHalfWidth + side * kGap));
    if (pushedFromOtherSide) world_.KillFlag() = true;
    if (face.ObjectType != PlatformObject) return;
    CarryAlong(face);
    pushed = true;
  }

  Answer Land(const TouchedFace& face, const Vector3& contact) {
    if (face.ObjectType == RampObject) {
      FollowSlope(face);
      return Answer::Continue;
    }
    // A car on its way up passes.
    if (car_.velocity.y > 0) return Answer::Continue;
    StandOn(contact);
    if (face.ObjectType == BlockObject) return LandOnBlock(face);
    CarryAlong(face);
    return Answer::NextCandidate;
  }

  void FollowSlope(const TouchedFace& face) {
    world_.OnGround() = true;
    const double speed = world_.RampAlongZ(face.ObjectIndex) ? car_.velocity.z : car_.velocity.x;
    car_.velocity.y = ToSingle(speed * world_.RampGradient(face.ObjectIndex));
    world_.OnRamp() = true;
  }

  void StandOn(const Vector3& contact) {
    world_.OnGround() = true;
    car_.velocity.y = ToSingle(double{contact.y} - car_.position.y + kGap);
  }

  Answer LandOnBlock(const TouchedFace& face) {
    switch (face.KindCode) {
      case clsblock::WinLevel:
        car_.Dead = true;
        return Answer::RunIsOver;
      case clsblock::JumpPad:
        world_.Bounce(face.ObjectIndex);
        car_.velocity.y = kPadSpeed;
        world_.MetJumpPad();
        world_.OnGround() = false;
        break;
      case clsblock::Ice:
        car_.PutOnIce();
        break;
      case clsblock::FallingBlock:
        LandOnFalling(face.ObjectIndex);
        break;
      case clsblock::TurboPad:
        car_.velocity.z = kTurboSpeed;
        world_.MetTurboPad();
        break;
      case clsblock::InstantKill:
        world_.KillFlag() = true;
        break;
      default:
        break;
    }
    return Answer::Continue;
  }

  void LandOnFalling(int32_t block) {
    world_.Fall(block);
    car_.position.y = ToSingle(world_.TopOf(block) + kGap);
    car_.velocity.y = ToSingle(-double{world_.FallStep(block)} - kGap);
  }

  void HitFront(const Vector3& contact) {
    if (world_.OnRamp()) return;
    if (car_.velocity.z > kCrashSpeed) world_.KillFlag() = true;
    car_.velocity.z = ToSingle(double{contact.z} - car_.position.z - kGap);
  }

  void BumpHead(const Vector3& contact) {
    if (!(car_.velocity.y > 0)) return;
    car_.position.y = ToSingle(contact.y - kHeight - kGap);
    car_.velocity.y = 0;
  }

  World& world_;
  Car& car_;
};

/// Answers the contact points that lie inside the face; false when the run is over.
template <typename World, typename InFace>
bool AnswerContacts(World& world, const TouchedFace& face, const Contacts& contacts,
                    InFace inFace) {
  Answers<World> answers(world);
  for (size_t i = 0; i < contacts.count; ++i) {
    const Vector3& contact = contacts.points[i];
    if (!inFace(contact)) continue;
    const Answer answer = answers.To(face, contact);
    if (answer == Answer::RunIsOver) return false;
    if (answer == Answer::NextCandidate) break;
  }
  return true;
}

}  // namespace CollisionDetection
