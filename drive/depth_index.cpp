#include "drive/depth_index.h"

#include <cmath>
#include <numeric>

namespace drive {
namespace {

constexpr int kLevels = 16;
constexpr double kShortestCell = 4;
constexpr double kMostCells = 16384;  ///< of a level

/// The level for a piece of this length.
size_t LevelFor(double length) {
  const int level = length > kShortestCell ? std::ilogb(length / kShortestCell) + 1 : 0;
  return static_cast<size_t>(std::clamp(level, 0, kLevels - 1));
}

}  // namespace

DepthIndex::DepthIndex(const std::vector<Reach>& reaches) {
  std::array<Level, kLevels> all{};
  double farthest = 0;
  for (const Reach& reach : reaches) {
    ++all[LevelFor(double{reach.highZ} - reach.lowZ)].entries;
    farthest = std::max(farthest, double{reach.highZ});
  }
  std::array<size_t, kLevels> place{};  // of a level among those in use
  size_t cells = 0;
  for (size_t i = 0; i < all.size(); ++i) {
    if (all[i].entries == 0) continue;
    Level level = all[i];
    level.cell = std::ldexp(kShortestCell, static_cast<int>(i));
    level.first = cells;
    level.cells = static_cast<size_t>(std::min(farthest / level.cell, kMostCells)) + 1;
    cells += level.cells;
    place[i] = levels_.size();
    levels_.push_back(level);
  }
  const auto eachCell = [&](const Reach& reach, auto visit) {
    const Level& level = levels_[place[LevelFor(double{reach.highZ} - reach.lowZ)]];
    const size_t last = CellOf(reach.highZ, level);
    for (size_t cell = CellOf(reach.lowZ, level); cell <= last; ++cell) visit(level.first + cell);
  };
  begins_.assign(cells + 1, 0);
  for (const Reach& reach : reaches) {
    eachCell(reach, [this](size_t cell) { ++begins_[cell + 1]; });
  }
  std::partial_sum(begins_.begin(), begins_.end(), begins_.begin());
  entries_.resize(begins_.back());
  std::vector<uint32_t> next(begins_.begin(), begins_.end() - 1);
  for (const Reach& reach : reaches) {
    eachCell(reach, [&](size_t cell) { entries_[next[cell]++] = reach; });
  }
}

}  // namespace drive
