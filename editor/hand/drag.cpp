#include "editor/hand/drag.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "editor/history/history.h"
#include "editor/main_controls.h"
#include "editor/pick_ray.h"
#include "editor/selection.h"

namespace drag {
namespace {

constexpr float kSlack = 4;  ///< pixels that a click may slip

struct Place {
  double x = 0, y = 0, z = 0;
};

/// One press of the button.
struct Hold {
  Vector3 anchor;        ///< the point that was hit; it stays under the pointer
  float x, y;            ///< of the press
  Place base;            ///< where the piece was when the anchor was taken
  bool upright = false;  ///< it moves up and down
  bool moving = false;   ///< the pointer has left the slack
};

std::optional<Hold> hold;

history::Gesture Gesture() { return reinterpret_cast<history::Gesture>(&hold); }

Place PlaceOfPiece() {
  Place place;
  VisitSelected([&place](const auto& piece) {
    place = {static_cast<double>(piece.Xpos()), static_cast<double>(piece.Ypos()),
             static_cast<double>(piece.Zpos())};
  });
  return place;
}

/// Where the ray meets the plane through the anchor: the ground, or upright across the track.
std::optional<Vector3> Under(float x, float y) {
  const PickRay ray = RayThrough(x, y);
  const double along = hold->upright ? ray.direction.z : ray.direction.y;
  const double way =
      hold->upright ? double{hold->anchor.z} - ray.start.z : double{hold->anchor.y} - ray.start.y;
  // Five lengths of the ray are more than is ever seen; beyond lies the horizon.
  if (along == 0 || way / along < 0 || way / along > 5) return std::nullopt;
  const double t = way / along;
  return Vector3{static_cast<float>(ray.start.x + t * ray.direction.x),
                 static_cast<float>(ray.start.y + t * ray.direction.y),
                 static_cast<float>(ray.start.z + t * ray.direction.z)};
}

void Anchor(const Vector3& point, bool upright) {
  hold->anchor = point;
  hold->upright = upright;
  hold->base = PlaceOfPiece();
}

/// Whole units from where the piece is to where it shall be. A block stops at the panel's limits.
int32_t Units(double present, double base, double wish, const UpDown& range) {
  double goal = base + std::round(wish);
  if (Document.SelectedType == TypeBlock) {
    goal = std::clamp<double>(goal, range.Minimum(), range.Maximum());
  }
  return static_cast<int32_t>(std::lround(goal - present));
}

void Follow(const Vector3& point) {
  const MainControls& c = Controls();
  const Place now = PlaceOfPiece();
  const Vector3& anchor = hold->anchor;
  const Place& base = hold->base;
  int32_t dx = 0, dy = 0, dz = 0;
  if (hold->upright) {
    dy = Units(now.y, base.y, double{point.y} - anchor.y, c.UpDownY);
  } else {
    dx = Units(now.x, base.x, double{point.x} - anchor.x, c.UpDownX);
    dz = Units(now.z, base.z, double{point.z} - anchor.z, c.UpDownZ);
  }
  if (dx == 0 && dy == 0 && dz == 0) return;
  // The refusal's message takes the release of the button.
  if (Document.SelectedType == TypePlatform && !Document.PlatformsPaused) Release();
  history::steps.Continue(Gesture());
  selection::MoveSelection(dx, dy, dz);
}

}  // namespace

void Press(const Vector3& hit, float x, float y) { hold = Hold{hit, x, y, PlaceOfPiece()}; }

void Move(int shift, float x, float y) {
  constexpr int kShift = 1;
  if (!hold || !Document.ObjectSelected) return;
  if (!hold->moving) {
    if (std::abs(x - hold->x) <= kSlack && std::abs(y - hold->y) <= kSlack) return;
    hold->moving = true;
    hold->upright = (shift & kShift) != 0;
    Controls().viewport.Pointer(PointerShape::Drag);
  }
  const std::optional<Vector3> point = Under(x, y);
  if (!point) return;
  // With Shift pressed or let go on the way, it goes on from where it is.
  if (const bool upright = (shift & kShift) != 0; upright != hold->upright) {
    return Anchor(*point, upright);
  }
  Follow(*point);
}

void Release() {
  if (!hold) return;
  hold.reset();
  Controls().viewport.Pointer(PointerShape::Arrow);
  history::steps.EndGesture();
}

bool Cancel() {
  if (!hold || !hold->moving) return false;
  selection::DeselectCurrent();
  history::steps.CancelGesture(Gesture());
  selection::ShowProperties();
  Release();
  return true;
}

}  // namespace drag
