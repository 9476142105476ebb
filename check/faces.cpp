#include "check/faces.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <tuple>

namespace check {
namespace {

struct Point {
  double u = 0, v = 0;
};

/// Collects the faces of piece after piece.
class Collector {
 public:
  explicit Collector(size_t pieces) {
    for (const Facing facing : {Facing::Up, Facing::Front, Facing::Left, Facing::Right}) {
      lists_.push_back({facing, {}});
      lists_.back().faces.reserve(pieces);
    }
  }

  void AddBox(const PieceName& piece, const Extent& box) {
    const Sides s(box);
    Add(Facing::Up, {s.y1, s.x0, s.x1, s.z0, s.z1, piece});
    Add(Facing::Front, {s.z0, s.x0, s.x1, s.y0, s.y1, piece});
    Add(Facing::Left, {s.x0, s.z0, s.z1, s.y0, s.y1, piece});
    Add(Facing::Right, {s.x1, s.z0, s.z1, s.y0, s.y1, piece});
  }
  void AddRamp(const PieceName& piece, const drive::FrozenRamp& ramp) {
    const Sides s(ramp.box);
    const Figure rise = ramp.rotation < 2 ? Figure::RisesWithU : Figure::FallsWithU;
    const bool alongZ = ramp.rotation % 2 == 0;
    // Either side, or the front, is a triangle; the riser shows where it is the front or a side.
    const Figure side = alongZ ? rise : Figure::Rectangle;
    const Figure front = alongZ ? Figure::Rectangle : rise;
    if (ramp.rotation != 0) Add(Facing::Front, {s.z0, s.x0, s.x1, s.y0, s.y1, piece, front});
    if (ramp.rotation != 1) Add(Facing::Left, {s.x0, s.z0, s.z1, s.y0, s.y1, piece, side});
    if (ramp.rotation != 3) Add(Facing::Right, {s.x1, s.z0, s.z1, s.y0, s.y1, piece, side});
    AddSlope(piece, ramp);
  }
  std::vector<FaceList> Take() { return std::move(lists_); }

 private:
  struct Sides {
    explicit Sides(const Extent& box)
        : x0(box.corner.x),
          y0(box.corner.y),
          z0(box.corner.z),
          x1(x0 + box.size.x),
          y1(y0 + box.size.y),
          z1(z0 + box.size.z) {}
    float x0, y0, z0, x1, y1, z1;
  };

  void Add(Facing facing, const Face& face) {
    lists_[static_cast<size_t>(facing)].faces.push_back(face);
  }
  void AddSlope(const PieceName& piece, const drive::FrozenRamp& ramp);

  std::vector<FaceList> lists_;  ///< upright ones by facing, then slopes by steepness
  std::map<std::tuple<int, long, long>, size_t> steepness_;  ///< their places
};

void Collector::AddSlope(const PieceName& piece, const drive::FrozenRamp& ramp) {
  const auto& [at, size] = ramp.box;
  const bool alongZ = ramp.rotation % 2 == 0;
  // Sizes of ramps are whole numbers: slopes that are alike are so to the last bit.
  const long rise = std::lround(size.y), length = std::lround(alongZ ? size.z : size.x);
  const long shared = std::gcd(rise, length);
  const auto [found, isNew] =
      steepness_.try_emplace({ramp.rotation, rise / shared, length / shared}, lists_.size());
  if (isNew) lists_.push_back({Facing::Slope, {}});
  const double from = alongZ ? at.z : at.x, gradient = ramp.gradient;
  const double base = gradient > 0 ? double{at.y} : double{at.y} + size.y;
  const double distance = (base - gradient * from) / std::hypot(1.0, gradient);
  const Sides s(ramp.box);
  lists_[found->second].faces.push_back(
      {static_cast<float>(distance), s.x0, s.x1, s.z0, s.z1, piece});
}

bool HasSize(const Extent& box) { return box.size.x > 0 && box.size.y > 0 && box.size.z > 0; }

/// Its corners in turn.
std::vector<Point> Corners(const Face& face) {
  std::vector<Point> corners = {{face.lowU, face.lowV},
                                {face.highU, face.lowV},
                                {face.highU, face.highV},
                                {face.lowU, face.highV}};
  if (face.figure == Figure::RisesWithU) corners.erase(corners.begin() + 3);
  if (face.figure == Figure::FallsWithU) corners.erase(corners.begin() + 2);
  return corners;
}

/// What of a polygon lies to the left of the line from a to b.
std::vector<Point> Cut(const std::vector<Point>& polygon, const Point& a, const Point& b) {
  const auto side = [&](const Point& p) {
    return (b.u - a.u) * (p.v - a.v) - (b.v - a.v) * (p.u - a.u);
  };
  std::vector<Point> left;
  for (size_t i = 0; i < polygon.size(); ++i) {
    const Point &from = polygon[i], &to = polygon[(i + 1) % polygon.size()];
    const double sideFrom = side(from), sideTo = side(to);
    if (sideFrom >= 0) left.push_back(from);
    if ((sideFrom < 0) == (sideTo < 0)) continue;
    const double part = sideFrom / (sideFrom - sideTo);
    left.push_back({from.u + part * (to.u - from.u), from.v + part * (to.v - from.v)});
  }
  return left;
}

double Area(const std::vector<Point>& polygon) {
  double twice = 0;
  for (size_t i = 0; i < polygon.size(); ++i) {
    const Point &from = polygon[i], &to = polygon[(i + 1) % polygon.size()];
    twice += from.u * to.v - to.u * from.v;
  }
  return twice / 2;
}

}  // namespace

const char* NameOf(Facing facing) {
  switch (facing) {
    case Facing::Up:
      return "top";
    case Facing::Front:
      return "front";
    case Facing::Left:
      return "left side";
    case Facing::Right:
      return "right side";
    case Facing::Slope:
      return "slope";
  }
  return "";
}

std::vector<FaceList> FacesOf(const drive::FrozenTrack& track,
                              const std::vector<PieceName>& without) {
  Collector collector(track.Blocks().size() + track.Platforms().size() + track.Ramps().size());
  const auto each = [&](const auto& pieces, ObjectType kind, auto add) {
    for (size_t i = 0; i < pieces.size(); ++i) {
      const PieceName piece{kind, static_cast<int32_t>(i)};
      if (HasSize(pieces[i].box) && !std::ranges::binary_search(without, piece)) {
        add(piece, pieces[i]);
      }
    }
  };
  const auto addBox = [&](const PieceName& piece, const auto& box) {
    collector.AddBox(piece, box.box);
  };
  each(track.Blocks(), TypeBlock, addBox);
  each(track.Platforms(), TypePlatform, addBox);
  each(track.Ramps(), TypeRamp, [&](const PieceName& piece, const drive::FrozenRamp& ramp) {
    collector.AddRamp(piece, ramp);
  });
  return collector.Take();
}

double SharedArea(const Face& a, const Face& b) {
  if (a.figure == Figure::Rectangle && b.figure == Figure::Rectangle) {
    const double u = double{std::min(a.highU, b.highU)} - std::max(a.lowU, b.lowU);
    const double v = double{std::min(a.highV, b.highV)} - std::max(a.lowV, b.lowV);
    return u > 0 && v > 0 ? u * v : 0;
  }
  std::vector<Point> shared = Corners(a);
  const std::vector<Point> edges = Corners(b);
  for (size_t i = 0; i < edges.size() && !shared.empty(); ++i) {
    shared = Cut(shared, edges[i], edges[(i + 1) % edges.size()]);
  }
  return Area(shared);
}

}  // namespace check
