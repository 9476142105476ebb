#include "editor/ribbon/ribbon.h"

#include <array>

#include "editor/ribbon/path_picking.h"
#include "platform/numbers.h"
#include "render/device/DirectX.h"
#include "render/device/kept_states.h"

namespace ribbon {
namespace {

constexpr double kPickReach = 7;  ///< pixels
/// The share of their distance by which strips and marks come nearer to the eye. Their place in
/// the picture stays, but strips lie above the ground even where the depth buffer is coarse, and
/// marks do not sink into the wall that the car has met.
constexpr double kPullStrip = 0.003, kPullMark = 0.05;

/// Shrinks the world towards the eye.
Matrix4 PulledToEye(const Matrix4& view, double share) {
  Matrix4 world;
  for (size_t axis = 0; axis < 3; ++axis) {
    double eye = 0;
    for (size_t k = 0; k < 3; ++k) eye -= double{view.m[3][k]} * view.m[axis][k];
    world.m[axis][axis] = ToSingle(1 - share);
    world.m[3][axis] = ToSingle(eye * share);
  }
  world.m[3][3] = 1;
  return world;
}

}  // namespace

void Ribbon::Show(const drive::Path& path, std::span<const drive::PathPoint> oldRest) {
  path_.Follow(path);
  oldRest_.Follow(oldRest);
  shown_ = true;
}

void Ribbon::Hide() {
  path_.Follow({});
  oldRest_.Follow({});
  shown_ = false;
}

void Ribbon::Draw() {
  if (!shown_) return;
  Device& device = *DirectX::D3DDevice;
  const Matrix4& view = device.GetTransform(Transform::View);
  const std::array worlds = {PulledToEye(view, kPullStrip), PulledToEye(view, kPullMark)};
  oldRest_.FindSeen(device, worlds);
  path_.FindSeen(device, worlds);

  const KeptStates kept(device);
  device.SetVertexFormat(VertexFormat::World);
  device.SetTexture(nullptr);
  device.SetRenderState(RenderState::AlphaBlend, true);
  device.SetBlend(BlendState::Source, Blend::SourceAlpha);
  device.SetBlend(BlendState::Destination, Blend::InverseSourceAlpha);
  device.SetRenderState(RenderState::DepthWrite, false);
  // What pieces hide is faint, not gone.
  for (const bool hidden : {true, false}) {
    device.SetRenderState(RenderState::DepthTest, !hidden);
    device.SetTransform(Transform::World, worlds[0]);
    oldRest_.Draw(device, hidden ? Part::FaintStrip : Part::Strip);
    path_.Draw(device, hidden ? Part::FaintStrip : Part::Strip);
    device.SetTransform(Transform::World, worlds[1]);
    path_.Draw(device, hidden ? Part::FaintMarks : Part::Marks);
  }
}

std::optional<size_t> Ribbon::PointAt(float x, float y) const {
  return shown_ ? PointNear(path_.Points(), x, y, kPickReach) : std::nullopt;
}

}  // namespace ribbon
