// Which objects a camera can see.
#pragma once

#include <array>

#include "platform/gl/lanes.h"
#include "platform/gl/matrices.h"
#include "platform/resources.h"

namespace gl {

/// The six planes around what a camera sees.
class Frustum {
 public:
  Frustum() = default;
  /// From the matrix world to clip space, depth 0..1.
  explicit Frustum(const UniformMatrix& toClip);

  /// False only when no part of the buffer, placed by `world`, can reach a pixel.
  bool MaySee(const VertexBufferObject& buffer, const Matrix4& world) const;

 private:
  /// Four planes side by side, inside where x·nx + y·ny + z·nz + d >= 0.
  struct FourPlanes {
    Float4 nx, ny, nz, d;
    bool AnyBehind(Float4 centre, Float4 reach) const;
  };
  std::array<FourPlanes, 2> planes_{};
};

}  // namespace gl
