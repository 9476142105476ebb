#include "bench/visible_triangles.h"

#include <algorithm>
#include <array>

namespace bench {
namespace {

struct ClipPoint {
  double x, y, z, w;
};
using Triangle = std::array<ClipPoint, 3>;

ClipPoint ToClip(const gl::StreamVertex& v, const Matrix4& m) {
  const auto along = [&](size_t i) {
    return double{v.x} * m.m[0][i] + double{v.y} * m.m[1][i] + double{v.z} * m.m[2][i] + m.m[3][i];
  };
  return {along(0), along(1), along(2), along(3)};
}

bool BeyondOneSide(const Triangle& t) {
  const auto all = [&t](auto outside) { return std::ranges::all_of(t, outside); };
  return all([](const ClipPoint& p) { return p.x < -p.w; }) ||
         all([](const ClipPoint& p) { return p.x > p.w; }) ||
         all([](const ClipPoint& p) { return p.y < -p.w; }) ||
         all([](const ClipPoint& p) { return p.y > p.w; }) ||
         all([](const ClipPoint& p) { return p.z < 0; }) ||
         all([](const ClipPoint& p) { return p.z > p.w; });
}

/// Clockwise on the screen; also right for triangles that reach behind the eye.
bool FacesCamera(const Triangle& t) {
  const auto& [a, b, c] = t;
  return a.x * (b.y * c.w - c.y * b.w) - b.x * (a.y * c.w - c.y * a.w) +
             c.x * (a.y * b.w - b.y * a.w) <
         0;
}

}  // namespace

size_t KeepVisible(std::span<gl::StreamVertex> triangles, const Matrix4& toClip) {
  size_t kept = 0;
  for (size_t i = 0; i + 2 < triangles.size(); i += 3) {
    Triangle triangle{};
    for (size_t corner = 0; corner < 3; ++corner) {
      triangle[corner] = ToClip(triangles[i + corner], toClip);
    }
    if (BeyondOneSide(triangle) || !FacesCamera(triangle)) continue;
    for (size_t corner = 0; corner < 3; ++corner) triangles[kept++] = triangles[i + corner];
  }
  return kept;
}

}  // namespace bench
