#include "editor/ribbon/mark_shapes.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numbers>

namespace ribbon {
namespace {

// Shapes are drawn in pixels of the view from its usual distance, x to the right, y upwards.
constexpr double kPixelsPerUnitX = 22.5, kPixelsPerUnitY = 17.2;
/// Upwards in the picture of the camera, which is never turned: boards lie in its plane, since
/// upright ones would look slanted beside the middle.
constexpr Vector3 kUpwards = {0, 0.727F, 0.687F};
constexpr double kOutline = 1.7;            ///< width
constexpr double kStem = 5.5, kPitch = 17;  ///< below a row of pictures; from one to the next
constexpr size_t kPerRow = 4;
constexpr uint32_t kDark = 0xF010161E, kAlarm = 0xFFF0281E;

struct Dot2 {
  double x, y;
};
using Outline = std::vector<Dot2>;  ///< clockwise, all of it in sight of the corners' mean

struct Part {
  Outline outline;
  uint32_t colour;
};
/// Around (0, 0), about 15 pixels wide and high.
using Shape = std::vector<Part>;

Outline Circle(double radius, int corners) {
  Outline outline;
  outline.reserve(static_cast<size_t>(corners));
  for (int i = 0; i < corners; ++i) {
    const double angle = 2 * std::numbers::pi * i / corners;
    outline.push_back({radius * std::sin(angle), radius * std::cos(angle)});
  }
  return outline;
}

Outline Star(double outer, double inner, int points) {
  Outline outline = Circle(outer, 2 * points);
  for (size_t i = 1; i < outline.size(); i += 2) {
    outline[i].x *= inner / outer;
    outline[i].y *= inner / outer;
  }
  return outline;
}

Shape ShapeOf(uint8_t mark) {
  switch (mark) {
    case drive::kTakesOff:
      return {{{{0, 7.5}, {7, -5}, {-7, -5}}, 0xFFF4FAFF}};
    case drive::kLands:
      return {{{{-7, 5}, {7, 5}, {0, -7.5}}, 0xFF58A6FF}};
    case drive::kTakesStar:
      return {{Star(8.5, 3.8, 5), 0xFFFFC61A}};
    case drive::kMeetsPad:
      return {{Circle(7.2, 18), 0xFFFF8A14}, {Circle(3.0, 12), 0xFF3A1C00}};
    case drive::kExplodes:
      return {{Star(9, 4.6, 8), kAlarm}, {Star(4.2, 2.4, 8), 0xFFFFE24A}};
    case drive::kFalls:
      return {{{{-2.6, 8}, {2.6, 8}, {2.6, -0.5}, {-2.6, -0.5}}, kAlarm},
              {{{-7, 0}, {7, 0}, {0, -8}}, kAlarm}};
    default:
      return {{{{-5.5, 7.5}, {7.5, 3}, {-5.5, -1.5}}, 0xFF25D366},
              {{{-6.5, 8}, {-4.5, 8}, {-4.5, -8}, {-6.5, -8}}, 0xFFF4FAFF}};
  }
}

/// The outline with every edge moved outwards.
Outline Grown(const Outline& outline, double by) {
  Outline grown;
  grown.reserve(outline.size());
  const size_t n = outline.size();
  const auto outwards = [&](size_t i) {
    const Dot2 &a = outline[i % n], &b = outline[(i + 1) % n];
    const double length = std::hypot(b.x - a.x, b.y - a.y);
    return Dot2{-(b.y - a.y) / length, (b.x - a.x) / length};
  };
  for (size_t i = 0; i < n; ++i) {
    const Dot2 a = outwards(i + n - 1), b = outwards(i);
    const double along = std::max(0.3, 1 + a.x * b.x + a.y * b.y);
    grown.push_back(
        {outline[i].x + by * (a.x + b.x) / along, outline[i].y + by * (a.y + b.y) / along});
  }
  return grown;
}

Dot2 MeanOf(const Outline& outline) {
  Dot2 sum{0, 0};
  for (const Dot2& dot : outline) sum = {sum.x + dot.x, sum.y + dot.y};
  const auto count = static_cast<double>(outline.size());
  return {sum.x / count, sum.y / count};
}

/// Where pictures are drawn: dots are pixels from a place in the world.
class Board {
 public:
  Board(const Vector3& place, Triangles& triangles) : place_(place), triangles_(triangles) {}

  void Fill(const Outline& outline, const Dot2& shift, uint32_t colour) {
    const Dot2 mean = MeanOf(outline);
    for (size_t i = 0; i < outline.size(); ++i) {
      for (const Dot2& dot : {mean, outline[i], outline[(i + 1) % outline.size()]})
        triangles_.push_back(Corner({shift.x + dot.x, shift.y + dot.y}, colour));
    }
  }
  /// All outlines lie below all fillings, so that parts grow together.
  void Draw(const Shape& shape, const Dot2& middle) {
    for (const Part& part : shape) Fill(Grown(part.outline, kOutline), middle, kDark);
    for (const Part& part : shape) Fill(part.outline, middle, part.colour);
  }

 private:
  Vertex Corner(const Dot2& dot, uint32_t colour) const {
    const Vector3 at = Beside(Beside(place_, {1, 0, 0}, dot.x / kPixelsPerUnitX), kUpwards,
                              dot.y / kPixelsPerUnitY);
    return {at.x, at.y, at.z, colour, 0, 0, 0};
  }

  Vector3 place_;
  Triangles& triangles_;
};

}  // namespace

void AddMarks(const Vector3& place, uint8_t marks, Triangles& triangles) {
  Board board(place, triangles);
  const auto count = static_cast<size_t>(std::popcount(marks));
  if (count == 0) return;
  board.Fill({{-0.9, kStem}, {0.9, kStem}, {0.9, 0}, {-0.9, 0}}, {0, 0}, kDark);
  size_t drawn = 0;
  for (unsigned bit = 1; bit <= drive::kWins; bit <<= 1U) {
    if ((marks & bit) == 0) continue;
    const size_t row = drawn / kPerRow, column = drawn % kPerRow;
    const size_t inRow = std::min(kPerRow, count - row * kPerRow);
    const double x = kPitch * (static_cast<double>(column) - (static_cast<double>(inRow) - 1) / 2);
    const double y = kStem + kPitch * (static_cast<double>(row) + 0.5);
    board.Draw(ShapeOf(static_cast<uint8_t>(bit)), {x, y});
    ++drawn;
  }
}

}  // namespace ribbon
