#include "search/drive_search.h"

#include <array>
#include <cmath>
#include <deque>
#include <queue>
#include <unordered_map>
#include <vector>

#include "drive/words.h"
#include "search/reach_graph.h"
#include "search/seen_cells.h"
#include "search/state_cells.h"

namespace search {
namespace {

/// What is held from one kept state to the next.
constexpr std::array<CarKeys, 9> kDriving = {
    kUpKey,
    0,
    kDownKey,
    kUpKey | kLeftKey,
    kUpKey | kRightKey,
    kLeftKey,
    kRightKey,
    kDownKey | kLeftKey,
    kDownKey | kRightKey,
};
/// Frames after which a state is kept; the last ends the keys.
constexpr std::array<int, 3> kStops = {3, 7, 12};

/// Greedy first, then with more care and finer cells.
struct Round {
  float weight;  ///< of what lies ahead against what was driven
  double cells;  ///< scale of the cells
  double along;  ///< the same for the way along the track
  /// Frames that each state in a part of the track adds to what the next one there has ahead: where
  /// the way is blocked unforeseen, the search does not stay until it has tried everything.
  float crowding;
  int64_t share;  ///< of the steps, in hundredths
};
constexpr std::array<Round, 7> kRounds = {{{20, 1, 1, 0.4F, 2},
                                           {20, 1, 0.1, 0.1F, 7},
                                           {5, 1, 1, 0.1F, 5},
                                           {20, 0.5, 0.5, 0.4F, 10},
                                           {5, 0.5, 0.1, 0.1F, 15},
                                           {3, 0.5, 0.5, 0.05F, 15},
                                           {3, 0.25, 0.05, 0.05F, 46}}};

uint64_t CrowdOf(const Vector3& place) {
  constexpr double kWide = 2, kHigh = 1.5, kDeep = 4;
  const auto part = [](double at, double size) {
    return static_cast<uint64_t>(static_cast<int64_t>(std::floor(at / size)) + (1 << 20)) &
           0x1FFFFFU;
  };
  return part(place.x, kWide) | part(place.y, kHigh) << 21U | part(place.z, kDeep) << 42U;
}

struct Kept {
  drive::DriveState state;
  int32_t before = -1;  ///< the state that it was reached from
  int16_t frames = 0;   ///< and how
  CarKeys keys = 0;
};

struct Waiting {
  float cost;
  int32_t kept;
  /// The cheapest first; of equals the one that was found first.
  bool operator<(const Waiting& other) const {
    return cost != other.cost ? cost > other.cost : kept > other.kept;
  }
};

class RoundSearch {
 public:
  RoundSearch(const drive::FrozenTrack& track, const ReachGraph& graph, const Round& round,
              const Limits& limits, int64_t steps, const Watch& watch)
      : track_(track),
        graph_(graph),
        cells_(track, round.cells, round.along),
        weight_(round.weight),
        crowding_(round.crowding),
        limits_(limits),
        stepsLeft_(steps),
        watch_(watch) {}

  /// Until a win is found, nothing is left to try, or a limit is met.
  bool Run() {
    Keep(drive::DriveState(), -1, 0, 0);
    while (!waiting_.empty() && stepsLeft_ > 0 && !Stopped() && !Full()) {
      const int32_t next = waiting_.top().kept;
      waiting_.pop();
      if (Expand(next)) return true;
      if (watch_.progress && ++expanded_ % 1024 == 0) watch_.progress(effort);
    }
    return false;
  }
  drive::KeyScript Script() const;

  Effort effort;

 private:
  bool Stopped() const { return watch_.stop != nullptr && *watch_.stop; }
  bool Full() const { return kept_.size() >= static_cast<size_t>(limits_.states); }
  void ForgetWhatIsBehind(drive::DriveState& state) const;
  void Keep(const drive::DriveState& state, int32_t before, int frames, CarKeys keys,
            bool atEdge = false);
  bool Expand(int32_t index);
  bool Hold(int32_t from, CarKeys keys, bool jump);

