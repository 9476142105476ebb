#include "editor/drives/shown_drive.h"

#include <algorithm>
#include <limits>

#include "drive/words.h"

namespace drives {
namespace {

/// Of one call: some milliseconds on the fullest track, and more than most drives have.
constexpr int kFramesAtOnce = 4000;

}  // namespace

void ShownDrive::Clear() {
  run_.reset();
  version_ = 0;
}

bool ShownDrive::Follow(const Attempt& attempt, uint64_t version) {
  if (!run_ || version != version_) {
    run_.reset();
    attempt_ = attempt;
    track_ = drive::FrozenTrack::OfDocument();
    run_.emplace(track_, attempt_.script);
    version_ = version;
  } else if (run_->IsOver()) {
    return false;
  }
  run_->Advance(kFramesAtOnce);
  return true;
}

void ShownDrive::Finish() { run_->Advance(std::numeric_limits<int>::max()); }

std::span<const drive::PathPoint> ShownDrive::OldRest() const {
  const drive::Path &now = Path(), &then = attempt_.path;
  const auto [left, from] =
      std::ranges::mismatch(now, then, {}, &drive::PathPoint::place, &drive::PathPoint::place);
  // A path that is still being worked out departs from nothing.
  if (from == then.end() || (left == now.end() && !run_->IsOver())) return {};
  const auto first = from == then.begin() ? from : from - 1;
  return {first, then.end()};
}

std::string ShownDrive::Words() const {
  const auto frames = static_cast<int>(Path().size() - 1);
  if (!run_->IsOver()) return "Your drive goes on for more than " + drive::Seconds(frames);
  const drive::Ending ending = run_->HowItEnds();
  std::string words = "Your drive " + HowItEnds(ending, frames);
  if (ending != drive::Ending::Wins) return words;
  return words + drive::WithStars(run_->State().collected.size(), track_.Stars().size());
}

int ShownDrive::FrameNear(float depth) const {
  // The last point of a run that has ended is no place to drive on from.
  const size_t over = run_->HowItEnds() != drive::Ending::None ? 1 : 0;
  return static_cast<int>(PointNearDepth(Path(), Path().size() - over, depth));
}

}  // namespace drives
