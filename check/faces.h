// The faces that pieces show, as flat figures in planes.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "check/findings.h"
#include "drive/frozen_track.h"

namespace check {

enum class Figure : uint8_t {
  Rectangle,
  RisesWithU,  ///< a triangle whose upright side is at high u
  FallsWithU   ///< at low u
};

/// Its place in the plane: u and v are z and y of a left or right side, x and z of a top or slope,
/// x and y of a front.
struct Face {
  float plane = 0;  ///< the coordinate across it; of a slope its distance from the origin
  float lowU = 0, highU = 0, lowV = 0, highV = 0;
  PieceName piece;
  Figure figure = Figure::Rectangle;
};

/// Where a face looks. The camera looks along z: what looks that way itself is never seen.
enum class Facing : uint8_t { Up, Front, Left, Right, Slope };
/// Such as "top".
const char* NameOf(Facing facing);

/// Faces that look the same way.
struct FaceList {
  Facing facing = Facing::Up;
  std::vector<Face> faces;
};

/// Of all pieces but those in the ordered list; platforms are at their start. Nothing that is
/// inside out.
std::vector<FaceList> FacesOf(const drive::FrozenTrack& track,
                              const std::vector<PieceName>& without);

/// The area that two faces of one plane share.
double SharedArea(const Face& a, const Face& b);

}  // namespace check
