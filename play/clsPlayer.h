// The car: its place, its velocities, the states that the track can put it in, its picture. Lengths
// in world units, velocities in world units per frame.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/d3dx.h"
#include "render/device/clsParticles.h"

class clsPlayer {
 public:
  // The reference point: the middle of the front edge of the box's underside.
  float Posx() const { return position_.x; }
  void Posx(float x) { position_.x = x; }
  float PosY() const { return position_.y; }
  void PosY(float y) { position_.y = y; }
  float Posz() const { return position_.z; }
  void Posz(float z) { position_.z = z; }
  float ForwardVelocity() const { return velocity_.z; }
  void ForwardVelocity(float z) { velocity_.z = z; }
  float verticalvelocity() const { return velocity_.y; }
  void verticalvelocity(float y) { velocity_.y = y; }
  float HorizontalVelocity() const { return velocity_.x; }
  /// Only −1 to 1 is stored.
  void HorizontalVelocity(float x);
  /// The run is over: the track must be reset.
  bool DeathStatus() const { return DeathStatus_; }
  void DeathStatus(bool b) { DeathStatus_ = b; }

  void accelerate();
  void deccelerate();
  void Moveleft() { HorizontalVelocity(-0.12F); }
  void MoveRight() { HorizontalVelocity(0.12F); }
  void SetPlayerOnIce();
  void setplayernotonice();
  bool ISPlayerOnAnIceBlock() const { return OnIce_; }
  /// Starts the spin of a jump pad: two full turns.
  void SetBouncePad();
  /// Starts the explosion at the car's place; one that is running goes on.
  void explode();
  bool getexplodeStatus() const { return ExplodeStatus_; }
  /// Back to the start of the track, at rest.
  void resetPLayer();

  /// Loads model, skins and explosion pictures, then resets. Throws PlatformError.
  void load(const std::string& modelFile);
  /// Moves the car by one step, draws it, moves the camera along and draws the shadow; while it
  /// explodes, shows the explosion and in the end sets DeathStatus.
  void draw();

  Vector3 GetPosition() const { return position_; }
  Vector4 GetVelocity() const { return {velocity_.x, velocity_.y, velocity_.z, 0}; }
  /// Corner i (1 to 8) of the collision box; throws std::out_of_range otherwise.
  Vector4 GetCollisionPoint(int32_t i) const;
  Vector4 CalculateCollisionBoxCentre() const;
  /// Half the extent of the collision box along the unit vector n.
  float CalculateEffectiveRadius(const Vector3& n);

  int32_t ExplosionFrame() const { return ExplosionFrame_; }

 private:
  void SetCollisionPoints();
  // clsPlayer_draw.cpp
  void LoadExplosion();
  void Advance();
  void PlaceCar();
  void TurnCar();
  void DrawBody() const;
  void FollowWithCamera() const;
  void DrawExplosion();

  Vector3 position_;
  Vector3 velocity_;
  float Deceleration_ = 0;
  bool OnIce_ = false;
  bool Bouncing_ = false;
  float SpinAngle_ = 0;  ///< degrees
  bool ExplodeStatus_ = false;
  bool DeathStatus_ = false;
  int32_t ExplosionFrame_ = 0;
  int32_t LastFrameTick_ = 0;  ///< milliseconds
  std::array<Vector3, 8> CollisionPoints_{};
  std::array<Vector3, 3> BoxAxes_{};
  d3dx::MeshPtr Mesh_;
  int32_t MaterialCount_ = 0;
  std::vector<Material> Materials_;
  std::vector<TexturePtr> MeshTextures_;
  std::array<TexturePtr, 16> ExplosionTextures_;
  Particle ExplosionParticle_;
  PointVertex SpriteVertex_;
  Matrix4 WorldMatrix_, RotationMatrix_, StepMatrix_;
};

/// The one car; a test makes a fresh one by assignment.
inline clsPlayer Player;
