// The triangles of a strip that follows a path.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "editor/ribbon/sections.h"

namespace ribbon {

using Triangles = std::vector<Vertex>;

/// One lane of a strip, lengthwise: from one side to the other, in world units from the middle.
struct Lane {
  struct Side {
    double offset;
    std::array<uint32_t, 2> colours;  ///< 0xAARRGGBB, where the piece begins and where it ends
  };
  Side left, right;
};

/// Which side of a piece of strip the edit view's camera sees.
enum class Seen : uint8_t { Above, Below, Either };
Seen SideSeen(const Section& from, const Section& to);

/// Adds a lane of the piece of strip between two sections.
void AddLane(const Section& from, const Section& to, Seen seen, const Lane& lane,
             Triangles& triangles);

/// Adds a bar across the strip, `length` along it and reaching `reach` to both sides.
void AddBar(const Section& at, double reach, double length, uint32_t colour, Triangles& bars);

}  // namespace ribbon
