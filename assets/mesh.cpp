#include "assets/mesh.h"

#include <algorithm>
#include <cmath>

namespace art {

Solid Unit(Solid a) { return a * (1 / std::sqrt(std::max(Dot(a, a), 1e-18))); }

void Mesh::AddFace(std::span<const Solid> corners, Solid inside) {
  AddFace(corners, inside, unfold_);
}

void Mesh::AddFace(std::span<const Solid> corners, Solid inside, const Unfold& unfold) {
  Solid middle, normal;
  for (const Solid& corner : corners)
    middle = middle + corner * (1.0 / static_cast<double>(corners.size()));
  for (size_t i = 0; i < corners.size(); ++i) {
    normal = normal + Cross(corners[i] - middle, corners[(i + 1) % corners.size()] - middle);
  }
  const bool turn = Dot(normal, middle - inside) < 0;
  normal = Unit(turn ? normal * -1 : normal);
  for (size_t i = 2; i < corners.size(); ++i) {
    Solid a = corners[0], b = corners[i - 1], c = corners[i];
    if (turn) std::swap(b, c);
    const Solid area = Cross(b - a, c - a);
    if (Dot(area, area) < 1e-14) continue;
    triangles_.push_back({Corner{a, normal, unfold(a, normal)},
                          Corner{b, normal, unfold(b, normal)},
                          Corner{c, normal, unfold(c, normal)}});
  }
}

void Mesh::AddBox(Solid low, Solid high) {
  const std::vector<Solid> front{
      {low.x, low.y, high.z}, {high.x, low.y, high.z}, high, {low.x, high.y, high.z}};
  const std::vector<Solid> back{
      low, {high.x, low.y, low.z}, {high.x, high.y, low.z}, {low.x, high.y, low.z}};
  const std::array<std::vector<Solid>, 2> rings{front, back};
  AddLoft(rings, (low + high) * 0.5);
}

void Mesh::AddLoft(std::span<const std::vector<Solid>> rings, Solid inside) {
  for (size_t r = 1; r < rings.size(); ++r) {
    const std::vector<Solid>&a = rings[r - 1], &b = rings[r];
    Solid middle;
    for (size_t i = 0; i < a.size(); ++i)
      middle = middle + (a[i] + b[i]) * (0.5 / static_cast<double>(a.size()));
    for (size_t i = 0; i < a.size(); ++i) {
      const size_t next = (i + 1) % a.size();
      AddFace(std::array{a[i], a[next], b[next], b[i]}, middle);
    }
  }
  AddFace(rings.front(), inside);
  AddFace(rings.back(), inside);
}

void Mesh::SmoothNormals(double degrees) {
  const double limit = std::cos(degrees * kPi / 180);
  const std::vector<Triangle> flat = triangles_;
  for (Triangle& triangle : triangles_) {
    for (Corner& corner : triangle) {
      const Solid own = corner.normal;
      Solid sum;
      for (const Triangle& other : flat) {
        const Solid facing = other[0].normal;
        if (Dot(own, facing) < limit) continue;
        const bool shared = std::any_of(other.begin(), other.end(), [&](const Corner& c) {
          const Solid apart = c.place - corner.place;
          return Dot(apart, apart) < 1e-10;
        });
        if (!shared) continue;
        const Solid area = Cross(other[1].place - other[0].place, other[2].place - other[0].place);
        sum = sum + facing * std::sqrt(Dot(area, area));
      }
      corner.normal = Unit(sum);
    }
  }
}

}  // namespace art
