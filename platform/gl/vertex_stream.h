// Carries vertices to OpenGL.
#pragma once

#include <span>

#include "platform/gl/objects.h"
#include "platform/gl/stream_vertex.h"

namespace gl {

/// Tells the bound vertex array how to read StreamVertex from the bound array buffer.
void DescribeStreamVertex();

/// A buffer that is filled front to back and handed back to the driver when it is full, so that
/// nothing waits for earlier draws.
class VertexStream {
 public:
  VertexStream();
  void Bind() const;
  /// Draws the vertices; the stream must be bound.
  void Draw(GLenum mode, std::span<const StreamVertex> vertices);

 private:
  VertexArrayName layout_;
  BufferName buffer_;
  size_t capacity_ = 0, next_ = 0;  ///< in vertices
};

}  // namespace gl
