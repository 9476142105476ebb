#include "play/CollisionDetection.h"

#include "level/globals.h"
#include "level/maths.h"
#include "platform/dialogs.h"
#include "platform/numbers.h"
#include "play/clsPlayer.h"
#include "play/end_program.h"

namespace CollisionDetection {
namespace {

constexpr int16_t kTop = 3;

double Dot(const CollisionPlane& plane, const Vector4& v) {
  return double{plane.a} * v.x + double{plane.b} * v.y + double{plane.c} * v.z +
         double{plane.d} * v.w;
}

Vector4 Subtract(const Vector4& a, const Vector4& b) {
  return {ToSingle(double{a.x} - b.x), ToSingle(double{a.y} - b.y), ToSingle(double{a.z} - b.z),
          ToSingle(double{a.w} - b.w)};
}

/// Where the centre will be after the step, as seen from the candidate's object.
Vector4 NextCentre(const CollisionCandidate& candidate, const Vector4& centre) {
  const Vector4 step = Player.GetVelocity();
  Vector4 next{ToSingle(double{centre.x} + step.x), ToSingle(double{centre.y} + step.y),
               ToSingle(double{centre.z} + step.z), 1};
  if (candidate.ObjectType == PlatformObject) {
    const auto index = static_cast<size_t>(candidate.ObjectIndex);
    next.x = ToSingle(double{next.x} - Document.Platforms[index].GetVelocity().x);
  }
  return next;
}

/// Half an axis of the box and the side of it that is meant.
struct Edge {
  const Vector3* axis;
  double sign;
};

void AddContact(const std::array<Edge, 3>& edges) {
  const SweepState& s = Sweep;
  const auto along = [&](float Vector3::*part) {
    double sum = 0;
    for (const Edge& edge : edges) sum += edge.sign * edge.axis->*part;
    return sum / 2;
  };
  const double t = s.HitTime;
  ContactPoints.push_back({ToSingle(s.Centre.x + t * s.Motion.x - along(&Vector3::x)),
                           ToSingle(s.Centre.y + t * s.Motion.y - along(&Vector3::y)),
                           ToSingle(s.Centre.z + t * s.Motion.z - along(&Vector3::z))});
}

/// The box touches with a whole side: the four corners of it.
void AddFace() {
  Edge facing{&AxisZ, SignOf(Sweep.DotZ)};
  const Vector3 *first = &AxisY, *second = &AxisX;
  if (Sweep.DotY != 0) {
    facing = {&AxisY, SignOf(Sweep.DotY)};
    first = &AxisX;
    second = &AxisZ;
  } else if (Sweep.DotX != 0) {
    facing = {&AxisX, SignOf(Sweep.DotX)};
    second = &AxisZ;
  }
  for (const double e2 : {-1.0, 1.0}) {
    for (const double e1 : {-1.0, 1.0}) AddContact({facing, {first, e1}, {second, e2}});
  }
}

/// The box touches with one edge: its two ends.
void AddEdge() {
  const Edge y{&AxisY, SignOf(Sweep.DotY)}, x{&AxisX, SignOf(Sweep.DotX)},
      z{&AxisZ, SignOf(Sweep.DotZ)};
  for (const double e : {1.0, -1.0}) {
    if (Sweep.DotZ == 0) {
      AddContact({y, x, {&AxisZ, e}});
    } else if (Sweep.DotX == 0) {
      AddContact({y, z, {&AxisX, e}});
    } else {
      AddContact({x, z, {&AxisY, e}});
    }
  }
}

}  // namespace

void ResetCollisionFlags() {
  PlatformLeftContact = PlatformRightContact = KillFlag = OnRamp = OnGround = false;
  Player.setplayernotonice();
  AxisY = {0, 0.8F, 0};
  AxisX = {0.8F, 0, 0};
  AxisZ = {0, 0, 0.8F};
}

bool SweepCandidate(const CollisionCandidate& candidate) {
  SweepState& s = Sweep;
  s.Radius = Player.CalculateEffectiveRadius(candidate.Normal);
  s.Centre = Player.CalculateCollisionBoxCentre();
  s.NextCentre = NextCentre(candidate, s.Centre);
  s.Motion = Subtract(s.NextCentre, s.Centre);
  s.Shifted = candidate.Plane;
  s.Shifted.d = ToSingle(double{candidate.Plane.d} - s.Radius);
  s.Distance = ToSingle(Dot(s.Shifted, s.Centre));
  s.Approach = ToSingle(Dot(s.Shifted, s.Motion));
  if (s.Approach == 0) return false;
  const double time = -double{s.Distance} / s.Approach;
  // Sorted out before it is stored: next to no approach gives a time that no Single holds.
  if (!(time > 0 && time < 2)) return false;
  s.HitTime = ToSingle(time);
  if (!(s.HitTime > 0 && s.HitTime <= 1)) return false;
  s.DotY = ToSingle(d3dx::Dot(AxisY, candidate.Normal));
  s.DotX = ToSingle(d3dx::Dot(AxisX, candidate.Normal));
  s.DotZ = ToSingle(d3dx::Dot(AxisZ, candidate.Normal));
  s.AxesInvolved = (s.DotY != 0) + (s.DotX != 0) + (s.DotZ != 0);
  CalculateContactPoints();
  return true;
}

void CalculateContactPoints() {
  ContactPoints.clear();
  switch (Sweep.AxesInvolved) {
    case 1:
      AddFace();
      break;
    case 2:
      AddEdge();
      break;
    case 3:
      dialogs::ShowMessage(kTiltedPlaneText);
      EndProgram();
      break;
    default:
      break;
  }
  ContactCount = static_cast<int32_t>(ContactPoints.size());
}

float SignOf(float x) { return x < 0 ? -1.0F : 1.0F; }

bool PointInCollisionFace(const CollisionCandidate& candidate, const Vector3& p) {
  const auto& c = candidate.Corners;
  // The projection of a slope depends on its steepness, and with it the way that it is wound.
  const bool slope = candidate.ObjectType == RampObject && candidate.PlaneNumber == kTop;
  return slope ? maths::PointInQuadEitherWay(c[0], c[1], c[2], c[3], p)
               : maths::PointInQuad(c[0], c[1], c[2], c[3], p);
}

}  // namespace CollisionDetection
