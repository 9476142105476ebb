// Which triangles can reach a pixel at all.
#pragma once

#include <span>

#include "platform/gl/stream_vertex.h"

namespace bench {

/// Moves the triangles that face the camera and are not beyond one side of what it sees to the
/// front, in their order; returns how many vertices those have.
size_t KeepVisible(std::span<gl::StreamVertex> triangles, const Matrix4& toClip);

}  // namespace bench
