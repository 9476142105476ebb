#include "assets/bake.h"

#include <algorithm>
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

using Colors = std::vector<Color>;

/// A quarter of each neighbour along x or y, across the borders.
Colors Smoothed(const Colors& from, int size, int dx, int dy) {
  const auto at = [&](int x, int y) {
    const int wx = (x + size) % size, wy = (y + size) % size;
    return from[static_cast<size_t>(wy) * static_cast<size_t>(size) + static_cast<size_t>(wx)];
  };
  Colors to;
  for (int y = 0; y < size; ++y) {
    for (int x = 0; x < size; ++x) {
      to.push_back(at(x, y) * 0.5 + (at(x - dx, y - dy) + at(x + dx, y + dy)) * 0.25);
    }
  }
  return to;
}

Color Average(const Sheet& sheet, int x, int y) {
  Color sum;
  for (int i = 0; i < kTileSamples * kTileSamples; ++i) {
    const int sx = x * kTileSamples + i % kTileSamples;
    const int sy = y * kTileSamples + i / kTileSamples;
    sum = sum + Lit(sheet, sx, sy);
  }
  return sum * (1.0 / (kTileSamples * kTileSamples));
}

/// The tile's colours before they become pixels.
Colors BakeColors(int size, const TileFunction& surface) {
  Sheet sheet{size * kTileSamples, {}};
  for (int y = 0; y < sheet.side; ++y) {
    for (int x = 0; x < sheet.side; ++x) {
      sheet.texels.push_back(surface((x + 0.5) / sheet.side, (y + 0.5) / sheet.side));
    }
  }
  Colors colors;
  for (int i = 0; i < size * size; ++i) colors.push_back(Average(sheet, i % size, i / size));
  colors = Smoothed(Smoothed(colors, size, 1, 0), size, 0, 1);
  // Tracks are seen from above their near end: along them pixels are rarer still.
  return Smoothed(colors, size, 0, 1);
}

Image ToImage(const Colors& colors, int size) {
  Image image(size, size);
  std::ranges::transform(colors, image.pixels.begin(), ToPixel);
  return image;
}

}  // namespace

Image BakeTile(int size, const TileFunction& surface) {
  return ToImage(BakeColors(size, surface), size);
}

Image BakeFloor(const TileFunction& surface) {
  constexpr double kSoftened = 0.45;
  Colors colors = BakeColors(kUnitTile, surface);
  Color mean;
  for (const Color& color : colors)
    mean = mean + color * (1.0 / static_cast<double>(colors.size()));
  for (Color& color : colors) color = Mix(color, mean, kSoftened);
  return ToImage(colors, kUnitTile);
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
