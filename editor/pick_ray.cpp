#include "editor/pick_ray.h"

#include <algorithm>
#include <cmath>

#include "editor/main_controls.h"
#include "level/maths.h"
#include "platform/d3dx_maths.h"
#include "render/device/DirectX.h"

namespace {

constexpr float kNearDistance = 1.0F;
constexpr float kFarDistance = 100.0F;

/// What rounding may add to a hit.
double Slack(double corner, double size) {
  return 0.01 + 1e-5 * (std::abs(corner) + std::abs(size));
}

/// Whether anything between `corner` and `corner + size` is as deep as some point of the ray. One
/// comparison: most of a track ends here, in no order that could be guessed.
bool MeetsInDepth(const PickRay& ray, double corner, double size) {
  const double ways = std::abs(double{ray.direction.z}) + std::abs(size);
  const double apart = (ray.start.z + ray.direction.z / 2.0) - (corner + size / 2);
  return std::abs(apart) <= ways / 2 + Slack(corner, size);
}

/// The part of a ray's length, from 0 to 1, that is left.
struct Span {
  double from = 0, to = 1;
  bool Empty() const { return from > to; }

  /// Leaves what lies between `corner` and `corner + size` along one axis, and a little more.
  void Cut(double start, double direction, double corner, double size) {
    const double low = std::min(corner, corner + size) - Slack(corner, size) - start;
    const double high = std::max(corner, corner + size) + Slack(corner, size) - start;
    if (direction == 0) {
      if (low > 0 || high < 0) to = -1;
      return;
    }
    const double a = low / direction, b = high / direction;
    from = std::max(from, std::min(a, b));
    to = std::min(to, std::max(a, b));
  }
};

}  // namespace

bool PickRay::MayMeet(const Extent& box) const {
  if (!MeetsInDepth(*this, box.corner.z, box.size.z)) return false;
  Span span;
  span.Cut(start.z, direction.z, box.corner.z, box.size.z);
  span.Cut(start.x, direction.x, box.corner.x, box.size.x);
  if (span.Empty()) return false;
  span.Cut(start.y, direction.y, box.corner.y, box.size.y);
  return !span.Empty();
}

PickRay RayThrough(float x, float y) {
  const PictureArea& viewport = Controls().viewport;
  Vector3 nearPoint, farPoint;
  maths::GetPickRay(x, y, DirectX::kFieldOfView, viewport.ScaleWidth(), viewport.ScaleHeight(),
                    nearPoint, farPoint, kNearDistance, kFarDistance);
  return {nearPoint, d3dx::Subtract(farPoint, nearPoint)};
}
