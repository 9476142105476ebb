#include "assets/scenery.h"

#include <cmath>

#include "assets/noise.h"

namespace art {

Color Gradient(double at, std::initializer_list<Stop> stops) {
  const Stop* below = stops.begin();
  for (const Stop& stop : stops) {
    if (at < stop.at) {
      if (&stop == below) return stop.color;
      return Mix(below->color, stop.color, Smooth(below->at, stop.at, at));
    }
    below = &stop;
  }
  return below->color;
}

double Peaks(double x, double scale, double size, int seed) {
  double sum = 0, weight = 0.5;
  for (int i = 0; i < 6; ++i, scale *= 2.1, weight *= 0.48) {
    const double ridge = 1 - std::abs(2 * Noise(x * scale, 0.37 + i, 1 << 20, seed + i) - 1);
    sum += weight * (ridge - 0.6);
  }
  return sum * size;
}

double StarField(double x, double y, double cell, int seed) {
  const int cx = static_cast<int>(std::floor(x / cell)),
            cy = static_cast<int>(std::floor(y / cell));
  const double px = (cx + 0.15 + 0.7 * Hash(cx, cy, seed)) * cell;
  const double py = (cy + 0.15 + 0.7 * Hash(cx, cy, seed + 1)) * cell;
  const double luck = Hash(cx, cy, seed + 2);
  const double bright = luck * luck * luck * luck;
  const double away = std::hypot(x - px, y - py);
  const double size = 0.0010 + 0.0012 * bright;
  return (0.25 + 0.75 * bright) * std::exp(-away * away / (size * size));
}

Color Stars(Color sky, double x, double y, int seed) {
  const double many = StarField(x, y, 0.022, seed) * 0.7 + StarField(x + 9, y, 0.07, seed + 5);
  const Color tint = Mix(Hex(0xFFE6C8), Hex(0xCFE2FF),
                         Hash(static_cast<int>(x * 25), static_cast<int>(y * 25), seed));
  return Screen(sky, tint * Clamp01(many));
}

}  // namespace art
