#include "platform/gl/stream_vertex.h"

#include "platform/lanes.h"

namespace gl {
namespace {

template <typename T>
std::span<const T> VerticesOf(const Command& draw) {
  return draw.buffer->Vertices<T>().subspan(draw.firstVertex, draw.vertexCount);
}

template <typename T>
void PlaceInWorld(std::span<const T> vertices, const Matrix4& world, int32_t layer,
                  StreamVertex* out) {
  const lanes::Rows rows(world);
  for (const T& v : vertices) {
    const lanes::Float4 place = rows.Place(v.x, v.y, v.z);
    *out++ = {place[0], place[1], place[2], v.colour, v.tu, v.tv, layer};
  }
}

}  // namespace

void PlaceVertices(const Command& draw, const Matrix4& world, int32_t layer, StreamVertex* out) {
  switch (draw.format) {
    case VertexFormat::World:
      PlaceInWorld(VerticesOf<Vertex>(draw), world, layer, out);
      break;
    case VertexFormat::Point:
      PlaceInWorld(VerticesOf<PointVertex>(draw), world, layer, out);
      break;
    case VertexFormat::Screen:
      for (const ScreenVertex& v : VerticesOf<ScreenVertex>(draw)) {
        *out++ = {v.x, v.y, v.z, v.colour, v.tu, v.tv, layer};
      }
      break;
  }
}

size_t ExpandedCount(const Command& draw) {
  const size_t count = draw.vertexCount;
  if (draw.primitive != Primitive::TriangleStrip) return count;
  return count < 3 ? 0 : 3 * (count - 2);
}

void PlaceExpanded(const Command& draw, const Matrix4& world, int32_t layer, StreamVertex* out,
                   std::vector<StreamVertex>& scratch) {
  if (draw.primitive != Primitive::TriangleStrip) {
    PlaceVertices(draw, world, layer, out);
    return;
  }
  if (scratch.size() < draw.vertexCount) scratch.resize(draw.vertexCount);
  PlaceVertices(draw, world, layer, scratch.data());
  // Every second triangle of a strip is wound the other way round. The order inside a triangle is
  // OpenGL's own, so that both schemes interpolate alike to the last bit.
  for (size_t i = 0; i + 2 < draw.vertexCount; ++i) {
    *out++ = scratch[i + (i & 1)];
    *out++ = scratch[i + 1 - (i & 1)];
    *out++ = scratch[i + 2];
  }
}

}  // namespace gl
