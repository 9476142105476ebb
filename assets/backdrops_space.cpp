// A ringed planet among nebulae.
#include <algorithm>
#include <cmath>

#include "assets/backdrops.h"
#include "assets/noise.h"
#include "assets/scenery.h"
#include "assets/shapes.h"

namespace art {
namespace {

constexpr Point kPlanet{0.96, 0.33};
constexpr double kRadius = 0.20;

// Distance from the planet measured in the tilted plane of its rings.
double RingDistance(double x, double y) {
  constexpr double kCos = 0.940, kSin = -0.342;
  const double dx = x - kPlanet.x, dy = y - kPlanet.y;
  return std::hypot(dx * kCos + dy * kSin, (dy * kCos - dx * kSin) * 3.6) / kRadius;
}

Color AddRing(Color c, double x, double y) {
  const double r = RingDistance(x, y);
  const double grain = Noise(r * 22, 0.5, 1 << 20, 521), wide = Noise(r * 7, 3.5, 1 << 20, 522);
  double cover = Smooth(1.32, 1.36, r) * Smooth(2.12, 2.04, r) *
                 (0.25 + 0.75 * Smooth(0.3, 0.7, 0.4 * grain + 0.6 * wide));
  cover *= 1 - 0.85 * Smooth(0.04, 0.02, std::abs(r - 1.80));
  return Mix(c, Mix(Hex(0xF6D9B0), Hex(0xC99AD8), Smooth(1.3, 2.1, r)), 0.85 * cover);
}

Color AddPlanet(Color c, double x, double y) {
  const double dx = (x - kPlanet.x) / kRadius, dy = (y - kPlanet.y) / kRadius;
  const double away = std::hypot(dx, dy);
  c = Screen(c, Hex(0xFF9CC8) * (0.35 * std::exp(-std::max(0.0, away - 1) * 7)));
  if (away < 1.01) {
    const double dz = std::sqrt(std::max(0.0, 1 - away * away));
    const double band = 0.94 * dy + 0.342 * dx + 0.10 * (Clouds(dx * 2, dy * 5, 4, 531) - 0.5);
    const double stripe =
        Noise(band * 6, 0.5, 1 << 20, 535) * 0.7 + 0.3 * Noise(band * 17, 0.5, 1 << 20, 536);
    const Color gas =
        Gradient(stripe, {{0.25, Hex(0xB85A7E)}, {0.45, Hex(0xF2A27C)}, {0.65, Hex(0xFFE0B0)}});
    const double day = Smooth(-0.25, 0.95, -0.62 * dx - 0.45 * dy + 0.55 * dz);
    c = Mix(c, Mix(Hex(0x170B2E), gas, day), Cover(away - 1, 0.008));
  }
  return c;
}

}  // namespace

Color RingedPlanet(double x, double y) {
  const double warpX = Clouds(x * 2, y * 2, 4, 581) - 0.5,
               warpY = Clouds(x * 2 + 7, y * 2, 4, 585) - 0.5;
  const double mist = Clouds(x * 1.6 + warpX, y * 1.6 + warpY, 6, 589);
  const double glow = Clouds(x * 1.9 - 1.2 * warpY + 5, y * 1.9 + warpX, 6, 595);
  Color c = Mix(Hex(0x140A33), Hex(0x2B1157), y);
  c = Screen(c, Hex(0x8A2FC9) * (0.75 * Smooth(0.38, 0.75, mist)));
  c = Screen(c, Hex(0xE0488F) * (0.60 * Smooth(0.50, 0.80, glow) * Smooth(0.3, 0.6, mist)));
  c = Screen(c, Hex(0x2E7BE0) * (0.55 * Smooth(0.55, 0.30, mist) * Smooth(0.4, 0.7, glow)));
  c = Stars(c, x, y, 601);
  const bool front = 0.940 * (y - kPlanet.y) + 0.342 * (x - kPlanet.x) > 0;
  if (!front) c = AddRing(c, x, y);
  c = AddPlanet(c, x, y);
  if (front) c = AddRing(c, x, y);
  const double ball = std::hypot(x - 0.28, y - 0.74) / 0.045;
  const double day = Smooth(-0.4, 0.9, (-0.62 * (x - 0.28) - 0.45 * (y - 0.74)) / 0.045);
  const double rough = 0.8 + 0.4 * Clouds(x * 40, y * 40, 3, 611);
  return Mix(c, Mix(Hex(0x120A28), Hex(0xB9A7D6) * rough, day), Cover(ball - 1, 0.02));
}

}  // namespace art
