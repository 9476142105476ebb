// A collectable star: a small model that spins about the vertical axis until it is collected.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "level/collision_plane.h"
#include "level/extent.h"
#include "platform/d3dx.h"

class clsStar {
 public:
  using Corners = std::array<Vector3, 4>;
  static constexpr int kPlaneCount = 4;

  /// Loads model and skins and shows the star. Throws PlatformError.
  void load(const std::string& modelFile);

  // Whole numbers, in world units.
  int32_t Xpos() const;
  void Xpos(int32_t NewVal);
  int32_t Ypos() const;
  /// Only 0 or more is stored.
  void Ypos(int32_t NewVal);
  int32_t Zpos() const;
  /// Only 0 or more is stored.
  void Zpos(int32_t NewVal);

  /// Drawn and collectable.
  bool visible() const { return visible_; }
  void visible(bool value) { visible_ = value; }
  /// The star has been collected.
  void GetStar() { visible_ = false; }

  /// Each swaps the first skin. Throws PlatformError.
  void selectstar();
  void unSelectStar();

  /// Turns the star by 5 degrees and draws it; nothing while it is not visible.
  void draw();
  /// Degrees, 1 to 360 once drawn.
  int32_t SpinAngle() const { return SpinAngle_; }

  /// Planes 1 to 4 (left, right, top, front) of the unit box at the position.
  CollisionPlane GetCollisionPlanes(int16_t planenumber) const;
  std::array<CollisionPlane, 5> DrawnPlanes() const;
  /// The box around model, planes and the windows below.
  Extent Drawn() const;
  /// The window of each plane inside which a click picks the star.
  Corners GetFaceCorners(int16_t planenumber) const;

 private:
  /// Model and skins; stars that look alike share them.
  struct Look {
    d3dx::MeshPtr Mesh;
    std::vector<Material> Materials;
    std::vector<TexturePtr> SkinTextures;
    Extent reach;  ///< around the model however it is turned, from the star's place
  };

  void Skin(const char* name);
  void Spin();

  Vector3 position_;
  int32_t SpinAngle_ = 0;
  bool visible_ = false;
  std::shared_ptr<const Look> look_;
};
