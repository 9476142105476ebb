// Northern lights over snowy mountains.
#include <algorithm>
#include <cmath>

#include "assets/backdrops.h"
#include "assets/noise.h"
#include "assets/scenery.h"
#include "assets/shapes.h"

namespace art {
namespace {

// A hanging curtain of light: sharp at its lower hem, fading upwards.
Color Curtain(Color sky, double x, double y, double hem, double tall, Color low, Color high,
              int seed) {
  const double sway =
      hem + 0.16 * (Clouds(x * 1.3, 0.5, 3, seed) - 0.5) + 0.05 * std::sin(x * 5 + seed);
  const double up = (sway - y) / tall;
  const double rays = 0.45 + 0.55 * Clouds(x * 16 + 2 * y, y * 0.8, 3, seed + 4) * 1.6;
  const double strength = Smooth(-0.08, 0.08, up) * std::exp(-std::max(up, 0.0) * 2.6);
  const double fold = Smooth(0.30, 0.62, Clouds(x * 2.1, 7.5, 2, seed + 8));
  return Screen(sky, Mix(low, high, Smooth(0.05, 0.8, up)) * Clamp01(strength * rays * fold));
}

Color Moon(Color sky, Point p, Point centre, double radius) {
  const double away = std::hypot(p.x - centre.x, p.y - centre.y);
  sky = Screen(sky, Hex(0xBFD4FF) * (0.55 * std::exp(-std::max(0.0, away - radius) * 14)));
  const double maria = Clouds(p.x * 14, p.y * 14, 4, 501);
  const Pebble crater = Pebbles(p.x * 2, p.y * 2, 11, 505);
  Color face = Mix(Hex(0xC3C8D4), Hex(0xFDFBF0), Smooth(0.35, 0.6, maria));
  face = face * (1 - 0.12 * Smooth(0.30, 0.2, crater.nearest));
  const double dark = Smooth(-0.9, 1.0, ((centre.x - p.x) + (centre.y - p.y)) / radius);
  return Mix(sky, face * (0.72 + 0.3 * dark), Cover(away - radius, 0.0015));
}

struct Summit {
  double apex;    // its place across
  double height;  // of its top
  double above;   // how far its slope stands above the point asked for
};

// The foremost mountain at a point `up` above the foot of a row; lower ones stand in front.
Summit MountainAt(double x, double up, double width, double tall, int seed) {
  const int cell = static_cast<int>(std::floor(x / width));
  Summit best{0, 9, -9};
  for (int i = cell - 2; i <= cell + 2; ++i) {
    const double apex = (i + 0.15 + 0.7 * Hash(i, 0, seed)) * width;
    const double height = tall * (0.45 + 0.55 * Hash(i, 1, seed));
    const double steep = 0.55 + 0.35 * Hash(i, x < apex ? 2 : 3, seed);
    const double above = height - steep * std::abs(x - apex) - up;
    const bool covers = above > 0;
    if (covers ? best.above <= 0 || height < best.height : above > best.above) {
      best = {apex, height, above};
    }
  }
  return best;
}

// One row of mountains: lit from the moon's side, snow running down in tongues.
Color SnowyRange(Color c, double x, double y, double near) {
  const int seed = 571 + static_cast<int>(near * 16);
  const double rough = 0.030 * (Clouds(x * 14 + 9 * near, 4 * near, 4, seed + 5) - 0.5);
  const double foot = 0.84 + 0.14 * near;
  const double up = foot - y - rough;
  const Summit top = MountainAt(x + 5 * near, up, 0.30 - 0.06 * near, 0.27 - 0.07 * near, seed);
  if (top.above < -0.004) return c;
  const double drop = top.height - foot + y;
  const double crag = Clouds(x * 9 + 5 * near, y * 9, 4, seed + 6) - 0.5;
  // The ridge between light and shade winds down from the summit.
  const double ridge = x + 5 * near - top.apex - 0.35 * drop * (1.6 * crag + 0.15);
  const double lit = Smooth(0.006, -0.006, ridge);
  const double tongue = 0.075 + 0.16 * crag + 0.05 * (Clouds(x * 40, y * 6, 2, seed + 7) - 0.5);
  const double snow = Smooth(tongue + 0.008, tongue - 0.008, drop);
  const Color rock = Mix(Hex(0x17455F), Hex(0x2F7389), lit);
  const Color white = Mix(Hex(0x4F8DA8), Hex(0xC4EEE8), lit);
  const Color haze = Mix(Hex(0x1D6A78), Hex(0x0E2A4A), near);
  const double veil = 0.42 - 0.25 * near + 0.55 * Smooth(0.04, 0.24, drop);
  return Mix(c, Mix(Mix(rock, white, snow), haze, veil), Cover(-top.above, 0.0014));
}

}  // namespace

Color NorthernNight(double x, double y) {
  Color c = Gradient(y, {{0.0, Hex(0x061430)}, {0.4, Hex(0x0C2F55)}, {0.75, Hex(0x1D6077)}});
  const double milky = Clouds(x * 2 + y, y * 3 - x, 5, 541);
  c = Screen(c, Hex(0x3C4F8C) * (0.55 * Smooth(0.4, 0.8, milky) * Smooth(0.6, 0.1, y)));
  c = Stars(c, x, y, 545);
  c = Curtain(c, x, y, 0.56, 0.42, Hex(0x2FE58C), Hex(0x3B5BD6), 551);
  c = Curtain(c, x + 4, y, 0.42, 0.36, Hex(0x38D9B8), Hex(0xA44BD0), 561);
  c = Moon(c, {x, y}, {0.24, 0.17}, 0.062);
  for (int i = 0; i < 3; ++i) c = SnowyRange(c, x, y, i / 2.0);
  return c;
}

}  // namespace art
