// Vertices that OpenGL keeps.
#pragma once

#include <span>

#include "platform/gl/vertex_stream.h"

namespace bench {

/// A buffer that is filled once.
class StaticVertices {
 public:
  explicit StaticVertices(std::span<const gl::StreamVertex> vertices) {
    Bind();
    glBindBuffer(GL_ARRAY_BUFFER, buffer_.Name());
    gl::DescribeStreamVertex();
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(vertices.size_bytes()), vertices.data(),
                 GL_STATIC_DRAW);
  }
  void Bind() const { glBindVertexArray(layout_.Name()); }

 private:
  gl::VertexArrayName layout_;
  gl::BufferName buffer_;
};

}  // namespace bench
