#include "platform/d3dx_maths.h"

#include <cmath>
#include <utility>

#include "platform/error.h"
#include "platform/numbers.h"

namespace d3dx {

Matrix4 Identity() { return Scaling(1, 1, 1); }

Matrix4 Multiply(const Matrix4& a, const Matrix4& b) {
  Matrix4 product;
  for (size_t row = 0; row < 4; ++row) {
    for (size_t column = 0; column < 4; ++column) {
      double sum = 0;
      for (size_t k = 0; k < 4; ++k) sum += double{a.m[row][k]} * b.m[k][column];
      product.m[row][column] = ToSingle(sum);
    }
  }
  return product;
}

Matrix4 Inverse(const Matrix4& m) {
  // Gauss-Jordan with row pivoting on [m | identity].
  std::array<std::array<double, 8>, 4> rows{};
  for (size_t r = 0; r < 4; ++r) {
    for (size_t c = 0; c < 4; ++c) rows[r][c] = m.m[r][c];
    rows[r][4 + r] = 1;
  }
  for (size_t c = 0; c < 4; ++c) {
    size_t pivot = c;
    for (size_t r = c + 1; r < 4; ++r) {
      if (std::abs(rows[r][c]) > std::abs(rows[pivot][c])) pivot = r;
    }
    if (rows[pivot][c] == 0) throw PlatformError("matrix has no inverse");
    std::swap(rows[c], rows[pivot]);
    const double scale = rows[c][c];
    for (double& value : rows[c]) value /= scale;
    for (size_t r = 0; r < 4; ++r) {
      if (r == c) continue;
      const double factor = rows[r][c];
      for (size_t k = 0; k < 8; ++k) rows[r][k] -= factor * rows[c][k];
    }
  }
  Matrix4 inverse;
  for (size_t r = 0; r < 4; ++r) {
    for (size_t c = 0; c < 4; ++c) inverse.m[r][c] = ToSingle(rows[r][4 + c]);
  }
  return inverse;
}

Matrix4 Scaling(float x, float y, float z) {
  Matrix4 matrix;
  matrix.m[0][0] = x;
  matrix.m[1][1] = y;
  matrix.m[2][2] = z;
  matrix.m[3][3] = 1;
  return matrix;
}

Matrix4 RotationY(float angle) {
  const double sine = std::sin(double{angle}), cosine = std::cos(double{angle});
  Matrix4 matrix = Identity();
  matrix.m[0][0] = matrix.m[2][2] = ToSingle(cosine);
  matrix.m[0][2] = ToSingle(-sine);
  matrix.m[2][0] = ToSingle(sine);
  return matrix;
}

Matrix4 LookAtLH(const Vector3& eye, const Vector3& target, const Vector3& up) {
  const Vector3 zAxis = Normalize(Subtract(target, eye));
  const Vector3 xAxis = Normalize(Cross(up, zAxis));
  const Vector3 yAxis = Cross(zAxis, xAxis);
  Matrix4 matrix;
  matrix.m[0] = {xAxis.x, yAxis.x, zAxis.x, 0};
  matrix.m[1] = {xAxis.y, yAxis.y, zAxis.y, 0};
  matrix.m[2] = {xAxis.z, yAxis.z, zAxis.z, 0};
  matrix.m[3] = {ToSingle(-Dot(xAxis, eye)), ToSingle(-Dot(yAxis, eye)), ToSingle(-Dot(zAxis, eye)),
                 1};
  return matrix;
}

Matrix4 PerspectiveFovLH(float fieldOfView, float aspect, float nearPlane, float farPlane) {
  const double yScale = 1.0 / std::tan(double{fieldOfView} / 2.0);
  const double depth = double{farPlane} / (double{farPlane} - nearPlane);
  Matrix4 matrix;
  matrix.m[0][0] = ToSingle(yScale / aspect);
  matrix.m[1][1] = ToSingle(yScale);
  matrix.m[2][2] = ToSingle(depth);
  matrix.m[2][3] = 1;
  matrix.m[3][2] = ToSingle(-double{nearPlane} * depth);
  return matrix;
}

Vector3 Subtract(const Vector3& a, const Vector3& b) {
  return {ToSingle(double{a.x} - b.x), ToSingle(double{a.y} - b.y), ToSingle(double{a.z} - b.z)};
}

Vector3 Cross(const Vector3& a, const Vector3& b) {
  return {ToSingle(double{a.y} * b.z - double{a.z} * b.y),
          ToSingle(double{a.z} * b.x - double{a.x} * b.z),
          ToSingle(double{a.x} * b.y - double{a.y} * b.x)};
}

Vector3 Normalize(const Vector3& v) {
  const double length = std::sqrt(Dot(v, v));
  if (length == 0) return {};
  return {ToSingle(v.x / length), ToSingle(v.y / length), ToSingle(v.z / length)};
}

double Dot(const Vector3& a, const Vector3& b) {
  return double{a.x} * b.x + double{a.y} * b.y + double{a.z} * b.z;
}

}  // namespace d3dx
