// Owners of OpenGL names. The context of their making must be current when they are destroyed.
#pragma once

#include <epoxy/gl.h>

#include <utility>

namespace gl {

/// Owns one name; Kind says how it is made and deleted.
template <typename Kind>
class Object {
 public:
  Object() { Kind::Make(1, &name_); }
  ~Object() {
    if (name_ != 0) Kind::Delete(1, &name_);
  }
  Object(Object&& other) noexcept : name_(std::exchange(other.name_, 0U)) {}
  Object& operator=(Object&& other) noexcept {
    std::swap(name_, other.name_);
    return *this;
  }
  GLuint Name() const { return name_; }

 private:
  GLuint name_ = 0;
};

struct BufferKind {
  static void Make(GLsizei count, GLuint* names) { glGenBuffers(count, names); }
  static void Delete(GLsizei count, const GLuint* names) { glDeleteBuffers(count, names); }
};
struct VertexArrayKind {
  static void Make(GLsizei count, GLuint* names) { glGenVertexArrays(count, names); }
  static void Delete(GLsizei count, const GLuint* names) { glDeleteVertexArrays(count, names); }
};
struct TextureKind {
  static void Make(GLsizei count, GLuint* names) { glGenTextures(count, names); }
  static void Delete(GLsizei count, const GLuint* names) { glDeleteTextures(count, names); }
};
struct SamplerKind {
  static void Make(GLsizei count, GLuint* names) { glGenSamplers(count, names); }
  static void Delete(GLsizei count, const GLuint* names) { glDeleteSamplers(count, names); }
};
struct FramebufferKind {
  static void Make(GLsizei count, GLuint* names) { glGenFramebuffers(count, names); }
  static void Delete(GLsizei count, const GLuint* names) { glDeleteFramebuffers(count, names); }
};
struct RenderbufferKind {
  static void Make(GLsizei count, GLuint* names) { glGenRenderbuffers(count, names); }
  static void Delete(GLsizei count, const GLuint* names) { glDeleteRenderbuffers(count, names); }
};

using BufferName = Object<BufferKind>;
using VertexArrayName = Object<VertexArrayKind>;
using TextureName = Object<TextureKind>;
using SamplerName = Object<SamplerKind>;
using FramebufferName = Object<FramebufferKind>;
using RenderbufferName = Object<RenderbufferKind>;

}  // namespace gl
