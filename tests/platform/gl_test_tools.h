// A device with a picture to look at, and the means to compare pictures.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <string>

#include "platform/d3dx.h"
#include "platform/device.h"
#include "platform/gl/headless_context.h"
#include "platform/gl/picture_executor.h"
#include "platform/qt/images.h"

namespace gltest {

/// Lets a test keep hold of what draws for a device.
struct Forwarder : Executor {
  template <typename... Executors>
  explicit Forwarder(const Executors&... to) : executors{to.get()...} {}
  void Execute(const CommandList& frame) override {
    for (gl::PictureExecutor* executor : executors) executor->Execute(frame);
  }
  std::vector<gl::PictureExecutor*> executors;
};

inline void Context() { static gl::HeadlessContext context; }

struct Screen {
  Screen(gl::Scheme scheme, const gl::TargetSettings& settings)
      : executor((Context(), gl::CreateExecutor(scheme, settings))) {}
  Screen(const Screen&) = delete;
  Image Present() {
    device.Present();
    return executor->ReadPicture();
  }

  std::unique_ptr<gl::PictureExecutor> executor;
  Device device{std::make_unique<Forwarder>(executor)};
};

/// Expects 0 differing pixels; otherwise leaves both pictures.
inline void ExpectSamePicture(const Image& actual, const Image& expected, const std::string& name) {
  if (actual.width == expected.width && actual.pixels == expected.pixels) return;
  const std::string stem = testing::TempDir() + name;
  qt::SaveImageFile(actual, stem + "_actual.png");
  qt::SaveImageFile(expected, stem + "_expected.png");
  ADD_FAILURE() << "pixels differ, see " << stem << "_*.png";
}

inline TexturePtr MakeTexture(Image image,
                              TextureObject::Format format = TextureObject::Format::Colour32) {
  return std::make_shared<TextureObject>(std::move(image), format);
}

inline TexturePtr PlainTexture(uint32_t colour) { return MakeTexture(Image(4, 4, colour)); }

/// A strip over the rectangle; the texture covers it `repeats` times each way.
inline void DrawRectangle(Device& device, float left, float top, float right, float bottom, float z,
                          uint32_t colour, float repeats = 1) {
  const std::array<ScreenVertex, 4> vertices = {
      {{left, top, z, 1, colour, 0, 0, 0},
       {right, top, z, 1, colour, 0, repeats, 0},
       {left, bottom, z, 1, colour, 0, 0, repeats},
       {right, bottom, z, 1, colour, 0, repeats, repeats}}};
  device.SetVertexFormat(VertexFormat::Screen);
  device.SetStreamSource(device.CreateVertexBuffer(vertices), sizeof(ScreenVertex));
  device.DrawPrimitive(Primitive::TriangleStrip, 0, 2);
}

inline void DrawWorld(Device& device, std::span<const Vertex> vertices,
                      Primitive primitive = Primitive::TriangleList) {
  device.SetVertexFormat(VertexFormat::World);
  device.SetStreamSource(device.CreateVertexBuffer(vertices), sizeof(Vertex));
  const auto count = static_cast<uint32_t>(vertices.size());
  device.DrawPrimitive(primitive, 0, primitive == Primitive::TriangleList ? count / 3 : count - 2);
}

inline void SetPointSize(Device& device, float size) {
  device.SetPointSize(std::bit_cast<int32_t>(size));
}

/// Whether no channel differs by more than `tolerance`.
inline bool Near(uint32_t a, uint32_t b, int tolerance = 1) {
  for (const unsigned shift : {24U, 16U, 8U, 0U}) {
    const auto channel = [shift](uint32_t c) { return static_cast<int>((c >> shift) & 0xFFU); };
    if (std::abs(channel(a) - channel(b)) > tolerance) return false;
  }
  return true;
}

/// The smallest rectangle around all pixels of a colour: left, top, right, bottom, the last two
/// exclusive; all zero when there are none.
using Bounds = std::array<int, 4>;

inline Bounds BoundsOf(const Image& image, uint32_t colour) {
  Bounds b{image.width, image.height, 0, 0};
  for (int y = 0; y < image.height; ++y) {
    for (int x = 0; x < image.width; ++x) {
      if (image.At(x, y) != colour) continue;
      b = {std::min(b[0], x), std::min(b[1], y), std::max(b[2], x + 1), std::max(b[3], y + 1)};
    }
  }
  return b[2] == 0 ? Bounds{} : b;
}

}  // namespace gltest
