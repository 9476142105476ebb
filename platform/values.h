// Plain value types shared by every room: vectors, colours, matrices and the three vertex layouts.
#pragma once

#include <array>
#include <cstdint>

struct Vector3 {
  float x = 0, y = 0, z = 0;
  bool operator==(const Vector3&) const = default;
};

struct Vector4 {
  float x = 0, y = 0, z = 0, w = 0;
  bool operator==(const Vector4&) const = default;
};

struct ColourValue {
  float r = 0, g = 0, b = 0, a = 0;
  bool operator==(const ColourValue&) const = default;
};

/// Row-vector convention: a point is the row (x, y, z, 1) times the matrix; translation in the
/// fourth row. m[row][column].
struct Matrix4 {
  std::array<std::array<float, 4>, 4> m{};
  bool operator==(const Matrix4&) const = default;
};

/// World vertex, 28 bytes; colours are 0xAARRGGBB.
struct Vertex {
  float x = 0, y = 0, z = 0;
  uint32_t colour = 0, specular = 0;
  float tu = 0, tv = 0;
  bool operator==(const Vertex&) const = default;
};

/// Vertex in pixels of the viewport, 32 bytes.
struct ScreenVertex {
  float x = 0, y = 0, z = 0, rhw = 0;
  uint32_t colour = 0, specular = 0;
  float tu = 0, tv = 0;
  bool operator==(const ScreenVertex&) const = default;
};

/// One point sprite, 24 bytes.
struct PointVertex {
  float x = 0, y = 0, z = 0;
  uint32_t colour = 0;
  float tu = 0, tv = 0;
  bool operator==(const PointVertex&) const = default;
};

static_assert(sizeof(Vertex) == 28 && sizeof(ScreenVertex) == 32 && sizeof(PointVertex) == 24);
