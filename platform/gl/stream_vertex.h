// The one vertex that the shaders know, made from the three that the device knows.
#pragma once

#include <span>
#include <vector>

#include "platform/commands.h"

namespace gl {

/// Placed in the world (or in viewport pixels, for screen vertices).
struct StreamVertex {
  float x, y, z;
  uint32_t colour;  ///< 0xAARRGGBB
  float tu, tv;
  int32_t layer;  ///< layer of the array texture; negative: no texture
};
static_assert(sizeof(StreamVertex) == 28);

/// Writes the draw's vertices, in the order of its buffer, to `out`: room for vertexCount.
void PlaceVertices(const Command& draw, const Matrix4& world, int32_t layer, StreamVertex* out);

/// How many vertices a draw has when its triangles or points stand one by one.
size_t ExpandedCount(const Command& draw);

/// As PlaceVertices, but strips become lists; room for ExpandedCount. `scratch` is working space.
void PlaceExpanded(const Command& draw, const Matrix4& world, int32_t layer, StreamVertex* out,
                   std::vector<StreamVertex>& scratch);

}  // namespace gl
