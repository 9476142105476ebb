// A box that slides back and forth along the x axis.
#pragma once

#include "level/box_object.h"
#include "level/platform_motion.h"

class clsMovingPlatform : public BoxObject {
 public:
  /// Directions of travel; any other value does not move.
  enum : uint8_t { Left = PlatformLeg::Left, Right = PlatformLeg::Right };

  clsMovingPlatform() : BoxObject(kKind) {}

  /// Places a new platform at its smallest corner, without sizes; it moves from now on.
  void create(float CoordX, float CoordY, float CoordZ);

  // Current position in world units. Each setter also sets the start of the present leg and the
  // place to return to.
  float Xpos() const { return Position().x; }
  void Xpos(float NewVal);
  float Ypos() const { return Position().y; }
  /// Only above -1 is stored.
  void Ypos(float NewVal);
  float Zpos() const { return Position().z; }
  /// Only above -1 is stored.
  void Zpos(float NewVal);

  float GetInitalXpos() const { return InitialPos_.x; }
  float GetInitalYpos() const { return InitialPos_.y; }
  float GetInitalZpos() const { return InitialPos_.z; }

  /// Speed in hundredths of a world unit per step.
  uint8_t Mspeed() const { return Mspeed_; }
  void Mspeed(uint8_t value) { Mspeed_ = value; }
  /// Current direction; the setter also sets the starting one.
  uint8_t Mdir() const { return Mdir_; }
  void Mdir(uint8_t value) { Mdir_ = InitialDir_ = value; }
  uint8_t GetinitalMDir() const { return InitialDir_; }
  /// Travel in world units.
  uint8_t Mdist() const { return Mdist_; }
  void Mdist(uint8_t value) { Mdist_ = value; }
  /// True: turn round at the end of the travel; false: jump back to the start.
  bool MloopBack() const { return MloopBack_ != 0; }
  void MloopBack(bool value) { MloopBack_ = value ? 255 : 0; }

  /// As a block's; a platform's faces are never animated.
  void Texture(const std::string& Name, const std::string& face, const std::string& TextureDir);
  void draw() { DrawBox(); }
  /// Draws it as if it stood at `x`; it stays where it is.
  void DrawAt(float x);
  /// The box around every place that its travel can take it to.
  Extent Reach() const;

  /// One step of motion.
  void move();
  /// What the next step would add to the position; nothing where it jumps back to the start. Asked
  /// even while it does not move.
  Vector3 GetVelocity() const;
  /// The last step turned the platform round.
  bool GetChangeDir() const { return ChangedDir_; }
  /// Saves the start of the present leg and the direction; StopAnimation restores both.
  void StartAnimation();
  void StopAnimation();
  /// Puts the platform back to its initial position.
  void ResetToOrigin();
  /// Makes the present leg the first one again: from the initial place, in the starting direction.
  void RestartLeg();
  /// Freezes it until the next create.
  void stopMoving() { Moving_ = false; }
  PlatformTravel Travel() const { return {Mspeed_, Mdist_, MloopBack()}; }
  PlatformLeg Leg() const { return {Position().x, StartPos_.x, Mdir_}; }
  /// Puts it on this place of its way, planes and all.
  void Resume(const PlatformLeg& leg);

 private:
  static const Kind kKind;

  /// Sets one coordinate of the place, of the leg's start and of the initial place.
  void Set(float Vector3::*coordinate, float value);
  uint8_t Mspeed_ = 0;
  uint8_t Mdir_ = 0;
  uint8_t Mdist_ = 0;
  uint8_t MloopBack_ = 0;
  Vector3 StartPos_;
  Vector3 InitialPos_;
  uint8_t InitialDir_ = 0;
  uint8_t SavedDir_ = 0;
  bool ChangedDir_ = false;
  bool Moving_ = false;
};
