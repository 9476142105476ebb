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

/// The part of a ray's length, from 0 to 1, that is left.
struct Span {
  double from = 0, to = 1;
  bool Empty() const { return from > to; }

  /// Leaves what lies between `corner` and `corner + size` along one axis, widened by what rounding
  /// may add to a hit.
  void Cut(double start, double direction, double corner, double size) {
    const double slack = 0.01 + 1e-5 * (std::abs(corner) + std::abs(size));
    const double low = std::min(corner, corner + size) - slack - start;
    const double high = std::max(corner, corner + size) + slack - start;
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
  Span span;
  span.Cut(start.z, direction.z, box.corner.z, box.size.z);
  if (span.Empty()) return false;
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
