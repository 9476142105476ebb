// Executors that draw recorded frames with OpenGL 3.3 core into a target of their own.
#pragma once

#include <memory>

#include "platform/commands.h"
#include "platform/image.h"

namespace gl {

/// Draws into its own multisampled target; the same code runs in a window and headless. Every call
/// needs the OpenGL context of its creation to be current.
class PictureExecutor : public Executor {
 public:
  /// The last presented frame, top row first, opaque. It stays until the next one is read.
  virtual const Image& ReadPicture() = 0;
  /// Counts the frames that were drawn: while it stays, so does the picture.
  uint64_t FramesDrawn() const { return framesDrawn_; }

 protected:
  uint64_t framesDrawn_ = 0;
};

/// Batched: what users get. Plain: one draw call per recorded draw, the oracle for the other.
enum class Scheme { Batched, Plain };

struct TargetSettings {
  int width = 0, height = 0;  ///< the viewport in pixels at 96 dots per inch
  int samples = 1;            ///< 1: no multisampling
  double scale = 1.0;         ///< device pixels per viewport pixel
};

/// Throws PlatformError when OpenGL refuses.
std::unique_ptr<PictureExecutor> CreateExecutor(Scheme scheme, const TargetSettings& settings);

/// Whether the current context can draw with so many samples.
bool SupportsSamples(int samples);

}  // namespace gl
