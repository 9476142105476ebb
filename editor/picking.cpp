#include "editor/picking.h"

#include "editor/hand/drag.h"
#include "editor/main_controls.h"
#include "editor/pick_ray.h"
#include "editor/selection_state.h"
#include "level/maths.h"
#include "platform/dialogs.h"
#include "platform/numbers.h"
#include "render/device/DirectX.h"

namespace picking {
namespace {

constexpr int kLeftButton = 1, kRightButton = 2;
constexpr int16_t kTop = 3;

/// The nearest face so far.
class NearestFace {
 public:
  explicit NearestFace(const PickRay& ray) : ray_(ray) {}

  void Test(const CollisionPlane& plane, const std::array<Vector3, 4>& c, int32_t type,
            size_t index, int16_t planeNumber) {
    Vector3 hit;
    if (!maths::IntersectRayPlane(plane, ray_.start, ray_.direction, hit)) return;
    const bool slope = type == TypeRamp && planeNumber == kTop;
    const bool inside = slope ? maths::PointInQuadEitherWay(c[0], c[1], c[2], c[3], hit)
                              : maths::PointInQuad(c[0], c[1], c[2], c[3], hit);
    if (!inside) return;
    const float distance = maths::Distance(ray_.start, hit);
    if (!(distance < static_cast<float>(best_))) return;
    // Whole units: of faces whose distances round alike the first one tested wins.
    best_ = ToLong(distance);
    found_ = true;
    hit_ = hit;
    type_ = type;
    index_ = static_cast<int32_t>(index);
    plane_ = planeNumber;
  }

  /// The point of the found face under the mouse.
  const Vector3& Hit() const { return hit_; }
  /// Makes the found face the selection; false when there is none.
  bool Select() const {
    if (!found_) return false;
    Document.ObjectSelected = true;
    Document.SelectedIndex = index_;
    Document.SelectedPlane = plane_;
    Document.SelectedType = type_;
    return true;
  }

 private:
  PickRay ray_;
  Vector3 hit_;
  int32_t best_ = 100;
  bool found_ = false;
  int32_t type_ = 0, index_ = 0, plane_ = 0;
};

template <typename Kind>
void TestFaces(const PickRay& ray, NearestFace& nearest, Kind kind) {
  constexpr int16_t faces = std::is_same_v<typename Kind::Piece, clsStar> ? 4 : 5;
  const auto pieces = kind.Pieces();
  for (size_t i = 0; i < pieces.size(); ++i) {
    if (!ray.MayMeet(pieces[i].Drawn())) continue;
    const auto planes = pieces[i].DrawnPlanes();
    for (int16_t plane = 1; plane <= faces; ++plane) {
      nearest.Test(planes[static_cast<size_t>(plane - 1)], pieces[i].GetFaceCorners(plane),
                   kind.type, i, plane);
    }
  }
}

NearestFace FindFace(const PickRay& ray) {
  NearestFace nearest(ray);
  VisitKinds([&](auto kind) { TestFaces(ray, nearest, kind); });
  return nearest;
}

/// Paints the face that was hit; the bottom has no texture.
template <typename Box>
void PaintPickedFace(Box& box, const std::string& name) {
  constexpr std::array<const char*, 4> letters = {"B", "C", "D", "A"};
  const int32_t plane = Document.SelectedPlane;
  if (plane < 1 || plane > 4) return;
  box.Texture(name, letters[static_cast<size_t>(plane - 1)], Document.TextureDir);
}

void RightClick(clsblock& block, bool shift, const std::string& name) {
  if (!shift) {
    dialogs::ShowMessage(std::to_string(block.changeactioncode()));
  } else if (block.changeactioncode() == clsblock::Normal) {
    PaintPickedFace(block, name);
  }
}

void RightClick(clsMovingPlatform& platform, bool shift, const std::string& name) {
  if (!shift) return selection::RetextureSelection(name);
  PaintPickedFace(platform, name);
}

void RightClick(clsRamp& ramp, bool shift, const std::string& name) {
  if (!shift) return selection::RetextureSelection(name);
  if (Document.SelectedPlane == kTop) ramp.Texture(name, "A", Document.TextureDir);
  ramp.Texture(name, "B", Document.TextureDir);
}

void RightClick(clsStar&, bool, const std::string&) {}

}  // namespace

void MouseDown(int button, int shift, float x, float y) {
  selection::DeselectCurrent();
  Document.ObjectSelected = false;
  drag::Release();
  const NearestFace nearest = FindFace(RayThrough(x, y));
  const bool found = nearest.Select();
  if (found) Controls().cmd_ramp.Enabled(Document.SelectedType == TypeRamp);
  selection::ShowProperties();
  if (found && button == kLeftButton && Document.EditorMode == EditMode) {
    drag::Press(nearest.Hit(), x, y);
  }
  if (!found || button != kRightButton) return;
  const std::string name = Controls().File1.FileName();
  selection::ChangeSelected("Paint", [&](auto& piece) { RightClick(piece, shift != 0, name); });
}

}  // namespace picking
