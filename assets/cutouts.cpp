// Pictures whose magenta pixels are see-through: no half tones, so edges are cut or dithered.
#include <algorithm>
#include <array>
#include <cmath>

#include "assets/effects.h"
#include "assets/shapes.h"

namespace art {
namespace {

constexpr uint32_t kClear = 0xFFFF00FF;

Image Spark() {
  constexpr int kSize = 32;
  Image image(kSize, kSize, kClear);
  for (int y = 0; y < kSize; ++y) {
    for (int x = 0; x < kSize; ++x) {
      const Point p{(x + 0.5) / kSize - 0.5, (y + 0.5) / kSize - 0.5};
      const double star = Star(p, {}, 0.48, 0.19, 5);
      if (star > 0) continue;
      const double away = std::hypot(p.x, p.y);
      // Grey towards the tips: the colour it is multiplied with looks deeper there.
      image.At(x, y) = ToPixel(Mix(Hex(0xFFFFFF), Hex(0xA8A8A8), Smooth(0.12, 0.44, away)));
    }
  }
  return image;
}

// The order in which a 4 by 4 patch fills with dots, each as large as can be seen.
constexpr std::array<int, 16> kDots{0, 8, 2, 10, 12, 4, 14, 6, 3, 11, 1, 9, 15, 7, 13, 5};

Image Shadow() {
  constexpr int kSize = 64, kDot = 2;
  Image image(kSize, kSize, kClear);
  for (int y = 0; y < kSize; ++y) {
    for (int x = 0; x < kSize; ++x) {
      const Point p{(x + 0.5) / kSize, (y + 0.5) / kSize};
      const double rim = Box(p, {0.5, 0.5}, {0.42, 0.44}, 0.24);
      // Whole in the middle, thinning out towards the rim.
      const double dark = Smooth(0.05, -0.30, rim);
      const int dot = kDots[static_cast<size_t>(y / kDot % 4 * 4 + x / kDot % 4)];
      if (dark > (dot + 0.5) / 16) image.At(x, y) = ToPixel(Hex(0x3C3C42));
    }
  }
  return image;
}

constexpr double kTopEdge = 0.62;  // where the block's front corner stands

// A block seen from a corner, checkered on top.
Color Block(Color c, Point p) {
  const std::array<Point, 4> top{{{0.5, 0.40}, {0.92, kTopEdge}, {0.5, 0.84}, {0.08, kTopEdge}}};
  const std::array<Point, 4> left{{{0.08, kTopEdge}, {0.5, 0.84}, {0.5, 0.97}, {0.08, 0.75}}};
  const std::array<Point, 4> right{{{0.92, kTopEdge}, {0.5, 0.84}, {0.5, 0.97}, {0.92, 0.75}}};
  const double outline = std::min({Convex(p, top), Convex(p, left), Convex(p, right)});
  c = Mix(c, Hex(0x14264F), Cover(outline - 0.018, 0.008));
  c = Mix(c, Hex(0x2F62C9), Cover(Convex(p, left), 0.006));
  c = Mix(c, Hex(0x1F4496), Cover(Convex(p, right), 0.006));
  // Back from the slanted view to the block's own two directions.
  const double across = (p.x - 0.5) / 0.84, down = (p.y - 0.40) / 0.44;
  const int squares = static_cast<int>(std::floor((down + across) * 3)) +
                      static_cast<int>(std::floor((down - across) * 3));
  return Mix(c, squares % 2 == 0 ? Hex(0xF4F8FF) : Hex(0x6FA8F5), Cover(Convex(p, top), 0.006));
}

Color IconColor(double x, double y) {
  const Point p{x, y};
  Color c = Mix(Hex(0x2B7BE0), Hex(0xBFE6FF), Smooth(0, 0.8, y));
  c = Block(c, p);
  const double shade = std::hypot((x - 0.5) / 0.20, (y - 0.63) / 0.09) - 1;
  c = Mix(c, c * 0.45, 0.8 * Cover(shade, 0.25));
  const Point centre{0.5, 0.365};
  const double star = Star(p, centre, 0.290, 0.135, 5);
  c = Screen(c, Hex(0xFFE27A) * (0.6 * std::exp(-std::max(star, 0.0) * 16)));
  c = Mix(c, Hex(0x7A3D00), Cover(star - 0.026, 0.008));
  const bool bright = Part(std::atan2(x - centre.x, centre.y - y) * 5 / (2 * kPi)) > 0.5;
  const Color gold = Mix(bright ? Hex(0xFFE14A) : Hex(0xFFAE12), Hex(0xFFF6B8),
                         Smooth(0.22, 0.0, std::hypot(x - centre.x, y - centre.y)));
  return Mix(c, gold, Cover(star, 0.006));
}

}  // namespace

Pictures CutOuts() { return {{"starParticle.bmp", Spark()}, {"shadowimage.bmp", Shadow()}}; }

Pictures Icon() {
  constexpr int kSize = 64;
  Image image = BakePicture(kSize, kSize, 4, IconColor);
  for (int i = 0; i < kSize * kSize; ++i) {
    uint32_t& pixel = image.At(i % kSize, i / kSize);
    const int row = i / kSize;
    const Point p{(i % kSize + 0.5) / kSize, (row + 0.5) / kSize};
    const double solid = Cover(Box(p, {0.5, 0.5}, {0.49, 0.49}, 0.16), 0.010);
    pixel = (pixel & 0x00FFFFFFU) | static_cast<uint32_t>(std::lround(solid * 255)) << 24;
  }
  return {{"icon.png", std::move(image)}};
}

}  // namespace art
