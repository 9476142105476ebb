// A compiled and linked shader program.
#pragma once

#include <epoxy/gl.h>

#include <string>

namespace gl {

class LinkedProgram {
 public:
  /// `defines` stands before both texts. Throws PlatformError with the compiler's text.
  LinkedProgram(const std::string& defines, const char* vertexText, const char* fragmentText);
  ~LinkedProgram() { glDeleteProgram(name_); }
  LinkedProgram(const LinkedProgram&) = delete;
  LinkedProgram& operator=(const LinkedProgram&) = delete;

  void Use() const { glUseProgram(name_); }
  GLint Uniform(const char* name) const { return glGetUniformLocation(name_, name); }

 private:
  GLuint name_;
};

}  // namespace gl
