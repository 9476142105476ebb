// The star to collect: upright, thick in the middle, with bevelled arms.
#include <array>
#include <cmath>

#include "assets/mesh.h"
#include "assets/models.h"

namespace art {
namespace {

constexpr Solid kCentre{0, 0.5, 0};
constexpr int kCorners = 10;

Point UnfoldStar(Solid p, Solid) {
  const double scale = kStarSkinScale / (2 * kStarRadius);
  return {0.5 + p.x * scale, 0.5 - (p.y - kCentre.y) * scale};
}

std::vector<Solid> Outline(double scale, double z) {
  std::vector<Solid> ring;
  for (int i = 0; i < kCorners; ++i) {
    const double radius = scale * (i % 2 == 0 ? kStarRadius : kStarInner);
    const double a = kPi * i / 5;
    ring.push_back(kCentre + Solid{radius * std::sin(a), radius * std::cos(a), z});
  }
  return ring;
}

}  // namespace

std::string StarModel() {
  Mesh mesh(UnfoldStar);
  constexpr double kEdge = 0.060, kStep = 0.120, kPeak = 0.185;
  for (const double side : {-1.0, 1.0}) {
    const std::vector<Solid> edge = Outline(1, side * kEdge), step = Outline(0.62, side * kStep);
    const Solid peak = kCentre + Solid{0, 0, side * kPeak};
    for (size_t i = 0; i < kCorners; ++i) {
      const size_t next = (i + 1) % kCorners;
      mesh.AddFace(std::array{edge[i], edge[next], step[next], step[i]}, kCentre);
      mesh.AddFace(std::array{step[i], step[next], peak}, kCentre);
    }
  }
  const std::vector<Solid> front = Outline(1, kEdge), back = Outline(1, -kEdge);
  for (size_t i = 0; i < kCorners; ++i) {
    const size_t next = (i + 1) % kCorners;
    mesh.AddFace(std::array{front[i], front[next], back[next], back[i]}, kCentre);
  }
  return mesh.Text("star", "StarSkin.bmp");
}

}  // namespace art
