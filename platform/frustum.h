// Which things a camera can see.
#pragma once

#include <array>

#include "platform/commands.h"
#include "platform/lanes.h"

/// World to clip space with depth 0..1. Summed in double: two roundings would show in the picture.
Matrix4 WorldToClip(const Camera& camera);

/// The six planes around what a camera sees.
class Frustum {
 public:
  Frustum() = default;
  explicit Frustum(const Camera& camera);

  /// False only when no part of the buffer, placed by `world`, can reach a pixel.
  bool MaySee(const VertexBufferObject& buffer, const Matrix4& world) const;
  /// The same for the box that goes from `corner` by `size`, which may point backwards.
  bool MaySee(const Vector3& corner, const Vector3& size) const {
    using lanes::Float4;
    const Float4 half = Float4{size.x, size.y, size.z, 0} * lanes::Splat(0.5F);
    return MaySee(Float4{corner.x, corner.y, corner.z, 0} + half, lanes::Abs(half));
  }

 private:
  /// Four planes side by side, inside where x·nx + y·ny + z·nz + d >= 0.
  struct FourPlanes {
    lanes::Float4 nx, ny, nz, d;
    lanes::Float4 ax, ay, az, ad;  ///< the same without signs
    bool AnyBehind(lanes::Float4 centre, lanes::Float4 reach) const;
  };
  bool MaySee(lanes::Float4 centre, lanes::Float4 reach) const {
    return !planes_[0].AnyBehind(centre, reach) && !planes_[1].AnyBehind(centre, reach);
  }

  std::array<FourPlanes, 2> planes_{};
};
