// The matrices that the shaders receive.
#pragma once

#include <array>

#include "platform/frustum.h"

namespace gl {

/// A matrix as a uniform: OpenGL's column-by-column order of a column-vector matrix is a row-vector
/// matrix as it lies in memory.
using UniformMatrix = std::array<float, 16>;

inline UniformMatrix AsUniform(const Matrix4& matrix) {
  UniformMatrix uniform;
  for (size_t i = 0; i < 16; ++i) uniform[i] = matrix.m[i / 4][i % 4];
  return uniform;
}

/// Pixels of a viewport of this size, y downwards, to clip space; depth stays.
inline UniformMatrix ScreenToClip(int width, int height) {
  UniformMatrix matrix{};
  matrix[0] = static_cast<float>(2.0 / width);
  matrix[5] = static_cast<float>(-2.0 / height);
  matrix[10] = matrix[15] = matrix[13] = 1;
  matrix[12] = -1;
  return matrix;
}

}  // namespace gl
