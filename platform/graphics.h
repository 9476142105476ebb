// Where devices come from: the root object, the display adapter and the keyboard input system.
#pragma once

#include <functional>
#include <memory>

#include "platform/controls.h"
#include "platform/d3dx.h"
#include "platform/device.h"
#include "platform/keyboard.h"

enum class DisplayFormat : uint8_t { X8R8G8B8 };

struct PresentSettings {
  DisplayFormat backBuffer = DisplayFormat::X8R8G8B8;
  int samples = 1;     ///< 1: no multisampling
  int depthBits = 16;  ///< automatic depth buffer
};

/// Display adapter 0. Every operation throws PlatformError when it fails.
class GraphicsAdapter {
 public:
  virtual ~GraphicsAdapter() = default;
  /// Code kErrorNotAvailable: there is no hardware device.
  virtual void GetDeviceCaps() = 0;
  virtual DisplayFormat GetDisplayMode() = 0;
  virtual bool CheckMultisample(DisplayFormat format, int samples) = 0;
  /// A device that draws into `target`.
  virtual std::unique_ptr<Device> CreateDevice(PictureArea& target,
                                               const PresentSettings& settings) = 0;
};

/// The root object; one per process.
class PlatformRoot {
 public:
  virtual ~PlatformRoot() = default;
  virtual std::unique_ptr<GraphicsAdapter> CreateD3D() = 0;
  virtual std::unique_ptr<d3dx::Library> CreateD3DX() = 0;
  virtual std::unique_ptr<KeyboardInput> CreateDirectInput() = 0;
};

/// Makes the root object; set once by the program's start, or by a test.
inline std::function<std::unique_ptr<PlatformRoot>()> createPlatformRoot;
