#include <algorithm>
#include <array>

#include "check/rules.h"

namespace check {
namespace {

struct Candidate {
  std::array<float, 6> box{};  ///< place and size
  uint64_t rest = 0;           ///< whatever else tells two pieces apart
  int32_t index = 0;
  auto operator<=>(const Candidate&) const = default;  // NOLINT: no null pointer
  bool SameAs(const Candidate& other) const { return box == other.box && rest == other.rest; }
};

uint64_t RestOf(const drive::FrozenBlock& block) { return static_cast<uint16_t>(block.kind); }
uint64_t RestOf(const drive::FrozenRamp& ramp) { return ramp.rotation; }
uint64_t RestOf(const drive::FrozenPlatform& platform) {
  // Those that go different ways part at once.
  const PlatformTravel& travel = platform.way.Travel();
  const std::array<uint8_t, 4> way = {platform.way.At(0).direction, travel.speed, travel.distance,
                                      travel.loopBack};
  return uint64_t{way[0]} << 24 | uint64_t{way[1]} << 16 | uint64_t{way[2]} << 8 | way[3];
}
uint64_t RestOf(const drive::FrozenStar&) { return 0; }

Extent BoxOf(const drive::FrozenStar& star) {
  return {{static_cast<float>(star.x), static_cast<float>(star.y), static_cast<float>(star.z)}, {}};
}
template <typename Piece>
const Extent& BoxOf(const Piece& piece) {
  return piece.box;
}

template <typename Piece>
std::vector<Candidate> Sorted(const std::vector<Piece>& pieces) {
  std::vector<Candidate> sorted;
  sorted.reserve(pieces.size());
  for (size_t i = 0; i < pieces.size(); ++i) {
    const auto& [at, size] = BoxOf(pieces[i]);
    sorted.push_back(
        {{at.z, at.x, at.y, size.x, size.y, size.z}, RestOf(pieces[i]), static_cast<int32_t>(i)});
  }
  std::ranges::sort(sorted);
  return sorted;
}

template <typename Piece>
void CheckKind(const std::vector<Piece>& pieces, ObjectType kind, Findings& findings,
               std::vector<PieceName>& all) {
  const std::vector<Candidate> sorted = Sorted(pieces);
  std::vector<std::pair<int32_t, int32_t>> doubles;  // the later one first
  for (size_t i = 0, first = 0; i < sorted.size(); ++i) {
    if (!sorted[i].SameAs(sorted[first])) first = i;
    if (i != first) doubles.emplace_back(sorted[i].index, sorted[first].index);
  }
  std::ranges::sort(doubles);
  for (const auto& [index, first] : doubles) {
    const PieceName name{kind, index}, other{kind, first};
    all.push_back(name);
    findings.Add(Fault::Double, name, BoxOf(pieces[static_cast<size_t>(index)]).corner,
                 "is an exact double of " + Words(other), other);
  }
}

}  // namespace

std::vector<PieceName> CheckDoubles(const drive::FrozenTrack& track, Findings& findings) {
  std::vector<PieceName> all;
  CheckKind(track.Blocks(), TypeBlock, findings, all);
  CheckKind(track.Platforms(), TypePlatform, findings, all);
  CheckKind(track.Ramps(), TypeRamp, findings, all);
  CheckKind(track.Stars(), TypeStar, findings, all);
  std::ranges::sort(all);
  return all;
}

}  // namespace check
