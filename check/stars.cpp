#include <algorithm>
#include <cmath>

#include "check/car_space.h"
#include "check/rules.h"
#include "check/solid_blocks.h"
#include "play/star_reach.h"

namespace check {
namespace {

/// A car has no way back; only a face that it touches where it starts sets it back by a hair.
bool NothingSetsBackTheStart(const drive::FrozenTrack& track) {
  constexpr double kHair = 0.02;
  const auto touches = [](const auto& piece) {
    return std::abs(piece.box.corner.z - Car::kStart.z) < kHair ||
           std::abs(piece.box.corner.z + piece.box.size.z - Car::kStart.z) < kHair;
  };
  return std::ranges::none_of(track.Blocks(), touches) &&
         std::ranges::none_of(track.Platforms(), touches) &&
         std::ranges::none_of(track.Ramps(), touches);
}

}  // namespace

void CheckStars(const drive::FrozenTrack& track, Findings& findings) {
  const std::vector<drive::FrozenStar>& stars = track.Stars();
  if (stars.empty()) return;
  const CarSpace space = CarSpaceOf(track);
  SolidBlocks solid(track);
  const bool noWayBack = NothingSetsBackTheStart(track);
  for (size_t i = 0; i < stars.size(); ++i) {
    const drive::FrozenStar& star = stars[i];
    const PieceName name{TypeStar, static_cast<int32_t>(i)};
    const Vector3 at{static_cast<float>(star.x), static_cast<float>(star.y),
                     static_cast<float>(star.z)};
    if (noWayBack && star.z + 1 <= Car::kStart.z) {
      findings.Add(Fault::LostStar, name, at, "lies behind the start");
    } else if (star.y - CollisionDetection::kStarReach >= space.highY) {
      findings.Add(Fault::LostStar, name, at, "lies higher than any car gets");
    } else if (star.z >= space.highZ || star.x + CollisionDetection::kStarReach <= space.lowX ||
               star.x - CollisionDetection::kStarReach >= space.highX) {
      findings.Add(Fault::LostStar, name, at, "lies farther off than any car gets");
    } else if (const auto block = solid.Around(star)) {
      const PieceName other{TypeBlock, *block};
      findings.Add(Fault::LostStar, name, at, "lies inside " + Words(other), other);
    }
  }
}

}  // namespace check
