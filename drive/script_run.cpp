#include "drive/script_run.h"

namespace drive {
namespace {

/// Less is no flight: a car that rolls over an edge or along a ramp leaves the ground for a frame.
constexpr int kShortestFlight = 4;
/// A pad that is met again sooner is the same one.
constexpr int kSamePad = 5;

}  // namespace

bool ScriptRun::Advance(int frames) {
  for (; frames > 0 && !IsOver(); --frames) {
    const size_t stars = state_.collected.size();
    const StepEvents events = track_->Step(state_, keys_.Next());
    ending_ = events.ending;
    path_.push_back({state_.car.position, state_.car.velocity, 0});
    Mark(events, stars);
  }
  return !IsOver();
}

void ScriptRun::Mark(const StepEvents& events, size_t starsBefore) {
  uint8_t& marks = path_.back().marks;
  if (state_.collected.size() > starsBefore) marks |= kTakesStar;
  if (events.jumpPad || events.turboPad) {
    if (frameOnPad_ == 0 || state_.frame - frameOnPad_ > kSamePad) marks |= kMeetsPad;
    frameOnPad_ = state_.frame;
  }
  if (ending_ == Ending::Wins) marks |= kWins;
  if (ending_ == Ending::Explodes) marks |= kExplodes;
  if (ending_ == Ending::Falls) marks |= kFalls;
  MarkFlight();
}

void ScriptRun::MarkFlight() {
  if (state_.OnGround) {
    if (flies_) path_.back().marks |= kLands;
    flies_ = false;
    frameOnGround_ = state_.frame;
  } else if (!flies_ && state_.frame - frameOnGround_ == kShortestFlight) {
    flies_ = true;
    path_[static_cast<size_t>(frameOnGround_)].marks |= kTakesOff;
  }
}

DriveState StateAfter(const FrozenTrack& track, const KeyScript& script, int frames) {
  DriveState state;
  KeyReader keys(script);
  while (state.frame < frames && !keys.AtEnd() && !state.car.Dead) track.Step(state, keys.Next());
  return state;
}

}  // namespace drive
