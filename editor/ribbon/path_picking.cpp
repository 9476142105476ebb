#include "editor/ribbon/path_picking.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "editor/ribbon/sections.h"
#include "platform/frustum.h"
#include "render/device/DirectX.h"

namespace ribbon {
namespace {

/// The world as the device's present camera shows it.
class Screen {
 public:
  Screen()
      : toClip_(WorldToClip({DirectX::D3DDevice->GetTransform(Transform::View),
                             DirectX::D3DDevice->GetTransform(Transform::Projection)})) {}

  std::optional<PixelPlace> Find(const Vector3& place) const {
    const double z = Component(place, 2), w = Component(place, 3);
    if (!(z >= 0 && w > 0)) return {};
    return PixelPlace{(1 + Component(place, 0) / w) / 2 * DirectX::ViewportWidth,
                      (1 - Component(place, 1) / w) / 2 * DirectX::ViewportHeight};
  }

 private:
  double Component(const Vector3& p, size_t column) const {
    const auto& m = toClip_.m;
    return double{p.x} * m[0][column] + double{p.y} * m[1][column] + double{p.z} * m[2][column] +
           m[3][column];
  }

  Matrix4 toClip_;
};

/// How far along the way from `a` to `b`, 0 to 1, the point nearest to `p` lies.
double ShareOfNearest(const PixelPlace& a, const PixelPlace& b, const PixelPlace& p) {
  const double x = b.x - a.x, y = b.y - a.y;
  const double square = x * x + y * y;
  return square > 0 ? std::clamp(((p.x - a.x) * x + (p.y - a.y) * y) / square, 0.0, 1.0) : 0;
}

}  // namespace

std::optional<PixelPlace> PlaceOnScreen(const Vector3& place) { return Screen().Find(place); }

std::optional<size_t> PointNear(std::span<const drive::PathPoint> path, double x, double y,
                                double reach) {
  const Screen screen;
  const PixelPlace mouse{x, y};
  std::optional<size_t> nearest;
  std::optional<PixelPlace> before;
  for (size_t i = 0; i < path.size(); ++i) {
    const auto here = IsSomewhere(path[i]) ? screen.Find(MiddleAt(path[i])) : std::nullopt;
    if (here) {
      const PixelPlace from = before.value_or(*here);
      const double share = ShareOfNearest(from, *here, mouse);
      const double apart = std::hypot(from.x + (here->x - from.x) * share - x,
                                      from.y + (here->y - from.y) * share - y);
      if (nearest ? apart < reach : apart <= reach) {
        reach = apart;
        nearest = before && share < 0.5 ? i - 1 : i;
      }
    }
    before = here;
  }
  return nearest;
}

}  // namespace ribbon
