// The shader program: one text, for triangles and for points.
#pragma once

#include "platform/gl/linked_program.h"
#include "platform/gl/matrices.h"

namespace gl {

/// What a program draws.
enum class Shape { Triangles, Points };

/// Side of a point in device pixels: base / sqrt(a + b·D + c·D²), D the distance from the eye.
struct PointSizing {
  float base = 1, a = 1, b = 0, c = 0;
};

class Program {
 public:
  /// Throws PlatformError.
  explicit Program(Shape shape);

  void Use() const { program_.Use(); }
  /// The setters need the program to be in use.
  void ToClip(const UniformMatrix& matrix) const;
  /// Points only: world to eye.
  void ToEye(const UniformMatrix& matrix) const;
  /// Points only. `sprites`: the texture covers each point.
  void Points(const PointSizing& sizing, bool sprites) const;

 private:
  LinkedProgram program_;
  GLint toClip_, toEye_, sizing_, sprites_;
};

}  // namespace gl
