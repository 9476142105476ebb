// The car as a ghost: where it was, or will be.
#pragma once

#include <array>

#include "platform/d3dx.h"

class GhostCar {
 public:
  /// Draws nothing.
  GhostCar() = default;
  /// Takes the model's shape; its skins do not show.
  explicit GhostCar(const d3dx::MeshObject& model);

  /// Records its draws and leaves the device's states as they were. `at` is the model's origin.
  void Draw(const Vector3& at) const;

 private:
  /// The same triangles: faint for what hides them, a dark rim, the body.
  enum Layer : uint8_t { Faint, Rim, Body };
  void DrawLayer(Device& device, Layer layer) const;

  VertexBufferPtr shape_;
  uint32_t triangles_ = 0;  ///< of each layer
};
