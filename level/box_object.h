// What the block and the moving platform share: sizes, texture stretch, faces, kind code, planes.
#pragma once

#include <cstdint>
#include <string>

#include "level/box.h"

class BoxObject {
 public:
  float scaleX() const { return size_.x; }
  float scaleY() const { return size_.y; }
  float scaleZ() const { return size_.z; }
  /// Sizes in world units; a value of 0 or less is ignored.
  void scaleX(float value);
  void scaleY(float value);
  void scaleZ(float value);

  /// Texture stretch: 0 one repeat per world unit, n the texture fits n times across the face.
  /// The setters store only; the picture follows at the next size change or AlignTexureCoords.
  uint8_t ScaleTextureSide() const { return ScaleTextureSide_; }
  void ScaleTextureSide(uint8_t value) { ScaleTextureSide_ = value; }
  uint8_t ScaleTextureTop() const { return ScaleTextureTop_; }
  void ScaleTextureTop(uint8_t value) { ScaleTextureTop_ = value; }
  uint8_t TextAlignSide() const { return ScaleTextureSide_; }
  uint8_t TextAlignTop() const { return ScaleTextureTop_; }
  uint8_t TextureScaleAlignside() const { return ScaleTextureSide_; }
  uint8_t TextureScaleAlignTop() const { return ScaleTextureTop_; }
  /// Applies a stretch to the side faces (Side = 1) or to the top face (any other Side). Throws
  /// std::overflow_error, after the picture has changed, when value is no Byte.
  void AlignTexureCoords(int16_t Side, int16_t value);

  uint8_t changeactioncode() const { return changeactioncode_; }
  void changeactioncode(uint8_t Code) { changeactioncode_ = Code; }

  const std::string& GetTextureA() const { return FaceTextureNames_[0]; }
  const std::string& GetTextureB() const { return FaceTextureNames_[1]; }
  const std::string& GetTextureC() const { return FaceTextureNames_[2]; }
  const std::string& GetTextureD() const { return FaceTextureNames_[3]; }

  /// The selection mark; UnSelectBlock gives the flat colours of a new object.
  void SelectBlock();
  void UnSelectBlock();

  /// planenumber 1 to 5; the first two throw std::out_of_range otherwise.
  const CollisionPlane& GetCollisionPlane(int16_t planenumber) const;
  Vector3 GetPlaneNormal(int16_t planenumber) const;
  void GetCollisionPlaneBounds(int16_t planenumber, Vector3& greatest, Vector3& smallest) const;
  box::Corners GetFaceCorners(int16_t planenumber) const;
  /// The planes of the box as it is drawn now; those above may lag behind a move or a new size.
  std::array<CollisionPlane, 5> DrawnPlanes() const { return box::Planes(position_, size_); }

  const box::Vertices& GeometryVertices() const { return Vertices_; }

 protected:
  /// Where the two kinds of box differ.
  struct Kind {
    std::array<uint32_t, 2> resizedSides;  ///< at heights 0 and 1, after a change of x or y size
    std::array<uint32_t, 2> resizedSidesDepth;  ///< the same after a change of z size
    bool planesFollowBuffer;                    ///< a new vertex buffer recomputes the planes
  };
  explicit BoxObject(const Kind& kind) : kind_(&kind) {}

  void StartGeometry();
  void RefreshVertexBuffer();
  void CalculateCollisionPlanes();
  void DrawBox();
  /// Loads a face's texture; returns the face's index, −1 (nothing done) for another letter.
  int LoadTexture(const std::string& Name, const std::string& face, const std::string& TextureDir);

  Vector3 position_;  ///< smallest corner
  Vector3 size_;
  std::array<std::string, 4> FaceTextureNames_;
  std::array<TexturePtr, 4> Textures_;

 private:
  void Resize(box::Axis axis, float& size, float value);

  const Kind* kind_;
  box::Vertices Vertices_{};
  Matrix4 WorldMatrix_, ScaleMatrix_;
  uint8_t ScaleTextureSide_ = 0, ScaleTextureTop_ = 0;
  uint8_t changeactioncode_ = 0;
  std::array<CollisionPlane, 5> Planes_{};
  VertexBufferPtr VertexBuffer_;
};
