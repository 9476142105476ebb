// From where a WIN block can still be reached, and about how many frames away it is. Optimistic: it
// never condemns a state from which a win exists.
#pragma once

#include <atomic>
#include <limits>
#include <vector>

#include "search/nodes.h"

namespace search {

inline constexpr float kNever = std::numeric_limits<float>::infinity();

class ReachGraph {
 public:
  /// The track must outlive the graph. Gives up, leaving everything out of reach, when `stop` is
  /// set meanwhile.
  explicit ReachGraph(const drive::FrozenTrack& track, const std::atomic<bool>* stop = nullptr);

  bool HasWin() const { return hasWin_; }
  /// About how many frames the state is away from a win; kNever when it cannot come to one.
  float FramesFrom(const drive::DriveState& state) const;

 private:
  /// Nodes of some depth, by x.
  struct Row {
    std::vector<int32_t> nodes;
    float push = 0;  ///< speed along x of the fastest platform here
  };
  size_t RowOf(double z) const;
  void SortIntoRows();
  void NotePlatforms();
  bool SlidesFreely() const;
  float PushBetween(size_t first, size_t last) const;
  void CountBackwards(const std::atomic<bool>* stop);
  template <typename Visit>
  void VisitBox(double lowX, double highX, size_t firstRow, size_t lastRow, Visit visit) const;
  float NearestOnGround(const drive::DriveState& state) const;
  float AfterFlight(const drive::DriveState& state) const;
  /// In which frames from now the car can come to stand on a node; none when last is below first.
  struct Arrival {
    int first = 0, last = -1;
  };
  Arrival ArrivalAt(const Node& node, const drive::DriveState& state, double speed) const;
  const drive::MovedBlock* RiddenBlock(const drive::DriveState& state) const;
  bool IsThere(const Node& node, const drive::DriveState& state, int from, int to) const;

  const drive::FrozenTrack* track_;
  NodeSet set_;
  std::vector<float> framesToWin_;  ///< of each node
  std::vector<Row> rows_;
  float greatestLaunch_ = 0, highest_ = 0, lowest_ = 0, widest_ = 0, longest_ = 0;
  bool hasWin_ = false;
};

}  // namespace search
