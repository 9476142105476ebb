// The picture that an executor draws into.
#pragma once

#include <optional>

#include "platform/gl/picture_executor.h"
#include "platform/gl/resolver.h"

namespace gl {

/// A multisampled colour and 16-bit depth target, and the plain picture it is resolved into.
class Target {
 public:
  /// Throws PlatformError when OpenGL refuses the size or the samples.
  explicit Target(const TargetSettings& settings);

  /// Draws go here from now on.
  void Bind() const;
  /// Keeps the colours drawn so far, sample by sample, for Restore.
  void Keep();
  /// Brings them back. Depth stays as it is.
  void Restore() const;
  /// Resolves and reads the picture: top row first, opaque. It stays until the next call.
  const Image& Read();

  /// Device pixels.
  int Width() const { return width_; }
  int Height() const { return height_; }

 private:
  struct Kept {
    FramebufferName framebuffer;
    TextureName colour;
  };
  void AttachColours(const FramebufferName& framebuffer, const TextureName& storage,
                     int samples) const;
  void AttachDepth();
  void CopyColours(const FramebufferName& from, const FramebufferName& to) const;

  int width_, height_, samples_;
  FramebufferName drawn_, resolved_;
  TextureName colour_, resolvedColour_;
  RenderbufferName depth_;
  Resolver resolver_;
  std::optional<Kept> kept_;
  Image picture_;
};

}  // namespace gl
