#include "check/car_space.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "level/clsblock.h"

namespace check {
namespace {

constexpr double kEndless = std::numeric_limits<double>::infinity();
constexpr double kTopSpeed = 1;  ///< of a car along x and along z

double Top(const Extent& box) { return box.corner.y + std::max(0.0, double{box.size.y}); }

/// Collects how high a car can come and where it can take off.
class Measure {
 public:
  explicit Measure(const drive::FrozenTrack& track) : gravity_(track.Gravity()) {
    for (const drive::FrozenBlock& block : track.Blocks()) AddBlock(block);
    for (const drive::FrozenPlatform& platform : track.Platforms()) {
      Add(platform.box, platform.way.Travel().distance);
    }
    for (const drive::FrozenRamp& ramp : track.Ramps()) AddRamp(ramp);
  }

  CarSpace Around() const {
    constexpr double kLeastGravity = 1e-5, kStep = 3, kFallLimit = -40, kPadSpeed = 0.45;
    // Where pads strike faster than they come back, they climb.
    constexpr double kClimbingGravity = 0.04;
    if (gravity_ < kLeastGravity || (pads_ && gravity_ > kClimbingGravity)) {
      return {-kEndless, kEndless, kEndless, kEndless};
    }
    const double highest = std::max(fromRamps_, top_ + kStep + Apex(kPadSpeed));
    const double fall = std::sqrt(2 * (highest + kStep - kFallLimit) / gravity_);
    const double flight = kTopSpeed * (fall + 2 * std::max(kPadSpeed, fastestUp_) / gravity_);
    const double beyond = flight + kStep;
    return {lowX_ - beyond, highX_ + beyond, highest, highZ_ + beyond};
  }

 private:
  double Apex(double speed) const { return speed * speed / (2 * gravity_) + speed; }
  void AddBlock(const drive::FrozenBlock& block) {
    pads_ = pads_ || block.kind == clsblock::JumpPad;
    Add(block.box, 0);
  }
  void Add(const Extent& box, double slide) {
    const auto [lowX, highX] =
        std::minmax({double{box.corner.x}, double{box.corner.x} + box.size.x});
    lowX_ = std::min(lowX_, lowX - slide);
    highX_ = std::max(highX_, highX + slide);
    highZ_ = std::max(highZ_, box.corner.z + std::max(0.0, double{box.size.z}));
    top_ = std::max(top_, Top(box));
  }
  void AddRamp(const drive::FrozenRamp& ramp) {
    Add(ramp.box, 0);
    if (gravity_ <= 0) return;
    const double up = kTopSpeed * std::abs(ramp.gradient);
    fastestUp_ = std::max(fastestUp_, up);
    fromRamps_ = std::max(fromRamps_, Top(ramp.box) + 1 + Apex(up));
  }

  double gravity_;
  bool pads_ = false;
  double top_ = Car::kStart.y, fromRamps_ = 0, fastestUp_ = 0;
  double lowX_ = Car::kStart.x, highX_ = Car::kStart.x, highZ_ = Car::kStart.z;
};

}  // namespace

CarSpace CarSpaceOf(const drive::FrozenTrack& track) { return Measure(track).Around(); }

}  // namespace check
