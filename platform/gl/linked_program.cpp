#include "platform/gl/linked_program.h"

#include "platform/error.h"

namespace gl {
namespace {

template <typename GetLog>
std::string LogOf(GetLog getLog, GLuint name) {
  std::array<char, 1024> text{};
  getLog(name, static_cast<GLsizei>(text.size()), nullptr, text.data());
  return text.data();
}

GLuint Compile(GLenum stage, const std::string& defines, const char* text) {
  const std::array<const char*, 3> parts = {"#version 330 core\n", defines.c_str(), text};
  const GLuint shader = glCreateShader(stage);
  glShaderSource(shader, static_cast<GLsizei>(parts.size()), parts.data(), nullptr);
  glCompileShader(shader);
  GLint fine = GL_FALSE;
  glGetShaderiv(shader, GL_COMPILE_STATUS, &fine);
  if (fine == GL_TRUE) return shader;
  const std::string log = LogOf(glGetShaderInfoLog, shader);
  glDeleteShader(shader);
  throw PlatformError("shader: " + log);
}

}  // namespace

LinkedProgram::LinkedProgram(const std::string& defines, const char* vertexText,
                             const char* fragmentText)
    : name_(glCreateProgram()) {
  const GLuint vertex = Compile(GL_VERTEX_SHADER, defines, vertexText);
  const GLuint fragment = Compile(GL_FRAGMENT_SHADER, defines, fragmentText);
  for (const GLuint shader : {vertex, fragment}) {
    glAttachShader(name_, shader);
    glDeleteShader(shader);
  }
  glLinkProgram(name_);
  GLint fine = GL_FALSE;
  glGetProgramiv(name_, GL_LINK_STATUS, &fine);
  if (fine == GL_TRUE) return;
  const std::string log = LogOf(glGetProgramInfoLog, name_);
  glDeleteProgram(name_);
  throw PlatformError("shader program: " + log);
}

}  // namespace gl
