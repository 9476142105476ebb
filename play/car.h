// The car as numbers: its state of motion, and the rules of driving that need no track. Lengths in
// world units, velocities in world units per frame, times in milliseconds.
#pragma once

#include <cmath>
#include <cstdint>

#include "platform/clock.h"
#include "platform/numbers.h"
#include "platform/values.h"

/// What the driver holds; the bits add up.
enum CarKey : uint8_t { kLeftKey = 1, kRightKey = 2, kUpKey = 4, kDownKey = 8, kJumpKey = 16 };
using CarKeys = uint8_t;

struct Car {
  static constexpr Vector3 kStart = {0, 3.5F, 1};
  static constexpr float kEdge = 0.8F;  ///< of the collision box
  static constexpr float kSideways = 0.12F;
  static constexpr float kBrakes = 0.04F, kBrakesOnIce = 0.01F;
  /// Pictures of the explosion: the first of those that show nothing, and the last.
  static constexpr int32_t kFirstBlankPicture = 15, kLastPicture = 16;

  Vector3 position;  ///< the middle of the front edge of the box's underside
  Vector3 velocity;
  float Deceleration = 0;
  bool OnIce = false;
  bool Exploding = false;
  bool Dead = false;  ///< the run is over: the track must be reset
  int32_t ExplosionFrame = 0;
  int32_t LastFrameTick = 0;  ///< when the explosion's picture changed last

  /// To the start of the track, at rest.
  void Reset() {
    position = kStart;
    velocity = {};
    Deceleration = kBrakes;
    Exploding = Dead = false;
    ExplosionFrame = 1;
  }

  /// Only −1 to 1 is stored.
  void SteerTo(float x) {
    if (x >= -1 && x <= 1) velocity.x = x;
  }
  void Accelerate() {
    constexpr double kTopSpeed = 0.6, kAcceleration = 0.02;
    if (velocity.z < kTopSpeed) velocity.z = ToSingle(velocity.z + kAcceleration);
  }
  void Brake() {
    velocity.z = ToSingle(double{velocity.z} - Deceleration);
    if (velocity.z < 0) velocity.z = 0;
  }
  void PutOnIce() {
    Deceleration = kBrakesOnIce;
    OnIce = true;
  }
  void TakeOffIce() {
    Deceleration = kBrakes;
    OnIce = false;
  }
  void Jump() {
    constexpr float kJump = 0.35F;
    velocity.y = kJump;
  }
  /// What the held keys do to the velocities; a jump needs the ground.
  void Obey(CarKeys keys, bool onGround) {
    if ((keys & (kLeftKey | kRightKey)) == 0 && !OnIce) SteerTo(0);
    if ((keys & kUpKey) != 0) Accelerate();
    if ((keys & kDownKey) != 0) Brake();
    if ((keys & kLeftKey) != 0) SteerTo(-kSideways);
    if ((keys & kRightKey) != 0) SteerTo(kSideways);
    if ((keys & kJumpKey) != 0 && onGround && !Exploding) Jump();
  }

  void PullDown(float gravity) { velocity.y = ToSingle(double{velocity.y} - gravity); }
  bool FellOffTheTrack() const { return position.y < -40.0; }
  void Advance() {
    position = {ToSingle(double{position.x} + velocity.x),
                ToSingle(double{position.y} + velocity.y),
                ToSingle(double{position.z} + velocity.z)};
  }
  /// One frame of the explosion, shown at the given tick; in the end the run is over.
  void AdvanceExplosion(int32_t tick) {
    constexpr uint32_t kMillisecondsPerPicture = 85;
    if (ExplosionFrame == kLastPicture) Dead = true;
    if (ticks::Between(LastFrameTick, tick) <= kMillisecondsPerPicture) return;
    ++ExplosionFrame;
    LastFrameTick = tick;
  }

  /// Of the collision box.
  Vector4 Centre() const {
    return {position.x, ToSingle(position.y + 0.4), ToSingle(position.z - 0.4), 1};
  }
  /// Half the extent of the collision box along the unit vector n.
  static float EffectiveRadius(const Vector3& n) {
    const double edge = kEdge;
    return ToSingle(0.5 * (std::abs(n.y * edge) + std::abs(n.x * edge) + std::abs(n.z * edge)));
  }
};
