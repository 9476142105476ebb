#include "platform/gl/vertex_stream.h"

#include <cstddef>

namespace gl {
namespace {

constexpr size_t kCapacity = 1U << 16;

// OpenGL takes offsets into a buffer as pointers.
const void* Offset(size_t bytes) { return reinterpret_cast<const void*>(bytes); }  // NOLINT

}  // namespace

void DescribeStreamVertex() {
  for (GLuint attribute = 0; attribute < 4; ++attribute) glEnableVertexAttribArray(attribute);
  constexpr GLsizei stride = sizeof(StreamVertex);
  glVertexAttribPointer(0, 3, GL_FLOAT, GL_FALSE, stride, Offset(offsetof(StreamVertex, x)));
  glVertexAttribPointer(1, GL_BGRA, GL_UNSIGNED_BYTE, GL_TRUE, stride,
                        Offset(offsetof(StreamVertex, colour)));
  glVertexAttribPointer(2, 2, GL_FLOAT, GL_FALSE, stride, Offset(offsetof(StreamVertex, tu)));
  glVertexAttribIPointer(3, 1, GL_INT, stride, Offset(offsetof(StreamVertex, layer)));
}

VertexStream::VertexStream() {
  Bind();
  DescribeStreamVertex();
}

void VertexStream::Bind() const {
  glBindVertexArray(layout_.Name());
  glBindBuffer(GL_ARRAY_BUFFER, buffer_.Name());
}

void VertexStream::Draw(GLenum mode, std::span<const StreamVertex> vertices) {
  if (next_ + vertices.size() > capacity_) {
    capacity_ = std::max(kCapacity, vertices.size());
    next_ = 0;
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(capacity_ * sizeof(StreamVertex)),
                 nullptr, GL_STREAM_DRAW);
  }
  glBufferSubData(GL_ARRAY_BUFFER, static_cast<GLintptr>(next_ * sizeof(StreamVertex)),
                  static_cast<GLsizeiptr>(vertices.size_bytes()), vertices.data());
  glDrawArrays(mode, static_cast<GLint>(next_), static_cast<GLsizei>(vertices.size()));
  next_ += vertices.size();
}

}  // namespace gl
