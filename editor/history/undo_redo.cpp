#include "editor/history/undo_redo.h"

#include <algorithm>
#include <cmath>

#include "editor/history/history.h"
#include "editor/main_controls.h"
#include "editor/selection.h"
#include "level/maths.h"
#include "render/device/DirectX.h"

namespace history {
namespace {

/// Whether the camera shows the point; what lies at the rim of the picture counts as unseen.
bool InSight(const Vector3& point) {
  constexpr float kRim = 0.95F;
  Vector3 seen;
  maths::TransformCoord(seen, point, DirectX::MatView);
  if (seen.z <= 0) return false;
  maths::TransformCoord(seen, Vector3(seen), DirectX::MatProj);
  return std::abs(seen.x) < kRim && std::abs(seen.y) < kRim;
}

void BringIntoSight(const Vector3& point) {
  if (InSight(point)) return;
  ScrollBar& bar = Controls().VScroll1;
  const int depth = std::clamp(static_cast<int>(std::lround(point.z)), 0, bar.Maximum());
  bar.Value(bar.Maximum() - depth);
  // After play the camera need not be where the bar says.
  if (bar.onChange) bar.onChange();
}

/// The selected piece, or the place that the step changed.
void LookAt(const Step& step) {
  bool found = false;
  VisitSelected([&found](const auto& piece) {
    found = true;
    BringIntoSight({static_cast<float>(piece.Xpos()), static_cast<float>(piece.Ypos()),
                    static_cast<float>(piece.Zpos())});
  });
  if (found || step.changes.empty()) return;
  const float depth = DepthOf(step.changes.front());
  if (depth >= 0) BringIntoSight({0, 0, depth});
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
