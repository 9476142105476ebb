// The car's drop shadow: four pieces of a soft dark picture, each on the surface below one corner
// of the car.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "platform/resources.h"

class clsShadow {
 public:
  /// Builds the pieces and loads their picture. Throws PlatformError.
  void create();
  /// Finds the ground below the car's corners and draws a piece on each; a piece with nothing below
  /// it is not drawn. `position` is the car's reference point, the middle of the front edge of its
  /// underside; `velocity` its step per frame.
  void draw(const Vector3& position, const Vector4& velocity);

  const std::array<Vertex, 24>& ShadowVertices() const { return ShadowVertices_; }

 private:
  /// A point on a surface and how the surface rises from there, per unit of x and of z.
  struct Ground {
    Vector3 point;
    float riseX = 0, riseZ = 0;
  };
  /// The objects whose footprint the car is about to be in.
  struct Nearby {
    std::vector<size_t> blocks, platforms, ramps;
  };

  static Nearby FindNearby(const Vector3& position, const Vector4& velocity);
  static std::optional<Ground> FindShadowGround(const Vector3& point, const Nearby& nearby);
  void LayPiece(size_t piece, const Ground& ground, float forwardStep);

  std::array<Vertex, 24> ShadowVertices_{};  ///< four pieces of two triangles
  VertexBufferPtr ShadowBuffer_;
  TexturePtr ShadowTexture_;
  Vector3 ProbePoint_;
  std::array<Vector3, 4> PieceOffsets_{};
};

/// The one shadow; a test makes a fresh one by assignment.
inline clsShadow Shadow;
