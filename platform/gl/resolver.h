// Turns drawn samples into a picture.
#pragma once

#include "platform/gl/linked_program.h"
#include "platform/gl/objects.h"

namespace gl {

/// Averages the samples of each pixel and leaves the pixels as pictures are stored: top row first,
/// blue first, opaque. Measured against a resolve by the driver and a second pass over what was
/// read: an eighth of an empty frame.
class Resolver {
 public:
  /// samples 1: the colours are in a plain texture. Throws PlatformError.
  explicit Resolver(int samples);

  /// Draws all of `colours` into the bound framebuffer of this size.
  void Draw(const TextureName& colours, int width, int height) const;

 private:
  GLenum kind_;
  LinkedProgram program_;
  GLint height_;
  VertexArrayName noVertices_;
};

}  // namespace gl
