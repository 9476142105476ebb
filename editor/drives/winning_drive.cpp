#include "editor/drives/winning_drive.h"

#include <limits>
#include <stdexcept>

#include "drive/script_run.h"

namespace drives {
namespace {

constexpr size_t kMostKnown = 64;
/// Of the confirmation, in one frame of the window: a few milliseconds on a full track.
constexpr int kFramesAtOnce = 16;

}  // namespace

bool WinningDrive::Follow(uint64_t version) {
  if (version_ != version) {
    Rest();
    version_ = version;
    track_ = drive::FrozenTrack::OfDocument();
    const auto known = known_.find(version);
    if (known == known_.end()) {
      Search();
    } else {
      Show(known->second);
    }
    return true;
  }
  return replay_ ? Confirm() : TakeAnswer();
}

void WinningDrive::Rest() {
  worker_.Stop();
  replay_.reset();
  answer_.reset();
  version_.reset();
  shown_.reset();
  found_.reset();
}

void WinningDrive::Search() {
  answer_ = std::make_shared<Answer>();
  worker_.Start([answer = answer_, track = track_](const std::atomic<bool>& stop) {
    search::Result result = search::FindDrive(track, {}, {&stop, {}});
    if (result.outcome == search::Outcome::Stopped) return;
    const std::lock_guard lock(answer->mutex);
    answer->result = std::move(result);
  });
}

bool WinningDrive::TakeAnswer() {
  if (!answer_) return false;
  std::optional<search::Result> result;
  {
    const std::lock_guard lock(answer_->mutex);
    result = std::move(answer_->result);
  }
  if (!result) return false;
  answer_.reset();
  if (result->outcome == search::Outcome::Won) {
    // Nobody hears of a win that the real objects do not confirm.
    unconfirmed_ = std::move(result);
    replay_ = std::make_unique<drive::ObjectReplay>(unconfirmed_->script);
    return false;
  }
  Show(*result);
  return true;
}

bool WinningDrive::Confirm() {
  const std::optional<drive::Ending> ending = replay_->Advance(kFramesAtOnce);
  if (!ending) return false;
  replay_.reset();
  if (*ending != drive::Ending::Wins) {
    unconfirmed_->outcome = search::Outcome::NotFound;
    unconfirmed_->script.clear();
  }
  Show(*unconfirmed_);
  return true;
}

void WinningDrive::Show(const search::Result& result) {
  if (known_.size() >= kMostKnown) known_.clear();
  shown_ = known_[*version_] = result;
  if (shown_->outcome != search::Outcome::Won) return;
  drive::ScriptRun run(track_, shown_->script);
  run.Advance(std::numeric_limits<int>::max());
  found_ = Attempt{shown_->script, run.Path(), run.HowItEnds()};
}

std::string WinningDrive::Words() const {
  search::Result searching;
  searching.outcome = search::Outcome::Stopped;
  return WordsFor(shown_ ? *shown_ : searching);
}

}  // namespace drives
