// A wedge: a box cut diagonally so that its top rises by its height over its length.
#pragma once

#include <cstdint>
#include <string>

#include "level/ramp_tables.h"
#include "platform/resources.h"

class clsRamp {
 public:
  /// Sizes 1, 1, 1 at this smallest corner; the rotation stays as it was. Loads no textures.
  void create(float CoordX, float CoordY, float CoordZ);

  // Whole numbers, in world units.
  int32_t Xpos() const;
  void Xpos(int32_t NewVal);
  int32_t Ypos() const;
  /// Only 0 or more is stored.
  void Ypos(int32_t NewVal);
  int32_t Zpos() const;
  /// Only 0 or more is stored.
  void Zpos(int32_t NewVal);
  int16_t scaleX() const;
  void scaleX(int16_t NewValue);
  int16_t scaleY() const;
  void scaleY(int16_t NewValue);
  int16_t scaleZ() const;
  void scaleZ(int16_t NewValue);

  /// Quarter turns, 0 to 3: the slope rises towards +z, +x, −z, −x.
  uint8_t rotateVal() const { return rotateVal_; }
  uint8_t GetRotation() const { return rotateVal_; }
  /// Turns the wedge by a quarter inside its own box.
  void rotate();
  /// Rise along the slope's axis, negative where it rises towards the lower coordinate; 0 for a
  /// ramp without length.
  float GetGradient() const;

  /// Face "A" is the slope, "B" sides and riser; any other letter does nothing. Throws
  /// PlatformError, leaving the face as it was, when the file cannot be loaded.
  void Texture(const std::string& Name, const std::string& face, const std::string& TextureDir);
  const std::string& GetTextureA() const { return FaceTextureNames_[0]; }
  const std::string& GetTextureB() const { return FaceTextureNames_[1]; }

  void SelectRamp();
  void UnSelectramp();
  /// Makes a new vertex buffer of the present vertices.
  void UpdateChanges();
  void draw();

  void CalculateCollisionPlanes();
  /// planenumber 1 to 6; throws std::out_of_range otherwise.
  const CollisionPlane& GetCollisionPlane(int16_t planenumber) const;
  Vector3 GetPlaneNormal(int16_t planenumber) const;
  void GetCollisionPlaneBounds(int16_t planenumber, Vector3& greatest, Vector3& smallest) const;
  ramp::Corners GetFaceCorners(int16_t planenumber) const;
  /// The planes of the wedge as it is drawn now; those above lag behind a move.
  std::array<CollisionPlane, 6> DrawnPlanes() const {
    return ramp::Planes(rotateVal_, position_, size_);
  }

  const ramp::Vertices& GeometryVertices() const { return Vertices_; }

 private:
  void Resize(float& size, int16_t value);

  ramp::Vertices Vertices_{};
  Matrix4 WorldMatrix_, ScaleMatrix_;
  Vector3 position_;
  Vector3 size_;
  std::array<TexturePtr, 2> Textures_;
  std::array<std::string, 2> FaceTextureNames_;
  VertexBufferPtr VertexBuffer_;
  uint8_t rotateVal_ = 0;
  std::array<CollisionPlane, 6> Planes_{};
};
