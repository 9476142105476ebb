#include "play/clsPlayer.h"

#include <stdexcept>

#include "platform/clock.h"

namespace {

constexpr float kNoSpin = 720;
constexpr int32_t kExplosionLife = 5000;

}  // namespace

void clsPlayer::SetBouncePad() {
  Bouncing_ = true;
  SpinAngle_ = 0;
}

void clsPlayer::explode() {
  car_.Exploding = true;
  Particle& sprite = ExplosionParticle_;
  sprite = {};
  const Vector3& at = car_.position;
  sprite.Position = {at.x, ToSingle(at.y + 1.0), ToSingle(at.z - 0.5)};
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
  car_.Reset();
  SpinAngle_ = kNoSpin;
  Bouncing_ = false;
  SetCollisionPoints();
}

void clsPlayer::SetCollisionPoints() {
  size_t corner = 0;
  for (const float z : {0.0F, -Car::kEdge}) {
    for (const float y : {Car::kEdge, 0.0F}) {
      for (const float x : {-Car::kEdge / 2, Car::kEdge / 2})
        CollisionPoints_[corner++] = {x, y, z};
    }
  }
}

Vector4 clsPlayer::GetCollisionPoint(int32_t i) const {
  if (i < 1 || i > 8) throw std::out_of_range("Subscript out of range");
  const Vector3& offset = CollisionPoints_[static_cast<size_t>(i - 1)];
  return {ToSingle(double{car_.position.x} + offset.x),
          ToSingle(double{car_.position.y} + offset.y),
          ToSingle(double{car_.position.z} + offset.z), 0};
}
