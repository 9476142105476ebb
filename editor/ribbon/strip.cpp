#include "editor/ribbon/strip.h"

#include <algorithm>

#include "platform/d3dx_maths.h"
#include "platform/numbers.h"

namespace ribbon {
namespace {

/// From what is seen to the camera, in the corners of its view and with a little beyond: it stands
/// upright behind what it shows, looks down on it and is turned to no side.
constexpr std::array<Vector3, 4> kToCamera = {
    {{0.45F, 0.3F, -0.84F}, {-0.45F, 0.3F, -0.84F}, {0.4F, 0.85F, -0.34F}, {-0.4F, 0.85F, -0.34F}}};

using Quad = std::array<Vertex, 4>;  ///< left and right of the beginning, left and right of the end

Vertex Corner(const Section& section, double offset, uint32_t colour) {
  const Vector3 at = Beside(section.middle, section.across, offset);
  return {at.x, at.y, at.z, colour, 0, 0, 0};
}

/// Faces are seen where they are clockwise.
void AddQuad(const Quad& q, Seen seen, Triangles& triangles) {
  if (seen != Seen::Below) {
    for (const size_t i : {0U, 2U, 3U, 0U, 3U, 1U}) triangles.push_back(q[i]);
  }
  if (seen != Seen::Above) {
    for (const size_t i : {0U, 3U, 2U, 0U, 1U, 3U}) triangles.push_back(q[i]);
  }
}

}  // namespace

Seen SideSeen(const Section& from, const Section& to) {
  const Vector3 normal = d3dx::Cross(d3dx::Subtract(to.middle, from.middle), from.across);
  const auto sees = [&](const Vector3& camera) { return d3dx::Dot(normal, camera) > 0; };
  if (std::ranges::all_of(kToCamera, sees)) return Seen::Above;
  return std::ranges::none_of(kToCamera, sees) ? Seen::Below : Seen::Either;
}

void AddLane(const Section& from, const Section& to, Seen seen, const Lane& lane,
             Triangles& triangles) {
  AddQuad({Corner(from, lane.left.offset, lane.left.colours[0]),
           Corner(from, lane.right.offset, lane.right.colours[0]),
           Corner(to, lane.left.offset, lane.left.colours[1]),
           Corner(to, lane.right.offset, lane.right.colours[1])},
          seen, triangles);
}

void AddBar(const Section& at, double reach, double length, uint32_t colour, Triangles& bars) {
  Section begin = at, end = at;
  begin.middle = Beside(at.middle, at.heading, -length / 2);
  end.middle = Beside(at.middle, at.heading, length / 2);
  const Lane lane{{-reach, {colour, colour}}, {reach, {colour, colour}}};
  AddLane(begin, end, SideSeen(begin, end), lane, bars);
}

}  // namespace ribbon
