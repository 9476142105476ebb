// The parts of the OpenGL executors that need no context.
#include <gtest/gtest.h>

#include "platform/d3dx.h"
#include "platform/gl/frame_memory.h"
#include "platform/gl/frustum.h"
#include "platform/gl/texture_arrays.h"

namespace {

VertexBufferPtr BoxBuffer(float halfSide) {
  const std::array<Vertex, 2> corners = {
      {{-halfSide, -halfSide, -halfSide, 0, 0, 0, 0}, {halfSide, halfSide, halfSide, 0, 0, 0, 0}}};
  return std::make_shared<VertexBufferObject>(std::span<const Vertex>(corners));
}

Camera DefaultCamera() {
  return {d3dx::LookAtLH({0, 25, -18}, {0, 8, 0}, {0, 1, 0}),
          d3dx::PerspectiveFovLH(0.785398F, 1, 1, 500)};
}

TEST(TextureArrays, GreatPicturesComeInSmallNumbers) {
  for (int side = 1; side <= 16384; side *= 2) {
    const gl::LayerCounts counts = gl::LayersFor(side, side, 2048);
    const int64_t bytes = int64_t{4} * side * side;
    EXPECT_TRUE(counts.first == 1 || counts.first * bytes <= int64_t{16} << 20) << side;
    EXPECT_TRUE(counts.most == 1 || counts.most * bytes <= int64_t{256} << 20) << side;
    EXPECT_TRUE(side > 512 || counts.first == 8) << side;
    EXPECT_TRUE(side > 256 || counts.most == 256) << side;
  }
  EXPECT_EQ(gl::LayersFor(4, 4, 5).first, 5);
}

// That nothing visible is lost shows in the generated scenes.
TEST(Frustum, LeavesOutWhatIsBehindBesideAndBeyond) {
  const gl::Frustum frustum(gl::WorldToClip(DefaultCamera()));
  const auto sees = [&](float x, float y, float z) {
    Matrix4 world = d3dx::Identity();
    world.m[3] = {x, y, z, 1};
    return frustum.MaySee(*BoxBuffer(0.5F), world);
  };
  EXPECT_TRUE(sees(0, 8, 0));
  EXPECT_FALSE(sees(0, 25, -25) || sees(40, 8, 0) || sees(-40, 8, 0) || sees(0, -40, 0) ||
               sees(0, -470, 700));
}

/// A frame of one clear and one draw; change it to see what is noticed.
struct SmallFrame : CommandList {
  VertexBufferPtr box = BoxBuffer(1);
  SmallFrame() {
    commands.resize(2);
    commands[0].kind = Command::Kind::Clear;
    commands[1].buffer = box.get();
    commands[1].vertexCount = 2;
    worlds = {d3dx::Identity()};
    cameras = {DefaultCamera()};
    states = {DeviceStates()};
    resources = {box};
  }
};

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
  const auto other = BoxBuffer(2);
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
