#include "platform/resources.h"

#include <algorithm>
#include <atomic>
#include <cstring>

namespace {

uint64_t NextId() {
  static std::atomic<uint64_t> next{1};
  return next++;
}

/// Keeps the five highest bits of each channel and spreads them over eight again.
uint32_t Quantise(uint32_t pixel) {
  const uint32_t alpha = (pixel >> 31) != 0 ? 0xFF000000U : 0U;
  const uint32_t high = pixel & 0x00F8F8F8U;
  return alpha | high | ((high >> 5) & 0x00070707U);
}

uint32_t Average(uint32_t a, uint32_t b, uint32_t c, uint32_t d) {
  uint32_t result = 0;
  for (unsigned shift = 0; shift < 32; shift += 8) {
    const auto channel = [shift](uint32_t pixel) { return (pixel >> shift) & 0xFFU; };
    result |= ((channel(a) + channel(b) + channel(c) + channel(d) + 2) / 4) << shift;
  }
  return result;
}

Image Halve(const Image& image) {
  Image half(std::max(1, image.width / 2), std::max(1, image.height / 2));
  for (int y = 0; y < half.height; ++y) {
    const int y0 = std::min(2 * y, image.height - 1), y1 = std::min(2 * y + 1, image.height - 1);
    for (int x = 0; x < half.width; ++x) {
      const int x0 = std::min(2 * x, image.width - 1), x1 = std::min(2 * x + 1, image.width - 1);
      half.At(x, y) =
          Average(image.At(x0, y0), image.At(x1, y0), image.At(x0, y1), image.At(x1, y1));
    }
  }
  return half;
}

}  // namespace

TextureObject::TextureObject(Image image, Format format, std::string name)
    : format_(format), name_(std::move(name)), id_(NextId()) {
  levels_.push_back(std::move(image));
  while (levels_.back().width > 1 || levels_.back().height > 1) {
    levels_.push_back(Halve(levels_.back()));
  }
  if (format == Format::Colour16Alpha1) {
    for (Image& level : levels_)
      std::ranges::transform(level.pixels, level.pixels.begin(), Quantise);
  }
}

VertexBufferObject::VertexBufferObject(std::span<const Vertex> vertices)
    : format_(VertexFormat::World) {
  Fill(vertices);
}

VertexBufferObject::VertexBufferObject(std::span<const ScreenVertex> vertices)
    : format_(VertexFormat::Screen) {
  Fill(vertices);
}

VertexBufferObject::VertexBufferObject(std::span<const PointVertex> vertices)
    : format_(VertexFormat::Point) {
  Fill(vertices);
}

template <typename T>
void VertexBufferObject::Fill(std::span<const T> vertices) {
  bytes_.resize(vertices.size_bytes());
  if (vertices.empty()) return;
  std::memcpy(bytes_.data(), vertices.data(), vertices.size_bytes());
  smallest_ = greatest_ = {vertices[0].x, vertices[0].y, vertices[0].z};
  for (const T& v : vertices) {
    smallest_ = {std::min(smallest_.x, v.x), std::min(smallest_.y, v.y),
                 std::min(smallest_.z, v.z)};
    greatest_ = {std::max(greatest_.x, v.x), std::max(greatest_.y, v.y),
                 std::max(greatest_.z, v.z)};
  }
}
