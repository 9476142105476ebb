#include "editor/sight.h"

#include <algorithm>
#include <cmath>

#include "editor/main_controls.h"
#include "level/maths.h"
#include "level/pieces.h"
#include "render/device/DirectX.h"

namespace sight {
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

}  // namespace

void Bring(const Vector3& point) {
  if (InSight(point)) return;
  ScrollBar& bar = Controls().VScroll1;
  const int depth = std::clamp(static_cast<int>(std::lround(point.z)), 0, bar.Maximum());
  bar.Value(bar.Maximum() - depth);
  // After play the camera need not be where the bar says.
  if (bar.onChange) bar.onChange();
}

bool BringSelection() {
  bool found = false;
  VisitSelected([&found](const auto& piece) {
    found = true;
    Bring({static_cast<float>(piece.Xpos()), static_cast<float>(piece.Ypos()),
           static_cast<float>(piece.Zpos())});
  });
  return found;
}

}  // namespace sight
