#include "render/device/clsParticles.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "platform/clock.h"
#include "platform/numbers.h"
#include "platform/paths.h"
#include "platform/random.h"
#include "render/device/DirectX.h"

namespace {

constexpr int32_t kPointsPerStar = 30;
constexpr float kPointSize = 0.03F;
constexpr double kLowest = -1.0;
constexpr float kOutOfView = -1000;
constexpr uint32_t kMagenta = 0xFFFF00FF;

Particle StarPoint(float x, float y, float z) {
  const auto u = [] { return double{random_numbers::Next()}; };
  Particle point;
  point.Life = ToLong(u() * 5000 + 10000 - 2500);
  point.StartTime = ticks::Count();
  point.Position = {ToSingle(x + 0.2), ToSingle(y + 0.5), ToSingle(z - 0.2)};
  point.Velocity.x = ToSingle(u() * 0.6 - 0.6 / 2);
  point.Velocity.y = ToSingle(u() * 1.2 * 2 - 1.2 / 2);
  const int16_t r = ToInteger(clsParticles::RandomColour());
  const int16_t g = ToInteger(clsParticles::RandomColour());
  const int16_t b = ToInteger(clsParticles::RandomColour());
  point.StartColour = DirectX::MakeColourValue(1, r, g, b);
  point.EndColour = DirectX::MakeColourValue(0, 0, 0, 0);
  point.Colour = point.StartColour;
  return point;
}

ColourValue Blend(const ColourValue& from, const ColourValue& to, double s) {
  const auto mix = [s](float a, float b) { return ToSingle(a + s * (double{b} - a)); };
  return {mix(from.r, to.r), mix(from.g, to.g), mix(from.b, to.b), mix(from.a, to.a)};
}

void Advance(Particle& point, int32_t now) {
  Vector3& position = point.Position;
  position.x = ToSingle(position.x + point.Velocity.x / 5.0);
  position.y = ToSingle(position.y + point.Velocity.y / 5.0);
  // The absolute value: a point never moves downwards.
  point.Velocity.y = ToSingle(std::abs(point.Velocity.y - 0.05 / 500));
  const uint32_t age = ticks::Between(point.StartTime, now);
  point.Colour = Blend(point.StartColour, point.EndColour, static_cast<double>(age) / point.Life);
  if (position.y < kLowest || age >= static_cast<uint32_t>(point.Life)) point.Expired = 1;
}

}  // namespace

uint32_t PackColour(const ColourValue& colour) {
  const auto channel = [](float value) {
    // Star colours go up to 10 and fade below 0: saturate.
    return static_cast<uint32_t>(std::nearbyint(std::clamp(value * 255.0, 0.0, 255.0)));
  };
  return channel(colour.a) << 24 | channel(colour.r) << 16 | channel(colour.g) << 8 |
         channel(colour.b);
}

void clsParticles::create() {
  ParticleTexture_ = DirectX::D3DX->CreateTextureFromFileEx(
      paths::InInstallFolder("\\misc\\starParticle.bmp"),
      {32, 32, TextureObject::Format::Colour16Alpha1, kMagenta});
}

void clsParticles::resetParticles() {
  ParticleCount_ = 0;
  ParticleList_.resize(1);
  ParticleVertices_.resize(1);
}

float clsParticles::RandomColour() {
  random_numbers::Reseed();
  return ToSingle(std::floor(random_numbers::Next() * 100.0 + 1) / 10);
}

void clsParticles::AddStarExplosion(float x, float y, float z) {
  const auto old = static_cast<size_t>(ParticleCount_);
  ParticleCount_ += kPointsPerStar;
  const auto count = static_cast<size_t>(ParticleCount_);
  ParticleList_.resize(count);
  ParticleVertices_.resize(count);
  for (size_t i = old; i < count; ++i) {
    const Particle& point = ParticleList_[i] = StarPoint(x, y, z);
    PointVertex& vertex = ParticleVertices_[i];
    vertex = {point.Position.x,         point.Position.y, point.Position.z,
              PackColour(point.Colour), vertex.tu,        vertex.tv};
  }
}

void clsParticles::UpdateParticles() {
  const int32_t now = ticks::Count();
  bool alive = false;
  for (int32_t i = 0; i < ParticleCount_; ++i) {
    Particle& point = ParticleList_[static_cast<size_t>(i)];
    if (point.Expired == 0) {
      Advance(point, now);
      alive = true;  // in this frame, even if it has just expired
    } else {
      point.Colour = {};
      point.Position.z = kOutOfView;
    }
  }
  if (!alive) {
    ParticleCount_ = 0;
    ParticleList_.assign(2, {});
    ParticleVertices_.assign(2, {});
  }
  for (int32_t i = 0; i < ParticleCount_; ++i) {
    const Particle& point = ParticleList_[static_cast<size_t>(i)];
    PointVertex& vertex = ParticleVertices_[static_cast<size_t>(i)];
    const Vector3 place = DirectX::MakeVector(point.Position.x, point.Position.y, point.Position.z);
    vertex = {place.x, place.y, place.z, PackColour(point.Colour), vertex.tu, vertex.tv};
  }
}

void clsParticles::draw() {
  UpdateParticles();
  if (ParticleCount_ <= 0) return;
  Device& device = *DirectX::D3DDevice;
  device.SetTransform(Transform::World, d3dx::Identity());
  device.SetVertexFormat(VertexFormat::Point);
  device.SetRenderState(RenderState::AlphaBlend, true);
  device.SetRenderState(RenderState::DepthWrite, false);
  device.SetTexture(ParticleTexture_);
  device.SetPointSize(std::bit_cast<int32_t>(kPointSize));
  device.DrawPrimitiveUP(std::span(ParticleVertices_).first(static_cast<size_t>(ParticleCount_)));
  device.SetRenderState(RenderState::DepthWrite, true);
}
