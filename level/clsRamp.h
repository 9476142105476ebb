// A wedge: a box cut diagonally so that its top rises by its height over its length.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "level/extent.h"
#include "level/face_picture.h"
#include "level/indirect.h"
#include "level/ramp_tables.h"

class clsRamp {
 public:
  static constexpr size_t kFaces = 2;  ///< that have a picture

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
  float GetGradient() const { return ramp::Gradient(rotateVal_, size_); }

  /// Face "A" is the slope, "B" sides and riser; any other letter does nothing. Throws
  /// PlatformError, leaving the face as it was, when the file cannot be loaded.
  void Texture(const std::string& Name, const std::string& face, const std::string& TextureDir);
  const std::string& GetTextureA() const { return NameOf(look_->pictures[0]); }
  const std::string& GetTextureB() const { return NameOf(look_->pictures[1]); }
  /// A picture that is loaded already, or none; face 0 and 1 stand for "A" and "B".
  const FacePicturePtr& Picture(size_t face) const { return look_->pictures[face]; }
  void Picture(size_t face, const FacePicturePtr& picture) { look_->pictures[face] = picture; }

  void SelectRamp();
  void UnSelectramp();
  /// The next drawing is of the present vertices.
  void UpdateChanges() { look_->VertexBuffer = nullptr; }
  /// Draws the wedge unless the camera cannot see it.
  void draw();

  void CalculateCollisionPlanes();
  /// planenumber 1 to 6; throws std::out_of_range otherwise.
  CollisionPlane GetCollisionPlane(int16_t planenumber) const;
  Vector3 GetPlaneNormal(int16_t planenumber) const;
  void GetCollisionPlaneBounds(int16_t planenumber, Vector3& greatest, Vector3& smallest) const;
  ramp::Corners GetFaceCorners(int16_t planenumber) const;
  /// The planes of the wedge as it is drawn now; those above lag behind a move.
  std::array<CollisionPlane, 6> DrawnPlanes() const {
    return ramp::Planes(rotateVal_, position_, size_);
  }

  Extent Drawn() const { return {position_, size_}; }

  ramp::Vertices GeometryVertices() const { return ramp::MakeVertices(look_->shape); }

 private:
  /// Where the planes were last put.
  struct PlanesPlace {
    uint8_t rotation;
    Extent extent;
  };
  /// What only matters for a ramp that is met or seen.
  struct Look {
    ramp::Shape shape;
    VertexBufferPtr VertexBuffer;  ///< of this shape, once it has been drawn
    std::array<FacePicturePtr, kFaces> pictures;
    std::optional<PlanesPlace> planes;
  };

  void Resize(float& size, int16_t value);
  void MakeWedge(uint8_t rotation);

  // What every frame reads of every ramp.
  Vector3 position_;
  Vector3 size_;
  uint8_t rotateVal_ = 0;
  Indirect<Look> look_;
};
