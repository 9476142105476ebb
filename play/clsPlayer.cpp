#include "play/clsPlayer.h"

#include <cmath>
#include <stdexcept>

#include "platform/clock.h"
#include "platform/numbers.h"

namespace {

constexpr Vector3 kStart = {0, 3.5F, 1};
constexpr double kTopSpeed = 0.6;
constexpr double kAcceleration = 0.02;
constexpr float kBrakes = 0.04F, kBrakesOnIce = 0.01F;
constexpr float kNoSpin = 720;
constexpr float kEdge = 0.8F;  ///< of the collision box
constexpr int32_t kExplosionLife = 5000;

}  // namespace

void clsPlayer::HorizontalVelocity(float x) {
  if (x >= -1 && x <= 1) velocity_.x = x;
}

void clsPlayer::accelerate() {
  if (velocity_.z < kTopSpeed) velocity_.z = ToSingle(velocity_.z + kAcceleration);
}

void clsPlayer::deccelerate() {
  velocity_.z = ToSingle(double{velocity_.z} - Deceleration_);
  if (velocity_.z < 0) velocity_.z = 0;
}

void clsPlayer::SetPlayerOnIce() {
  Deceleration_ = kBrakesOnIce;
  OnIce_ = true;
}

void clsPlayer::setplayernotonice() {
  Deceleration_ = kBrakes;
  OnIce_ = false;
}

void clsPlayer::SetBouncePad() {
  Bouncing_ = true;
  SpinAngle_ = 0;
}

void clsPlayer::explode() {
  ExplodeStatus_ = true;
  Particle& sprite = ExplosionParticle_;
  sprite = {};
  sprite.Position = {position_.x, ToSingle(position_.y + 1.0), ToSingle(position_.z - 0.5)};
  sprite.StartColour = sprite.Colour = {1, 1, 1, 1};
  sprite.EndColour = {1, 1, 1, 0};
  sprite.Life = kExplosionLife;
  sprite.StartTime = ticks::Count();
  SpriteVertex_.x = sprite.Position.x;
  SpriteVertex_.y = sprite.Position.y;
  SpriteVertex_.z = sprite.Position.z;
  SpriteVertex_.colour = PackColour(sprite.Colour);
}

void clsPlayer::resetPLayer() {
  position_ = kStart;
  velocity_ = {};
  Deceleration_ = kBrakes;
  ExplodeStatus_ = false;
  ExplosionFrame_ = 1;
  DeathStatus_ = false;
  SpinAngle_ = kNoSpin;
  Bouncing_ = false;
  SetCollisionPoints();
}

void clsPlayer::SetCollisionPoints() {
  size_t corner = 0;
  for (const float z : {0.0F, -kEdge}) {
    for (const float y : {kEdge, 0.0F}) {
      for (const float x : {-kEdge / 2, kEdge / 2}) CollisionPoints_[corner++] = {x, y, z};
    }
  }
}

Vector4 clsPlayer::GetCollisionPoint(int32_t i) const {
  if (i < 1 || i > 8) throw std::out_of_range("Subscript out of range");
  const Vector3& offset = CollisionPoints_[static_cast<size_t>(i - 1)];
  return {ToSingle(double{position_.x} + offset.x), ToSingle(double{position_.y} + offset.y),
          ToSingle(double{position_.z} + offset.z), 0};
}

Vector4 clsPlayer::CalculateCollisionBoxCentre() const {
  return {position_.x, ToSingle(position_.y + 0.4), ToSingle(position_.z - 0.4), 1};
}

float clsPlayer::CalculateEffectiveRadius(const Vector3& n) {
  BoxAxes_ = {{{0, kEdge, 0}, {kEdge, 0, 0}, {0, 0, kEdge}}};
  double extent = 0;
  for (const Vector3& axis : BoxAxes_) extent += std::abs(d3dx::Dot(n, axis));
  return ToSingle(0.5 * extent);
}
