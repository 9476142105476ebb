#include "play/ghost_car.h"

#include <algorithm>
#include <cmath>

#include "level/maths.h"
#include "platform/numbers.h"
#include "render/device/DirectX.h"
#include "render/device/kept_states.h"

namespace {

/// From the car to the camera, which is never turned.
constexpr Vector3 kToCamera = {0, 0.687F, -0.727F};
/// Cosine of faces that it sees from behind even in the corners of its view.
constexpr double kTurnedAway = -0.6;
constexpr ColourValue kFacing = {0.80F, 0.95F, 1.0F, 0.74F};
constexpr ColourValue kGrazing = {0.10F, 0.36F, 0.80F, 0.92F};
constexpr uint32_t kFaint = 0x38A8E0FF, kRim = 0xC8081830;

/// The rim is a copy around the car's middle, so much larger, and so far behind it.
constexpr Vector3 kMiddle = {0, 0.4F, -0.4F};
constexpr double kRimSize = 1.22, kRimBehind = 0.2;

/// Like glass: clear where it faces the camera, deep and dense towards its edges, so that it
/// stands out from bright and dark grounds alike.
uint32_t Glass(const Vector3& normal) {
  const double facing = std::abs(d3dx::Dot(normal, kToCamera));
  const double share = std::pow(1 - std::min(1.0, facing), 1.3);
  const auto channel = [share](float from, float to) {
    return static_cast<uint32_t>(std::lround(255 * (from + (double{to} - from) * share)));
  };
  return channel(kFacing.a, kGrazing.a) << 24 | channel(kFacing.r, kGrazing.r) << 16 |
         channel(kFacing.g, kGrazing.g) << 8 | channel(kFacing.b, kGrazing.b);
}

Vector3 PlaceOf(const Vertex& vertex) { return {vertex.x, vertex.y, vertex.z}; }

Vector3 NormalOf(std::span<const Vertex> triangle) {
  Vector3 normal;
  maths::FaceNormal(PlaceOf(triangle[0]), PlaceOf(triangle[1]), PlaceOf(triangle[2]), normal);
  return normal;
}

Vertex Coloured(const Vector3& at, uint32_t colour) { return {at.x, at.y, at.z, colour, 0, 0, 0}; }

Vector3 OnRim(const Vector3& at) {
  const auto moved = [](double from, double middle, double toCamera) {
    return ToSingle(middle + (from - middle) * kRimSize - toCamera * kRimBehind);
  };
  return {moved(at.x, kMiddle.x, kToCamera.x), moved(at.y, kMiddle.y, kToCamera.y),
          moved(at.z, kMiddle.z, kToCamera.z)};
}

/// Those that the camera may see anywhere in its view.
std::vector<Vertex> TrianglesOf(const d3dx::MeshObject& model) {
  std::vector<Vertex> all;
  for (int32_t subset = 0; subset < model.MaterialCount(); ++subset) {
    const std::span<const Vertex> vertices = model.Triangles(subset);
    for (size_t i = 0; i + 2 < vertices.size(); i += 3) {
      const auto triangle = vertices.subspan(i, 3);
      if (d3dx::Dot(NormalOf(triangle), kToCamera) > kTurnedAway)
        all.insert(all.end(), triangle.begin(), triangle.end());
    }
  }
  return all;
}

}  // namespace

GhostCar::GhostCar(const d3dx::MeshObject& model) {
  const std::vector<Vertex> car = TrianglesOf(model);
  if (car.empty()) return;
  std::vector<Vertex> layers(3 * car.size());
  const auto layer = [&](Layer which) { return which * car.size(); };
  for (size_t i = 0; i < car.size(); ++i) {
    const Vector3 normal = NormalOf(std::span(car).subspan(i - i % 3, 3));
    const Vector3 place = PlaceOf(car[i]);
    layers[layer(Faint) + i] = Coloured(place, kFaint);
    layers[layer(Rim) + i] = Coloured(OnRim(place), kRim);
    layers[layer(Body) + i] = Coloured(place, Glass(normal));
  }
  shape_ = std::make_shared<VertexBufferObject>(std::span<const Vertex>(layers));
  triangles_ = static_cast<uint32_t>(car.size() / 3);
}

void GhostCar::DrawLayer(Device& device, Layer layer) const {
  device.DrawPrimitive(Primitive::TriangleList, layer * 3 * triangles_, triangles_);
}

void GhostCar::Draw(const Vector3& at) const {
  if (!shape_) return;
  Device& device = *DirectX::D3DDevice;
  const KeptStates kept(device);
  Matrix4 place;
  maths::MakeTranslationMatrix(place, at);
  device.SetTransform(Transform::World, place);
  device.SetVertexFormat(VertexFormat::World);
  device.SetTexture(nullptr);
  device.SetStreamSource(shape_, sizeof(Vertex));
  const auto blend = [&device](Blend source, Blend destination) {
    device.SetBlend(BlendState::Source, source);
    device.SetBlend(BlendState::Destination, destination);
  };
  device.SetRenderState(RenderState::AlphaBlend, true);
  device.SetRenderState(RenderState::DepthTest, false);
  device.SetRenderState(RenderState::DepthWrite, false);
  blend(Blend::SourceAlpha, Blend::InverseSourceAlpha);
  DrawLayer(device, Faint);
  // Depth alone, so that only the nearest faces show, not the inside, and the rim around them.
  device.SetRenderState(RenderState::DepthTest, true);
  device.SetRenderState(RenderState::DepthWrite, true);
  blend(Blend::Zero, Blend::One);
  DrawLayer(device, Body);
  blend(Blend::SourceAlpha, Blend::InverseSourceAlpha);
  DrawLayer(device, Rim);
  device.SetRenderState(RenderState::DepthWrite, false);
  DrawLayer(device, Body);
}
