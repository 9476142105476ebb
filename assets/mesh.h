// Triangles in left-handed space, y up, clockwise when seen from outside.
#pragma once

#include <array>
#include <functional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "assets/shapes.h"

namespace art {

struct Solid {
  double x = 0, y = 0, z = 0;
};

constexpr Solid operator+(Solid a, Solid b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
constexpr Solid operator-(Solid a, Solid b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
constexpr Solid operator*(Solid a, double k) { return {a.x * k, a.y * k, a.z * k}; }
constexpr double Dot(Solid a, Solid b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
constexpr Solid Cross(Solid a, Solid b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
Solid Unit(Solid a);

/// Where on the skin a corner lies, given the corner and its face's normal.
using Unfold = std::function<Point(Solid corner, Solid normal)>;

class Mesh {
 public:
  explicit Mesh(Unfold unfold) : unfold_(std::move(unfold)) {}

  /// A flat convex face that turns its back to `inside`, whatever the order of its corners.
  void AddFace(std::span<const Solid> corners, Solid inside);
  void AddFace(std::span<const Solid> corners, Solid inside, const Unfold& unfold);

  /// How what is added from now on lies on the skin.
  void Wear(Unfold unfold) { unfold_ = std::move(unfold); }

  /// A box by two opposite corners.
  void AddBox(Solid low, Solid high);
  /// Joins rings of equally many corners and closes both ends.
  void AddLoft(std::span<const std::vector<Solid>> rings, Solid inside);

  /// Rounds the shading wherever faces that share a corner meet at less than `degrees`.
  void SmoothNormals(double degrees);

  /// The whole model as a text .x file wearing the picture `skin`.
  std::string Text(const std::string& name, const std::string& skin) const;

 private:
  struct Corner {
    Solid place, normal;
    Point skin;
  };
  using Triangle = std::array<Corner, 3>;

  Unfold unfold_;
  std::vector<Triangle> triangles_;
};

}  // namespace art
