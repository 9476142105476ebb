#include "editor/ribbon/chunk_triangles.h"

#include <cmath>

#include "editor/ribbon/mark_shapes.h"
#include "platform/d3dx_maths.h"

namespace ribbon {
namespace {

using Path = std::span<const drive::PathPoint>;

/// A coloured lane on a wider dark one, which sets it off from every ground.
struct Look {
  double half, core;  ///< from the middle to the edges of both, world units
  uint32_t alpha;     ///< of the coloured lane
  uint32_t dark;      ///< colour of the other
};
constexpr Look kRibbon = {0.25, 0.18, 0xFF, 0xC00C121C};
constexpr Look kFaintRibbon = {0.25, 0.18, 0x5C, 0x400C121C};
constexpr Look kThinLine = {0.1, 0.055, 0xB0, 0xA00C121C};
constexpr Look kFaintLine = {0.1, 0.055, 0x48, 0x380C121C};
constexpr std::array<uint32_t, 2> kGrey = {0xC3CAD3, 0xC3CAD3};

constexpr double kTick = 0.33, kTickLength = 0.14, kTickEdge = 0.06;  ///< world units
constexpr uint32_t kTickColour = 0xFFFFFFFF, kTickEdgeColour = 0xC00C121C;
constexpr uint32_t kFaintMark = 0x50;

/// A piece of strip; `flow` are its colours where it begins and ends.
void AddPiece(const Section& from, const Section& to, const Look& look,
              const std::array<uint32_t, 2>& flow, Triangles& strip) {
  const Seen seen = SideSeen(from, to);
  const std::array dark = {look.dark, look.dark};
  const std::array coloured = {WithAlpha(flow[0], look.alpha), WithAlpha(flow[1], look.alpha)};
  AddLane(from, to, seen, {{-look.half, dark}, {look.half, dark}}, strip);
  AddLane(from, to, seen, {{-look.core, coloured}, {look.core, coloured}}, strip);
}

/// Calls with both ends of every piece of strip.
template <typename Add>
void ForEachPiece(const std::vector<Section>& sections, Add add) {
  for (size_t i = 1; i < sections.size(); ++i) {
    const Section &from = sections[i - 1], &to = sections[i];
    if (to.joined) add(from, to);
  }
}

void AddTick(Path path, size_t index, Triangles& strip) {
  const Section at = SectionAt(path, index);
  if (at.heading == Vector3()) return;
  AddBar(at, kTick + kTickEdge, kTickLength + 2 * kTickEdge, kTickEdgeColour, strip);
  AddBar(at, kTick, kTickLength, kTickColour, strip);
}

/// Whether marks at two places would cover each other; distances in pixels of the usual view.
bool OverlapOnScreen(const Vector3& a, const Vector3& b) {
  constexpr double kX = 22.5, kY = 12.5, kZ = 11.8, kApart = 13;
  const Vector3 way = d3dx::Subtract(b, a);
  return std::abs(way.x * kX) < kApart && std::abs(way.y * kY + way.z * kZ) < kApart;
}

/// The marks of the points from `first` up to `end`, the last ones first: those ahead stand behind.
void AddGroupedMarks(Path path, size_t first, size_t end, Triangles& triangles) {
  struct Group {
    Vector3 place;
    uint8_t marks;
  };
  std::vector<Group> groups;
  for (size_t i = first; i < end; ++i) {
    const drive::PathPoint& point = path[i];
    if (point.marks == 0 || !IsSomewhere(point)) continue;
    if (groups.empty() || !OverlapOnScreen(groups.back().place, MiddleAt(point)))
      groups.push_back({MiddleAt(point), 0});
    groups.back().marks |= point.marks;
  }
  for (auto group = groups.rbegin(); group != groups.rend(); ++group)
    AddMarks(group->place, group->marks, triangles);
}

Triangles Faded(Triangles triangles, uint32_t alpha) {
  for (Vertex& vertex : triangles) vertex.colour = WithAlpha(vertex.colour, alpha);
  return triangles;
}

}  // namespace

ChunkTriangles RibbonTriangles(const Palette& palette, Path path, size_t first, size_t last) {
  ChunkTriangles made;
  ForEachPiece(SectionsOf(path, first, last), [&](const Section& from, const Section& to) {
    const std::array flow = {SpeedColour(palette, from.speed), SpeedColour(palette, to.speed)};
    AddPiece(from, to, kFaintRibbon, flow, made.faintStrip);
    AddPiece(from, to, kRibbon, flow, made.strip);
  });
  for (size_t i = first; i < last; ++i) {
    if (i > 0 && i % kPointsPerSecond == 0) AddTick(path, i, made.strip);
  }
  AddGroupedMarks(path, first, last + 1 == path.size() ? path.size() : last, made.marks);
  made.faintMarks = Faded(made.marks, kFaintMark);
  return made;
}

ChunkTriangles LineTriangles(Path path, size_t first, size_t last) {
  ChunkTriangles made;
  ForEachPiece(SectionsOf(path, first, last), [&](const Section& from, const Section& to) {
    AddPiece(from, to, kFaintLine, kGrey, made.faintStrip);
    AddPiece(from, to, kThinLine, kGrey, made.strip);
  });
  return made;
}

}  // namespace ribbon
