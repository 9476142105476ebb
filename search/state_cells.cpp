#include "search/state_cells.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace search {
namespace {

constexpr double kAcross = 0.36, kUp = 0.3, kAlong = 0.6;
constexpr double kSideways = 0.06, kUpwards = 0.08, kForwards = 0.05;
constexpr double kPlatform = 0.36;
constexpr size_t kPlatformsMinded = 2;

class Hash {
 public:
  void Add(int64_t value) {
    // The finaliser of a 64-bit mixing function.
    hash_ ^= static_cast<uint64_t>(value) + 0x9E3779B97F4A7C15U + (hash_ << 6U) + (hash_ >> 2U);
    hash_ = (hash_ ^ (hash_ >> 30U)) * 0xBF58476D1CE4E5B9U;
    hash_ = (hash_ ^ (hash_ >> 27U)) * 0x94D049BB133111EBU;
    hash_ ^= hash_ >> 31U;
  }
  void AddCell(double value, double size) {
    Add(static_cast<int64_t>(std::floor(std::clamp(value / size, -1e15, 1e15))));
  }
  uint64_t Value() const { return hash_; }

 private:
  uint64_t hash_ = 0;
};

double FarEnd(const drive::FrozenPlatform& platform) {
  return double{platform.box.corner.z} + platform.box.size.z + 1;
}

}  // namespace

StateCells::StateCells(const drive::FrozenTrack& track, double scale, double scaleAlong)
    : track_(&track), scale_(scale), scaleAlong_(scaleAlong), byFarEnd_(track.Platforms().size()) {
  std::iota(byFarEnd_.begin(), byFarEnd_.end(), 0);
  std::ranges::stable_sort(byFarEnd_, {}, [&track](int32_t i) {
    return FarEnd(track.Platforms()[static_cast<size_t>(i)]);
  });
}

uint64_t StateCells::Of(const drive::DriveState& state, bool atEdge) const {
  constexpr double kFiner = 0.25;
  const Car& car = state.car;
  const double scale = atEdge ? scale_ * kFiner : scale_;
  Hash hash;
  hash.Add(atEdge ? 1 : 0);
  hash.AddCell(car.position.x, kAcross * scale);
  hash.AddCell(car.position.y, kUp * scale);
  hash.AddCell(car.position.z, kAlong * scaleAlong_ * (atEdge ? kFiner : 1));
  hash.AddCell(car.velocity.x, kSideways * scale);
  hash.AddCell(car.velocity.y, kUpwards * scale);
  hash.AddCell(car.velocity.z, kForwards * scale);
  hash.Add((state.OnGround ? 1 : 0) + (car.OnIce ? 2 : 0));
  const auto end = [this](int32_t i) {
    return FarEnd(track_->Platforms()[static_cast<size_t>(i)]);
  };
  auto next = std::ranges::lower_bound(byFarEnd_, double{car.position.z}, {}, end);
  for (size_t i = 0; i < kPlatformsMinded && next != byFarEnd_.end(); ++i, ++next) {
    const drive::FrozenPlatform& platform = track_->Platforms()[static_cast<size_t>(*next)];
    const PlatformLeg& leg = platform.way.At(static_cast<size_t>(state.platformSteps));
    hash.AddCell(leg.x, kPlatform * scale);
    hash.Add(leg.direction);
  }
  for (const drive::MovedBlock& block : state.moved) {
    const Extent& box = track_->Blocks()[static_cast<size_t>(block.index)].box;
    // The car does not come back to what lies behind it.
    if (double{box.corner.z} + box.size.z + 2 < car.position.z) continue;
    hash.Add(block.index);
    hash.AddCell(block.y, kUp * scale);
  }
  return hash.Value();
}

}  // namespace search
