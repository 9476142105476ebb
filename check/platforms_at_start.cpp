#include "check/rules.h"

namespace check {
namespace {

/// What is less is a touch.
constexpr double kTouch = 0.005;

bool Overlap(double low, double high, double otherLow, double otherHigh) {
  return low < otherHigh - kTouch && otherLow < high - kTouch;
}

/// Where the platform is on its whole way, along x.
std::pair<double, double> SpanOfWay(const drive::FrozenPlatform& platform) {
  const PlatformTravel& travel = platform.way.Travel();
  double low = platform.box.corner.x, high = low + platform.box.size.x;
  const int heading = travel.speed == 0 ? 0 : platform.way.At(0).Heading();
  (heading < 0 ? low : high) += heading * int{travel.distance};
  return {low, high};
}

}  // namespace

void CheckPlatformsAtStart(const drive::FrozenTrack& track, float ground, Findings& findings) {
  constexpr Vector3 at = Car::kStart;
  constexpr double kHalf = Car::kEdge / 2.0;
  const std::vector<drive::FrozenPlatform>& platforms = track.Platforms();
  for (size_t i = 0; i < platforms.size(); ++i) {
    const Extent& box = platforms[i].box;
    if (box.size.x <= 0 || box.size.y <= 0 || box.size.z <= 0) continue;
    const auto [low, high] = SpanOfWay(platforms[i]);
    if (!Overlap(low, high, at.x - kHalf, at.x + kHalf) ||
        !Overlap(box.corner.y, double{box.corner.y} + box.size.y, ground, at.y + Car::kEdge) ||
        !Overlap(box.corner.z, double{box.corner.z} + box.size.z, at.z - Car::kEdge, at.z)) {
      continue;
    }
    findings.Add(Fault::PlatformAtStart, {TypePlatform, static_cast<int32_t>(i)}, box.corner,
                 "comes through the place where the car starts");
  }
}

}  // namespace check
