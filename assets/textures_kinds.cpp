// Looks that tell the kinds of blocks apart at a glance, even twenty pixels wide.
#include <algorithm>
#include <array>
#include <cmath>

#include "assets/noise.h"
#include "assets/shapes.h"
#include "assets/textures.h"

namespace art {
namespace {

constexpr Point kMiddle{0.5, 0.5};

double ToBorder(double u, double v) { return 0.5 - std::max(std::abs(u - 0.5), std::abs(v - 0.5)); }

Texel DefaultTile(double u, double v) {
  const double groove = Box({u, v}, kMiddle, {0.35, 0.35}, 0.09);
  Texel t;
  t.color = Mix(Hex(0xD0D8E4), Hex(0xA9BDD8), Cover(groove, 0.02) * (0.75 + 0.25 * v));
  t.color = t.color * (1 - 0.35 * Cover(std::abs(groove) - 0.03, 0.015));
  t.height = 0.030 * Smooth(0, 0.07, ToBorder(u, v)) - 0.012 * Cover(groove + 0.02, 0.03);
  t.shine = 0.20;
  return t;
}

Texel JumpPad(double u, double v) {
  const double away = Circle({u, v}, kMiddle, 0);
  const double wave = 0.5 + 0.5 * std::cos((away - 0.30) * 2 * kPi / 0.11);
  const double ring =
      Smooth(0.29, 0.31, away) * Smooth(0.47, 0.45, away) * Smooth(0.35, 0.65, wave);
  Texel t;
  t.color = Mix(Hex(0x3D7BF2), Hex(0x1B49C4), Smooth(0.25, 0.7, away));
  t.color = Mix(t.color, Hex(0x7FC0FF), 0.75 * ring);
  t.color = Mix(t.color, Hex(0x0C2370), 0.8 * Cover(away - 0.285, 0.012));
  const Color dot =
      Mix(Hex(0xFFF27A), Hex(0xFFC400), Smooth(0, 0.25, std::hypot(u - .44, v - .43)));
  t.color = Mix(t.color, dot, Cover(away - 0.25, 0.008));
  const double dome = std::sqrt(std::max(0.0, 1 - away * away / 0.0676));
  t.height = 0.03 * Smooth(0, 0.04, ToBorder(u, v)) + 0.055 * dome + 0.008 * ring;
  t.shine = 0.55;
  return t;
}

Texel WinTile(double u, double v) {
  constexpr int kSquares = 4;
  const bool dark = (static_cast<int>(u * kSquares) + static_cast<int>(v * kSquares)) % 2 != 0;
  const double banner = Box({u, v}, kMiddle, {0.47, 0.235}, 0.07);
  const Point p{u - 0.5, v - 0.5};
  constexpr double kHigh = 0.29;
  const double word = std::min({Letter('W', {(p.x + 0.225) / kHigh, p.y / kHigh}),
                                Letter('I', {(p.x - 0.020) / kHigh, p.y / kHigh}),
                                Letter('N', {(p.x - 0.225) / kHigh, p.y / kHigh})}) *
                          kHigh -
                      0.033;
  Texel t;
  t.color = dark ? Hex(0x23262E) : Hex(0xF7F7F2);
  t.color = Mix(t.color, Hex(0x15181F), Cover(banner, 0.006));
  const Color gold = Mix(Hex(0xFFE45C), Hex(0xFF9F0F), Smooth(0.3, 0.72, v));
  t.color = Mix(t.color, gold, Cover(banner + 0.014, 0.006));
  t.color = Mix(t.color, Hex(0x7A1500), Cover(word - 0.016, 0.005));
  t.color = Mix(t.color, Hex(0xFFFFFF), Cover(word, 0.005));
  t.height = 0.018 * Cover(banner + 0.01, 0.02) + 0.008 * Cover(word - 0.01, 0.012);
  t.shine = 0.35;
  return t;
}

Texel FallingTile(double u, double v) {
  const double bend = 0.03 * (Fractal(u, v, 3, 2, 31) - 0.5);
  const Pebble shard = Pebbles(u + bend, v - bend, 2, 35);
  const double crack = shard.second - shard.nearest;
  const double frame = Cover(ToBorder(u, v) - 0.08, 0.01);
  Texel t;
  t.color = Mix(Hex(0xFF4A3A), Hex(0xE22820), shard.id) * (0.94 + 0.12 * Fractal(u, v, 4, 1, 39));
  t.color = Mix(t.color, Hex(0xFF7A1E), 0.7 * Smooth(0.34, 0.10, crack));
  t.color = Mix(t.color, Hex(0x6A120C), Smooth(0.20, 0.08, crack));
  const bool stripe = Part((u + v) * 2) < 0.5;
  t.color = Mix(t.color, stripe ? Hex(0xFFD23A) : Hex(0x4A0906), frame);
  t.height = frame > 0.5 ? 0.03 : 0.022 * Smooth(0.05, 0.25, crack);
  t.shine = 0.2;
  return t;
}

Texel IceTile(double u, double v) {
  const double bend = 0.16 * (Fractal(u, v, 2, 2, 51) - 0.5);
  const Pebble facet = Pebbles(u + bend, v - bend, 2, 57);
  const double crack = facet.second - facet.nearest;
  const double frost = Fractal(u + v, v - u, 2, 2, 61);
  const double glare = Smooth(0.10, 0.16, Part(u + v + 0.06 * frost)) *
                       Smooth(0.36, 0.30, Part(u + v + 0.06 * frost));
  const double thin = Smooth(0.57, 0.60, Part(u + v)) * Smooth(0.66, 0.63, Part(u + v));
  Texel t;
  t.color = Mix(Hex(0x7CCBF2), Hex(0xC4ECFD), Smooth(0.35, 0.65, frost));
  t.color = t.color * (0.92 + 0.10 * facet.id);
  t.color =
      Mix(t.color, Hex(0x4FA4DC), 0.5 * Smooth(0.08, 0.14, crack) * Smooth(0.30, 0.14, crack));
  t.color = Mix(t.color, Hex(0xFFFFFF), 0.6 * Smooth(0.12, 0.02, crack));
  t.color = Screen(t.color, Hex(0xFFFFFF) * (0.45 * glare + 0.3 * thin));
  t.height = 0.010 * frost;
  t.shine = 0.3;
  return t;
}

Texel CrossTile(double u, double v) {
  const double grain = Fractal(u, v, 3, 2, 71) - 0.5;
  // Turned by an eighth, both bars lie along the axes.
  const double a = std::abs(u - v) / std::sqrt(2.0), b = std::abs(u + v - 1) / std::sqrt(2.0);
  const double cross =
      std::min(Box({a, b}, {}, {0.095, 0.43}, 0.03), Box({a, b}, {}, {0.43, 0.095}, 0.03));
  Texel t;
  t.color = Hex(0xB4B7BD) * (1 + 0.18 * grain);
  t.color = Mix(t.color, Hex(0x7B7E85), 0.8 * Cover(ToBorder(u, v) - 0.05, 0.01));
  t.color = Mix(t.color, Hex(0x4A1010), Cover(cross - 0.035, 0.01));
  t.color = Mix(t.color, Hex(0xF2211F) * (1 + 0.12 * grain), Cover(cross, 0.006));
  t.height = 0.018 * Smooth(0, 0.06, ToBorder(u, v)) + 0.016 * Cover(cross, 0.03);
  t.shine = 0.3;
  return t;
}

constexpr int kTurboPhases = 4;

Texel TurboTile(double u, double v, int phase) {
  const double tip = std::abs(u - 0.5);
  // Two arrows to a tile; a whole cycle moves them on by one arrow, up towards the far end.
  const double march = Part(2 * (v - 0.62 * tip) + static_cast<double>(phase) / kTurboPhases);
  const double arrow = Smooth(0.06, 0.09, march) * Smooth(0.56, 0.53, march);
  const double track = Cover(tip - 0.40, 0.006);
  Texel t;
  t.color = Mix(Hex(0x454B60), Hex(0x2A2E40), track);
  const double heat = Clamp01((march - 0.06) / 0.5);
  t.color = Mix(t.color, Mix(Hex(0xFFF6A0), Hex(0xFF6A00), heat), arrow * track);
  t.color = Screen(t.color, Hex(0xFF7A10) * (0.35 * track * (1 - arrow) * Smooth(1.0, 0.5, march)));
  const double lamp = Cover(Circle({tip, Wrapped(v * 4 + 0.5) / 4}, {0.452, 0}, 0.028), 0.008);
  t.color = Mix(t.color, Hex(0x5BF0FF), lamp);
  t.height = -0.012 * Cover(tip - 0.405, 0.012) + 0.010 * arrow * track + 0.01 * lamp;
  t.shine = 0.3;
  return t;
}

}  // namespace

Pictures KindTextures() {
  Pictures pictures{{"_default.bmp", BakeFloor(DefaultTile)},
                    {"Blue With Yellow Dot.bmp", BakeTile(kWideTile, JumpPad)},
                    {"_WIN.bmp", BakeTile(kWideTile, WinTile)},
                    {"red.bmp", BakeTile(kUnitTile, FallingTile)},
                    {"Ice2.bmp", BakeFloor(IceTile)},
                    {"Red Cross on Grey.bmp", BakeTile(kUnitTile, CrossTile)}};
  for (int phase = 0; phase < kTurboPhases; ++phase) {
    const auto draw = [phase](double u, double v) { return TurboTile(u, v, phase); };
    pictures.push_back(
        {"AnimationTest_" + std::to_string(phase) + ".bmp", BakeTile(kWideTile, draw)});
  }
  return pictures;
}

}  // namespace art
