// One frame of play on a frozen track.
#include <algorithm>
#include <cmath>

#include "drive/frozen_track.h"
#include "level/box.h"
#include "level/projected_quad.h"
#include "level/ramp_tables.h"
#include "play/candidate_order.h"
#include "play/star_reach.h"

namespace drive {
namespace {

namespace cd = CollisionDetection;

constexpr int16_t kSlope = 3;
constexpr int32_t kMillisecondsPerFrame = 40;

size_t Slot(int32_t index) { return static_cast<size_t>(index); }

/// A frozen track and a state on it, for the rules of touching.
class FrozenWorld {
 public:
  FrozenWorld(const FrozenTrack& track, DriveState& state) : track_(track), state_(state) {}

  Car& TheCar() { return state_.car; }
  bool& OnGround() { return state_.OnGround; }
  bool& KillFlag() { return kill_; }
  bool& OnRamp() { return onRamp_; }
  bool& PlatformLeftContact() { return leftContact_; }
  bool& PlatformRightContact() { return rightContact_; }
  float PlatformStep(int32_t i) const {
    return LegOf(i).Velocity(track_.Platforms()[Slot(i)].way.Travel());
  }
  bool RampAlongZ(int32_t i) const { return track_.Ramps()[Slot(i)].rotation % 2 == 0; }
  float RampGradient(int32_t i) const { return track_.Ramps()[Slot(i)].gradient; }
  void Bounce(int32_t i) {
    MovedBlock& block = Moved(i);
    block.motion.Bounce(block.y);
  }
  void Fall(int32_t i) { Moved(i).motion.Falling = true; }
  double TopOf(int32_t i) const {
    const MovedBlock block = NowOf(i);
    return double{block.y} + track_.Blocks()[Slot(i)].box.size.y + block.motion.fallvel;
  }
  float FallStep(int32_t i) const { return NowOf(i).motion.fallvel; }
  void MetJumpPad() { events_.jumpPad = true; }
  void MetTurboPad() { events_.turboPad = true; }

  /// The game's update: what the car meets, picks up and ends at.
  StepEvents Update(bool wasExploding);

 private:
  const PlatformLeg& LegOf(int32_t i) const {
    return track_.Platforms()[Slot(i)].way.At(static_cast<size_t>(state_.platformSteps));
  }
  const MovedBlock* FindMoved(int32_t i) const {
    const auto found = std::ranges::find(state_.moved, i, &MovedBlock::index);
    return found == state_.moved.end() ? nullptr : &*found;
  }
  MovedBlock NowOf(int32_t i) const {
    const MovedBlock* const moved = FindMoved(i);
    return moved != nullptr ? *moved : MovedBlock{i, track_.Blocks()[Slot(i)].box.corner.y, {}};
  }
  MovedBlock& Moved(int32_t i) {
    if (FindMoved(i) == nullptr) state_.moved.push_back(NowOf(i));
    return *std::ranges::find(state_.moved, i, &MovedBlock::index);
  }
  Vector3 PlaceOf(const cd::TouchedFace& face) const {
    if (face.ObjectType == cd::PlatformObject) {
      const Vector3& start = track_.Platforms()[Slot(face.ObjectIndex)].box.corner;
      return {LegOf(face.ObjectIndex).x, start.y, start.z};
    }
    Vector3 place = track_.Blocks()[Slot(face.ObjectIndex)].box.corner;
    if (!state_.moved.empty()) place.y = NowOf(face.ObjectIndex).y;
    return place;
  }
  const Vector3& SizeOf(const cd::TouchedFace& face) const {
    return face.ObjectType == cd::PlatformObject
               ? track_.Platforms()[Slot(face.ObjectIndex)].box.size
               : track_.Blocks()[Slot(face.ObjectIndex)].box.size;
  }
  Extent AroundFace(const cd::TouchedFace& face) const;
  CollisionPlane PlaneOf(const cd::TouchedFace& face) const;
  std::array<Vector3, 4> CornersOf(const cd::TouchedFace& face) const;
  bool OutOfTouch(const cd::TouchedFace& face, double objectStep) const;
  bool Meet(const cd::TouchedFace& face);
  void CollectStars();

