#include <algorithm>
#include <cmath>
#include <optional>
#include <set>
#include <span>
#include <utility>

#include "check/faces.h"
#include "check/rules.h"
#include "check/still_blocks.h"

namespace check {
namespace {

/// What the depth buffer cannot tell apart: of its 65,536 steps between 1 and 500, one at the
/// distance of what the camera looks at, 31, is 31² / 65,536, a little more than this. A hundredth
/// that somebody left between two faces counts as meant.
constexpr float kApart = 0.0099F;
/// Of a shared area, and of its sides: less shows as a line at most.
constexpr double kSmallBit = 0.02;

Vector3 PlaceOf(const drive::FrozenTrack& track, const PieceName& piece) {
  const auto slot = static_cast<size_t>(piece.index);
  if (piece.kind == TypePlatform) return track.Platforms()[slot].box.corner;
  if (piece.kind == TypeRamp) return track.Ramps()[slot].box.corner;
  return track.Blocks()[slot].box.corner;
}

struct Space {
  Vector3 low, high;
};

/// What whoever sees the shared part of two upright faces looks through, right before them.
Space SpaceBefore(Facing facing, const Face& a, const Face& b) {
  constexpr float kThick = 0.05F;
  const bool up = facing == Facing::Up, outwards = up || facing == Facing::Right;
  const float under = std::min(a.plane, b.plane) - (outwards ? 0 : kThick);
  const float over = std::max(a.plane, b.plane) + (outwards ? kThick : 0);
  const float lowU = std::max(a.lowU, b.lowU), highU = std::min(a.highU, b.highU);
  const float lowV = std::max(a.lowV, b.lowV), highV = std::min(a.highV, b.highV);
  if (up) return {{lowU, under, lowV}, {highU, over, highV}};
  if (facing == Facing::Front) return {{lowU, lowV, under}, {highU, highV, over}};
  return {{under, lowV, lowU}, {over, highV, highU}};
}

/// Blocks hide what lies inside them.
class Covers {
 public:
  /// `patience` falls by every block that is looked at.
  Covers(const drive::FrozenTrack& track, int& patience) : track_(track), patience_(patience) {}

  bool Hide(const Space& space) {
    if (!blocks_) blocks_.emplace(track_);
    // What hid the last one often hides the next.
    if (last_ && Holds(*last_, space)) return true;
    bool hidden = false;
    const double x = (double{space.low.x} + space.high.x) / 2;
    const double z = (double{space.low.z} + space.high.z) / 2;
    patience_ -= static_cast<int>(blocks_->Effort(z));
    blocks_->At(x, z, [&](int32_t i) {
      if (hidden || !Holds(i, space)) return;
      hidden = true;
      last_ = i;
    });
    return hidden;
  }

 private:
  bool Holds(int32_t index, const Space& space) const {
    const Extent& box = blocks_->Box(index);
    const auto holds = [&](float Vector3::*axis) {
      const float from = box.corner.*axis;
      return from <= space.low.*axis && space.high.*axis <= from + box.size.*axis;
    };
    return holds(&Vector3::x) && holds(&Vector3::y) && holds(&Vector3::z);
  }

  const drive::FrozenTrack& track_;
  std::optional<StillBlocks> blocks_;  ///< once they are needed
  std::optional<int32_t> last_;
  int& patience_;
};

/// Finds the pairs among faces that look the same way.
class FlickerSearch {
 public:
  FlickerSearch(const drive::FrozenTrack& track, Findings& findings)
      : track_(track), findings_(findings), covers_(track, patience_) {}

  void Search(FaceList& list) {
    facing_ = list.facing;
    std::vector<Face>& faces = list.faces;
    std::ranges::sort(faces, {}, &Face::plane);
    for (size_t first = 0, next = 0; first < faces.size(); first = next) {
      next = first + 1;
      while (next < faces.size() && faces[next].plane - faces[next - 1].plane < kApart) ++next;
      if (next - first > 1) SearchPlane({faces.data() + first, next - first});
    }
  }

 private:
  /// Faces of one plane, or of one that is next to it.
  void SearchPlane(std::span<Face> faces);
  template <float Face::*low, float Face::*high>
  void Sweep(std::span<Face> faces);
  bool Tell(const Face& a, const Face& b);

  const drive::FrozenTrack& track_;
  Findings& findings_;
  /// Some hundredths of a second: where so many pieces lie inside each other little of them shows.
  int patience_ = 8'000'000;
  Covers covers_;
  Facing facing_ = Facing::Up;
  std::set<std::pair<PieceName, PieceName>> told_;
};

/// How many of the faces a line across them meets, more or less.
template <float Face::*low, float Face::*high>
double Crowd(std::span<const Face> faces) {
  double sum = 0, least = faces[0].*low, most = faces[0].*high;
  for (const Face& face : faces) {
    sum += double{face.*high} - face.*low;
    least = std::min(least, double{face.*low});
    most = std::max(most, double{face.*high});
  }
  return sum / (most - least);
}

void FlickerSearch::SearchPlane(std::span<Face> faces) {
  if (Crowd<&Face::lowU, &Face::highU>(faces) < Crowd<&Face::lowV, &Face::highV>(faces)) {
    Sweep<&Face::lowU, &Face::highU>(faces);
  } else {
    Sweep<&Face::lowV, &Face::highV>(faces);
  }
}

template <float Face::*low, float Face::*high>
void FlickerSearch::Sweep(std::span<Face> faces) {
  std::ranges::sort(faces, {}, low);
  std::vector<const Face*> open;
  for (const Face& face : faces) {
    if (findings_.Full(Fault::Flicker) || patience_ <= 0) return;
    std::erase_if(open, [&](const Face* other) { return other->*high <= face.*low; });
    // One partner is enough to tell.
    for (const Face* const other : open) {
      --patience_;
      if (Tell(*other, face)) break;
    }
    open.push_back(&face);
  }
}

/// False where the two do not flicker.
bool FlickerSearch::Tell(const Face& a, const Face& b) {
  const auto shared = [](float low, float otherLow, float high, float otherHigh) {
    return double{std::min(high, otherHigh)} - std::max(low, otherLow) > kSmallBit;
  };
  if (!shared(a.lowU, b.lowU, a.highU, b.highU) || !shared(a.lowV, b.lowV, a.highV, b.highV) ||
      std::abs(a.plane - b.plane) >= kApart || SharedArea(a, b) < kSmallBit) {
    return false;
  }
  if (facing_ != Facing::Slope && covers_.Hide(SpaceBefore(facing_, a, b))) return false;
  const auto& [earlier, later] = std::minmax(a.piece, b.piece);
  if (!told_.emplace(earlier, later).second) return true;
  const std::string face = NameOf(facing_);
  findings_.Add(Fault::Flicker, later, PlaceOf(track_, later),
                "flickers: its " + face + " lies in the " + face + " of " + Words(earlier),
                earlier);
  return true;
}

}  // namespace

void CheckFlicker(const drive::FrozenTrack& track, const std::vector<PieceName>& without,
                  Findings& findings) {
  FlickerSearch search(track, findings);
  for (FaceList& list : FacesOf(track, without)) search.Search(list);
}

}  // namespace check
