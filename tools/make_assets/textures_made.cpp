// Brick, concrete, roads, tiles and paint.
#include <algorithm>
#include <cmath>

#include "tools/make_assets/noise.h"
#include "tools/make_assets/shapes.h"
#include "tools/make_assets/textures.h"

namespace art {
namespace {

constexpr int kSize = 128;

Texel Concrete(double u, double v) {
  const double blotch = Fractal(u, v, 3, 4, 201) - 0.5;
  const double grain = Fractal(u, v, 24, 3, 207) - 0.5;
  const Pebble pit = Pebbles(u, v, 9, 211);
  const double hole = Smooth(0.16, 0.09, pit.nearest) * Smooth(0.6, 0.7, pit.id);
  const double joint = std::min(std::abs(Wrapped(u)), std::abs(Wrapped(v)));
  Texel t;
  t.color = Hex(0xC6C4BE) * (1 + 0.30 * blotch + 0.22 * grain);
  t.color =
      Mix(t.color, Hex(0x7B7974), 0.85 * Smooth(0.016, 0.008, joint) + 0.6 * hole * (joint > 0.02));
  t.height = 0.016 * Smooth(0.004, 0.022, joint) - 0.012 * hole + 0.006 * grain + 0.01 * blotch;
  return t;
}

Texel Brick(double u, double v) {
  const int row = static_cast<int>(v * 6);
  const double along = u * 3 + 0.5 * (row % 2);
  const double wear = 0.02 * (Fractal(u, v, 12, 3, 221) - 0.5);
  const double joint = std::min(std::abs(Wrapped(v * 6)) / 6, std::abs(Wrapped(along)) / 3) + wear;
  const double rough = Fractal(u, v, 16, 3, 225) - 0.5;
  const double tone = Hash(static_cast<int>(along) % 3, row, 229);
  Texel t;
  t.color = Mix(Hex(0xB9502F), Hex(0xE07B4E), tone) * (1 + 0.35 * rough);
  const double face = Smooth(0.010, 0.016, joint);
  t.color = Mix(Hex(0xE3DACB) * (1 + 0.2 * rough), t.color, face);
  t.height = 0.016 * Smooth(0.006, 0.024, joint) + 0.008 * rough;
  return t;
}

Texel Asphalt(double u, double v) {
  const double grit = Fractal(u, v, 28, 3, 241) - 0.5;
  const double worn = Fractal(u, v, 3, 3, 247) - 0.5;
  Texel t;
  t.color = Hex(0x7E828A) * (1 + 0.45 * grit + 0.22 * worn);
  t.height = 0.010 * grit;
  return t;
}

void AddPaint(Texel& t, Color paint, double distance, double u, double v) {
  const double wear = Smooth(0.26, 0.40, Fractal(u, v, 14, 3, 251));
  const double cover = Cover(distance, 0.006) * (0.35 + 0.65 * wear);
  t.color = Mix(t.color, paint, cover);
  t.height += 0.002 * cover;
}

Texel StripedRoad(double u, double v) {
  Texel t = Asphalt(u, v);
  AddPaint(t, Hex(0xFFFFFF), std::abs(std::abs(u - 0.5) - 0.445) - 0.022, u, v);
  AddPaint(t, Hex(0xFFD22E), Box({u, v}, {0.5, 0.5}, {0.035, 0.27}, 0.01), u, v);
  return t;
}

Texel HazardStripes(double u, double v) {
  const double band = Part((u + v) * 2);
  const double edge = std::min({std::abs(band), std::abs(band - 0.5), std::abs(band - 1)});
  const double grime = Fractal(u, v, 6, 4, 261) - 0.5;
  Texel t;
  t.color = (band < 0.5 ? Hex(0xFFCB1F) : Hex(0x35363B)) * (1 + 0.30 * grime);
  t.color = t.color * (0.75 + 0.25 * Smooth(0, 0.03, edge));
  t.height = (band < 0.5 ? 0.01 : 0.0) * Smooth(0, 0.05, edge) + 0.006 * grime;
  t.shine = 0.15;
  return t;
}

Texel WhiteTiles(double u, double v) {
  const double joint = std::min(std::abs(Wrapped(u * 3)), std::abs(Wrapped(v * 3))) / 3;
  const double tone = Hash(static_cast<int>(u * 3), static_cast<int>(v * 3), 271);
  Texel t;
  t.color = Mix(Hex(0xFAFBFC), Hex(0xE4EAF0), tone);
  t.color = Mix(Hex(0x8E9AA6), t.color, Smooth(0.008, 0.014, joint));
  t.height = 0.020 * Smooth(0.006, 0.032, joint);
  t.shine = 0.4;
  return t;
}

}  // namespace

Pictures MadeTextures() {
  return {{"concrete.bmp", BakeTile(kSize, Concrete)},
          {"brick.bmp", BakeTile(kSize, Brick)},
          {"road.bmp", BakeTile(kSize, Asphalt)},
          {"road stripes.bmp", BakeTile(kSize, StripedRoad)},
          {"hazard stripes.bmp", BakeTile(kSize, HazardStripes)},
          {"white tiles.bmp", BakeTile(kSize, WhiteTiles)}};
}

}  // namespace art
