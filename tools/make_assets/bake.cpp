#include "tools/make_assets/bake.h"

#include <cmath>

namespace art {
namespace {

// Samples along each side of a pixel: thin joints survive the small size.
constexpr int kTileSamples = 3;

struct Sheet {
  int side;
  std::vector<Texel> texels;

  const Texel& At(int x, int y) const {
    const int wx = (x + side) % side, wy = (y + side) % side;
    return texels[static_cast<size_t>(wy) * static_cast<size_t>(side) + static_cast<size_t>(wx)];
  }
};

// std::pow took a quarter of the program's time here.
double Power24(double x) {
  const double x3 = x * x * x, x6 = x3 * x3, x12 = x6 * x6;
  return x12 * x12;
}

Color Lit(const Sheet& sheet, int x, int y) {
  const Texel& here = sheet.At(x, y);
  const double slopeX = (sheet.At(x + 1, y).height - sheet.At(x - 1, y).height) * sheet.side / 2;
  const double slopeY = (sheet.At(x, y + 1).height - sheet.At(x, y - 1).height) * sheet.side / 2;
  const double length = std::sqrt(slopeX * slopeX + slopeY * slopeY + 1);
  // The light stands at the upper left, in front of the tile.
  constexpr double lx = -0.42, ly = -0.53, lz = 0.737;
  const double facing = (-slopeX * lx - slopeY * ly + lz) / length;
  const double glint = Power24(Clamp01((-slopeX * lx * 0.6 - slopeY * ly * 0.6 + 0.93) / length));
  // Level ground keeps its own colour.
  const double light = std::clamp(0.25 + 0.75 * facing / lz, 0.3, 1.5);
  return here.color * light + Color{1, 1, 1} * (here.shine * glint);
}

}  // namespace

Image BakeTile(int size, const TileFunction& surface) {
  Sheet sheet{size * kTileSamples, {}};
  for (int y = 0; y < sheet.side; ++y) {
    for (int x = 0; x < sheet.side; ++x) {
      sheet.texels.push_back(surface((x + 0.5) / sheet.side, (y + 0.5) / sheet.side));
    }
  }
  Image image(size, size);
  for (int y = 0; y < size; ++y) {
    for (int x = 0; x < size; ++x) {
      Color sum;
      for (int i = 0; i < kTileSamples * kTileSamples; ++i) {
        const int sx = x * kTileSamples + i % kTileSamples;
        const int sy = y * kTileSamples + i / kTileSamples;
        sum = sum + Lit(sheet, sx, sy);
      }
      image.At(x, y) = ToPixel(sum * (1.0 / (kTileSamples * kTileSamples)));
    }
  }
  return image;
}

Image BakePicture(int width, int height, int samples, const PictureFunction& paint) {
  Image image(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      Color sum;
      for (int i = 0; i < samples * samples; ++i) {
        const int column = i % samples, row = i / samples;
        const double sx = x + (column + 0.5) / samples;
        const double sy = y + (row + 0.5) / samples;
        sum = sum + paint(sx / height, sy / height);
      }
      image.At(x, y) = ToPixel(sum * (1.0 / (samples * samples)));
    }
  }
  return image;
}

}  // namespace art