  const FrozenTrack& track_;
  DriveState& state_;
  bool kill_ = false, onRamp_ = false, leftContact_ = false, rightContact_ = false;
  StepEvents events_;
};

/// A box that holds the face.
Extent FrozenWorld::AroundFace(const cd::TouchedFace& face) const {
  if (face.ObjectType == cd::RampObject) {
    // With the strip beyond the high edge.
    constexpr float kStrip = 0.8F;
    const Extent& box = track_.Ramps()[Slot(face.ObjectIndex)].box;
    const auto wider = [](float low, float length, float& corner, float& size) {
      corner = std::min(low, low + length) - kStrip;
      size = std::abs(length) + 2 * kStrip;
    };
    Extent around = box;
    wider(box.corner.x, box.size.x, around.corner.x, around.size.x);
    wider(box.corner.z, box.size.z, around.corner.z, around.size.z);
    return around;
  }
  Extent around{PlaceOf(face), SizeOf(face)};
  const auto flatten = [&](float Vector3::*axis, bool atEnd) {
    if (atEnd) around.corner.*axis += around.size.*axis;
    around.size.*axis = 0;
  };
  switch (face.PlaneNumber) {
    case 1:
    case 2:
      flatten(&Vector3::x, face.PlaneNumber == 2);
      break;
    case 3:
    case 5:
      flatten(&Vector3::y, face.PlaneNumber == 3);
      break;
    default:
      flatten(&Vector3::z, false);
  }
  return around;
}

CollisionPlane FrozenWorld::PlaneOf(const cd::TouchedFace& face) const {
  if (face.ObjectType == cd::RampObject) {
    const FrozenRamp& ramp = track_.Ramps()[Slot(face.ObjectIndex)];
    if (face.PlaneNumber == kSlope) return ramp.slope;
    return ramp::Plane(ramp.rotation, ramp.box.corner, ramp.box.size, face.PlaneNumber);
  }
  // The planes of a platform that was just read are not where it is: they come with its first step.
  if (face.ObjectType == cd::PlatformObject && state_.framesOfRun == 0) return {};
  return box::Plane(PlaceOf(face), SizeOf(face), face.PlaneNumber);
}

std::array<Vector3, 4> FrozenWorld::CornersOf(const cd::TouchedFace& face) const {
  if (face.ObjectType == cd::RampObject) {
    const FrozenRamp& ramp = track_.Ramps()[Slot(face.ObjectIndex)];
    return ramp::FaceCorners(ramp.rotation, ramp.box.corner, ramp.box.size, face.PlaneNumber);
  }
  return box::FaceCorners(PlaceOf(face), SizeOf(face), face.PlaneNumber);
}

/// Whether the car's box does not come near the face in its step: no point of it can touch it then.
/// Most faces end here, before anything is worked out about them.
bool FrozenWorld::OutOfTouch(const cd::TouchedFace& face, double objectStep) const {
  const Vector3 &car = state_.car.position, &way = state_.car.velocity;
  const Extent at = AroundFace(face);
  // The car's span along an axis, how it moves, and the face's span.
  const auto apart = [](double low, double high, double move, double corner, double length) {
    const double end = corner + length;
    // More than rounding costs.
    const double slack = 0.01 + 1e-5 * (std::abs(corner) + std::abs(length) + std::abs(move));
    return high + std::max(move, 0.0) < std::min(corner, end) - slack ||
           low + std::min(move, 0.0) > std::max(corner, end) + slack;
  };
  constexpr double kLength = Car::kEdge, kHalf = kLength / 2;
  return apart(car.z - kLength, car.z, way.z, at.corner.z, at.size.z) ||
         apart(car.y, car.y + kLength, way.y, at.corner.y, at.size.y) ||
         apart(car.x - kHalf, car.x + kHalf, way.x - objectStep, at.corner.x, at.size.x);
}

/// False when the run is over.
bool FrozenWorld::Meet(const cd::TouchedFace& face) {
  const float step = face.ObjectType == cd::PlatformObject ? PlatformStep(face.ObjectIndex) : 0.0F;
  if (OutOfTouch(face, step)) return true;
  cd::SweepState sweep;
  if (!cd::SweepBox(sweep, state_.car, PlaneOf(face), step)) return true;
  cd::Contacts contacts;
  if (!cd::FindContacts(sweep, contacts)) return true;
  const maths::ProjectedQuad quad(CornersOf(face));
  const bool eitherWay = face.ObjectType == cd::RampObject && face.PlaneNumber == kSlope;
  return cd::AnswerContacts(*this, face, contacts, [&](const Vector3& contact) {
    const int side = quad.SideOfEdges(contact);
    return eitherWay ? side != 0 : side == 1;
  });
}

void FrozenWorld::CollectStars() {
  const Vector3& at = state_.car.position;
  track_.VisitStarsNear(at, [&](int32_t i) {
    const FrozenStar& star = track_.Stars()[Slot(i)];
    if (!cd::StarInReach(at, star.x, star.y, star.z)) return;
    if (std::ranges::find(state_.collected, i) == state_.collected.end()) {
      state_.collected.push_back(i);
    }
  });
}

StepEvents FrozenWorld::Update(bool wasExploding) {
  Car& car = state_.car;
  state_.OnGround = false;
  car.TakeOffIce();
  car.PullDown(track_.Gravity());
  FrozenTrack::Near near;
  track_.FindNear(state_, near);
  const auto kindOf = [this](int32_t i) { return track_.Blocks()[Slot(i)].kind; };
  const auto meet = [this](const cd::TouchedFace& face) { return Meet(face); };
  if (cd::VisitInOrder(near.blocks, near.platforms, near.ramps, kindOf, meet)) {
    CollectStars();
    if (kill_) car.Exploding = state_.platformsStand = true;
    if (car.FellOffTheTrack()) car.Dead = true;
  }
  if (car.Dead) {
    events_.ending = car.FellOffTheTrack() ? Ending::Falls : Ending::Wins;
  } else if (car.Exploding && !wasExploding) {
    events_.ending = Ending::Explodes;
  }
  return events_;
}

void MoveBlocks(const FrozenTrack& track, DriveState& state) {
  for (MovedBlock& block : state.moved) block.y = block.motion.Advance(block.y, track.Gravity());
  std::erase_if(state.moved, [&track](const MovedBlock& block) {
    return !block.motion.Moves() && block.y == track.Blocks()[Slot(block.index)].box.corner.y;
  });
}

void StartOver(DriveState& state) {
  state.car.Reset();
  state.platformsStand = false;
  state.framesOfRun = state.platformSteps = 0;
  state.moved.clear();
  state.collected.clear();
}

}  // namespace

StepEvents FrozenTrack::Step(DriveState& state, CarKeys keys) const {
  Car& car = state.car;
  ++state.frame;
  const bool wasExploding = car.Exploding && !car.Dead;
  car.Obey(keys, state.OnGround);
  if (car.Dead) StartOver(state);
  const StepEvents events = FrozenWorld(*this, state).Update(wasExploding);
  MoveBlocks(*this, state);
  if (car.Exploding) {
    car.AdvanceExplosion(state.frame * kMillisecondsPerFrame);
  } else {
    car.Advance();
  }
  if (!state.platformsStand) ++state.platformSteps;
  ++state.framesOfRun;
  return events;
}

}  // namespace drive
