#include "level/projected_quad.h"

#include <algorithm>
#include <cmath>

#include "platform/d3dx_maths.h"

namespace maths {
namespace {

Vector3 NormalOf(const std::array<Vector3, 4>& quad) {
  return d3dx::Normalize(
      d3dx::Cross(d3dx::Subtract(quad[1], quad[0]), d3dx::Subtract(quad[2], quad[0])));
}

}  // namespace

ProjectedQuad::Drop ProjectedQuad::ChooseProjection(const Vector3& normal) {
  float ax = std::abs(normal.x);
  float ay = std::abs(normal.y);
  const float az = std::abs(normal.z);
  if (ax == ay || ax == az) ax = 0;
  if (ay == az) ay = 0;
  if (ax > ay && ax > az) return Drop::X;
  return ay <= ax ? Drop::Z : Drop::Y;
}

ProjectedQuad::ProjectedQuad(const std::array<Vector3, 4>& quad)
    : drop_(ChooseProjection(NormalOf(quad))) {
  std::ranges::transform(quad, corners_.begin(),
                         [this](const Vector3& corner) { return Project(corner); });
  if (corners_[3] == corners_[0]) edges_ = 3;
  for (size_t i = 0; i < edges_; ++i) {
    along_[i] = Subtract(corners_[(i + 1) % edges_], corners_[i]);
  }
}

}  // namespace maths
