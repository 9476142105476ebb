// Clear sky and misty hills.
#include <algorithm>
#include <cmath>

#include "assets/backdrops.h"
#include "assets/noise.h"
#include "assets/scenery.h"
#include "assets/shapes.h"

namespace art {
namespace {

// A layer of clouds in perspective: `far` is 0 at the horizon and grows towards the eye.
Color CloudLayer(Color sky, double x, double far, double cover, int seed) {
  const double depth = 1 / (far + 0.22);
  const double px = (x - 0.62) * depth * 0.95, py = depth * 1.25;
  const double warp = Clouds(px * 1.5, py * 1.5, 3, seed + 20) - 0.5;
  const double dense = Clouds(px + 0.3 * warp, py + 0.3 * warp, 6, seed);
  const double lit = Clouds(px + 0.3 * warp + 0.10, py + 0.3 * warp + 0.14, 4, seed);
  const double body = Smooth(cover, cover + 0.20, dense);
  const double shade = Smooth(-0.10, 0.12, dense - lit);
  const Color cloud = Mix(Hex(0xB9CDE6), Hex(0xFFFFFF), 0.25 + 0.75 * shade);
  return Mix(sky, cloud, 0.92 * body * Smooth(0.0, 0.10, far));
}

// How far the tops of a row of firs stand above their hill.
double Firs(double x, double width, double tall, int seed) {
  double top = 0;
  const int cell = static_cast<int>(std::floor(x / width));
  for (int i = cell - 1; i <= cell + 1; ++i) {
    const double centre = (i + 0.25 + 0.5 * Hash(i, 0, seed)) * width;
    const double height = tall * (0.45 + 0.55 * Hash(i, 1, seed));
    const double away = std::abs(x - centre) / (width * 0.62);
    // Boughs widen in steps down the trunk.
    const double bough = 0.16 * Part(away * 4.5);
    top = std::max(top, height * (1 - away - bough));
  }
  return top;
}

}  // namespace

Color BlueSky(double x, double y) {
  constexpr double kHorizon = 0.60;
  Color c = Gradient(y, {{0.00, Hex(0x1C5DB8)},
                         {0.30, Hex(0x4A93E0)},
                         {0.52, Hex(0xA6D3F5)},
                         {0.60, Hex(0xE3F3FA)},
                         {0.68, Hex(0x9CCBEF)},
                         {0.85, Hex(0x4F93D8)},
                         {1.00, Hex(0x2A68B8)}});
  const double sun = std::hypot(x - 1.12, y - 0.10);
  c = Screen(c, Hex(0xFFF6D8) * (0.55 * std::exp(-sun * 3.2) + 0.9 * std::exp(-sun * sun * 500)));
  // Clouds overhead, and a thinner layer below: the track floats between them.
  if (y < kHorizon) {
    c = CloudLayer(c, x, kHorizon - y, 0.50, 301);
  } else {
    c = Mix(c, CloudLayer(c, x, y - kHorizon, 0.51, 341), 0.75);
  }
  return Screen(c, Hex(0xF4FAFF) * (0.6 * std::exp(-std::abs(y - kHorizon) * 16)));
}

Color MistyForest(double x, double y) {
  Color c = Gradient(y, {{0.0, Hex(0x8FC7B8)}, {0.22, Hex(0xD9ECC9)}, {0.40, Hex(0xF3F3D2)}});
  const double sun = std::hypot(x - 0.42, y - 0.20);
  c = Screen(c, Hex(0xFFF3C0) * (0.75 * std::exp(-sun * 5) + 0.8 * Cover(sun - 0.048, 0.012)));
  constexpr int kLayers = 8;
  for (int i = 0; i < kLayers; ++i) {
    const double near = i / (kLayers - 1.0);
    const double base = 0.33 + 0.62 * std::pow(near, 1.25);
    const double hill = base - Peaks(x + 3 * i, 1.3 + 0.2 * i, 0.20 - 0.05 * near, 361 + 10 * i);
    const double size = 0.012 + 0.055 * near * near;
    const double crest = hill - std::max(Firs(x, size * 0.50, size * 1.9, 363 + 10 * i),
                                         Firs(x + 0.37, size * 0.31, size * 1.2, 366 + 10 * i));
    const Color wood = Mix(Hex(0xA9CDB0), Hex(0x1F5B3C), near);
    const Color mist = Mix(Hex(0xE4F1D6), Hex(0x5E9C79), near);
    const double sink =
        Smooth(0.0, 0.20 + 0.10 * near, y - hill + 0.06 * Clouds(x * 3, y * 7, 3, 369));
    c = Mix(c, Mix(wood, mist, 0.85 * sink), Cover(crest - y, 0.0012));
  }
  return c;
}

}  // namespace art
