#include "search/reach_graph.h"

#include <algorithm>
#include <cmath>
#include <queue>

#include "level/clsblock.h"

namespace search {
namespace {

constexpr double kRowDepth = 4;
constexpr size_t kMostRows = 16384;
/// What heights, and places along the track, may be off by: gaps above surfaces, a frame's step.
constexpr double kSlackHeight = 0.02, kSlackDepth = 0.9, kSlackSide = 0.3;
constexpr int kLongest = 4000;  ///< frames of a fall that is worth following
constexpr float kJump = 0.35F;

/// So many frames, at most, after which what rises with this speed has not yet fallen below `drop`
/// under its place; −1 when it never gets so high.
int FramesAbove(double speed, double drop, double gravity) {
  if (gravity < 1e-6) return kLongest;
  const double up = speed + gravity / 2, inside = up * up + 2 * gravity * drop;
  if (inside < 0) return -1;
  const double frames = (up + std::sqrt(inside)) / gravity;
  return frames < 0 ? -1 : static_cast<int>(std::min<double>(frames + 1, kLongest));
}

double FarthestForward(double speed, int frames) {
  constexpr double kTop = 0.6, kFastest = 0.63, kAcceleration = 0.02;
  if (speed >= kTop) return speed * frames;
  const double until = std::min<double>((kTop - speed) / kAcceleration, frames);
  return speed * until + kAcceleration / 2 * until * until + kAcceleration * until +
         kFastest * (frames - until);
}

double LeastForward(double speed, int frames) {
  constexpr double kBrakes = 0.04;
  const double until = std::min<double>(speed / kBrakes, std::max(frames, 0));
  return speed * until - kBrakes / 2 * until * until - kBrakes * until;
}

}  // namespace

ReachGraph::ReachGraph(const drive::FrozenTrack& track, const std::atomic<bool>* stop)
    : track_(&track), set_(NodesOf(track)) {
  framesToWin_.assign(set_.nodes.size(), kNever);
  hasWin_ = std::ranges::any_of(set_.nodes, &Node::win);
  if (!hasWin_) return;
  SortIntoRows();
  NotePlatforms();
  if (SlidesFreely()) set_.sideways = 1;
  CountBackwards(stop);
}

size_t ReachGraph::RowOf(double z) const {
  return static_cast<size_t>(std::clamp(z / kRowDepth, 0.0, static_cast<double>(rows_.size()) - 1));
}

void ReachGraph::SortIntoRows() {
  double farthest = 0;
  lowest_ = set_.nodes.front().lowest;
  for (const Node& node : set_.nodes) {
    farthest = std::max<double>(farthest, node.z);
    greatestLaunch_ = std::max(greatestLaunch_, node.launch);
    highest_ = std::max(highest_, node.highest);
    lowest_ = std::min(lowest_, node.lowest);
    widest_ = std::max(widest_, node.slackX);
    longest_ = std::max(longest_, node.slackZ);
  }
  rows_.resize(static_cast<size_t>(std::min<double>(farthest / kRowDepth, kMostRows)) + 1);
  for (size_t i = 0; i < set_.nodes.size(); ++i) {
    rows_[RowOf(set_.nodes[i].z)].nodes.push_back(static_cast<int32_t>(i));
  }
  const auto x = [this](int32_t i) { return set_.nodes[static_cast<size_t>(i)].x; };
  for (Row& row : rows_) std::ranges::sort(row.nodes, {}, x);
}

void ReachGraph::NotePlatforms() {
  for (const drive::FrozenPlatform& platform : track_->Platforms()) {
    const float speed = static_cast<float>(platform.way.Travel().speed) / 100;
    const double z = platform.box.corner.z;
    const size_t last = RowOf(z + platform.box.size.z + 2);
    for (size_t row = RowOf(z - 2); row <= last; ++row) {
      rows_[row].push = std::max(rows_[row].push, speed);
    }
  }
}

/// On ice a car keeps what a platform beside it gave.
bool ReachGraph::SlidesFreely() const {
  return std::ranges::any_of(track_->Blocks(), [this](const drive::FrozenBlock& block) {
    if (block.kind != clsblock::Ice) return false;
    const float z = block.box.corner.z;
    return PushBetween(RowOf(z - 2), RowOf(double{z} + block.box.size.z + 2)) > 0;
  });
}

float ReachGraph::PushBetween(size_t first, size_t last) const {
  float push = 0;
  for (size_t row = first; row <= last; ++row) push = std::max(push, rows_[row].push);
  return push;
}

template <typename Visit>
void ReachGraph::VisitBox(double lowX, double highX, size_t firstRow, size_t lastRow,
                          Visit visit) const {
  const auto x = [this](int32_t i) { return set_.nodes[static_cast<size_t>(i)].x; };
  for (size_t row = firstRow; row <= lastRow; ++row) {
    const std::vector<int32_t>& nodes = rows_[row].nodes;
    for (auto i = std::ranges::lower_bound(nodes, static_cast<float>(lowX), {}, x);
         i != nodes.end() && x(*i) <= highX; ++i) {
      visit(static_cast<size_t>(*i));
    }
  }
}

void ReachGraph::CountBackwards(const std::atomic<bool>* stop) {
  using Entry = std::pair<float, size_t>;
  std::priority_queue<Entry, std::vector<Entry>, std::greater<>> queue;
  for (size_t i = 0; i < set_.nodes.size(); ++i) {
    if (!set_.nodes[i].win) continue;
    framesToWin_[i] = 0;
    queue.emplace(0.0F, i);
  }
  const double gravity = track_->Gravity();
  while (!queue.empty()) {
    const float frames = queue.top().first;
    const size_t index = queue.top().second;
    queue.pop();
    if (frames > framesToWin_[index]) continue;
    if (stop != nullptr && *stop) {
      framesToWin_.assign(set_.nodes.size(), kNever);
      return;
    }
    const Node& to = set_.nodes[index];
    const int most =
        FramesAbove(greatestLaunch_, double{highest_} - to.lowest + kSlackHeight, gravity);
    const double back = double{set_.fastest} * most + to.slackZ + longest_ + kSlackDepth;
    const size_t firstRow = RowOf(to.z - back), lastRow = RowOf(to.z + to.slackZ + longest_ + 1.0);
    const double side = double{set_.sideways} + PushBetween(firstRow, lastRow);
    const double aside = side * most + to.slackX + widest_ + kSlackSide;
    VisitBox(to.x - aside, to.x + aside, firstRow, lastRow, [&](size_t i) {
      const Node& from = set_.nodes[i];
      const double along = double{to.z} - from.z, across = std::abs(double{to.x} - from.x);
      const double slackZ = double{from.slackZ} + to.slackZ + kSlackDepth;
      const double slackX = double{from.slackX} + to.slackX + kSlackSide;
      const auto arrives = static_cast<float>(
          frames + 0.05 + std::max(std::max(along, 0.0) / set_.fastest, across / side));
      if (arrives >= framesToWin_[i] || along < -slackZ) return;
      const int flight =
          FramesAbove(from.launch, double{from.highest} - to.lowest + kSlackHeight, gravity);
      if (flight < 0 || along > set_.fastest * double(flight) + slackZ ||
          across > side * flight + slackX) {
        return;
      }
      framesToWin_[i] = arrives;
      queue.emplace(arrives, i);
    });
  }
}

float ReachGraph::FramesFrom(const drive::DriveState& state) const {
  if (!hasWin_) return kNever;
  // What it rides down on gets no better by waiting.
  if (state.OnGround && RiddenBlock(state) == nullptr) {
    const float onGround = NearestOnGround(state);
    if (onGround < kNever) return onGround;
  }
  return AfterFlight(state);
}

/// The falling block that the car stands on, if it does.
const drive::MovedBlock* ReachGraph::RiddenBlock(const drive::DriveState& state) const {
  constexpr double kClose = 0.2;
  const Vector3& at = state.car.position;
  for (const drive::MovedBlock& moved : state.moved) {
    const Extent& box = track_->Blocks()[static_cast<size_t>(moved.index)].box;
    const double top = double{moved.y} + box.size.y + moved.motion.fallvel;
    if (moved.motion.Falling && std::abs(at.y - top) < kClose + moved.motion.fallvel &&
        at.x > box.corner.x - 1 && at.x < box.corner.x + box.size.x + 1 &&
        at.z > box.corner.z - 1 && at.z < box.corner.z + box.size.z + 2) {
      return &moved;
    }
  }
  return nullptr;
}

float ReachGraph::NearestOnGround(const drive::DriveState& state) const {
  const Vector3& at = state.car.position;
  float best = kNever;
  const double reach = widest_ + kSlackSide;
  VisitBox(at.x - reach, at.x + reach, RowOf(at.z - longest_ - 1.0), RowOf(at.z + longest_ + 1.0),
           [&](size_t i) {
             const Node& node = set_.nodes[i];
             if (std::abs(node.x - at.x) > node.slackX + kSlackSide ||
                 std::abs(node.z - at.z) > node.slackZ + kSlackDepth || at.y < node.lowest - 0.5 ||
                 at.y > node.highest + 0.5) {
               return;
             }
             const float way = (node.z - at.z) / set_.fastest;
             best = std::min(best, std::max(0.0F, framesToWin_[i] + way));
           });
  return best;
}

ReachGraph::Arrival ReachGraph::ArrivalAt(const Node& node, const drive::DriveState& state,
                                          double speed) const {
  constexpr int kEarlier = 3, kLater = 2;
  const double height = state.car.position.y, gravity = track_->Gravity();
  double top = node.lowest;
  if (node.falling >= 0) {
    const auto moved = std::ranges::find(state.moved, node.falling, &drive::MovedBlock::index);
    top = node.y;
    if (moved != state.moved.end()) {
      // Both fall alike: what counts is how fast the car comes nearer.
      const Extent& box = track_->Blocks()[static_cast<size_t>(node.falling)].box;
      const double apart = height - moved->y - box.size.y, nearer = -speed - moved->motion.fallvel;
      if (nearer <= 0 || apart < -kSlackHeight - nearer) return {};
      const int frames = static_cast<int>(std::min<double>(apart / nearer, kLongest));
      return {std::max(frames - kEarlier, 0), frames + kLater};
    }
  }
  const int last = FramesAbove(speed, height - top + kSlackHeight, gravity);
  if (last < 0 || node.anyTime) return {0, last};
  // Before it has come down to the top it cannot land there.
  const int above =
      FramesAbove(speed, height - std::max<double>(top, node.highest) - kSlackHeight, gravity);
  return {std::max(above - kEarlier, 0), last};
}

float ReachGraph::AfterFlight(const drive::DriveState& state) const {
  const Vector3 &at = state.car.position, &velocity = state.car.velocity;
  // On the ground it may wait, gather speed and jump first.
  const bool free = state.OnGround;
  const double speed = free ? std::max(velocity.y, kJump) : velocity.y;
  const double forward = free ? set_.fastest : velocity.z;
  const int longest = FramesAbove(speed, double{at.y} - lowest_ + kSlackHeight, track_->Gravity());
  if (longest < 0) return kNever;
  const size_t firstRow = RowOf(at.z - longest_ - 1.0);
  const size_t lastRow = RowOf(at.z + FarthestForward(forward, longest) + longest_ + kSlackDepth);
  const double side = double{set_.sideways} + PushBetween(firstRow, lastRow);
  const double aside = side * longest + widest_ + kSlackSide;
  float best = kNever;
  VisitBox(at.x - aside, at.x + aside, firstRow, lastRow, [&](size_t i) {
    if (framesToWin_[i] >= best) return;
    const Node& node = set_.nodes[i];
    Arrival frames = ArrivalAt(node, state, speed);
    if (frames.last < frames.first) return;
    if (free) frames.first = 0;
    const double along = double{node.z} - at.z, slackZ = node.slackZ + kSlackDepth;
    if (along > FarthestForward(forward, frames.last) + slackZ ||
        along < (free ? 0 : LeastForward(forward, frames.first)) - slackZ ||
        std::abs(double{node.x} - at.x) > side * frames.last + node.slackX + kSlackSide ||
        (!free && !IsThere(node, state, frames.first, frames.last))) {
      return;
    }
    const double way = std::max(along, 0.0) / set_.fastest;
    best =
        std::min(best, framesToWin_[i] + static_cast<float>(std::max<double>(frames.first, way)));
  });
  return best;
}

/// Whether the node's platform comes by in one of these frames from now.
bool ReachGraph::IsThere(const Node& node, const drive::DriveState& state, int from, int to) const {
  if (node.platform < 0) return true;
  const drive::FrozenPlatform& platform = track_->Platforms()[static_cast<size_t>(node.platform)];
  for (int frame = std::max(from - 1, 0); frame <= to + 1; ++frame) {
    const int32_t step = state.platformSteps + frame;
    const double x = platform.way.At(static_cast<size_t>(step)).x;
    const double half = Car::kEdge / 2 + node.slackX + kSlackSide;
    if (node.x > x - half && node.x < x + platform.box.size.x + half) return true;
  }
  return false;
}

}  // namespace search
