// Brick, concrete, roads, tiles and paint.
#include <algorithm>
#include <cmath>

#include "assets/noise.h"
#include "assets/shapes.h"
#include "assets/textures.h"

namespace art {
namespace {

Texel Concrete(double u, double v) {
  const double blotch = Fractal(u, v, 3, 2, 201) - 0.5;
  const double joint = std::min(std::abs(Wrapped(u)), std::abs(Wrapped(v)));
  Texel t;
  t.color = Hex(0xC6C4BE) * (1 + 0.28 * blotch);
  t.color = Mix(t.color, Hex(0x8F8D87), 0.9 * Smooth(0.055, 0.025, joint));
  t.height = 0.02 * Smooth(0.0, 0.07, joint) + 0.01 * blotch;
  return t;
}

Texel Brick(double u, double v) {
  constexpr int kRows = 4, kColumns = 2;
  const int row = static_cast<int>(v * kRows);
  const double along = u * kColumns + 0.5 * (row % 2);
  const double joint =
      std::min(std::abs(Wrapped(v * kRows)) / kRows, std::abs(Wrapped(along)) / kColumns);
  const double tone = Hash(static_cast<int>(along) % kColumns, row, 229);
  Texel t;
  t.color = Mix(Hex(0xBC5633), Hex(0xDB764B), tone);
  t.color = Mix(Hex(0xD9C2AC), t.color, Smooth(0.018, 0.05, joint));
  t.height = 0.02 * Smooth(0.01, 0.07, joint);
  return t;
}

Texel Asphalt(double u, double v) {
  const double grit = Fractal(u, v, 7, 1, 241) - 0.5;
  const double worn = Fractal(u, v, 3, 2, 247) - 0.5;
  Texel t;
  t.color = Hex(0x7E828A) * (1 + 0.16 * grit + 0.20 * worn);
  return t;
}

void AddPaint(Texel& t, Color paint, double distance, double u, double v) {
  const double wear = Smooth(0.2, 0.5, Fractal(u, v, 5, 2, 251));
  const double cover = Cover(distance, 0.008) * (0.7 + 0.3 * wear);
  t.color = Mix(t.color, paint, cover);
  t.height += 0.002 * cover;
}

Texel StripedRoad(double u, double v) {
  Texel t = Asphalt(u, v);
  AddPaint(t, Hex(0xFFFFFF), std::abs(std::abs(u - 0.5) - 0.44) - 0.028, u, v);
  AddPaint(t, Hex(0xFFD22E), Box({u, v}, {0.5, 0.5}, {0.04, 0.27}, 0.01), u, v);
  return t;
}

Texel HazardStripes(double u, double v) {
  const double band = Part((u + v) * 2);
  const double edge = std::min({std::abs(band), std::abs(band - 0.5), std::abs(band - 1)});
  const double grime = Fractal(u, v, 3, 2, 261) - 0.5;
  Texel t;
  t.color = (band < 0.5 ? Hex(0xFFCB1F) : Hex(0x35363B)) * (1 + 0.2 * grime);
  t.height = (band < 0.5 ? 0.012 : 0.0) * Smooth(0, 0.08, edge);
  t.shine = 0.15;
  return t;
}

Texel WhiteTiles(double u, double v) {
  const double joint = std::min(std::abs(Wrapped(u * 2)), std::abs(Wrapped(v * 2))) / 2;
  const double tone = Hash(static_cast<int>(u * 2), static_cast<int>(v * 2), 271);
  Texel t;
  t.color = Mix(Hex(0xF6F8FA), Hex(0xE2E8EF), tone);
  t.color = Mix(Hex(0xA9B3BE), t.color, Smooth(0.02, 0.05, joint));
  t.height = 0.02 * Smooth(0.01, 0.07, joint);
  t.shine = 0.3;
  return t;
}

}  // namespace

Pictures MadeTextures() {
  return {{"concrete.bmp", BakeFloor(Concrete)},
          {"brick.bmp", BakeFloor(Brick)},
          {"road.bmp", BakeFloor(Asphalt)},
          {"road stripes.bmp", BakeTile(kWideTile, StripedRoad)},
          {"hazard stripes.bmp", BakeTile(kUnitTile, HazardStripes)},
          {"white tiles.bmp", BakeFloor(WhiteTiles)}};
}

}  // namespace art
