// The picture that an executor draws into.
#pragma once

#include "platform/gl/objects.h"
#include "platform/gl/picture_executor.h"

namespace gl {

/// A multisampled colour and 16-bit depth target, and the plain picture it is resolved into.
class Target {
 public:
  /// Throws PlatformError when OpenGL refuses the size or the samples.
  explicit Target(const TargetSettings& settings);

  /// Draws go here from now on.
  void Bind() const;
  /// Resolves and reads the picture: top row first, opaque.
  Image Read() const;

  /// Device pixels.
  int Width() const { return width_; }
  int Height() const { return height_; }

 private:
  void Attach(const FramebufferName& framebuffer, GLenum attachment,
              const RenderbufferName& storage, GLenum format, int samples) const;

  int width_, height_;
  FramebufferName drawn_, resolved_;
  RenderbufferName colour_, depth_, resolvedColour_;
};

}  // namespace gl
