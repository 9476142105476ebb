// A fireball that swells, cools to smoke and breaks apart.
#include <algorithm>
#include <cmath>
#include <vector>

#include "assets/effects.h"
#include "assets/noise.h"
#include "assets/scenery.h"
#include "assets/shapes.h"

namespace art {
namespace {

constexpr int kSize = 64, kPictures = 16, kBurning = 14;
constexpr uint32_t kClear = 0xFF000000;

struct Step {
  int x, y;
};

// How deep inside the fire a point lies: above 0 inside, about 1 in the middle.
double Depth(Point p, double age) {
  const double radius = 0.14 + 0.31 * (1 - std::pow(1 - age, 2.6));
  const double away = std::hypot(p.x, p.y) / radius;
  // Billows swell with the fire, so the outline stays alike from picture to picture.
  const double grain = 0.45 / radius;
  const double bend = 0.25 * radius * (Clouds(p.x * grain * 5, p.y * grain * 5, 2, 705) - 0.5);
  const Pebble billow = Pebbles((p.x + bend) * grain, (p.y - bend) * grain, 5, 703);
  const double puff = 0.55 - billow.nearest;
  return 1 - away + 0.48 * puff * Smooth(0.1, 0.8, away);
}

Color Glow(double heat) {
  return Gradient(heat, {{-0.15, Hex(0x2E2725)},
                         {0.12, Hex(0x5E2A1C)},
                         {0.28, Hex(0xC02A08)},
                         {0.46, Hex(0xFF6A08)},
                         {0.64, Hex(0xFFB41E)},
                         {0.82, Hex(0xFFF08A)},
                         {1.00, Hex(0xFFFFFF)}});
}

uint32_t FirePixel(int x, int y, int picture) {
  const double age = (picture - 1.0) / (kBurning - 1.0);
  const Point p{(x + 0.5) / kSize - 0.5, (y + 0.5) / kSize - 0.5};
  const double depth = Depth(p, age);
  // Late in its life the smoke thins from everywhere at once.
  const double holes = Clouds(p.x * 6 + 9, p.y * 6 - age, 2, 713);
  const double gone = Smooth(0.55, 1.12, age);
  const double body = depth - gone * (0.05 + 1.45 * holes);
  if (body <= 0.02 || std::hypot(p.x, p.y) > 0.49) return kClear;
  const double flicker = Clouds(p.x * 9, p.y * 9 - 2 * age, 3, 721) - 0.5;
  const double heat =
      (1.05 - 0.25 * age) * depth + 0.42 - 0.78 * age - 0.45 * gone + 0.75 * flicker * (0.35 + age);
  return ToPixel(Glow(std::max(heat, 0.02 + 0.45 * flicker)));
}

// Clear pixels the outside cannot reach would look like specks: they become smoke.
void FillHoles(Image& image) {
  Image reached(kSize, kSize, 0);
  std::vector<Step> open{{0, 0}};
  while (!open.empty()) {
    const Step at = open.back();
    open.pop_back();
    if (at.x < 0 || at.y < 0 || at.x >= kSize || at.y >= kSize) continue;
    if (reached.At(at.x, at.y) != 0 || image.At(at.x, at.y) != kClear) continue;
    reached.At(at.x, at.y) = 1;
    for (const Step way : {Step{1, 0}, {-1, 0}, {0, 1}, {0, -1}}) {
      open.push_back({at.x + way.x, at.y + way.y});
    }
  }
  for (size_t i = 0; i < image.pixels.size(); ++i) {
    const bool hole = image.pixels[i] == kClear && reached.pixels[i] == 0;
    if (hole) image.pixels[i] = ToPixel(Glow(0));
  }
}

}  // namespace

Pictures Explosion() {
  Pictures pictures;
  for (int picture = 1; picture <= kPictures; ++picture) {
    Image image(kSize, kSize, kClear);
    for (int i = 0; picture <= kBurning && i < kSize * kSize; ++i) {
      image.At(i % kSize, i / kSize) = FirePixel(i % kSize, i / kSize, picture);
    }
    FillHoles(image);
    pictures.push_back({"explode" + std::to_string(picture) + ".bmp", std::move(image)});
  }
  return pictures;
}

}  // namespace art
