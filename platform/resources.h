// What the device draws from: textures and vertex buffers. Immutable once made, shared by pointer.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/image.h"
#include "platform/values.h"

/// The vertex layouts, by the bytes of one vertex.
enum class VertexFormat : uint8_t { World = 28, Screen = 32, Point = 24 };

/// Remembers the frame that keeps a resource alive, so that each frame does so once.
class FrameMark {
 public:
  /// True the first time it is called with this frame.
  bool MarkFor(uint64_t frame) const { return std::exchange(frame_, frame) != frame; }

 private:
  mutable uint64_t frame_ = 0;
};

/// A texture with its chain of mip levels, each half the size of the one before down to 1 x 1.
class TextureObject : public FrameMark, public std::enable_shared_from_this<TextureObject> {
 public:
  enum class Format : uint8_t { Colour32, Colour16Alpha1 };

  /// `name` tells messages which picture it is.
  TextureObject(Image image, Format format, std::string name = {});

  const Image& Level(size_t level) const { return levels_.at(level); }
  size_t LevelCount() const { return levels_.size(); }
  int Width() const { return levels_[0].width; }
  int Height() const { return levels_[0].height; }
  Format PixelFormat() const { return format_; }
  const std::string& Name() const { return name_; }
  /// Distinct for every texture made in this process; names it in an executor's own store.
  uint64_t Id() const { return id_; }

 private:
  std::vector<Image> levels_;
  Format format_;
  std::string name_;
  uint64_t id_;
};
using TexturePtr = std::shared_ptr<const TextureObject>;

/// A managed vertex buffer: its bytes live in system memory beside their bounding box.
class VertexBufferObject : public FrameMark,
                           public std::enable_shared_from_this<VertexBufferObject> {
 public:
  explicit VertexBufferObject(std::span<const Vertex> vertices);
  explicit VertexBufferObject(std::span<const ScreenVertex> vertices);
  explicit VertexBufferObject(std::span<const PointVertex> vertices);

  VertexFormat Format() const { return format_; }
  size_t VertexCount() const { return bytes_.size() / static_cast<size_t>(format_); }
  size_t ByteCount() const { return bytes_.size(); }
  /// The vertices; T must be the type that the buffer was made from.
  template <typename T>
  std::span<const T> Vertices() const {
    return {reinterpret_cast<const T*>(bytes_.data()), bytes_.size() / sizeof(T)};
  }
  /// Corners of the box around all positions, in the buffer's own coordinates.
  const Vector3& Smallest() const { return smallest_; }
  const Vector3& Greatest() const { return greatest_; }

 private:
  template <typename T>
  void Fill(std::span<const T> vertices);

  VertexFormat format_;
  std::vector<std::byte> bytes_;
  Vector3 smallest_, greatest_;
};
using VertexBufferPtr = std::shared_ptr<const VertexBufferObject>;
