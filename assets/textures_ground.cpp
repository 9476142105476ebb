// Grass, sand, stone, wood and the like.
#include <algorithm>
#include <cmath>

#include "assets/noise.h"
#include "assets/shapes.h"
#include "assets/textures.h"

namespace art {
namespace {

Texel Grass(double u, double v) {
  const double clump = Fractal(u, v, 3, 2, 101);
  const double blades = Ridges(u + 0.05 * (clump - 0.5), v, 4, 1, 105);
  Texel t;
  t.color = Mix(Hex(0x3F9B3A), Hex(0x86D14F), Smooth(0.3, 0.7, clump));
  t.color = Mix(t.color * 0.82, Screen(t.color, Hex(0x303808)), Smooth(0.35, 0.9, blades));
  t.height = 0.02 * blades + 0.02 * clump;
  return t;
}

Texel Sand(double u, double v) {
  const double warp = 0.16 * (Fractal(u, v, 2, 2, 121) - 0.5);
  const double wave = Part(2 * (v + warp) + u);
  const double ripple = wave < 0.7 ? wave / 0.7 : (1 - wave) / 0.3;
  const double grain = Fractal(u, v, 6, 1, 125) - 0.5;
  Texel t;
  t.color = Mix(Hex(0xE3BE79), Hex(0xFBE3A8), ripple) * (1 + 0.12 * grain);
  t.height = 0.045 * Smooth(0, 1, ripple);
  return t;
}

Texel Lava(double u, double v) {
  const double bend = 0.09 * (Fractal(u, v, 3, 2, 131) - 0.5);
  const Pebble crust = Pebbles(u + bend, v + 0.8 * bend, 2, 135);
  const double crack = crust.second - crust.nearest;
  const double rough = Fractal(u, v, 4, 2, 139);
  Texel t;
  t.color = Mix(Hex(0x5A2A22), Hex(0x8A4A38), rough);
  const double heat = Smooth(0.42, 0.02, crack + 0.12 * (rough - 0.5));
  t.color = Mix(t.color, Hex(0xD8400F), Smooth(0.05, 0.5, heat));
  t.color = Mix(t.color, Hex(0xFF9A1E), Smooth(0.45, 0.95, heat));
  t.height = 0.05 * Smooth(0.15, 0.5, crack) + 0.02 * rough * (1 - heat);
  return t;
}

Texel Marble(double u, double v) {
  const double fold = Fractal(u, v, 2, 2, 141) - 0.5, drift = Fractal(u, v, 2, 2, 147) - 0.5;
  // Veins run slantwise where a folded slope crosses whole numbers.
  const double wide = std::abs(Wrapped(u + v + 1.5 * fold));
  const double thin = std::abs(Wrapped(2 * u - v + 1.6 * drift + 0.6 * fold));
  Texel t;
  t.color = Mix(Hex(0xFBF8F3), Hex(0xD3D2D9), Smooth(0.28, 0.02, wide) * 0.8);
  t.color = Mix(t.color, Hex(0x6F7686), 0.55 * Smooth(0.075, 0.0, wide));
  t.color = Mix(t.color, Hex(0xC2A067), 0.5 * Smooth(0.09, 0.0, thin) * Smooth(-0.15, 0.1, drift));
  t.shine = 0.2;
  return t;
}

Texel StoneWall(double u, double v) {
  const double bend = 0.04 * (Fractal(u, v, 3, 2, 161) - 0.5);
  const Pebble stone = Pebbles(u + bend, v - bend, 2, 165);
  const double gap = stone.second - stone.nearest;
  const double rough = Fractal(u, v, 4, 2, 169) - 0.5;
  Texel t;
  t.color = Mix(Hex(0xA7A19A), Hex(0xCFC6B6), stone.id);
  if (Part(stone.id * 7.3) < 0.3) t.color = Hex(0x98A6B0);
  t.color = Mix(Hex(0x6E675E), t.color * (1 + 0.22 * rough), Smooth(0.06, 0.22, gap));
  t.height = 0.07 * Smooth(0.04, 0.40, gap) + 0.01 * rough;
  t.shine = 0.05;
  return t;
}

Texel Planks(double u, double v) {
  constexpr int kPlanks = 2;
  const int plank = static_cast<int>(u * kPlanks);
  const double across = Part(u * kPlanks);
  const double shift = Hash(plank, 0, 171);
  const double seam =
      std::min(std::min(across, 1 - across) / kPlanks, std::abs(Wrapped(v + shift)));
  const double fibre = Fractal(u * 3, v + shift, 3, 1, 183) - 0.5;
  Texel t;
  t.color = Mix(Hex(0xC98B4E), Hex(0xE5B273), Hash(plank, 1, 171)) * (1 + 0.22 * fibre);
  t.color = Mix(Hex(0x7A5230), t.color, Smooth(0.015, 0.05, seam));
  t.height = 0.02 * Smooth(0, 0.06, seam);
  t.shine = 0.08;
  return t;
}

Texel Water(double u, double v) {
  const double bend = 0.10 * (Fractal(u, v, 2, 2, 191) - 0.5);
  const Pebble cell = Pebbles(u + bend, v - bend, 2, 195);
  const double light = Smooth(0.34, 0.0, cell.second - cell.nearest);
  const double swell = Fractal(u, v, 2, 2, 199);
  Texel t;
  t.color = Mix(Hex(0x1C7FD0), Hex(0x46BDEB), Smooth(0.3, 0.7, swell));
  t.color = Mix(t.color, Hex(0xD6F8FF), 0.6 * light * light);
  t.height = 0.04 * swell;
  t.shine = 0.5;
  return t;
}

}  // namespace

Pictures GroundTextures() {
  return {{"grass.bmp", BakeFloor(Grass)},
          {"sand.bmp", BakeFloor(Sand)},
          {"lava.bmp", BakeFloor(Lava)},
          {"marble.bmp", BakeFloor(Marble)},
          {"stone wall.bmp", BakeFloor(StoneWall)},
          {"wood planks.bmp", BakeFloor(Planks)},
          {"water.bmp", BakeFloor(Water)}};
}

}  // namespace art
