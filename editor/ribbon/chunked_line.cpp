#include "editor/ribbon/chunked_line.h"

#include <algorithm>
#include <utility>

#include "editor/ribbon/chunk_triangles.h"
#include "editor/ribbon/mark_shapes.h"
#include "level/maths.h"
#include "platform/numbers.h"

namespace ribbon {
namespace {

bool SamePoint(const drive::PathPoint& a, const drive::PathPoint& b) {
  return a.place == b.place && a.velocity == b.velocity && a.marks == b.marks;
}

size_t ChunksOf(size_t points) { return points < 2 ? points : (points - 2) / kPointsPerSecond + 1; }

}  // namespace

size_t ChunkedLine::FirstOf(size_t chunk) const { return chunk * kPointsPerSecond; }

size_t ChunkedLine::LastOf(size_t chunk) const {
  return std::min((chunk + 1) * kPointsPerSecond, points_.size() - 1);
}

void ChunkedLine::Forget(size_t chunk) {
  if (chunk < chunks_.size()) chunks_[chunk] = {};
}

void ChunkedLine::Follow(std::span<const drive::PathPoint> path) {
  seen_.clear();
  const size_t oldSize = points_.size();
  if (path.size() != oldSize) {
    points_.resize(path.size());
    chunks_.resize(ChunksOf(path.size()));
    // What was or has become the last piece ends otherwise now.
    const size_t end = ChunksOf(std::min(path.size(), oldSize));
    for (size_t chunk = end - std::min<size_t>(end, 2); chunk < chunks_.size(); ++chunk)
      Forget(chunk);
  }
  for (size_t first = 0; first < path.size(); first += kPointsPerSecond) {
    const auto fresh = path.subspan(first, std::min(kPointsPerSecond, path.size() - first));
    const auto kept = points_.begin() + static_cast<std::ptrdiff_t>(first);
    if (std::equal(fresh.begin(), fresh.end(), kept, SamePoint)) continue;
    std::ranges::copy(fresh, kept);
    // The ends of the neighbours look this far.
    const size_t chunk = first / kPointsPerSecond;
    for (size_t near = chunk - std::min<size_t>(chunk, 1); near <= chunk + 1; ++near) Forget(near);
  }
}

void ChunkedLine::Measure(Chunk& chunk, size_t index) const {
  Vector3 least, most;
  bool marked = false;
  for (size_t i = FirstOf(index); i <= LastOf(index); ++i) {
    if (!IsSomewhere(points_[i])) continue;
    const Vector3 at = MiddleAt(points_[i]);
    if (std::exchange(chunk.empty, false)) least = most = at;
    least = {std::min(least.x, at.x), std::min(least.y, at.y), std::min(least.z, at.z)};
    most = {std::max(most.x, at.x), std::max(most.y, at.y), std::max(most.z, at.z)};
    marked = marked || points_[i].marks != 0;
  }
  const double reach =
      palette_ != nullptr && marked ? std::max(kMarkReach, kStripReach) : kStripReach;
  chunk.corner = {ToSingle(least.x - reach), ToSingle(least.y - reach), ToSingle(least.z - reach)};
  chunk.size = {ToSingle(double{most.x} - least.x + 2 * reach),
                ToSingle(double{most.y} - least.y + 2 * reach),
                ToSingle(double{most.z} - least.z + 2 * reach)};
}

void ChunkedLine::Make(Device& device, Chunk& chunk, size_t index) const {
  const size_t first = FirstOf(index), last = LastOf(index);
  const ChunkTriangles made = palette_ != nullptr ? RibbonTriangles(*palette_, points_, first, last)
                                                  : LineTriangles(points_, first, last);
  Triangles all;
  auto range = chunk.parts.begin();
  // In the order of the parts' names.
  for (const Triangles* part : {&made.faintStrip, &made.faintMarks, &made.strip, &made.marks}) {
    *range++ = {static_cast<uint32_t>(all.size()), static_cast<uint32_t>(part->size() / 3)};
    all.insert(all.end(), part->begin(), part->end());
  }
  if (!all.empty()) chunk.buffer = device.CreateVertexBuffer(all);
}

void ChunkedLine::FindSeen(Device& device, std::span<const Matrix4> worlds) {
  seen_.clear();
  seen_.reserve(chunks_.size());
  for (size_t i = 0; i < chunks_.size(); ++i) {
    Chunk& chunk = chunks_[i];
    if (!std::exchange(chunk.measured, true)) Measure(chunk, i);
    const auto seenIn = [&](const Matrix4& world) {
      Vector3 corner;
      maths::TransformCoord(corner, chunk.corner, world);
      return device.MaySee(corner, chunk.size);
    };
    if (chunk.empty || std::ranges::none_of(worlds, seenIn)) continue;
    if (!std::exchange(chunk.made, true)) Make(device, chunk, i);
    seen_.push_back(&chunk);
  }
}

void ChunkedLine::Draw(Device& device, Part part) const {
  const auto draw = [&](const Chunk* chunk) {
    const Range& range = chunk->parts[static_cast<size_t>(part)];
    if (range.triangles == 0) return;
    device.SetStreamSource(chunk->buffer, sizeof(Vertex));
    device.DrawPrimitive(Primitive::TriangleList, range.first, range.triangles);
  };
  if (part == Part::Strip || part == Part::FaintStrip) {
    std::ranges::for_each(seen_, draw);
  } else {
    std::for_each(seen_.rbegin(), seen_.rend(), draw);
  }
}

}  // namespace ribbon
