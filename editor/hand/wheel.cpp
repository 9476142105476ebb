#include "editor/hand/wheel.h"

#include <algorithm>
#include <cmath>

#include "editor/main_controls.h"
#include "level/globals.h"

namespace wheel {
namespace {

constexpr double kUnitsPerNotch = 5;

double rest = 0;  ///< of a unit, not scrolled yet

}  // namespace

void Turn(double notches) {
  if (Document.EditorMode != EditMode) return;
  const double units = rest + notches * kUnitsPerNotch;
  rest = units - std::trunc(units);
  ScrollBar& bar = Controls().VScroll1;
  bar.Value(
      std::clamp(bar.Value() - static_cast<int>(std::trunc(units)), bar.Minimum(), bar.Maximum()));
}

}  // namespace wheel
