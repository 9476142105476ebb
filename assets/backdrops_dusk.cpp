// Sunset over mountains and a city after sundown.
#include <algorithm>
#include <cmath>

#include "assets/backdrops.h"
#include "assets/noise.h"
#include "assets/scenery.h"
#include "assets/shapes.h"

namespace art {
namespace {

constexpr double kLake = 0.72;

Color PeaksAboveLake(double x, double y) {
  Color c = Gradient(y, {{0.00, Hex(0x3B2A6B)},
                         {0.22, Hex(0x8C3F83)},
                         {0.42, Hex(0xE8665C)},
                         {0.58, Hex(0xFFB45A)},
                         {0.68, Hex(0xFFE29A)}});
  const double sun = std::hypot(x - 0.86, y - 0.50);
  c = Screen(c, Hex(0xFFB35A) * (0.75 * std::exp(-sun * 4.5)));
  const double streak = Clouds(x * 1.6 + 3, y * 9 + 0.4 * x, 5, 401);
  const Color belly = Mix(Hex(0x6E3473), Hex(0xFFC27A), Smooth(0.1, 0.55, y));
  c = Mix(c, belly, 0.75 * Smooth(0.50, 0.72, streak) * Smooth(0.64, 0.35, y));
  c = Mix(c, Hex(0xFFF6D0), Cover(sun - 0.070, 0.006));
  constexpr int kRanges = 4;
  for (int i = 0; i < kRanges; ++i) {
    const double near = i / (kRanges - 1.0);
    const double crest =
        0.56 + 0.13 * near - Peaks(x + 5 * i, 1.4 + 0.7 * i, 0.34 - 0.16 * near, 411 + 9 * i);
    const Color rock = Mix(Hex(0xC9636F), Hex(0x2E1B45), std::pow(near, 0.75));
    const Color haze = Mix(Hex(0xFFB877), Hex(0x7A3F6C), near);
    c = Mix(c, Mix(rock, haze, 0.6 * Smooth(0.0, 0.20, y - crest)), Cover(crest - y, 0.0015));
  }
  return c;
}

// One row of towers: the height of the roof over x, and what the wall shows.
struct Tower {
  double roof;
  double left, right;
  int id;
};

Tower TowerAt(double x, double width, double tall, int seed) {
  const int i = static_cast<int>(std::floor(x / width));
  const double left = (i + 0.10 * Hash(i, 0, seed)) * width;
  const double right = (i + 1 - 0.22 * Hash(i, 1, seed)) * width;
  double roof = tall * (0.30 + 0.70 * Hash(i, 2, seed));
  const double middle = (left + right) / 2, kind = Hash(i, 3, seed);
  if (kind < 0.22) roof += 0.06 * (std::abs(x - middle) < width * 0.2);
  if (kind > 0.84) roof += 0.08 * (std::abs(x - middle) < 0.0016);
  if (x < left || x > right) roof = 0.12 * tall;
  return {roof, left, right, i};
}

Color TowerWall(const Tower& tower, double x, double y, Color wall, double pane, int seed) {
  const int column = static_cast<int>(std::floor((x - tower.left) / pane));
  const int floor = static_cast<int>(std::floor(y / (pane * 1.5)));
  const Point in{Part((x - tower.left) / pane), Part(y / (pane * 1.5))};
  const bool open = in.x > 0.25 && in.x < 0.8 && in.y > 0.2 && in.y < 0.72;
  const double lamp = Hash(column + 64 * tower.id, floor, seed);
  if (!open || lamp < 0.66) return wall;
  const Color light = Mix(Hex(0xFFC766), Hex(0xFFF2C0), Part(lamp * 17));
  return Mix(wall, light, 0.35 + 0.55 * Part(lamp * 31));
}

constexpr double kShore = 0.80;

Color CityAboveShore(double x, double y) {
  Color c = Gradient(y, {{0.00, Hex(0x122B57)},
                         {0.25, Hex(0x2B5C8F)},
                         {0.45, Hex(0x6C8FB5)},
                         {0.60, Hex(0xE9A6A2)},
                         {0.74, Hex(0xFFCF9A)}});
  c = Screen(c, Hex(0xFFFFFF) * (0.8 * StarField(x, y, 0.05, 431) * Smooth(0.35, 0.0, y)));
  const double wisp = Clouds(x * 1.3, y * 6, 5, 435);
  c = Mix(c, Hex(0xF2A9A5), 0.55 * Smooth(0.52, 0.75, wisp) * Smooth(0.08, 0.4, y));
  constexpr int kRows = 3;
  for (int i = 0; i < kRows; ++i) {
    const double near = i / (kRows - 1.0);
    const Tower tower =
        TowerAt(x + 0.013 * i, 0.050 + 0.022 * near, 0.34 - 0.10 * near, 441 + 10 * i);
    const double crest = kShore - tower.roof - 0.05 * (1 - near);
    if (y < crest) continue;
    const Color wall = Mix(Hex(0xA9829F), Hex(0x1B2340), near);
    const Color glow = Mix(Hex(0xE8AFA0), Hex(0x4B3A5C), near);
    c = Mix(wall, glow, 0.8 * Smooth(crest, kShore + 0.06, y));
    if (i > 0) c = TowerWall(tower, x + 0.013 * i, y, c, 0.0085 + 0.002 * near, 447 + i);
  }
  return c;
}

// What water below `shore` shows of the scene above, drawn out by the waves.
Color Mirrored(Color (*scene)(double, double), double x, double y, double shore, double squash) {
  const double deep = y - shore;
  const double wave = Clouds(x * 3, 30 * std::sqrt(deep + 0.002), 3, 451) - 0.5;
  const double up = shore - deep * squash - 0.10 * std::abs(wave) * Smooth(0, 0.1, deep);
  return scene(x + 0.10 * wave * (0.1 + deep), up);
}

}  // namespace

Color SunsetPeaks(double x, double y) {
  if (y < kLake) return PeaksAboveLake(x, y);
  const Color c = Mirrored(PeaksAboveLake, x, y, kLake, 1.9);
  return Mix(c * Color{0.86, 0.80, 0.92}, Hex(0x2A1C4A), 0.6 * Smooth(kLake, 1.02, y));
}

Color CityDusk(double x, double y) {
  if (y < kShore) return CityAboveShore(x, y);
  const Color c = Mirrored(CityAboveShore, x, y, kShore, 2.2);
  return Mix(c * Color{0.75, 0.8, 0.92}, Hex(0x16305A), 0.25 + 0.5 * Smooth(kShore, 1.02, y));
}

}  // namespace art
