// Vertex buffers of equal geometry, made once and shared.
#pragma once

#include <cstring>
#include <functional>
#include <string_view>
#include <unordered_map>

#include "platform/resources.h"
#include "render/device/DirectX.h"

/// A Shape is a plain value without gaps; MakeVertices(shape) gives the content of its buffer. What
/// nobody draws from any more is made anew when it is needed again.
template <typename Shape>
class SharedBuffers {
 public:
  VertexBufferPtr Of(const Shape& shape) {
    std::weak_ptr<const VertexBufferObject>& known = made_[shape];
    VertexBufferPtr buffer = known.lock();
    if (!buffer) {
      buffer = DirectX::D3DDevice->CreateVertexBuffer(MakeVertices(shape));
      known = buffer;
      if (made_.size() > sweepAt_) Sweep();
    }
    return buffer;
  }

 private:
  static_assert(std::is_trivially_copyable_v<Shape>);
  static std::string_view Bytes(const Shape& shape) {
    return {reinterpret_cast<const char*>(&shape), sizeof(shape)};
  }
  struct Hash {
    size_t operator()(const Shape& shape) const {
      return std::hash<std::string_view>()(Bytes(shape));
    }
  };
  struct Same {
    bool operator()(const Shape& a, const Shape& b) const { return Bytes(a) == Bytes(b); }
  };

  void Sweep() {
    std::erase_if(made_, [](const auto& entry) { return entry.second.expired(); });
    sweepAt_ = std::max(kFirstSweep, 2 * made_.size());
  }

  static constexpr size_t kFirstSweep = 1024;
  std::unordered_map<Shape, std::weak_ptr<const VertexBufferObject>, Hash, Same> made_;
  size_t sweepAt_ = kFirstSweep;
};
