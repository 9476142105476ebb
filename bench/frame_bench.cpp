// Times a frame of the largest track: recording it, and drawing it by both schemes.
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <random>

#include "platform/d3dx.h"
#include "platform/device.h"
#include "platform/gl/headless_context.h"
#include "platform/gl/picture_executor.h"

namespace {

constexpr int kBlocks = 32767;
constexpr float kTrackDepth = 2500;
constexpr int kTextures = 16;
constexpr gl::TargetSettings kTarget = {601, 457, 4, 1.0};

/// First vertices of a block's four draws: front, both sides, top, back and bottom.
constexpr std::array<uint32_t, 5> kDraws = {0, 6, 18, 24, 36};

/// A box of 1 x 1 x 1 with its corner at the origin, as lists of triangles.
std::vector<Vertex> BoxVertices() {
  // Corners as bits: 1 right, 2 up, 4 far; clockwise by pairs of triangles.
  constexpr int kFaces[6][4] = {{2, 3, 0, 1}, {6, 2, 4, 0}, {3, 7, 1, 5},
                                {6, 7, 2, 3}, {7, 6, 5, 4}, {0, 1, 4, 5}};
  std::vector<Vertex> vertices;
  for (const auto& face : kFaces) {
    for (const int corner : {0, 1, 2, 2, 1, 3}) {
      const auto bit = [&](int mask) { return (face[corner] & mask) != 0 ? 1.0F : 0.0F; };
      vertices.push_back({bit(1), bit(2), bit(4), 0xFFFFFFFF, 0, static_cast<float>(corner & 1),
                          static_cast<float>(corner >> 1)});
    }
  }
  return vertices;
}

TexturePtr MakeTexture(std::mt19937& random) {
  Image image(128, 128);
  const uint32_t base = static_cast<uint32_t>(random()) & 0x7F7F7FU;
  for (uint32_t& pixel : image.pixels) {
    pixel = 0xFF000000U | (base + (static_cast<uint32_t>(random()) & 0x3F3F3FU));
  }
  return std::make_shared<TextureObject>(std::move(image), TextureObject::Format::Colour32);
}

struct Block {
  VertexBufferPtr buffer;
  Matrix4 world;
  std::array<TexturePtr, 4> textures;
};

std::vector<Block> MakeTrack(const Device& device) {
  std::mt19937 random(7);
  std::vector<TexturePtr> textures;
  textures.reserve(kTextures);
  for (int i = 0; i < kTextures; ++i) textures.push_back(MakeTexture(random));
  const auto vertices = BoxVertices();
  std::vector<Block> track;
  for (int i = 0; i < kBlocks; ++i) {
    Block block;
    // Every block has a buffer of its own, as in a track.
    block.buffer = device.CreateVertexBuffer(std::span(vertices));
    block.world = d3dx::Identity();
    block.world.m[3] = {static_cast<float>(static_cast<int>(random() % 24) - 12),
                        static_cast<float>(static_cast<int>(random() % 8)),
                        static_cast<float>(i) * kTrackDepth / kBlocks, 1};
    for (TexturePtr& texture : block.textures) texture = textures[random() % kTextures];
    track.push_back(std::move(block));
  }
  return track;
}

void Record(Device& device, const std::vector<Block>& track, float depth) {
  device.Clear(0xFF203040, 1);
  device.BeginScene();
  device.SetTransform(Transform::View,
                      d3dx::LookAtLH({0, 25, depth - 18}, {0, 8, depth}, {0, 1, 0}));
  device.SetTransform(Transform::Projection, d3dx::PerspectiveFovLH(0.785398F, 1, 1, 500));
  for (const Block& block : track) {
    device.SetTransform(Transform::World, block.world);
    device.SetVertexFormat(VertexFormat::World);
    device.SetStreamSource(block.buffer, sizeof(Vertex));
    for (size_t draw = 0; draw < 4; ++draw) {
      device.SetTexture(block.textures[draw]);
      const uint32_t triangles = (kDraws[draw + 1] - kDraws[draw]) / 3;
      device.DrawPrimitive(Primitive::TriangleList, kDraws[draw], triangles);
    }
  }
  device.EndScene();
}

void SetStates(Device& device) {
  device.SetRenderState(RenderState::Lighting, false);
  device.SetRenderState(RenderState::DepthTest, true);
  device.SetRenderState(RenderState::MultisampleAntialias, true);
  device.SetTextureStageState(StageState::MagFilter, Filter::Linear);
  device.SetTextureStageState(StageState::MinFilter, Filter::Linear);
}

/// Milliseconds.
struct Times {
  double record = 0, execute = 0, read = 0, present = 0;
};

using Clock = std::chrono::steady_clock;

/// Runs the action and returns its milliseconds.
template <typename Action>
double Timed(Action action) {
  const auto start = Clock::now();
  action();
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// Hands frames to an executor that someone else owns, and keeps the time it takes.
class Stopwatch : public Executor {
 public:
  Stopwatch(gl::PictureExecutor& executor, Times& times) : executor_(executor), times_(times) {}
  void Execute(const CommandList& frame) override {
    // Reading waits for whatever the driver still has to draw.
    times_.execute = Timed([&] {
      executor_.Execute(frame);
      executor_.ReadPicture();
    });
    times_.read = Timed([&] { executor_.ReadPicture(); });
  }

 private:
  gl::PictureExecutor& executor_;
  Times& times_;
};

/// The best of all frames; from one to the next the camera moves by `step`.
Times Measure(gl::Scheme scheme, int frames, float step) {
  const auto executor = gl::CreateExecutor(scheme, kTarget);
  Times frame, best{1e9, 1e9, 1e9, 1e9};
  Device device(std::make_unique<Stopwatch>(*executor, frame));
  SetStates(device);
  const auto track = MakeTrack(device);
  for (int i = 0; i < frames; ++i) {
    frame.record = Timed([&] { Record(device, track, static_cast<float>(i) * step); });
    frame.present = Timed([&] { device.Present(); });
    best.record = std::min(best.record, frame.record);
    best.execute = std::min(best.execute, frame.execute);
    best.read = std::min(best.read, frame.read);
    best.present = std::min(best.present, frame.present - frame.execute - frame.read);
  }
  return best;
}

}  // namespace

int main() {
  const gl::HeadlessContext context;
  const Times batched = Measure(gl::Scheme::Batched, 60, 0.5F);
  const Times plain = Measure(gl::Scheme::Plain, 6, 5.0F);
  const Times still = Measure(gl::Scheme::Batched, 10, 0);
  std::printf("%d blocks, 4 draws each, %d x %d pixels, %d samples; milliseconds a frame\n",
              kBlocks, kTarget.width, kTarget.height, kTarget.samples);
  std::printf("record             %8.2f\n", batched.record);
  std::printf("empty the list     %8.2f\n", batched.present);
  std::printf("batched, with read %8.2f\n", batched.execute);
  std::printf("  unchanged frame  %8.2f\n", still.execute);
  std::printf("plain, with read   %8.2f  (%.1f times batched)\n", plain.execute,
              plain.execute / batched.execute);
  std::printf("reading once more  %8.2f\n", plain.read);
  return 0;
}
