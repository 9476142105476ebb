#include "editor/ribbon/ribbon.h"

#include "editor/ribbon/path_picking.h"
#include "platform/numbers.h"
#include "render/device/DirectX.h"
#include "render/device/kept_states.h"

namespace ribbon {
namespace {

constexpr double kPickReach = 7;  ///< pixels
/// The share of its distance by which everything comes nearer to the eye. It stays where it is in
/// the picture, but lies above the ground even where the depth buffer is coarse.
constexpr double kPull = 0.003;

/// Shrinks the world towards the eye.
Matrix4 PullToEye(const Matrix4& view) {
  Matrix4 world;
  for (size_t axis = 0; axis < 3; ++axis) {
    double eye = 0;
    for (size_t k = 0; k < 3; ++k) eye -= double{view.m[3][k]} * view.m[axis][k];
    world.m[axis][axis] = ToSingle(1 - kPull);
    world.m[3][axis] = ToSingle(eye * kPull);
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
  const Matrix4 world = PullToEye(device.GetTransform(Transform::View));
  oldRest_.FindSeen(device, world);
  path_.FindSeen(device, world);

  const KeptStates kept(device);
  device.SetTransform(Transform::World, world);
  device.SetVertexFormat(VertexFormat::World);
  device.SetTexture(nullptr);
  device.SetRenderState(RenderState::AlphaBlend, true);
  device.SetBlend(BlendState::Source, Blend::SourceAlpha);
  device.SetBlend(BlendState::Destination, Blend::InverseSourceAlpha);
  device.SetRenderState(RenderState::DepthWrite, false);
  // What pieces hide is faint, not gone.
  device.SetRenderState(RenderState::DepthTest, false);
  oldRest_.Draw(device, Part::FaintStrip);
  path_.Draw(device, Part::FaintStrip);
  path_.Draw(device, Part::FaintMarks);
  device.SetRenderState(RenderState::DepthTest, true);
  oldRest_.Draw(device, Part::Strip);
  path_.Draw(device, Part::Strip);
  path_.Draw(device, Part::Marks);
}

std::optional<size_t> Ribbon::PointAt(float x, float y) const {
  return shown_ ? PointNear(path_.Points(), x, y, kPickReach) : std::nullopt;
}

}  // namespace ribbon
