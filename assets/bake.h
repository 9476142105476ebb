// From a function of the place to a finished picture.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "assets/color.h"
#include "platform/image.h"

namespace art {

/// One point of a lit surface. `height` is counted in widths of the tile.
struct Texel {
  Color color;
  double height = 0;
  double shine = 0;
};

using TileFunction = std::function<Texel(double u, double v)>;
using PictureFunction = std::function<Color(double x, double y)>;

/// Sides of tiles in pixels. Seen from the driving camera a world unit is about 22 × 14 pixels and
/// nothing filters what is shrunk: what is drawn finer shimmers.
inline constexpr int kUnitTile = 32;  ///< repeats each world unit
inline constexpr int kWideTile = 64;  ///< spans two to four of them

/// A square tile lit from the upper left; u and v run from 0 to 1, v downwards.
/// Slopes are measured across the borders, so what repeats after 1 has no seam. What is finer than
/// two pixels is smoothed away.
Image BakeTile(int size, const TileFunction& surface);

/// The tile for a floor that the car drives over: its contrasts softened, since at full speed each
/// pixel sees another part of it in every frame.
Image BakeFloor(const TileFunction& surface);

/// A picture without light. y runs from 0 to 1 downwards, x in the same unit.
Image BakePicture(int width, int height, int samples, const PictureFunction& paint);

struct NamedPicture {
  std::string file;
  Image image;
};
using Pictures = std::vector<NamedPicture>;

}  // namespace art
