// Matrix and vector helpers of the utility library. Row vectors, left-handed. Sums are taken in
// double and stored as Singles.
#pragma once

#include "platform/values.h"

namespace d3dx {

Matrix4 Identity();
/// A × B: applies A first.
Matrix4 Multiply(const Matrix4& a, const Matrix4& b);
/// Throws PlatformError for a singular matrix.
Matrix4 Inverse(const Matrix4& m);
Matrix4 Scaling(float x, float y, float z);
/// Angle in radians.
Matrix4 RotationY(float angle);
Matrix4 LookAtLH(const Vector3& eye, const Vector3& target, const Vector3& up);
/// Vertical field of view in radians; depth runs from 0 at the near plane to 1 at the far plane.
Matrix4 PerspectiveFovLH(float fieldOfView, float aspect, float nearPlane, float farPlane);

Vector3 Subtract(const Vector3& a, const Vector3& b);
Vector3 Cross(const Vector3& a, const Vector3& b);
/// A zero vector stays zero.
Vector3 Normalize(const Vector3& v);
double Dot(const Vector3& a, const Vector3& b);

}  // namespace d3dx
