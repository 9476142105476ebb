#include "drive/path.h"

#include <algorithm>
#include <cmath>

namespace drive {

size_t PointNearDepth(const Path& path, size_t count, float depth) {
  const auto end = path.begin() + static_cast<ptrdiff_t>(count);
  const auto nearest =
      std::min_element(path.begin(), end, [depth](const PathPoint& a, const PathPoint& b) {
        return std::abs(a.place.z - depth) < std::abs(b.place.z - depth);
      });
  return static_cast<size_t>(nearest - path.begin());
}

bool PassesDepth(const Path& path, float depth) {
  constexpr float kBeyond = 2;
  const auto [first, last] =
      std::ranges::minmax(path, {}, [](const PathPoint& point) { return point.place.z; });
  return first.place.z - kBeyond <= depth && depth <= last.place.z + kBeyond;
}

}  // namespace drive
