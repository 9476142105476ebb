// A quad laid flat, to be asked about many points.
#pragma once

#include <array>

#include "platform/numbers.h"
#include "platform/values.h"

namespace maths {

/// Four corners, projected along the axis that their normal is nearest to; a triangle repeats its
/// first corner as the fourth.
class ProjectedQuad {
 public:
  explicit ProjectedQuad(const std::array<Vector3, 4>& quad);

  /// On which side of all edges p lies: 1 inside of clockwise corners, −1 inside of the other
  /// winding, 0 outside or on an edge.
  int SideOfEdges(const Vector3& p) const {
    const Point point = Project(p);
    int common = 0;
    for (size_t i = 0; i < edges_; ++i) {
      const Point w = Subtract(corners_[i], point);
      const double value = double{w.u} * -along_[i].v + double{w.v} * along_[i].u;
      const int side = (value > 0) - (value < 0);
      if (side == 0 || (i > 0 && side != common)) return 0;
      common = side;
    }
    return common;
  }

 private:
  struct Point {
    float u = 0, v = 0;
    bool operator==(const Point&) const = default;
  };
  /// Which coordinate is dropped.
  enum class Drop { X, Y, Z };

  static Drop ChooseProjection(const Vector3& normal);
  static Point Subtract(const Point& a, const Point& b) {
    return {ToSingle(double{a.u} - b.u), ToSingle(double{a.v} - b.v)};
  }
  Point Project(const Vector3& point) const {
    switch (drop_) {
      case Drop::X:
        return {point.z, point.y};
      case Drop::Z:
        return {point.x, point.y};
      case Drop::Y:
        break;
    }
    return {point.x, point.z};
  }

  Drop drop_;
  size_t edges_ = 4;
  std::array<Point, 4> corners_;
  std::array<Point, 4> along_;  ///< from each corner to the next
};

}  // namespace maths
