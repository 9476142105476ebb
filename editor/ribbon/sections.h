// Cross-sections along a path: where a strip that follows it lies, and how it is turned there.
#pragma once

#include <span>
#include <vector>

#include "drive/path.h"

namespace ribbon {

/// Above the places, so as not to fight with the ground in the depth buffer.
inline constexpr double kLift = 0.07;

/// Whether a point is somewhere: drives that leave all bounds, or hold no numbers, show nothing.
bool IsSomewhere(const drive::PathPoint& point);

/// The middle of the strip at a point.
Vector3 MiddleAt(const drive::PathPoint& point);

struct Section {
  Vector3 middle;
  /// Towards an edge of a strip of half width 1; longer than 1 in a bend, so that edges meet.
  Vector3 across;
  Vector3 heading;      ///< the way on, of length 1
  double speed = 0;     ///< over the ground, world units per frame
  bool joined = false;  ///< the strip leads here from the section before
};

/// The sections from point `first` to point `last`, both with one where the car moves. Points in
/// between that lie on the way are left out. Neighbours outside shape the two ends, so that
/// strips made one after another fit.
std::vector<Section> SectionsOf(std::span<const drive::PathPoint> path, size_t first, size_t last);

/// The section at one point; its heading is zero where the car stands.
Section SectionAt(std::span<const drive::PathPoint> path, size_t index);

/// `from` and `way` times `length`.
Vector3 Beside(const Vector3& from, const Vector3& way, double length);

}  // namespace ribbon
