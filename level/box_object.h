// What the block and the moving platform share: sizes, texture stretch, faces, kind code, planes.
#pragma once

#include <cmath>
#include <cstdint>
#include <string>

#include "level/box.h"
#include "level/extent.h"
#include "level/face_picture.h"
#include "level/indirect.h"

class BoxObject {
 public:
  static constexpr size_t kFaces = 4;  ///< that have a picture

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

  const std::string& GetTextureA() const { return NameOf(look_->pictures[0]); }
  const std::string& GetTextureB() const { return NameOf(look_->pictures[1]); }
  const std::string& GetTextureC() const { return NameOf(look_->pictures[2]); }
  const std::string& GetTextureD() const { return NameOf(look_->pictures[3]); }
  /// A picture that is loaded already, or none; face 0 to 3 stands for "A" to "D".
  const FacePicturePtr& Picture(size_t face) const { return look_->pictures[face]; }
  void Picture(size_t face, const FacePicturePtr& picture) { look_->pictures[face] = picture; }

  /// The selection mark; UnSelectBlock gives the flat colours of a new object.
  void SelectBlock();
  void UnSelectBlock();

  /// planenumber 1 to 5; the first two throw std::out_of_range otherwise.
  CollisionPlane GetCollisionPlane(int16_t planenumber) const;
  Vector3 GetPlaneNormal(int16_t planenumber) const;
  void GetCollisionPlaneBounds(int16_t planenumber, Vector3& greatest, Vector3& smallest) const;
  box::Corners GetFaceCorners(int16_t planenumber) const;
  /// The planes of the box as it is drawn now; those above may lag behind a move or a new size.
  std::array<CollisionPlane, 5> DrawnPlanes() const { return box::Planes(position_, size_); }
  Extent Drawn() const { return {position_, size_}; }

  box::Vertices GeometryVertices() const { return box::MakeVertices(look_->shape); }

 protected:
  /// Where the two kinds of box differ.
  struct Kind {
    std::array<uint32_t, 2> resizedSides;  ///< at heights 0 and 1, after a change of x or y size
    std::array<uint32_t, 2> resizedSidesDepth;  ///< the same after a change of z size
    bool planesFollowBuffer;                    ///< new vertices take the planes along
  };
  explicit BoxObject(const Kind& kind) { look_->kind = &kind; }

  const Vector3& Position() const { return position_; }
  /// The planes stay behind.
  void Place(const Vector3& position) { PlaceAndSize(position, size_); }
  void PlaceAndSize(const Vector3& position, const Vector3& size) {
    LeavePlanes();
    position_ = position;
    size_ = size;
  }
  /// The planes go along.
  void Move(const Vector3& position) {
    position_ = position;
    CalculateCollisionPlanes();
  }
  /// The planes lie where the box is from now on. Throws std::overflow_error when they do not fit.
  void CalculateCollisionPlanes() {
    // Refused at once rather than when somebody meets them.
    if (IsHuge(position_) || IsHuge(size_)) (void)DrawnPlanes();
    planesBehind_ = false;
  }

  void StartGeometry();
  void RefreshVertexBuffer();
  /// Draws the box, as if it stood at `position`, unless the camera cannot see it there.
  void DrawBoxAt(const Vector3& position);
  void DrawBox() { DrawBoxAt(position_); }
  /// Loads a face's texture; returns the face's index, −1 (nothing done) for another letter.
  int LoadTexture(const std::string& Name, const std::string& face, const std::string& TextureDir);

 private:
  /// What only matters for a box that is met or seen.
  struct Look {
    const Kind* kind = nullptr;
    box::Shape shape;
    VertexBufferPtr VertexBuffer;  ///< of this shape, once it has been drawn
    std::array<FacePicturePtr, kFaces> pictures;
    Extent planes;  ///< where they were left behind
  };

  static bool IsHuge(const Vector3& v) {
    constexpr float kHuge = 1e6F;
    return !(std::abs(v.x) < kHuge && std::abs(v.y) < kHuge && std::abs(v.z) < kHuge);
  }
  void LeavePlanes() {
    if (!planesBehind_) look_->planes = Drawn();
    planesBehind_ = true;
  }
  void Resize(box::Axis axis, float Vector3::*size, float value);

  // What every frame reads of every box.
  Vector3 position_;  ///< smallest corner
  Vector3 size_;
  uint8_t ScaleTextureSide_ = 0, ScaleTextureTop_ = 0;
  uint8_t changeactioncode_ = 0;
  bool planesBehind_ = false;
  Indirect<Look> look_;
};
