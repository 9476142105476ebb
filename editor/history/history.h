// What was done to the track in edit mode, step by step, and the way back. A step keeps only what
// it touched; a replaced track is kept by moving it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "editor/history/history_change.h"

namespace history {

/// The selection values of the document.
struct SelectionState {
  bool ObjectSelected = false;
  int32_t SelectedType = 0, SelectedIndex = 0, SelectedPlane = 1;

  static SelectionState Present();
  void Apply() const;
};

/// What is held while commands that belong together follow each other: a key's code, the address of
/// a button. Commands of one name and one gesture are one step.
using Gesture = uintptr_t;
inline constexpr Gesture kNoGesture = 0;

struct Step {
  std::string name;
  std::vector<Change> changes;
  SelectionState before, after;
  uint64_t stateBefore = 0, stateAfter = 0;
  size_t bytes = 0;
};

class History {
 public:
  /// Steps keep at most this much; the oldest go first.
  static constexpr size_t kMostBytes = size_t{256} << 20;

  /// Forgets every step; the present state is a new one.
  void Reset();

  // Recording, inside a Command.
  /// Before a piece is changed.
  template <typename Piece>
  void Touch(int32_t index) {
    if (!Recording() || Touched<Piece>(index)) return;
    Add(ChangedPiece<Piece>{index, PieceKind<Piece>::All()[static_cast<size_t>(index)]});
  }
  /// After a piece was inserted.
  template <typename Piece>
  void Inserted(int32_t index) {
    if (Recording()) Add(AddedPiece<Piece>{index, true, {}});
  }
  /// After a piece was taken out of its collection.
  template <typename Piece>
  void Removed(int32_t index, Piece piece) {
    if (Recording()) Add(AddedPiece<Piece>{index, false, std::move(piece)});
  }
  /// Before gravity or backdrop is changed.
  void TouchValues();
  /// After the whole track was replaced; also outside edit mode.
  void Replaced(KeptTrack replaced);

  /// The gesture that the commands from now on belong to.
  void Continue(Gesture gesture);
  /// What was held has been let go: this, or whatever it is.
  void EndGesture(Gesture gesture) {
    if (gesture == gesture_) EndGesture();
  }
  void EndGesture() { Continue(kNoGesture); }
  /// Takes back what this gesture has done, if it is the present one.
  void CancelGesture(Gesture gesture);

  /// The step that Undo or Redo would take; null when there is none.
  const Step* ToUndo() const { return done_ > 0 ? &steps_[done_ - 1] : nullptr; }
  const Step* ToRedo() const { return done_ < steps_.size() ? &steps_[done_] : nullptr; }
  /// Exchanges the step's changes with the document and applies its selection; what is marked is
  /// the caller's. Does nothing when there is no such step.
  void Undo();
  void Redo();

  /// A number that no other state of the track has; undoing leads back to a state's number.
  uint64_t State() const { return state_; }
  /// The track is as it was last opened or saved.
  void MarkSaved() { saved_ = state_; }
  bool DiffersFromSaved() const { return state_ != saved_; }

  /// Runs after the steps to undo or redo have changed.
  std::function<void()> changed;

  size_t StepCount() const { return steps_.size(); }
  size_t Bytes() const { return bytes_; }

 private:
  friend class Command;

  void Begin(const char* name);
  void End();
  bool Recording() const;
  template <typename Piece>
  bool Touched(int32_t index) const;
  void Add(Change change);
  void Keep(Step step);
  void DropRedo();
  void DropOldest();
  void Changed() const {
    if (changed) changed();
  }

  std::deque<Step> steps_;
  size_t done_ = 0;  ///< steps before it are done, those from it on are undone
  size_t bytes_ = 0;
  int depth_ = 0;   ///< commands inside commands
  Step recording_;  ///< of the outermost command
  Gesture gesture_ = kNoGesture;
  bool gestureHasStep_ = false;  ///< the last step belongs to the present gesture
  uint64_t state_ = 1, saved_ = 1, lastState_ = 1;
};

/// The one history; a test resets it.
inline History steps;

/// While it lives, what is recorded belongs to one step with this name. Commands inside it add to
/// it. In play mode nothing is recorded.
class Command {
 public:
  explicit Command(const char* name) { steps.Begin(name); }
  ~Command() { steps.End(); }
  Command(const Command&) = delete;
  Command& operator=(const Command&) = delete;
};

template <typename Piece>
bool History::Touched(int32_t index) const {
  // Only what a held key or button touches again and again; one command touches a piece once.
  if (!gestureHasStep_ || steps_.back().name != recording_.name) return false;
  const std::vector<Change>& changes = steps_.back().changes;
  const auto* last = changes.empty() ? nullptr : std::get_if<ChangedPiece<Piece>>(&changes.back());
  return last != nullptr && last->index == index;
}

}  // namespace history
