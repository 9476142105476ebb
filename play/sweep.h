// The car's box against one plane: whether it touches within the step it is about to take, and with
// which of its points.
#pragma once

#include <array>
#include <cstdint>

#include "level/collision_plane.h"
#include "play/car.h"

namespace CollisionDetection {

/// The sweep of one candidate.
struct SweepState {
  float Radius = 0;                    ///< half the box along the plane's normal
  Vector4 Centre;                      ///< of the box, now
  Vector4 NextCentre;                  ///< after the step, relative to the object
  Vector4 Motion;                      ///< from one to the other
  CollisionPlane Shifted;              ///< the plane, moved outwards by the radius
  float HitTime = 0;                   ///< part of the step until the touch, above 0 and up to 1
  float Distance = 0;                  ///< of the centre from the shifted plane
  float Approach = 0;                  ///< change of the distance over the step
  float DotY = 0, DotX = 0, DotZ = 0;  ///< the plane's normal against the box's axes
  int32_t AxesInvolved = 0;            ///< how many of them are not 0
};

/// The points of the box that touch the plane.
struct Contacts {
  std::array<Vector3, 4> points;
  size_t count = 0;
};

/// −1 below 0, otherwise +1.
inline float SignOf(float x) { return x < 0 ? -1.0F : 1.0F; }

inline double Dot(const CollisionPlane& plane, const Vector4& v) {
  return double{plane.a} * v.x + double{plane.b} * v.y + double{plane.c} * v.z +
         double{plane.d} * v.w;
}

/// Fills `s` and returns true when the car touches the plane within its step. `objectStep` is how
/// far the plane moves along x meanwhile. All of `s` is filled only then.
inline bool SweepBox(SweepState& s, const Car& car, const CollisionPlane& plane, float objectStep) {
  s.Radius = Car::EffectiveRadius({plane.a, plane.b, plane.c});
  s.Centre = car.Centre();
  s.NextCentre = {ToSingle(double{s.Centre.x} + car.velocity.x),
                  ToSingle(double{s.Centre.y} + car.velocity.y),
                  ToSingle(double{s.Centre.z} + car.velocity.z), 1};
  s.NextCentre.x = ToSingle(double{s.NextCentre.x} - objectStep);
  s.Motion = {ToSingle(double{s.NextCentre.x} - s.Centre.x),
              ToSingle(double{s.NextCentre.y} - s.Centre.y),
              ToSingle(double{s.NextCentre.z} - s.Centre.z), 0};
  s.Shifted = plane;
  s.Shifted.d = ToSingle(double{plane.d} - s.Radius);
  s.Distance = ToSingle(Dot(s.Shifted, s.Centre));
  s.Approach = ToSingle(Dot(s.Shifted, s.Motion));
  if (s.Approach == 0) return false;
  const double time = -double{s.Distance} / s.Approach;
  // Sorted out before it is stored: next to no approach gives a time that no Single holds.
  if (!(time > 0 && time < 2)) return false;
  s.HitTime = ToSingle(time);
  if (!(s.HitTime > 0 && s.HitTime <= 1)) return false;
  const double edge = Car::kEdge;
  s.DotY = ToSingle(edge * plane.b);
  s.DotX = ToSingle(edge * plane.a);
  s.DotZ = ToSingle(edge * plane.c);
  s.AxesInvolved = (s.DotY != 0) + (s.DotX != 0) + (s.DotZ != 0);
  return true;
}

/// The touching points, in the order in which they are answered: the four corners of a side, or the
/// two ends of an edge. False for a plane that is tilted against all three axes of the box.
inline bool FindContacts(const SweepState& s, Contacts& contacts) {
  constexpr double kHalf = double{Car::kEdge} / 2;
  contacts.count = 0;
  // Which side of the box along each axis; an axis that is not involved takes both.
  const auto add = [&](double x, double y, double z) {
    const double t = s.HitTime;
    contacts.points[contacts.count++] = {ToSingle(s.Centre.x + t * s.Motion.x - x * kHalf),
                                         ToSingle(s.Centre.y + t * s.Motion.y - y * kHalf),
                                         ToSingle(s.Centre.z + t * s.Motion.z - z * kHalf)};
  };
  const double x = SignOf(s.DotX), y = SignOf(s.DotY), z = SignOf(s.DotZ);
  if (s.AxesInvolved == 1) {
    for (const double second : {-1.0, 1.0}) {
      for (const double first : {-1.0, 1.0}) {
        if (s.DotY != 0) {
          add(first, y, second);
        } else if (s.DotX != 0) {
          add(x, first, second);
        } else {
          add(second, first, z);
        }
      }
    }
  } else if (s.AxesInvolved == 2) {
    for (const double end : {1.0, -1.0}) {
      if (s.DotZ == 0) {
        add(x, y, end);
      } else if (s.DotX == 0) {
        add(end, y, z);
      } else {
        add(x, end, z);
      }
    }
  }
  return s.AxesInvolved < 3;
}

}  // namespace CollisionDetection
