#include "editor/ribbon/sections.h"

#include <algorithm>
#include <cmath>

#include "platform/d3dx_maths.h"
#include "platform/numbers.h"

namespace ribbon {
namespace {

using drive::PathPoint;
using Path = std::span<const PathPoint>;

constexpr double kFarthest = 1e5;                 ///< of a place from the origin
constexpr double kStands = 1e-3;                  ///< shorter steps are none
constexpr double kShortest = 0.25;                ///< between sections inside a strip
constexpr double kStraight = 0.997;               ///< cosine of a bend that nobody sees
constexpr double kSteadySpeed = 0.03;             ///< a change of it nobody sees
constexpr double kSteep = 0.75, kUpright = 0.95;  ///< sines of the slope
constexpr double kSharpest = 0.5;  ///< a mitre is not made longer than twice the width

const Vector3 kNowhere{};

bool IsNone(const Vector3& v) { return v == kNowhere; }

/// The way from one point to another; none where they are one, or one of them is nowhere.
Vector3 Way(const PathPoint& from, const PathPoint& to) {
  if (!IsSomewhere(from) || !IsSomewhere(to)) return {};
  const Vector3 step = d3dx::Subtract(to.place, from.place);
  return d3dx::Dot(step, step) < kStands * kStands ? Vector3() : d3dx::Normalize(step);
}

/// Horizontal, to the right of the way; on a steep way it turns towards the camera, which looks
/// along z, so that the strip stands upright.
Vector3 Right(const Vector3& way) {
  const double steep = std::abs(double{way.y});
  const double upright = std::clamp((steep - kSteep) / (kUpright - kSteep), 0.0, 1.0);
  const double flat = std::hypot(double{way.x}, double{way.z});
  if (upright == 1 || flat == 0) return {1, 0, 0};
  const double x = way.z / flat, z = -way.x / flat;
  const double turned = (1 - upright) * x + (x < 0 ? -upright : upright);
  return d3dx::Normalize({ToSingle(turned), 0, ToSingle((1 - upright) * z)});
}

/// The edge between the sides of two ways: half their angle, and longer so that the edges meet.
Vector3 Mitre(const Vector3& before, Vector3 after) {
  if (d3dx::Dot(before, after) < 0) after = Beside({}, after, -1);
  const Vector3 middle = d3dx::Normalize(Beside(before, after, 1));
  return Beside({}, middle, 1 / std::max(kSharpest, d3dx::Dot(middle, before)));
}

double SpeedOf(const PathPoint& point) {
  const double speed = std::hypot(double{point.velocity.x}, double{point.velocity.z});
  return std::isfinite(speed) ? speed : 0;
}

/// Whether the strip between two kept points passes this one closely enough in place and colour.
bool LiesOnTheWay(Path path, size_t kept, size_t index) {
  const PathPoint &from = path[kept], &here = path[index], &next = path[index + 1];
  if (!IsSomewhere(from) || !IsSomewhere(here) || !IsSomewhere(next)) return false;
  const Vector3 step = d3dx::Subtract(here.place, from.place);
  if (d3dx::Dot(step, step) < kShortest * kShortest) return true;
  if (std::abs(SpeedOf(here) - SpeedOf(from)) > kSteadySpeed) return false;
  const Vector3 before = d3dx::Normalize(step), after = Way(here, next);
  return !IsNone(after) && d3dx::Dot(before, after) > kStraight;
}

}  // namespace

Vector3 Beside(const Vector3& from, const Vector3& way, double length) {
  return {ToSingle(from.x + way.x * length), ToSingle(from.y + way.y * length),
          ToSingle(from.z + way.z * length)};
}

bool IsSomewhere(const PathPoint& point) {
  const Vector3& at = point.place;
  // False for what is no number, too.
  return std::abs(at.x) < kFarthest && std::abs(at.y) < kFarthest && std::abs(at.z) < kFarthest;
}

Vector3 MiddleAt(const PathPoint& point) { return Beside(point.place, {0, 1, 0}, kLift); }

Section SectionAt(Path path, size_t index) {
  const PathPoint& here = path[index];
  if (!IsSomewhere(here)) return {};
  Vector3 before = index > 0 ? Way(path[index - 1], here) : Vector3();
  Vector3 after = index + 1 < path.size() ? Way(here, path[index + 1]) : Vector3();
  if (IsNone(before)) before = after;
  if (IsNone(after)) after = before;
  Section section{MiddleAt(here), {}, after, SpeedOf(here), false};
  if (!IsNone(after)) section.across = Mitre(Right(before), Right(after));
  return section;
}

std::vector<Section> SectionsOf(Path path, size_t first, size_t last) {
  std::vector<Section> sections;
  size_t kept = first;
  for (size_t i = first; i <= last; ++i) {
    const bool isEnd = i == first || i == last;
    if (!isEnd && LiesOnTheWay(path, kept, i)) continue;
    Section section = SectionAt(path, i);
    const Vector3 way = Way(path[kept], path[i]);
    if (!sections.empty() && !IsNone(way)) {
      // An end at which the car stands has only the way here; a beginning only the way on.
      if (IsNone(section.across)) section.across = Right(way);
      if (IsNone(sections.back().across)) sections.back().across = Right(way);
      section.joined = true;
      if (d3dx::Dot(section.across, sections.back().across) < 0)
        section.across = Beside({}, section.across, -1);
    }
    sections.push_back(section);
    kept = i;
  }
  return sections;
}

}  // namespace ribbon
