// Four floats at once. The compiler turns them into whatever vector unit the machine has.
#pragma once

#include <cstring>

#include "platform/values.h"

namespace lanes {

using Float4 = float __attribute__((vector_size(16)));

inline Float4 Splat(float value) { return Float4{value, value, value, value}; }

inline Float4 Abs(Float4 v) { return v < 0 ? -v : v; }

/// An affine matrix by rows; the fourth column is taken as (0, 0, 0, 1).
struct Rows {
  explicit Rows(const Matrix4& matrix) { std::memcpy(rows, matrix.m.data(), sizeof(rows)); }
  /// The row (x, y, z, 1) times the matrix.
  Float4 Place(float x, float y, float z) const {
    return Splat(x) * rows[0] + Splat(y) * rows[1] + Splat(z) * rows[2] + rows[3];
  }
  Float4 rows[4];
};

}  // namespace lanes
