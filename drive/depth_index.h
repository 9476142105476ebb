// Finds what reaches a point of the track among tens of thousands of pieces.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

namespace drive {

/// The rectangle of the ground inside which a piece may matter to the car.
struct Reach {
  float lowX, highX, lowZ, highZ;
  int32_t piece;
};

/// Rectangles in cells along the depth: each lies on the level whose cells are about as long as it,
/// so that neither a long piece fills many cells nor a short one hides among long ones.
class DepthIndex {
 public:
  DepthIndex() = default;
  /// Pieces come back in the order in which they stand here, level by level.
  explicit DepthIndex(const std::vector<Reach>& reaches);

  /// Calls visit(piece) for every rectangle that holds the point.
  template <typename Visit>
  void At(double x, double z, Visit visit) const {
    for (const Level& level : levels_) {
      const size_t cell = level.first + CellOf(z, level);
      for (uint32_t i = begins_[cell]; i < begins_[cell + 1]; ++i) {
        const Reach& reach = entries_[i];
        if (z > reach.lowZ && z < reach.highZ && x > reach.lowX && x < reach.highX) {
          visit(reach.piece);
        }
      }
    }
  }

  /// How many rectangles At looks at for this depth.
  size_t Effort(double z) const {
    size_t entries = 0;
    for (const Level& level : levels_) {
      const size_t cell = level.first + CellOf(z, level);
      entries += begins_[cell + 1] - begins_[cell];
    }
    return entries;
  }

 private:
  struct Level {
    double cell;       ///< its cells' length
    size_t first = 0;  ///< number of its first cell
    size_t cells = 1;  ///< what lies beyond the last one is in it
    size_t entries = 0;
  };

  static size_t CellOf(double z, const Level& level) {
    const double last = static_cast<double>(level.cells - 1);
    return static_cast<size_t>(std::clamp(z / level.cell, 0.0, last));
  }

  std::vector<Level> levels_;     ///< those that hold anything
  std::vector<uint32_t> begins_;  ///< of each cell, among the entries
  std::vector<Reach> entries_;
};

}  // namespace drive
