#include "check/solid_blocks.h"

#include <algorithm>
#include <cmath>

#include "play/star_reach.h"

namespace check {
namespace {

/// So near to a block a breaker counts.
constexpr float kMargin = 3;

/// The same box with sizes above 0.
Extent Upright(Extent box) {
  for (float Vector3::*axis : {&Vector3::x, &Vector3::y, &Vector3::z}) {
    box.corner.*axis = std::min(box.corner.*axis, box.corner.*axis + box.size.*axis);
    box.size.*axis = std::abs(box.size.*axis);
  }
  return box;
}

Extent ReachOf(const drive::FrozenPlatform& platform) {
  const auto distance = static_cast<float>(platform.way.Travel().distance);
  Extent reach = platform.box;
  reach.corner.x -= distance;
  reach.size.x += 2 * distance;
  return reach;
}

/// Whether two boxes come nearer to each other than the margin.
bool Near(const Extent& a, const Extent& b) {
  const auto near = [&](float Vector3::*axis) {
    return a.corner.*axis - kMargin < b.corner.*axis + b.size.*axis &&
           b.corner.*axis < a.corner.*axis + a.size.*axis + kMargin;
  };
  return near(&Vector3::x) && near(&Vector3::y) && near(&Vector3::z);
}

bool Holds(const Extent& box, const drive::FrozenStar& star) {
  const auto holds = [](float low, float size, double from, double to) {
    return low <= from && to <= double{low} + size;
  };
  constexpr double kReach = CollisionDetection::kStarReach;
  return holds(box.corner.x, box.size.x, star.x - kReach, star.x + kReach) &&
         holds(box.corner.y, box.size.y, star.y - kReach, star.y + kReach) &&
         holds(box.corner.z, box.size.z, star.z, star.z + 1);
}

float LowZ(const Extent& box) { return box.corner.z; }

}  // namespace

SolidBlocks::SolidBlocks(const drive::FrozenTrack& track)
    : blocks_(track), solid_(track.Blocks().size()) {
  breakers_.reserve(track.Ramps().size() + track.Platforms().size() + 1);
  for (const drive::FrozenRamp& ramp : track.Ramps()) breakers_.push_back(Upright(ramp.box));
  for (const drive::FrozenPlatform& platform : track.Platforms()) {
    breakers_.push_back(ReachOf(platform));
  }
  breakers_.push_back({Car::kStart, {}});
  for (const drive::FrozenBlock& block : track.Blocks()) {
    if (Moves(block)) breakers_.push_back(block.box);
  }
  for (const Extent& box : breakers_) longest_ = std::max(longest_, box.size.z);
  std::ranges::sort(breakers_, {}, LowZ);
}

std::optional<int32_t> SolidBlocks::Around(const drive::FrozenStar& star) {
  std::optional<int32_t> found;
  blocks_.At(star.x, star.z + 0.5, [&](int32_t index) {
    if (!found && Holds(blocks_.Box(index), star) && IsSolid(index)) found = index;
  });
  return found;
}

bool SolidBlocks::IsSolid(int32_t index) {
  // Beyond it the gap between car and face drowns in rounding.
  constexpr float kExact = 4000;
  Answer& answer = solid_[static_cast<size_t>(index)];
  if (answer == Unknown) {
    const auto& [at, size] = blocks_.Box(index);
    const bool exact = std::abs(at.x) + size.x < kExact && std::abs(at.y) + size.y < kExact &&
                       std::abs(at.z) + size.z < kExact;
    answer = exact && !IsBroken({at, size}) ? Yes : No;
  }
  return answer == Yes;
}

bool SolidBlocks::IsBroken(const Extent& block) const {
  const float low = block.corner.z - kMargin;
  const auto first = std::ranges::lower_bound(breakers_, low - longest_, {}, LowZ);
  const auto end =
      std::ranges::upper_bound(breakers_, block.corner.z + block.size.z + kMargin, {}, LowZ);
  return first < end &&
         std::any_of(first, end, [&block](const Extent& breaker) { return Near(block, breaker); });
}

}  // namespace check
