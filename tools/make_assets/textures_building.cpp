// One house: its front with the door, its sides with windows, its metal roof.
#include <algorithm>
#include <array>
#include <cmath>

#include "tools/make_assets/noise.h"
#include "tools/make_assets/shapes.h"
#include "tools/make_assets/textures.h"

namespace art {
namespace {

constexpr int kSize = 128;

Texel Wall(double u, double v) {
  const double row = std::floor(v * 20);
  const double joint = std::min(std::abs(Wrapped(v * 20)) / 20,
                                std::abs(Wrapped(u * 8 + 0.5 * std::fmod(row, 2.0))) / 8);
  const int brick = static_cast<int>(std::floor(u * 8 + 0.5 * std::fmod(row, 2.0))) % 8;
  Texel t;
  t.color = Mix(Hex(0xE8B98A), Hex(0xD69C6C), Hash(brick, static_cast<int>(row), 81));
  t.color = Mix(Hex(0xF3DFC4), t.color, Smooth(0.002, 0.006, joint));
  t.height = 0.004 * Smooth(0.001, 0.006, joint);
  return t;
}

// A stone band along the top and a plinth at the foot.
void AddBands(Texel& t, double v) {
  const double band = std::min(std::abs(v - 0.035) - 0.035, std::abs(v - 0.52) - 0.014);
  t.color = Mix(t.color, Hex(0xFBF4E6), Cover(band, 0.004));
  t.color = t.color * (1 - 0.35 * Smooth(0.10, 0.07, v) * Smooth(0.066, 0.072, v));
  t.color = Mix(t.color, Hex(0x9C9AA0), Cover(0.955 - v, 0.004));
  t.height += 0.015 * Cover(band, 0.008) + 0.01 * Cover(0.955 - v, 0.006);
}

void AddWindow(Texel& t, Point p, Point centre, Point half) {
  const double frame = Box(p, centre, {half.x + 0.024, half.y + 0.024}, 0.006);
  const double glass = Box(p, centre, half, 0.004);
  const double sill = Box(p, {centre.x, centre.y + half.y + 0.032}, {half.x + 0.04, 0.014}, 0.004);
  const double bar =
      std::min(std::abs(p.x - centre.x), std::abs(p.y - centre.y + half.y * 0.25)) - 0.007;
  t.color = Mix(t.color, Hex(0xFFFFFF), Cover(std::min(frame, sill), 0.004));
  const double down = (p.y - centre.y + half.y) / (2 * half.y);
  Color pane = Mix(Hex(0x2F6FB8), Hex(0x8FD3F5), down);
  const double streak = Part((p.x - centre.x) * 3 + (p.y - centre.y) * 3 + 0.2);
  pane =
      Screen(pane, Hex(0xFFFFFF) * (0.45 * Smooth(0.0, 0.02, streak) * Smooth(0.2, 0.18, streak)));
  t.color = Mix(t.color, pane * (0.6 + 0.4 * Smooth(0, 0.2, down)), Cover(glass, 0.004));
  t.color = Mix(t.color, Hex(0xF2F4F6), Cover(std::max(bar, glass), 0.004));
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
  t.color = t.color * (1 - 0.6 * Cover(std::max(q.x - 0.004, leaf), 0.003));
  t.color = Mix(t.color, Hex(0xFFD54A), Cover(Circle(q, {0.022, 0.845}, 0.012), 0.004));
  const double awning = Box(p, {0.5, 0.625}, {0.20, 0.05}, 0.008);
  const bool red = Part((p.x - 0.3) / 0.4 * 5 * 0.5) < 0.5;
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
  const double brushed = Fractal(u, v, 16, 3, 91) - 0.5;
  const double seam = std::abs(Wrapped(u * 4)) / 4;
  const double lap = std::abs(Wrapped(v * 2)) / 2;
  const double screw = Circle({Wrapped(u * 4) / 4, Wrapped(v * 8 + 0.5) / 8}, {}, 0.012);
  const double sheet = Hash(static_cast<int>(u * 4), static_cast<int>(v * 2), 93);
  Texel t;
  t.color = Mix(Hex(0xBFC9D2), Hex(0xA9B7C4), sheet) * (1 + 0.18 * brushed);
  t.color = Mix(t.color, Hex(0xE4ECF2), Cover(seam - 0.022, 0.004));
  t.color =
      Mix(t.color, Hex(0x6E7A86), 0.8 * Cover(lap - 0.006, 0.004) * Smooth(0.022, 0.028, seam));
  t.color = Mix(t.color, Hex(0x5E6873), Cover(screw, 0.004));
  t.height = 0.022 * Smooth(0.034, 0.016, seam) + 0.004 * Smooth(0, 0.012, lap) + 0.003 * brushed;
  t.shine = 0.4;
  return t;
}

}  // namespace

Pictures BuildingTextures() {
  return {{"buildingFront.bmp", BakeTile(kSize, Front)},
          {"building Side.bmp", BakeTile(kSize, Side)},
          {"buildingTop.bmp", BakeTile(kSize, Roof)}};
}

}  // namespace art
