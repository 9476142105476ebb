#include "editor/ribbon/chunk_triangles.h"

#include <cmath>

#include "editor/ribbon/mark_shapes.h"
#include "platform/d3dx_maths.h"

namespace ribbon {
namespace {

using Path = std::span<const drive::PathPoint>;

// World units.
constexpr double kHalf = 0.25, kCore = 0.18;  ///< the ribbon with and without its dark edges
constexpr double kThinHalf = 0.1, kThinCore = 0.055;
constexpr double kTick = 0.33, kTickLength = 0.14, kTickEdge = 0.06;

constexpr uint32_t kEdge = 0xC00C121C;
constexpr uint32_t kTickColour = 0xFFFFFFFF;
constexpr uint32_t kGrey = 0x9AA3AE;
constexpr uint32_t kNearlyFull = 0xF4, kFaint = 0x48, kFaintMark = 0x50, kThinAlpha = 0xB0;

/// A dark lane on both sides of the coloured one.
void AddEdges(const Section& from, const Section& to, Seen seen, double half, double core,
              Triangles& strip) {
  AddLane(from, to, seen, {{-half, {kEdge, kEdge}}, {-core, {kEdge, kEdge}}}, strip);
  AddLane(from, to, seen, {{core, {kEdge, kEdge}}, {half, {kEdge, kEdge}}}, strip);
}

/// Calls with both ends of every piece of strip, and which side of it is seen.
template <typename Add>
void ForEachPiece(const std::vector<Section>& sections, Add add) {
  for (size_t i = 1; i < sections.size(); ++i) {
    const Section &from = sections[i - 1], &to = sections[i];
    if (to.joined) add(from, to, SideSeen(from, to));
  }
}

void AddTick(Path path, size_t index, Triangles& strip) {
  const Section at = SectionAt(path, index);
  if (at.heading == Vector3()) return;
  AddBar(at, kTick + kTickEdge, kTickLength + 2 * kTickEdge, kEdge, strip);
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
  auto& [faintStrip, faintMarks, strip, marks] = made;
  ForEachPiece(SectionsOf(path, first, last), [&](const Section& from, const Section& to,
                                                  Seen seen) {
    const std::array<uint32_t, 2> flow = {SpeedColour(palette, from.speed),
                                          SpeedColour(palette, to.speed)};
    const auto coloured = [&](uint32_t alpha) {
      return std::array{WithAlpha(flow[0], alpha), WithAlpha(flow[1], alpha)};
    };
    AddLane(from, to, seen, {{-kHalf, coloured(kFaint)}, {kHalf, coloured(kFaint)}}, faintStrip);
    AddEdges(from, to, seen, kHalf, kCore, strip);
    AddLane(from, to, seen, {{-kCore, coloured(kNearlyFull)}, {kCore, coloured(kNearlyFull)}},
            strip);
  });
  for (size_t i = first; i < last; ++i) {
    if (i > 0 && i % kPointsPerSecond == 0) AddTick(path, i, strip);
  }
  AddGroupedMarks(path, first, last + 1 == path.size() ? path.size() : last, marks);
  faintMarks = Faded(marks, kFaintMark);
  return made;
}

ChunkTriangles LineTriangles(Path path, size_t first, size_t last) {
  ChunkTriangles made;
  ForEachPiece(
      SectionsOf(path, first, last), [&](const Section& from, const Section& to, Seen seen) {
        const auto grey = [](uint32_t alpha) {
          return std::array{WithAlpha(kGrey, alpha), WithAlpha(kGrey, alpha)};
        };
        AddLane(from, to, seen, {{-kThinCore, grey(kFaint)}, {kThinCore, grey(kFaint)}}, made[0]);
        AddEdges(from, to, seen, kThinHalf, kThinCore, made[2]);
        AddLane(from, to, seen, {{-kThinCore, grey(kThinAlpha)}, {kThinCore, grey(kThinAlpha)}},
                made[2]);
      });
  return made;
}

}  // namespace ribbon
