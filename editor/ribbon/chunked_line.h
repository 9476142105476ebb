// A path cut into pieces of a second, each with triangles of its own, made when first seen.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "drive/path.h"
#include "editor/ribbon/speed_colours.h"
#include "platform/device.h"

namespace ribbon {

/// Parts of a piece: what shines through what hides it, then what is in plain sight.
enum class Part : uint8_t { FaintStrip, FaintMarks, Strip, Marks };

class ChunkedLine {
 public:
  /// A ribbon with ticks and marks in the palette's colours; without one a thin grey line.
  explicit ChunkedLine(const Palette* palette) : palette_(palette) {}

  /// Takes over what differs from the path shown so far; the other pieces keep their triangles.
  void Follow(std::span<const drive::PathPoint> path);
  const drive::Path& Points() const { return points_; }

  /// Collects the pieces that may be seen under the device's present camera in any of the worlds,
  /// which must only shift and shrink.
  void FindSeen(Device& device, std::span<const Matrix4> worlds);
  /// Records that part of the pieces found, marks from the end of the path to its beginning: those
  /// ahead stand behind.
  void Draw(Device& device, Part part) const;

 private:
  struct Range {
    uint32_t first = 0, triangles = 0;
  };
  struct Chunk {
    Vector3 corner, size;  ///< the box around it
    bool measured = false, made = false;
    bool empty = true;  ///< nothing of it is anywhere
    VertexBufferPtr buffer;
    std::array<Range, 4> parts;
  };

  size_t FirstOf(size_t chunk) const;
  size_t LastOf(size_t chunk) const;
  void Forget(size_t chunk);
  void Measure(Chunk& chunk, size_t index) const;
  void Make(Device& device, Chunk& chunk, size_t index) const;

  const Palette* palette_;
  drive::Path points_;
  std::vector<Chunk> chunks_;
  std::vector<const Chunk*> seen_;
};

}  // namespace ribbon
