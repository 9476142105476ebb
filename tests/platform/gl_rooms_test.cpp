// The parts of the OpenGL executors that need no context.
#include <gtest/gtest.h>

#include "platform/d3dx.h"
#include "platform/gl/frame_memory.h"
#include "platform/gl/texture_arrays.h"

namespace {

VertexBufferPtr Buffer(float x) {
  return std::make_shared<VertexBufferObject>(std::span<const Vertex>(std::array<Vertex, 2>{{x}}));
}

/// A frame of one clear and one draw; change it to see what is noticed.
struct SmallFrame : CommandList {
  VertexBufferPtr box = Buffer(1);
  SmallFrame() {
    commands.resize(2);
    commands[0].kind = Command::Kind::Clear;
    commands[1].buffer = box.get();
    commands[1].vertexCount = 2;
    worlds = {d3dx::Identity()};
    cameras = {Camera()};
    states = {DeviceStates()};
    resources = {box};
  }
};

TEST(TextureArrays, GreatPicturesComeInSmallNumbers) {
  for (int side = 1; side <= 16384; side *= 2) {
    const auto [first, most] = gl::LayersFor(side, side, 2048);
    const int64_t bytes = int64_t{4} * side * side;
    EXPECT_TRUE(first == 1 || first * bytes <= int64_t{16} << 20) << side;
    EXPECT_TRUE(most == 1 || most * bytes <= int64_t{256} << 20) << side;
  }
}

TEST(FrameMemory, HoldsAFrameThatWasDrawnTwiceAndItsResources) {
  auto frame = std::make_unique<SmallFrame>();
  const std::weak_ptr<const VertexBufferObject> box = frame->box;
  gl::FrameMemory memory;
  for (int drawn = 0; drawn < 2; ++drawn) {
    EXPECT_FALSE(memory.Holds(*frame));
    memory.Remember(*frame);
  }
  EXPECT_TRUE(memory.Holds(*frame));
  frame.reset();
  EXPECT_FALSE(box.expired());
  EXPECT_TRUE(memory.Holds(SmallFrame())) << "the same contents in a new buffer";
  memory.Forget();
  EXPECT_FALSE(memory.Holds(SmallFrame()));
}

TEST(FrameMemory, NoticesEveryKindOfChange) {
  using Frame = CommandList&;
  const SmallFrame frame;
  gl::FrameMemory memory, withoutClear;
  for (int drawn = 0; drawn < 2; ++drawn) memory.Remember(frame);
  const TextureObject texture(Image(1, 1), TextureObject::Format::Colour32);
  const auto other = Buffer(2);
  const std::vector<std::function<void(Frame)>> changes = {
      [](Frame list) { list.commands[0].colour = 1; },
      [](Frame list) { list.commands[0].depth = 0.5F; },
      [](Frame list) { list.commands[1].firstVertex = 1; },
      [](Frame list) { list.commands[1].vertexCount = 1; },
      [](Frame list) { list.commands[1].primitive = Primitive::TriangleStrip; },
      [&](Frame list) { list.commands[1].texture = &texture; },
      [&](Frame list) { list.commands[1].buffer = other.get(); },
      [](Frame list) { list.commands.pop_back(); },
      [](Frame list) { list.worlds[0].m[3][0] = 1; },
      [](Frame list) { list.cameras[0].view.m[3][0] = 1; },
      [](Frame list) { list.states[0].depthTest = true; }};
  for (size_t i = 0; i < changes.size(); ++i) {
    CommandList changed = frame;
    changes[i](changed);
    EXPECT_TRUE(memory.Holds(frame) && !memory.Holds(changed)) << i;
  }
  CommandList drawnOver = frame;
  drawnOver.commands.erase(drawnOver.commands.begin());
  for (int drawn = 0; drawn < 2; ++drawn) withoutClear.Remember(drawnOver);
  EXPECT_FALSE(withoutClear.Holds(drawnOver)) << "without a clear it draws over the last";
}

}  // namespace
