// Parts several backdrops share.
#pragma once

#include <initializer_list>

#include "assets/color.h"

namespace art {

/// Colours at rising places, blended between.
struct Stop {
  double at;
  Color color;
};
Color Gradient(double at, std::initializer_list<Stop> stops);

/// A jagged skyline around 0, within about `size`.
double Peaks(double x, double scale, double size, int seed);

/// The brightness of scattered stars; `cell` is the mean distance between them.
double StarField(double x, double y, double cell, int seed);

/// The sky with many faint stars and a few bright ones, each with a tint of its own.
Color Stars(Color sky, double x, double y, int seed);

}  // namespace art
