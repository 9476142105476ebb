#include "search/nodes.h"

#include <algorithm>
#include <cmath>

#include "level/clsblock.h"

namespace search {
namespace {

constexpr double kSpacingX = 0.75, kSpacingZ = 2;
constexpr int kMostAcross = 20, kMostAlong = 120;  ///< samples of one top
constexpr float kJump = 0.35F, kPad = 0.45F;
constexpr float kTurbo = 1.0F;
/// The keys alone: 0.02 more at each frame below 0.6.
constexpr float kEngine = 0.63F;
constexpr float kSteering = 0.13F;
constexpr float kLowestOfAll = -42;
constexpr float kBounce = 1.05F;  ///< of a pad's top

/// Where the car's reference point is while its box stands on this ground.
struct Ground {
  double lowX, highX, lowZ, highZ;
};
Ground GroundOf(const Extent& box, double wider = 0) {
  const double x1 = double{box.corner.x} + box.size.x, z1 = double{box.corner.z} + box.size.z;
  return {std::min<double>(box.corner.x, x1) - Car::kEdge / 2 - wider,
          std::max<double>(box.corner.x, x1) + Car::kEdge / 2 + wider,
          std::min<double>(box.corner.z, z1) - wider,
          std::max<double>(box.corner.z, z1) + Car::kEdge + wider};
}

int CountFor(double length, double spacing, int most) {
  return static_cast<int>(std::clamp(std::ceil(length / spacing), 1.0, double(most)));
}

/// Calls place(x, z) for samples over the ground; `like` gets their slack first.
template <typename Place>
void Sample(const Ground& ground, Node like, Place place) {
  const double width = ground.highX - ground.lowX, length = ground.highZ - ground.lowZ;
  const int across = CountFor(width, kSpacingX, kMostAcross);
  const int along = CountFor(length, kSpacingZ, kMostAlong);
  like.slackX = static_cast<float>(width / across / 2 + 0.05);
  like.slackZ = static_cast<float>(length / along / 2 + 0.05);
  for (int j = 0; j < along; ++j) {
    for (int i = 0; i < across; ++i) {
      like.x = static_cast<float>(ground.lowX + width * (i + 0.5) / across);
      like.z = static_cast<float>(ground.lowZ + length * (j + 0.5) / along);
      place(like);
    }
  }
}

class Builder {
 public:
  explicit Builder(const drive::FrozenTrack& track) : track_(track) {
    const auto& blocks = track.Blocks();
    const bool turbo = std::ranges::any_of(
        blocks, [](const auto& block) { return block.kind == clsblock::TurboPad; });
    set_.fastest = turbo ? kTurbo : kEngine;
    set_.sideways = kSteering;
  }

  NodeSet Build() {
    for (size_t i = 0; i < track_.Blocks().size(); ++i) AddBlock(i);
    for (size_t i = 0; i < track_.Platforms().size(); ++i) AddPlatform(i);
    for (const drive::FrozenRamp& ramp : track_.Ramps()) AddRamp(ramp);
    return std::move(set_);
  }

 private:
  void AddBlock(size_t index) {
    const drive::FrozenBlock& block = track_.Blocks()[index];
    if (block.kind == clsblock::InstantKill) return;
    Node node;
    node.y = node.lowest = node.highest = block.box.corner.y + block.box.size.y;
    node.launch = kJump;
    node.win = block.kind == clsblock::WinLevel;
    if (block.kind == clsblock::JumpPad) {
      node.launch = kPad;
      node.highest += kBounce;
      node.anyTime = true;
    }
    if (block.kind == clsblock::FallingBlock) {
      node.falling = static_cast<int32_t>(index);
      node.lowest = kLowestOfAll;
    }
    Sample(GroundOf(block.box), node, [this](const Node& at) { set_.nodes.push_back(at); });
  }

  void AddPlatform(size_t index) {
    const drive::FrozenPlatform& platform = track_.Platforms()[index];
    const Vector3& size = platform.box.size;
    if (size.x == 0 || size.z == 0) return;  // nothing to stand on
    Extent reach = platform.box;
    const float slide = platform.way.Travel().distance;
    reach.corner.x -= slide;
    reach.size.x += 2 * slide;
    Node node;
    node.y = node.lowest = node.highest = platform.box.corner.y + size.y;
    node.launch = kJump;
    node.platform = static_cast<int32_t>(index);
    Sample(GroundOf(reach), node, [this](const Node& at) { set_.nodes.push_back(at); });
  }

  /// Slope and strip beyond the high edge, as a top that rises.
  void AddRamp(const drive::FrozenRamp& ramp) {
    const Vector3 &corner = ramp.box.corner, &size = ramp.box.size;
    const float low = std::min(corner.y, corner.y + size.y);
    const float high = std::max(corner.y, corner.y + size.y);
    Node node;
    node.anyTime = true;
    node.launch = std::max(kJump, std::abs(ramp.gradient) * 1.01F);
    const bool alongZ = ramp.rotation % 2 == 0;
    const double length = alongZ ? size.z : size.x;
    Sample(GroundOf(ramp.box, Car::kEdge), node, [&](Node at) {
      // The car's box is as long as its edge: any of its points may be the one that stands.
      const double on = alongZ ? at.z - corner.z : at.x - corner.x;
      const double from = ramp.rotation < 2 ? on : length - on;
      const double reach = Car::kEdge + 0.1 + (alongZ ? at.slackZ : at.slackX);
      const double steep = std::abs(ramp.gradient);
      at.lowest = std::max(low, static_cast<float>(low + steep * (from - reach)) - 0.05F);
      at.highest = std::min(high, static_cast<float>(low + steep * (from + reach)) + 0.05F);
      if (size.y <= 0 || length <= 0) {
        at.lowest = low;
        at.highest = high;
      }
      at.lowest = std::min(at.lowest, high);
      at.highest = std::max(at.highest, at.lowest);
      at.y = at.highest;
      set_.nodes.push_back(at);
    });
  }

  const drive::FrozenTrack& track_;
  NodeSet set_;
};

}  // namespace

NodeSet NodesOf(const drive::FrozenTrack& track) { return Builder(track).Build(); }

}  // namespace search
