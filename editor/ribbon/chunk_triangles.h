// The triangles of one piece of a path.
#pragma once

#include <span>

#include "editor/ribbon/speed_colours.h"
#include "editor/ribbon/strip.h"

namespace ribbon {

inline constexpr size_t kPointsPerSecond = 25;

/// How far triangles reach from the middle of the strip, world units.
inline constexpr double kStripReach = 1.0;

/// What shines through what hides it, and what is in plain sight.
struct ChunkTriangles {
  Triangles faintStrip, faintMarks, strip, marks;
};

/// A ribbon with ticks and marks from point `first` to `last`; marks of `last` belong to the next
/// piece unless it is the path's last point.
ChunkTriangles RibbonTriangles(const Palette& palette, std::span<const drive::PathPoint> path,
                               size_t first, size_t last);
/// A thin grey line.
ChunkTriangles LineTriangles(std::span<const drive::PathPoint> path, size_t first, size_t last);

}  // namespace ribbon
