#include "level/maths.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>

#include "level/projected_quad.h"
#include "platform/d3dx_maths.h"
#include "platform/numbers.h"
#include "render/device/DirectX.h"

namespace maths {
namespace {

int Sign(double value) { return (value > 0) - (value < 0); }

double PlaneDot(const CollisionPlane& plane, const Vector3& v, double w) {
  return double{plane.a} * v.x + double{plane.b} * v.y + double{plane.c} * v.z + plane.d * w;
}

}  // namespace

float Distance(const Vector3& a, const Vector3& b) {
  const double x = double{b.x} - a.x, y = double{b.y} - a.y, z = double{b.z} - a.z;
  return ToSingle(std::sqrt(x * x + y * y + z * z));
}

void GetPickRay(float x, float y, float fov, int32_t width, int32_t height, Vector3& nearPoint,
                Vector3& farPoint, float nearDist, float farDist) {
  const int32_t hw = ToLong(width / 2.0);
  const int32_t hh = ToLong(height / 2.0);
  if (hw == 0 || hh == 0) throw std::overflow_error("Division by zero");
  const double t = std::tan(double{fov} / 2);
  const float dx = ToSingle((double{x} / hw - 1) * t);
  const float dy = ToSingle((1 - double{y} / hh) * t);
  nearPoint = {ToSingle(double{dx} * nearDist), ToSingle(double{dy} * nearDist), nearDist};
  farPoint = {ToSingle(double{dx} * farDist), ToSingle(double{dy} * farDist), farDist};

  const Matrix4 inverse = d3dx::Inverse(DirectX::D3DDevice->GetTransform(Transform::View));
  TransformCoord(nearPoint, Vector3(nearPoint), inverse);
  TransformCoord(farPoint, Vector3(farPoint), inverse);
}

bool IntersectRayPlane(const CollisionPlane& plane, const Vector3& start, const Vector3& dir,
                       Vector3& hit) {
  const double s = PlaneDot(plane, dir, 0);
  if (s == 0) return false;
  const double t = -PlaneDot(plane, start, 1) / s;
  hit = {ToSingle(start.x + t * dir.x), ToSingle(start.y + t * dir.y),
         ToSingle(start.z + t * dir.z)};
  if (std::abs(hit.x) < 0.001) hit.x = 0;

  const Vector3 end{ToSingle(double{start.x} + dir.x), ToSingle(double{start.y} + dir.y),
                    ToSingle(double{start.z} + dir.z)};
  const double s1 = PlaneDot(plane, d3dx::Subtract(start, hit), 0);
  const double s2 = PlaneDot(plane, d3dx::Subtract(end, hit), 0);
  return Sign(s1) != Sign(s2) || (s1 == 0 && s2 == 0);
}

void PlaneFromPoints(CollisionPlane& plane, const Vector3& p1, const Vector3& p2,
                     const Vector3& p3) {
  Vector3 n;
  FaceNormal(p1, p2, p3, n);
  // 0 - x rather than -x: a plane through the origin has d = 0, not -0.
  plane = {n.x, n.y, n.z, ToSingle(0.0 - d3dx::Dot(n, p1))};
}

void FaceNormal(const Vector3& p1, const Vector3& p2, const Vector3& p3, Vector3& n) {
  n = d3dx::Normalize(d3dx::Cross(d3dx::Subtract(p2, p1), d3dx::Subtract(p3, p1)));
}

void TransformCoord(Vector3& r, const Vector3& v, const Matrix4& m) {
  std::array<double, 4> row{};
  for (size_t i = 0; i < 4; ++i) {
    row[i] =
        double{v.x} * m.m[0][i] + double{v.y} * m.m[1][i] + double{v.z} * m.m[2][i] + m.m[3][i];
  }
  const double w = row[3];
  if (std::abs(w) < 0.001) return;
  r = {ToSingle(row[0] / w), ToSingle(row[1] / w), ToSingle(row[2] / w)};
}

void MakeTranslationMatrix(Matrix4& m, const Vector3& v) {
  m = d3dx::Identity();
  m.m[3] = {v.x, v.y, v.z, 1};
}

int32_t FloatToLong(float f) { return std::bit_cast<int32_t>(f); }

bool PointInQuad(const Vector3& c1, const Vector3& c2, const Vector3& c3, const Vector3& c4,
                 const Vector3& p) {
  return ProjectedQuad({c1, c2, c3, c4}).SideOfEdges(p) == 1;
}

bool PointInQuadEitherWay(const Vector3& c1, const Vector3& c2, const Vector3& c3,
                          const Vector3& c4, const Vector3& p) {
  return ProjectedQuad({c1, c2, c3, c4}).SideOfEdges(p) != 0;
}

}  // namespace maths
