#include "editor/history/undo_redo.h"

#include "editor/history/history.h"
#include "editor/main_controls.h"
#include "editor/selection.h"
#include "editor/sight.h"

namespace history {
namespace {

/// The selected piece, or the place that the step changed.
void LookAt(const Step& step) {
  if (sight::BringSelection() || step.changes.empty()) return;
  const float depth = DepthOf(step.changes.front());
  if (depth >= 0) sight::Bring({0, 0, depth});
}

void Take(const Step* step, void (History::*way)()) {
  if (step == nullptr || Document.EditorMode != EditMode) return;
  selection::DeselectCurrent();
  (steps.*way)();
  selection::ShowProperties();
  LookAt(*step);
}

void Show(MenuItem& item, const char* word, const Step* step) {
  const bool possible = step != nullptr && Document.EditorMode == EditMode;
  item.Caption(possible ? word + (" " + step->name) : word);
  item.Enabled(possible);
}

}  // namespace

void UndoStep() {
  steps.EndGesture();
  Take(steps.ToUndo(), &History::Undo);
}

void RedoStep() {
  steps.EndGesture();
  Take(steps.ToRedo(), &History::Redo);
}

void ShowInMenu() {
  Show(Controls().mnu_undo, "Undo", steps.ToUndo());
  Show(Controls().mnu_redo, "Redo", steps.ToRedo());
}

}  // namespace history
