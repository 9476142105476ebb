#include "assets/shapes.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "assets/color.h"

namespace art {
namespace {

double Segment(Point p, Point a, Point b) {
  const double dx = b.x - a.x, dy = b.y - a.y;
  const double along = Clamp01(((p.x - a.x) * dx + (p.y - a.y) * dy) / (dx * dx + dy * dy));
  return std::hypot(p.x - a.x - along * dx, p.y - a.y - along * dy);
}

}  // namespace

double Wrapped(double x) { return x - std::round(x); }

double Part(double x) { return x - std::floor(x); }

double Circle(Point p, Point centre, double radius) {
  return std::hypot(p.x - centre.x, p.y - centre.y) - radius;
}

double Box(Point p, Point centre, Point half, double round) {
  const double dx = std::abs(p.x - centre.x) - half.x + round;
  const double dy = std::abs(p.y - centre.y) - half.y + round;
  const double outside = std::hypot(std::max(dx, 0.0), std::max(dy, 0.0));
  return outside + std::min(std::max(dx, dy), 0.0) - round;
}

double Stroke(Point p, std::span<const Point> corners) {
  double nearest = 1e9;
  for (size_t i = 1; i < corners.size(); ++i) {
    nearest = std::min(nearest, Segment(p, corners[i - 1], corners[i]));
  }
  return nearest;
}

double Star(Point p, Point centre, double radius, double inner, int tips) {
  // Every tip is alike and symmetric: fold the point into half of the upper one.
  const double half = kPi / tips;
  const double angle = std::atan2(p.x - centre.x, centre.y - p.y);
  const double folded = std::abs(angle - 2 * half * std::round(angle / (2 * half)));
  const double length = std::hypot(p.x - centre.x, p.y - centre.y);
  const Point q{length * std::sin(folded), length * std::cos(folded)};
  const Point notch{inner * std::sin(half), inner * std::cos(half)};
  const double ex = notch.x, ey = notch.y - radius;
  const double side = (q.x * ey - (q.y - radius) * ex) / std::hypot(ex, ey);
  return std::copysign(Segment(q, {0, radius}, notch), -side);
}

double Convex(Point p, std::span<const Point> corners) {
  double low = 1e9, high = -1e9;
  for (size_t i = 0; i < corners.size(); ++i) {
    const Point a = corners[i], b = corners[(i + 1) % corners.size()];
    const double dx = b.x - a.x, dy = b.y - a.y;
    const double side = ((p.x - a.x) * dy - (p.y - a.y) * dx) / std::hypot(dx, dy);
    low = std::min(low, side);
    high = std::max(high, side);
  }
  return std::min(high, -low);
}

double Cover(double distance, double soft) { return Smooth(soft, -soft, distance); }

double Letter(char letter, Point p) {
  static constexpr std::array<Point, 5> kW{
      {{-0.45, -0.5}, {-0.24, 0.5}, {0, -0.25}, {0.24, 0.5}, {0.45, -0.5}}};
  static constexpr std::array<Point, 2> kI{{{0, -0.5}, {0, 0.5}}};
  static constexpr std::array<Point, 4> kN{{{-0.3, 0.5}, {-0.3, -0.5}, {0.3, 0.5}, {0.3, -0.5}}};
  if (letter == 'W') return Stroke(p, kW);
  if (letter == 'I') return Stroke(p, kI);
  return Stroke(p, kN);
}

}  // namespace art
