// Plates and patterns: metal, gold, coloured cells and lights.
#include <algorithm>
#include <cmath>

#include "assets/noise.h"
#include "assets/shapes.h"
#include "assets/textures.h"

namespace art {
namespace {

Texel MetalPlate(double u, double v) {
  // Lozenges lying crosswise by turns, as on a tread plate.
  const double cx = u * 2, cy = v * 2;
  const bool turned = (static_cast<int>(cx) + static_cast<int>(cy)) % 2 != 0;
  const double x = Part(cx) - 0.5, y = Part(cy) - 0.5;
  const double a = (x + y) / std::sqrt(2.0), b = (x - y) / std::sqrt(2.0);
  const Point p = turned ? Point{a, b} : Point{b, a};
  const double bump = std::hypot(p.x / 0.40, p.y / 0.19) - 1;
  const double scratch = Fractal(u, v, 4, 1, 235) - 0.5;
  Texel t;
  t.color = Hex(0xA9B2BD) * (1 + 0.10 * scratch);
  t.color = Mix(t.color, Hex(0xD6DEE7), Cover(bump, 0.12));
  t.height = 0.04 * Smooth(0.35, -0.6, bump);
  t.shine = 0.2;
  return t;
}

Texel NeonGrid(double u, double v) {
  const double fine = std::min(std::abs(Wrapped(u * 2)), std::abs(Wrapped(v * 2))) / 2;
  const double wide = std::min(std::abs(Wrapped(u)), std::abs(Wrapped(v)));
  const auto glow = [](double d, double size) { return std::exp(-d / size); };
  Texel t;
  t.color = Mix(Hex(0x2A2358), Hex(0x1A1440), Smooth(0, 0.7, std::hypot(u - 0.5, v - 0.5)));
  t.color = Screen(t.color, Hex(0x18B8FF) * (0.75 * glow(fine, 0.05)));
  t.color = Screen(t.color, Hex(0xFF38D8) * (1.0 * glow(wide, 0.06)));
  t.color = Mix(t.color, Hex(0xC8F6FF), 0.35 * Cover(fine - 0.02, 0.02));
  t.color = Mix(t.color, Hex(0xFFE3FA), 0.6 * Cover(wide - 0.03, 0.02));
  return t;
}

Texel GreenChecker(double u, double v) {
  const bool light = (static_cast<int>(u * 2) + static_cast<int>(v * 2)) % 2 == 0;
  const double rough = Fractal(u, v, 4, 1, 281) - 0.5;
  const double joint = std::min(std::abs(Wrapped(u * 2)), std::abs(Wrapped(v * 2))) / 2;
  Texel t;
  t.color = (light ? Hex(0xA4E86A) : Hex(0x37A84A)) * (1 + 0.10 * rough);
  t.height = 0.014 * Smooth(0, 0.05, joint);
  t.shine = 0.2;
  return t;
}

Texel Hexagons(double u, double v) {
  // Two interlocking lattices; the nearer centre owns the point.
  constexpr double kColumns = 2;
  const double across = Part(u * kColumns), down = Part(v);
  const auto to = [&](double cx, double cy) {
    const double x = std::abs(across - cx), y = std::abs(down - cy) * kColumns;
    return std::max(x, x * 0.5 + y * 0.866);
  };
  double nearest = 9, second = 9;
  for (const Point c : {Point{0, 0}, {1, 0}, {0, 1}, {1, 1}, {0.5, 0.5}, {-0.5, 0.5}, {1.5, 0.5}}) {
    const double d = to(c.x, c.y);
    second = std::min(second, std::max(nearest, d));
    nearest = std::min(nearest, d);
  }
  const double rim = second - nearest;
  Texel t;
  t.color = Mix(Hex(0xC79BFF), Hex(0x7A45D8), Smooth(0, 0.55, nearest));
  t.color = Mix(Hex(0x50308F), t.color, Smooth(0.05, 0.18, rim));
  t.height = 0.05 * Smooth(0.02, 0.3, rim);
  t.shine = 0.45;
  return t;
}

Texel GoldPlate(double u, double v) {
  const double border = 0.5 - std::max(std::abs(u - 0.5), std::abs(v - 0.5));
  const double star = Star({u, v}, {0.5, 0.52}, 0.33, 0.145, 5);
  const double brushed = Fractal(u, v, 4, 1, 295) - 0.5;
  Texel t;
  t.color =
      Mix(Hex(0xFFDB5E), Hex(0xEBA52A), Smooth(0, 1, 0.5 * u + 0.5 * v)) * (1 + 0.10 * brushed);
  t.color = t.color * (1 - 0.35 * Cover(std::abs(star) - 0.02, 0.015));
  t.height = 0.03 * Smooth(0, 0.05, border) + 0.022 * Cover(star + 0.01, 0.03);
  t.shine = 0.6;
  return t;
}

}  // namespace

Pictures PlateTextures() {
  return {{"metal plate.bmp", BakeFloor(MetalPlate)},
          {"neon grid.bmp", BakeFloor(NeonGrid)},
          {"green checker.bmp", BakeFloor(GreenChecker)},
          {"purple hexagons.bmp", BakeFloor(Hexagons)},
          {"gold plate.bmp", BakeTile(kUnitTile, GoldPlate)}};
}

}  // namespace art
