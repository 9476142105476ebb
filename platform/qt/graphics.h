// Devices that draw with OpenGL off the screen and hand each picture to a picture area's widget.
#pragma once

#include "platform/graphics.h"

namespace qt {

class GraphicsRoot : public PlatformRoot {
 public:
  std::unique_ptr<GraphicsAdapter> CreateD3D() override;
  std::unique_ptr<d3dx::Library> CreateD3DX() override;
  std::unique_ptr<KeyboardInput> CreateDirectInput() override;
};

}  // namespace qt
