// The parts of the OpenGL executors that need no context.
#include <gtest/gtest.h>

#include <random>

#include "platform/d3dx.h"
#include "platform/gl/frame_memory.h"
#include "platform/gl/frustum.h"
#include "platform/gl/stream_vertex.h"

namespace {

VertexBufferPtr BoxBuffer(float halfSide) {
  const std::array<Vertex, 2> corners = {
      {{-halfSide, -halfSide, -halfSide, 0, 0, 0, 0}, {halfSide, halfSide, halfSide, 0, 0, 0, 0}}};
  return std::make_shared<VertexBufferObject>(std::span<const Vertex>(corners));
}

Matrix4 Translation(float x, float y, float z) {
  Matrix4 matrix = d3dx::Identity();
  matrix.m[3] = {x, y, z, 1};
  return matrix;
}

Camera DefaultCamera() {
  return {d3dx::LookAtLH({0, 25, -18}, {0, 8, 0}, {0, 1, 0}),
          d3dx::PerspectiveFovLH(0.785398F, 1, 1, 500)};
}

/// In double: whether the point is inside the view.
bool Inside(const gl::UniformMatrix& m, double x, double y, double z) {
  std::array<double, 4> c{};
  for (size_t i = 0; i < 4; ++i) c[i] = x * m[i] + y * m[4 + i] + z * m[8 + i] + m[12 + i];
  return std::abs(c[0]) <= c[3] && std::abs(c[1]) <= c[3] && c[2] >= 0 && c[2] <= c[3];
}

TEST(Frustum, NeverLosesWhatReachesIntoTheView) {
  const auto toClip = gl::WorldToClip(DefaultCamera());
  const gl::Frustum frustum(toClip);
  std::mt19937 random(3);
  std::uniform_real_distribution<float> wide(-300, 600), turn(0, 6), size(0.1F, 30);
  int culled = 0;
  for (int i = 0; i < 20000; ++i) {
    const float side = size(random), x = wide(random), y = wide(random), z = wide(random);
    const auto box = BoxBuffer(side);
    const Matrix4 world = d3dx::Multiply(d3dx::RotationY(turn(random)), Translation(x, y, z));
    if (frustum.MaySee(*box, world)) continue;
    ++culled;
    for (int corner = 0; corner < 27; ++corner) {
      const auto at = [&](int digit) { return double{side} * (digit % 3 - 1); };
      const double lx = at(corner), ly = at(corner / 3), lz = at(corner / 9);
      const auto placed = [&](size_t c) {
        return lx * world.m[0][c] + ly * world.m[1][c] + lz * world.m[2][c] + world.m[3][c];
      };
      ASSERT_FALSE(Inside(toClip, placed(0), placed(1), placed(2)));
    }
  }
  EXPECT_GT(culled, 10000);
}

TEST(Frustum, LeavesOutWhatIsBehindBesideAndBeyond) {
  const gl::Frustum frustum(gl::WorldToClip(DefaultCamera()));
  const auto box = BoxBuffer(0.5F);
  EXPECT_TRUE(frustum.MaySee(*box, Translation(0, 8, 0)));
  EXPECT_FALSE(frustum.MaySee(*box, Translation(0, 25, -25)));
  EXPECT_FALSE(frustum.MaySee(*box, Translation(40, 8, 0)));
  EXPECT_FALSE(frustum.MaySee(*box, Translation(-40, 8, 0)));
  EXPECT_FALSE(frustum.MaySee(*box, Translation(0, -40, 0)));
  EXPECT_FALSE(frustum.MaySee(*box, Translation(0, -470, 700)));
}

TEST(StreamVertices, StripsBecomeListsOfTheSameWinding) {
  std::vector<Vertex> strip;
  for (uint32_t i = 0; i < 5; ++i) strip.push_back({static_cast<float>(i), 0, 0, i, 9, 0, 0});
  const VertexBufferObject buffer{std::span<const Vertex>(strip)};
  Command draw;
  draw.primitive = Primitive::TriangleStrip;
  draw.buffer = &buffer;
  draw.vertexCount = 5;
  std::vector<gl::StreamVertex> out(gl::ExpandedCount(draw)), scratch;
  ASSERT_EQ(out.size(), 9U);
  gl::PlaceExpanded(draw, Translation(10, 20, 30), 7, out.data(), scratch);
  constexpr std::array<uint32_t, 9> kOrder = {0, 1, 2, 2, 1, 3, 2, 3, 4};
  for (size_t i = 0; i < 9; ++i) {
    EXPECT_EQ(out[i].colour, kOrder[i]);
    EXPECT_EQ(out[i].x, 10 + static_cast<float>(kOrder[i]));
    EXPECT_EQ(out[i].y, 20);
    EXPECT_EQ(out[i].z, 30);
    EXPECT_EQ(out[i].layer, 7);
  }
  draw.vertexCount = 2;
  EXPECT_EQ(gl::ExpandedCount(draw), 0U);
}

/// A frame of one clear and one draw; change it to see what is noticed.
struct SmallFrame {
  CommandList list;
  VertexBufferPtr box = BoxBuffer(1);
  SmallFrame() {
    Command clear, draw;
    clear.kind = Command::Kind::Clear;
    draw.buffer = box.get();
    draw.vertexCount = 2;
    list.commands = {clear, draw};
    list.worlds = {d3dx::Identity()};
    list.cameras = {DefaultCamera()};
    list.states = {DeviceStates()};
    list.resources = {box};
  }
};

/// A memory that holds the frame.
gl::FrameMemory MemoryOf(const CommandList& frame) {
  gl::FrameMemory memory;
  memory.Remember(frame);
  memory.Remember(frame);
  return memory;
}

TEST(FrameMemory, HoldsAFrameThatWasDrawnTwice) {
  const SmallFrame frame;
  gl::FrameMemory memory;
  EXPECT_FALSE(memory.Holds(frame.list));
  memory.Remember(frame.list);
  EXPECT_FALSE(memory.Holds(frame.list));
  memory.Remember(frame.list);
  EXPECT_TRUE(memory.Holds(frame.list));
  memory.Forget();
  EXPECT_FALSE(memory.Holds(frame.list));
}

TEST(FrameMemory, NoticesEveryKindOfChange) {
  const SmallFrame frame;
  const gl::FrameMemory memory = MemoryOf(frame.list);
  const auto texture =
      std::make_shared<TextureObject>(Image(1, 1), TextureObject::Format::Colour32);
  const auto other = BoxBuffer(2);
  const std::vector<std::function<void(CommandList&)>> changes = {
      [](CommandList& list) { list.commands[0].colour = 1; },
      [](CommandList& list) { list.commands[0].depth = 0.5F; },
      [](CommandList& list) { list.commands[1].firstVertex = 1; },
      [](CommandList& list) { list.commands[1].vertexCount = 1; },
      [](CommandList& list) { list.commands[1].primitive = Primitive::TriangleStrip; },
      [&](CommandList& list) { list.commands[1].texture = texture.get(); },
      [&](CommandList& list) { list.commands[1].buffer = other.get(); },
      [](CommandList& list) { list.commands.pop_back(); },
      [](CommandList& list) { list.worlds[0].m[3][0] = 1; },
      [](CommandList& list) { list.cameras[0].view.m[3][0] = 1; },
      [](CommandList& list) { list.states[0].depthTest = true; }};
  for (size_t i = 0; i < changes.size(); ++i) {
    CommandList changed = frame.list;
    changes[i](changed);
    EXPECT_FALSE(memory.Holds(changed)) << i;
    EXPECT_TRUE(memory.Holds(frame.list));
  }
}

TEST(FrameMemory, KeepsItsResourcesAlive) {
  auto frame = std::make_unique<SmallFrame>();
  const std::weak_ptr<const VertexBufferObject> box = frame->box;
  const gl::FrameMemory memory = MemoryOf(frame->list);
  frame.reset();
  EXPECT_FALSE(box.expired());
}

TEST(FrameMemory, ComparesTheContentsOfBuffersMadeAnew) {
  const SmallFrame first, second;
  EXPECT_TRUE(MemoryOf(first.list).Holds(second.list));
}

TEST(FrameMemory, NeverHoldsAFrameThatDrawsOverTheLast) {
  SmallFrame frame;
  frame.list.commands.erase(frame.list.commands.begin());
  EXPECT_FALSE(MemoryOf(frame.list).Holds(frame.list));
}

}  // namespace
