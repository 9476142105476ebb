// One house: its front with the door, its sides with windows, its metal roof.
#include <algorithm>
#include <array>
#include <cmath>

#include "assets/noise.h"
#include "assets/shapes.h"
#include "assets/textures.h"

namespace art {
namespace {

Texel Wall(double u, double v) {
  // Courses of stone, wide enough to be seen from afar.
  const double row = std::floor(v * 10);
  const int stone = static_cast<int>(std::floor(u * 4 + 0.5 * std::fmod(row, 2.0))) % 4;
  Texel t;
  t.color = Mix(Hex(0xE8B98A), Hex(0xDBA678), Hash(stone, static_cast<int>(row), 81));
  return t;
}

// A stone band along the top and a plinth at the foot.
void AddBands(Texel& t, double v) {
  const double band = std::min(std::abs(v - 0.035) - 0.035, std::abs(v - 0.52) - 0.020);
  t.color = Mix(t.color, Hex(0xFBF4E6), Cover(band, 0.004));
  t.color = t.color * (1 - 0.35 * Smooth(0.10, 0.07, v) * Smooth(0.066, 0.072, v));
  t.color = Mix(t.color, Hex(0x9C9AA0), Cover(0.955 - v, 0.004));
  t.height += 0.015 * Cover(band, 0.008) + 0.01 * Cover(0.955 - v, 0.006);
}

void AddWindow(Texel& t, Point p, Point centre, Point half) {
  const double frame = Box(p, centre, {half.x + 0.03, half.y + 0.03}, 0.006);
  const double glass = Box(p, centre, half, 0.004);
  const double sill = Box(p, {centre.x, centre.y + half.y + 0.032}, {half.x + 0.045, 0.018}, 0.004);
  t.color = Mix(t.color, Hex(0xFFFFFF), Cover(std::min(frame, sill), 0.004));
  const double down = (p.y - centre.y + half.y) / (2 * half.y);
  const Color pane = Mix(Hex(0x2F6FB8), Hex(0x8FD3F5), down);
  t.color = Mix(t.color, pane * (0.6 + 0.4 * Smooth(0, 0.2, down)), Cover(glass, 0.004));
  t.height = Mix(t.height, 0.014, Cover(std::min(frame, sill), 0.006));
  t.height = Mix(t.height, 0, Cover(glass, 0.006));
}

void AddDoor(Texel& t, Point p) {
  const double frame = Box(p, {0.5, 0.84}, {0.155, 0.20}, 0.01);
  const double leaf = Box(p, {0.5, 0.86}, {0.125, 0.18}, 0.006);
  t.color = Mix(t.color, Hex(0xFFFFFF), Cover(frame, 0.004));
  t.color = Mix(t.color, Mix(Hex(0x2F8F5B), Hex(0x1C6B44), p.y), Cover(leaf, 0.004));
  const Point q{std::abs(p.x - 0.5), p.y};
  const double panel = std::min(Box(q, {0.062, 0.76}, {0.042, 0.055}, 0.006),
                                Box(q, {0.062, 0.90}, {0.042, 0.060}, 0.006));
  t.color = Mix(t.color, p.y < 0.82 ? Hex(0xBDE8FA) : Hex(0x49B57C), Cover(panel, 0.004));
  const double awning = Box(p, {0.5, 0.625}, {0.20, 0.05}, 0.008);
  const bool red = Part((p.x - 0.3) / 0.4 * 2.5) < 0.5;
  const Color cloth =
      (red ? Hex(0xE5372C) : Hex(0xFDFBF2)) * (1.05 - 2.0 * std::max(0.0, p.y - 0.62));
  t.color = t.color * (1 - 0.4 * Cover(Box(p, {0.5, 0.68}, {0.19, 0.03}, 0.01), 0.02));
  t.color = Mix(t.color, cloth, Cover(awning, 0.004));
  t.height = Mix(t.height, 0.012, Cover(frame, 0.006));
  t.height = Mix(t.height, 0.006 - 0.01 * Cover(panel, 0.006), Cover(leaf, 0.006));
  t.height = Mix(t.height, 0.03 - 0.25 * (0.675 - p.y), Cover(awning, 0.004));
}

Texel Front(double u, double v) {
  Texel t = Wall(u, v);
  AddBands(t, v);
  for (const double x : {0.19, 0.5, 0.81}) AddWindow(t, {u, v}, {x, 0.29}, {0.085, 0.12});
  for (const double x : {0.16, 0.84}) AddWindow(t, {u, v}, {x, 0.73}, {0.085, 0.105});
  AddDoor(t, {u, v});
  return t;
}

Texel Side(double u, double v) {
  Texel t = Wall(u, v);
  AddBands(t, v);
  for (const double x : {0.19, 0.5, 0.81}) {
    AddWindow(t, {u, v}, {x, 0.29}, {0.085, 0.12});
    AddWindow(t, {u, v}, {x, 0.73}, {0.085, 0.105});
  }
  return t;
}

Texel Roof(double u, double v) {
  const double seam = std::abs(Wrapped(u * 4)) / 4;
  const double lap = std::abs(Wrapped(v * 2)) / 2;
  const double sheet = Hash(static_cast<int>(u * 4), static_cast<int>(v * 2), 93);
  Texel t;
  t.color = Mix(Hex(0xBFC9D2), Hex(0xA9B7C4), sheet);
  t.color = Mix(t.color, Hex(0xE4ECF2), Cover(seam - 0.030, 0.008));
  t.color =
      Mix(t.color, Hex(0x6E7A86), 0.7 * Cover(lap - 0.018, 0.008) * Smooth(0.022, 0.04, seam));
  t.height = 0.022 * Smooth(0.045, 0.020, seam);
  t.shine = 0.2;
  return t;
}

}  // namespace

Pictures BuildingTextures() {
  return {{"buildingFront.bmp", BakeTile(kWideTile, Front)},
          {"building Side.bmp", BakeTile(kWideTile, Side)},
          {"buildingTop.bmp", BakeTile(kWideTile, Roof)}};
}

}  // namespace art
