#include "editor/history/history.h"

#include <utility>

namespace history {

SelectionState SelectionState::Present() {
  return {Document.ObjectSelected, Document.SelectedType, Document.SelectedIndex,
          Document.SelectedPlane};
}

void SelectionState::Apply() const {
  Document.ObjectSelected = ObjectSelected;
  Document.SelectedType = SelectedType;
  Document.SelectedIndex = SelectedIndex;
  Document.SelectedPlane = SelectedPlane;
}

void History::Reset() {
  steps_.clear();
  done_ = bytes_ = 0;
  gestureHasStep_ = false;
  saved_ = state_ = ++lastState_;
  Changed();
}

bool History::Recording() const { return depth_ > 0 && Document.EditorMode == EditMode; }

void History::Begin(const char* name) {
  if (depth_++ > 0) return;
  recording_ = {};
  recording_.name = name;
  recording_.before = SelectionState::Present();
}

void History::Add(Change change) { recording_.changes.push_back(std::move(change)); }

void History::TouchValues() {
  if (Recording()) Add(ChangedValues{Document.Gravity, Document.BackgroundName});
}

void History::Replaced(KeptTrack replaced) { Add(ReplacedTrack{std::move(replaced)}); }

void History::End() {
  if (--depth_ > 0) return;
  Step step = std::exchange(recording_, {});
  const bool merges = gestureHasStep_ && steps_.back().name == step.name;
  // A command that was refused or changed nothing is none; while a gesture goes on, its step has
  // what the piece was before all of it.
  if (!Differ(step.changes) && !(merges && step.changes.empty())) return;
  step.after = SelectionState::Present();
  step.stateBefore = state_;
  step.stateAfter = state_ = ++lastState_;
  if (merges) {
    Step& last = steps_.back();
    for (Change& change : step.changes) {
      bytes_ += BytesOf(change);
      last.bytes += BytesOf(change);
      last.changes.push_back(std::move(change));
    }
    last.after = step.after;
    last.stateAfter = step.stateAfter;
  } else {
    Keep(std::move(step));
  }
  Changed();
}

void History::Keep(Step step) {
  DropRedo();
  for (const Change& change : step.changes) step.bytes += BytesOf(change);
  bytes_ += step.bytes;
  steps_.push_back(std::move(step));
  done_ = steps_.size();
  gestureHasStep_ = gesture_ != kNoGesture;
  while (bytes_ > kMostBytes && !steps_.empty()) DropOldest();
}

void History::DropRedo() {
  while (steps_.size() > done_) {
    bytes_ -= steps_.back().bytes;
    steps_.pop_back();
  }
}

void History::DropOldest() {
  bytes_ -= steps_.front().bytes;
  steps_.pop_front();
  if (done_ > 0) --done_;
  if (steps_.empty()) gestureHasStep_ = false;
}

void History::Continue(Gesture gesture) {
  if (gesture == gesture_ && gesture != kNoGesture) return;
  gesture_ = gesture;
  if (!std::exchange(gestureHasStep_, false)) return;
  // Back where it began, it has changed nothing.
  if (Differ(steps_.back().changes)) return;
  state_ = steps_.back().stateBefore;
  --done_;
  DropRedo();
  Changed();
}

void History::CancelGesture(Gesture gesture) {
  if (gesture != gesture_ || !std::exchange(gestureHasStep_, false)) return;
  Undo();
  DropRedo();
  Changed();
}

void History::Undo() {
  EndGesture();
  if (done_ == 0) return;
  Step& step = steps_[--done_];
  for (auto change = step.changes.rbegin(); change != step.changes.rend(); ++change) {
    Exchange(*change);
  }
  step.before.Apply();
  state_ = step.stateBefore;
  Changed();
}

void History::Redo() {
  EndGesture();
  if (done_ == steps_.size()) return;
  Step& step = steps_[done_++];
  for (Change& change : step.changes) Exchange(change);
  step.after.Apply();
  state_ = step.stateAfter;
  Changed();
}

}  // namespace history
