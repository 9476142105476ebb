// Flat shapes as signed distances: negative inside, in the units of the coordinates.
#pragma once

#include <span>

namespace art {

struct Point {
  double x = 0, y = 0;
};

constexpr double kPi = 3.14159265358979323846;

/// The way from the nearest whole number, so that distances wrap around a tile.
double Wrapped(double x);
/// The part of `x` after its whole number, in [0, 1).
double Part(double x);

double Circle(Point p, Point centre, double radius);
/// An upright box with corners rounded by `round`.
double Box(Point p, Point centre, Point half, double round);
/// The distance to the open chain of straight strokes through `corners`.
double Stroke(Point p, std::span<const Point> corners);
/// A star with one tip up and straight sides.
double Star(Point p, Point centre, double radius, double inner, int tips);
/// A convex outline, its corners in either turning sense.
double Convex(Point p, std::span<const Point> corners);

/// How much of a pixel a shape covers; `soft` is half the width of its edge.
double Cover(double distance, double soft);

/// The distance to the strokes of a capital letter, one unit high and centred on the origin.
/// Only the letters the pictures need: W, I, N.
double Letter(char letter, Point p);

}  // namespace art