  const drive::FrozenTrack& track_;
  const ReachGraph& graph_;
  StateCells cells_;
  float weight_, crowding_;
  Limits limits_;
  int64_t stepsLeft_;
  const Watch& watch_;
  std::deque<Kept> kept_;
  std::priority_queue<Waiting> waiting_;
  SeenCells seen_;
  std::unordered_map<uint64_t, int32_t> crowds_;  ///< states kept in each part of the track
  int64_t expanded_ = 0;
};

/// A car does not go back: blocks that fell behind it, and stars, do not matter any more.
void RoundSearch::ForgetWhatIsBehind(drive::DriveState& state) const {
  constexpr double kBehind = 4, kBelow = -50;
  std::erase_if(state.moved, [&](const drive::MovedBlock& moved) {
    const Extent& box = track_.Blocks()[static_cast<size_t>(moved.index)].box;
    return double{box.corner.z} + box.size.z + kBehind < state.car.position.z ||
           double{moved.y} + box.size.y < kBelow;
  });
  state.moved.shrink_to_fit();
  state.collected = {};
}

void RoundSearch::Keep(const drive::DriveState& state, int32_t before, int frames, CarKeys keys,
                       bool atEdge) {
  if (state.frame > limits_.frames || Full() || !seen_.Insert(cells_.Of(state, atEdge))) return;
  const float ahead = graph_.FramesFrom(state);
  if (ahead == kNever) return;
  const auto index = static_cast<int32_t>(kept_.size());
  kept_.push_back({state, before, static_cast<int16_t>(frames), keys});
  ForgetWhatIsBehind(kept_.back().state);
  const auto crowd = static_cast<float>(crowds_[CrowdOf(state.car.position)]++);
  waiting_.push({static_cast<float>(state.frame) + weight_ * (ahead + crowding_ * crowd), index});
  ++effort.states;
}

bool RoundSearch::Expand(int32_t index) {
  const bool mayJump = kept_[static_cast<size_t>(index)].state.OnGround;
  for (const CarKeys keys : kDriving) {
    if (Hold(index, keys, false)) return true;
    if (mayJump && Hold(index, keys, true)) return true;
  }
  return false;
}

/// Holds the keys until the last stop, keeping what comes on the way; true when it wins.
bool RoundSearch::Hold(int32_t from, CarKeys keys, bool jump) {
  drive::DriveState state = kept_[static_cast<size_t>(from)].state;
  const CarKeys first = static_cast<CarKeys>(keys | (jump ? kJumpKey : 0));
  int frame = 0;
  for (const int stop : kStops) {
    while (frame < stop) {
      const drive::DriveState before = state;
      const CarKeys held = first;
      const drive::StepEvents events = track_.Step(state, held);
      ++frame;
      ++effort.steps;
      --stepsLeft_;
      if (events.ending == drive::Ending::Wins) {
        kept_.push_back({state, from, static_cast<int16_t>(frame), held});
        return true;
      }
      if (events.ending != drive::Ending::None) return false;
      const bool landed = state.OnGround && !before.OnGround;
      const bool leaves = before.OnGround && !state.OnGround && !jump && frame > 1;
      if (leaves) Keep(before, from, frame - 1, held, true);
      if (landed && frame != stop) Keep(state, from, frame, held);
    }
    Keep(state, from, frame, first);
  }
  return false;
}

drive::KeyScript RoundSearch::Script() const {
  std::vector<const Kept*> way;
  for (int32_t i = static_cast<int32_t>(kept_.size()) - 1; i > 0;
       i = kept_[static_cast<size_t>(i)].before) {
    way.push_back(&kept_[static_cast<size_t>(i)]);
  }
  drive::KeyScript script;
  for (auto kept = way.rbegin(); kept != way.rend(); ++kept) {
    for (int frame = 0; frame < (*kept)->frames; ++frame) AddFrame(script, (*kept)->keys);
  }
  return script;
}

}  // namespace

Result FindDrive(const drive::FrozenTrack& track, const Limits& limits, const Watch& watch) {
  Result result;
  const ReachGraph graph(track, watch.stop);
  const auto stopped = [&watch] { return watch.stop != nullptr && *watch.stop; };
  if (!graph.HasWin()) {
    result.outcome = Outcome::NoWinBlock;
    return result;
  }
  if (graph.FramesFrom(drive::DriveState()) == kNever) {
    result.outcome = stopped() ? Outcome::Stopped : Outcome::NoWayToWin;
    return result;
  }
  int64_t unused = 0;
  for (const Round& round : kRounds) {
    const int64_t steps = limits.steps / 100 * round.share + unused;
    RoundSearch search(track, graph, round, limits, steps, watch);
    search.effort = result.effort;
    const bool won = search.Run();
    unused = steps - (search.effort.steps - result.effort.steps);
    result.effort = search.effort;
    if (won) {
      result.outcome = Outcome::Won;
      result.script = search.Script();
      return result;
    }
    if (stopped()) {
      result.outcome = Outcome::Stopped;
      return result;
    }
  }
  return result;
}

std::string WordsFor(const Result& result) {
  switch (result.outcome) {
    case Outcome::Won:
      return "Can be won: " + drive::Seconds(FrameCount(result.script));
    case Outcome::NotFound:
      return "No winning drive found";
    case Outcome::NoWayToWin:
      return "No WIN block can be reached";
    case Outcome::NoWinBlock:
      return "The track has no WIN block";
    case Outcome::Stopped:
      break;
  }
  return "Searching\xE2\x80\xA6";
}

}  // namespace search
