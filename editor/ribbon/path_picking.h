// Finds the point of a path under the mouse.
#pragma once

#include <optional>
#include <span>

#include "drive/path.h"

namespace ribbon {

/// Where a place appears in the viewport, in its pixels; nothing behind the near plane.
struct PixelPlace {
  double x, y;
};
std::optional<PixelPlace> PlaceOnScreen(const Vector3& place);

/// The point whose strip comes nearest to a pixel, at most `reach` pixels away: of the two ends of
/// the nearest step the nearer one.
std::optional<size_t> PointNear(std::span<const drive::PathPoint> path, double x, double y,
                                double reach);

}  // namespace ribbon
