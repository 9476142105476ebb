#include "editor/drives/shown_drive.h"

#include <algorithm>
#include <cstdio>
#include <limits>

namespace drives {
namespace {

/// Of one call: some milliseconds on the fullest track, and more than most drives have.
constexpr int kFramesAtOnce = 4000;
constexpr double kSecondsPerFrame = 0.04;

std::string Seconds(size_t frames) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.1f s", static_cast<double>(frames) * kSecondsPerFrame);
  return text.data();
}

const char* VerbFor(drive::Ending ending) {
  switch (ending) {
    case drive::Ending::Wins:
      return "wins";
    case drive::Ending::Explodes:
      return "explodes";
    case drive::Ending::Falls:
      return "falls";
    case drive::Ending::None:
      break;
  }
  return "ends";
}

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
  const size_t frames = Path().size() - 1;
  if (!run_->IsOver()) return "Your drive goes on for more than " + Seconds(frames);
  std::string words = "Your drive ";
  words.append(VerbFor(run_->HowItEnds())).append(" after ").append(Seconds(frames));
  const size_t stars = track_.Stars().size();
  if (run_->HowItEnds() == drive::Ending::Wins && stars > 0) {
    words.append(" with ").append(std::to_string(run_->State().collected.size()));
    words.append(" of ").append(std::to_string(stars)).append(stars == 1 ? " star" : " stars");
  }
  return words;
}

int ShownDrive::FrameNear(float depth) const {
  // The last point of a run that has ended is no place to drive on from.
  const size_t over = run_->HowItEnds() != drive::Ending::None ? 1 : 0;
  return static_cast<int>(PointNearDepth(Path(), Path().size() - over, depth));
}

}  // namespace drives
