// The car of the game: its motion, its picture, its explosion.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/d3dx.h"
#include "play/car.h"
#include "play/ghost_car.h"
#include "render/device/clsParticles.h"

class clsPlayer {
 public:
  // The reference point: the middle of the front edge of the box's underside.
  float Posx() const { return car_.position.x; }
  void Posx(float x) { car_.position.x = x; }
  float PosY() const { return car_.position.y; }
  void PosY(float y) { car_.position.y = y; }
  float Posz() const { return car_.position.z; }
  void Posz(float z) { car_.position.z = z; }
  float ForwardVelocity() const { return car_.velocity.z; }
  void ForwardVelocity(float z) { car_.velocity.z = z; }
  float verticalvelocity() const { return car_.velocity.y; }
  void verticalvelocity(float y) { car_.velocity.y = y; }
  float HorizontalVelocity() const { return car_.velocity.x; }
  /// Only −1 to 1 is stored.
  void HorizontalVelocity(float x) { car_.SteerTo(x); }
  /// The run is over: the track must be reset.
  bool DeathStatus() const { return car_.Dead; }
  void DeathStatus(bool b) { car_.Dead = b; }

  void accelerate() { car_.Accelerate(); }
  void deccelerate() { car_.Brake(); }
  void Moveleft() { car_.SteerTo(-Car::kSideways); }
  void MoveRight() { car_.SteerTo(Car::kSideways); }
  void SetPlayerOnIce() { car_.PutOnIce(); }
  void setplayernotonice() { car_.TakeOffIce(); }
  bool ISPlayerOnAnIceBlock() const { return car_.OnIce; }
  /// Starts the spin of a jump pad: two full turns.
  void SetBouncePad();
  /// Starts the explosion at the car's place; one that is running goes on.
  void explode();
  bool getexplodeStatus() const { return car_.Exploding; }
  /// Back to the start of the track, at rest.
  void resetPLayer();
  /// The numbers behind the picture.
  Car& Motion() { return car_; }

  /// Loads model, skins and explosion pictures, then resets. Throws PlatformError.
  void load(const std::string& modelFile);
  /// Moves the car by one step, draws it, moves the camera along and draws the shadow; while it
  /// explodes, shows the explosion and in the end sets DeathStatus.
  void draw();
  /// Draws a translucent picture of the car with its reference point at a place, and nothing else:
  /// the car and the device's states stay as they are.
  void DrawGhost(const Vector3& at) const;

  Vector3 GetPosition() const { return car_.position; }
  Vector4 GetVelocity() const { return {car_.velocity.x, car_.velocity.y, car_.velocity.z, 0}; }
  /// Corner i (1 to 8) of the collision box; throws std::out_of_range otherwise.
  Vector4 GetCollisionPoint(int32_t i) const;
  Vector4 CalculateCollisionBoxCentre() const { return car_.Centre(); }
  /// Half the extent of the collision box along the unit vector n.
  static float CalculateEffectiveRadius(const Vector3& n) { return Car::EffectiveRadius(n); }

  int32_t ExplosionFrame() const { return car_.ExplosionFrame; }

 private:
  void SetCollisionPoints();
  // clsPlayer_draw.cpp
  void LoadExplosion();
  void PlaceCar();
  void TurnCar();
  void DrawBody() const;
  void FollowWithCamera() const;
  void DrawExplosion();

  Car car_;
  bool Bouncing_ = false;
  float SpinAngle_ = 0;  ///< degrees
  std::array<Vector3, 8> CollisionPoints_{};
  d3dx::MeshPtr Mesh_;
  GhostCar Ghost_;
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
