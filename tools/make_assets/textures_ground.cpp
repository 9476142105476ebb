// Grass, sand, stone, wood and the like.
#include <algorithm>
#include <cmath>

#include "tools/make_assets/noise.h"
#include "tools/make_assets/shapes.h"
#include "tools/make_assets/textures.h"

namespace art {
namespace {

constexpr int kSize = 128;

Texel Grass(double u, double v) {
  const double clump = Fractal(u, v, 4, 3, 101);
  const double blades = Ridges(u + 0.05 * (clump - 0.5), v, 12, 2, 105);
  Texel t;
  t.color = Mix(Hex(0x3F9B3A), Hex(0x86D14F), Smooth(0.3, 0.7, clump));
  t.color = Mix(t.color * 0.72, Screen(t.color, Hex(0x404A10)), Smooth(0.35, 0.9, blades));
  // A few daisies, well inside the tile so that none is cut.
  constexpr Point kDaisies[] = {
      {0.16, 0.22}, {0.66, 0.12}, {0.84, 0.52}, {0.40, 0.58}, {0.20, 0.86}};
  for (const Point centre : kDaisies) {
    const double angle = std::atan2(v - centre.y, u - centre.x);
    const double flower = Circle({u, v}, centre, 0.030 + 0.008 * std::cos(angle * 6));
    t.color =
        t.color * (1 - 0.3 * Cover(Circle({u, v}, {centre.x + .01, centre.y + .015}, .035), .02));
    t.color = Mix(t.color, Hex(0xFFFFFF), Cover(flower, 0.005));
    t.color = Mix(t.color, Hex(0xFFC928), Cover(Circle({u, v}, centre, 0.014), 0.005));
  }
  t.height = 0.012 * blades + 0.02 * clump;
  return t;
}

Texel Sand(double u, double v) {
  const double warp = 0.16 * (Fractal(u, v, 2, 3, 121) - 0.5);
  const double wave = Part(4 * (v + warp) + u);
  const double ripple = wave < 0.7 ? wave / 0.7 : (1 - wave) / 0.3;
  const double grain = Fractal(u, v, 24, 3, 125) - 0.5;
  Texel t;
  t.color = Mix(Hex(0xE3BE79), Hex(0xFBE3A8), ripple) * (1 + 0.28 * grain);
  t.height = 0.030 * Smooth(0, 1, ripple) + 0.006 * grain;
  return t;
}

Texel Lava(double u, double v) {
  const double bend = 0.09 * (Fractal(u, v, 4, 3, 131) - 0.5);
  const Pebble crust = Pebbles(u + bend, v + 0.8 * bend, 3, 135);
  const double crack = crust.second - crust.nearest;
  const double rough = Fractal(u, v, 8, 4, 139);
  Texel t;
  t.color = Mix(Hex(0x5A2A22), Hex(0x8A4A38), rough);
  const double heat = Smooth(0.42, 0.02, crack + 0.12 * (rough - 0.5));
  t.color = Mix(t.color, Hex(0xE23A0A), Smooth(0.1, 0.45, heat));
  t.color = Mix(t.color, Hex(0xFF9A12), Smooth(0.4, 0.75, heat));
  t.color = Mix(t.color, Hex(0xFFF3A0), Smooth(0.75, 1.0, heat));
  t.height = 0.05 * Smooth(0.15, 0.5, crack) + 0.02 * rough * (1 - heat);
  return t;
}

Texel Marble(double u, double v) {
  const double fold = Fractal(u, v, 2, 5, 141) - 0.5, drift = Fractal(u, v, 3, 4, 147) - 0.5;
  // Veins run slantwise where a folded slope crosses whole numbers.
  const double wide = std::abs(Wrapped(u + v + 1.5 * fold));
  const double thin = std::abs(Wrapped(2 * u - v + 1.6 * drift + 0.6 * fold));
  Texel t;
  t.color = Mix(Hex(0xFBF8F3), Hex(0xD3D2D9), Smooth(0.28, 0.02, wide) * 0.8);
  t.color = Mix(t.color, Hex(0x6F7686), 0.8 * Smooth(0.030, 0.0, wide));
  t.color =
      Mix(t.color, Hex(0xC2A067), 0.75 * Smooth(0.035, 0.0, thin) * Smooth(-0.15, 0.1, drift));
  t.shine = 0.2;
  return t;
}

Texel StoneWall(double u, double v) {
  const double bend = 0.04 * (Fractal(u, v, 5, 3, 161) - 0.5);
  const Pebble stone = Pebbles(u + bend, v - bend, 4, 165);
  const double gap = stone.second - stone.nearest;
  const double rough = Fractal(u, v, 10, 4, 169) - 0.5;
  Texel t;
  t.color = Mix(Hex(0xA7A19A), Hex(0xCFC6B6), stone.id);
  if (Part(stone.id * 7.3) < 0.3) t.color = Hex(0x98A6B0);
  t.color = Mix(Hex(0x5C564F), t.color * (1 + 0.30 * rough), Smooth(0.06, 0.14, gap));
  t.height = 0.055 * Smooth(0.04, 0.40, gap) + 0.012 * rough;
  t.shine = 0.05;
  return t;
}

Texel Planks(double u, double v) {
  const int plank = static_cast<int>(u * 4);
  const double across = Part(u * 4);
  const double shift = Hash(plank, 0, 171);
  const double gap = std::min(across, 1 - across) / 4;
  const double butt = std::abs(Wrapped(v + shift));
  const double wander = 0.10 * (Fractal(u, v, 3, 2, 175) - 0.5);
  const double rings = Part((across + wander * 5 + 0.3 * Fractal(u, v, 2, 2, 179)) * 4 + shift * 9);
  const double fibre = Fractal(u * 6, v + shift, 5, 3, 183) - 0.5;
  Texel t;
  t.color = Mix(Hex(0xC98B4E), Hex(0xE5B273), Hash(plank, 1, 171));
  t.color = t.color * (0.86 + 0.16 * Smooth(0, 1, rings) + 0.25 * fibre);
  const double nail = Circle({std::abs(across - 0.5) / 4, butt}, {0.075, 0.035}, 0.010);
  t.color = Mix(t.color, Hex(0x5A4632), Cover(nail, 0.005));
  const double seam = std::min(gap, butt);
  t.color = Mix(Hex(0x4F2F16), t.color, Smooth(0.003, 0.010, seam));
  t.height = 0.014 * Smooth(0, 0.018, seam) + 0.006 * fibre - 0.004 * Cover(nail, 0.005);
  t.shine = 0.08;
  return t;
}

Texel Water(double u, double v) {
  const double bend = 0.10 * (Fractal(u, v, 3, 3, 191) - 0.5);
  const Pebble cell = Pebbles(u + bend, v - bend, 4, 195);
  const double light = Smooth(0.34, 0.0, cell.second - cell.nearest);
  const double swell = Fractal(u, v, 3, 3, 199);
  Texel t;
  t.color = Mix(Hex(0x1C7FD0), Hex(0x46BDEB), Smooth(0.3, 0.7, swell));
  t.color = Mix(t.color, Hex(0xD6F8FF), 0.85 * light * light);
  t.height = 0.04 * swell;
  t.shine = 0.5;
  return t;
}

}  // namespace

Pictures GroundTextures() {
  return {{"grass.bmp", BakeTile(kSize, Grass)},
          {"sand.bmp", BakeTile(kSize, Sand)},
          {"lava.bmp", BakeTile(kSize, Lava)},
          {"marble.bmp", BakeTile(kSize, Marble)},
          {"stone wall.bmp", BakeTile(kSize, StoneWall)},
          {"wood planks.bmp", BakeTile(kSize, Planks)},
          {"water.bmp", BakeTile(kSize, Water)}};
}

}  // namespace art
