#include "editor/drives/seat.h"

#include <utility>

#include "drive/object_drive.h"
#include "drive/resume.h"
#include "play/DirectInput.h"
#include "play/clsPlayer.h"
#include "play/play_frame.h"

namespace drives {

void Seat::TakeStart() {
  beginning_.reset();
  watched_.reset();
  reader_.reset();
  keptOne_ = false;
  BeginAttempt();
}

void Seat::TakeFrom(Beginning beginning) {
  TakeStart();
  beginning_ = std::move(beginning);
  Resume(beginning_->track, beginning_->state);
  BeginAttempt();
}

void Seat::Watch(drive::KeyScript script) {
  TakeStart();
  watched_ = std::move(script);
  reader_.emplace(*watched_);
}

void Seat::BeginAttempt() {
  attempt_ = {};
  if (beginning_) {
    attempt_.script = beginning_->script;
    attempt_.path = beginning_->path;
  } else {
    attempt_.path.push_back({Car::kStart, {}, 0});
  }
  recording_ = true;
  driven_ = beginning_.has_value();
}

void Seat::Poll() {
  wasExploding_ = Player.getexplodeStatus() && !Player.DeathStatus();
  keys_ = play::HeldCarKeys();
  if (keys_ != 0) {
    // From here on the user drives.
    reader_.reset();
    watched_.reset();
    driven_ = true;
  }
  if (reader_) {
    keys_ = reader_->Next();
    DirectInput::KeyState = play::KeyboardWith(keys_);
  }
  play::PollCarKeys();
}

void Seat::Updated() {
  const drive::Ending ending = drive::EndingNow(wasExploding_);
  if (recording_) attempt_.ending = ending;
}

void Seat::FrameEnds() {
  if (!recording_) return;
  AddFrame(attempt_.script, keys_);
  attempt_.path.push_back({Player.GetPosition(), {}, 0});
  if (attempt_.ending != drive::Ending::None) EndAttempt(attempt_.ending);
}

void Seat::TrackRestored() {
  if (beginning_) Resume(beginning_->track, beginning_->state);
  if (watched_) reader_.emplace(*watched_);
  BeginAttempt();
  if (beginning_ || watched_) {
    Poll();  // what was polled before went to the car that is gone
  } else {
    keys_ = 0;
  }
}

void Seat::Leave() {
  if (recording_) EndAttempt(drive::Ending::None);
  beginning_.reset();
  watched_.reset();
  reader_.reset();
}

void Seat::EndAttempt(drive::Ending ending) {
  recording_ = false;
  const bool watching = watched_.has_value();
  const size_t begun = beginning_ ? beginning_->path.size() : 1;
  const bool nothing = attempt_.path.size() == begun;
  // Who crashes and then leaves has not driven the moment in between.
  const bool idle = ending == drive::Ending::None && !driven_ && keptOne_;
  if (watching || nothing || idle) return;
  attempt_.ending = ending;
  keptOne_ = true;
  keep_(std::exchange(attempt_, {}));
}

}  // namespace drives
