// One frame: the backdrop, the objects in their order, the car, the particles, what is added.
#pragma once

#include <cstddef>
#include <functional>

class clsMovingPlatform;

/// What a frame shows beyond the document as it is.
struct FrameAdditions {
  /// Where a platform is shown on its way; asked for those that may be seen somewhere on it. Empty:
  /// where they are.
  std::function<float(size_t platform, const clsMovingPlatform&)> platformX = {};
  /// Draws over everything else; may be empty.
  std::function<void()> afterPieces = {};
};

/// Draws and presents one frame of the document. Moves what moves by being drawn: falling and
/// bouncing blocks, spinning stars, particles, and in play mode the car with the camera.
void RenderFrame(const FrameAdditions& additions = {});
