#include "platform/frustum.h"

#include <bit>

using lanes::Float4, lanes::Splat, lanes::Abs;

namespace {

// Generous against rounding here and in the shader: 32 units in the last place of the largest term.
constexpr float kSlack = 4e-6F;

using Int4 = int32_t __attribute__((vector_size(16)));

bool AnySet(Int4 lanes) {
  const auto halves = std::bit_cast<std::array<uint64_t, 2>>(lanes);
  return (halves[0] | halves[1]) != 0;
}

}  // namespace

Matrix4 WorldToClip(const Camera& camera) {
  Matrix4 product;
  for (size_t row = 0; row < 4; ++row) {
    for (size_t column = 0; column < 4; ++column) {
      double sum = 0;
      for (size_t k = 0; k < 4; ++k) {
        sum += double{camera.view.m[row][k]} * camera.projection.m[k][column];
      }
      product.m[row][column] = static_cast<float>(sum);
    }
  }
  return product;
}

Frustum::Frustum(const Camera& camera) {
  const Matrix4 toClip = WorldToClip(camera);
  // Lanes: left, right, bottom, top; near, far, and the last two again.
  constexpr std::array<std::array<float, 2>, 6> kXYSigns = {
      {{1, 0}, {-1, 0}, {0, 1}, {0, -1}, {0, 0}, {0, 0}}};
  constexpr std::array<float, 6> kZSigns = {0, 0, 0, 0, 1, -1}, kWSigns = {1, 1, 1, 1, 0, 1};
  for (size_t lane = 0; lane < 8; ++lane) {
    const size_t plane = lane < 6 ? lane : lane - 2;
    const auto component = [&](size_t row) {
      const auto& from = toClip.m[row];
      return kXYSigns[plane][0] * from[0] + kXYSigns[plane][1] * from[1] +
             kZSigns[plane] * from[2] + kWSigns[plane] * from[3];
    };
    FourPlanes& four = planes_[lane / 4];
    four.nx[lane % 4] = component(0);
    four.ny[lane % 4] = component(1);
    four.nz[lane % 4] = component(2);
    four.d[lane % 4] = component(3);
  }
  for (FourPlanes& four : planes_) {
    four.ax = Abs(four.nx);
    four.ay = Abs(four.ny);
    four.az = Abs(four.nz);
    four.ad = Abs(four.d);
  }
}

bool Frustum::FourPlanes::AnyBehind(Float4 centre, Float4 reach) const {
  const Float4 x = Splat(centre[0]), y = Splat(centre[1]), z = Splat(centre[2]);
  const Float4 distance = nx * x + ny * y + nz * z + d;
  const Float4 radius = ax * Splat(reach[0]) + ay * Splat(reach[1]) + az * Splat(reach[2]);
  const Float4 size = ax * Abs(x) + ay * Abs(y) + az * Abs(z) + ad + radius;
  return AnySet(distance + radius + Splat(kSlack) * size < 0);
}

bool Frustum::MaySee(const VertexBufferObject& buffer, const Matrix4& world) const {
  const Vector3 &low = buffer.Smallest(), &high = buffer.Greatest();
  const lanes::Rows rows(world);
  const Float4 centre =
      rows.Place(0.5F * (low.x + high.x), 0.5F * (low.y + high.y), 0.5F * (low.z + high.z));
  const Float4 reach = Splat(0.5F * (high.x - low.x)) * Abs(rows.rows[0]) +
                       Splat(0.5F * (high.y - low.y)) * Abs(rows.rows[1]) +
                       Splat(0.5F * (high.z - low.z)) * Abs(rows.rows[2]);
  return MaySee(centre, reach);
}
