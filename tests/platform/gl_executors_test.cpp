// Generated scenes: the batched scheme must draw exactly what the plain one draws.
#include <random>

#include "tests/platform/gl_test_tools.h"

namespace gltest {
namespace {

/// The resources of a scene and the random choices that make it.
class Scene {
 public:
  Scene(unsigned seed, Device& device) : random_(seed), device_(device) {
    for (int i = 0; i < 30; ++i) textures_.push_back(RandomTexture());
    for (int i = 0; i < 12; ++i) shapes_.push_back(RandomShape());
    // More vertices than a batch holds.
    std::vector<Vertex> strip;
    for (int i = 0; i < 9000; ++i) {
      const int step = i / 2;
      const auto x = static_cast<float>(step) * 0.004F - 9;
      strip.push_back({x, (i & 1) == 0 ? 1.0F : -1.0F, Real(-0.1F, 0.1F), Colour(), 0, x, 0});
    }
    shapes_.push_back(std::make_shared<VertexBufferObject>(std::span<const Vertex>(strip)));
  }

  void RecordFrame() {
    if (Whole(3) == 0) textures_[Index(textures_.size())] = RandomTexture();
    device_.Clear(0xFF405060, 1);
    device_.BeginScene();
    for (int pass = 0; pass < 3; ++pass) {
      MoveCamera();
      if (pass == 1 && Whole(2) == 0) device_.Clear(0xFF203040, 0.999F);
      for (int i = 0; i < 60; ++i) RecordSomething();
    }
    device_.EndScene();
  }

 private:
  int Whole(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
  size_t Index(size_t below) { return random_() % below; }
  float Real(float low, float high) {
    return low + (high - low) * static_cast<float>(random_() % 100001) / 100000.0F;
  }
  uint32_t Colour() { return static_cast<uint32_t>(random_()); }

  TexturePtr RandomTexture() {
    constexpr std::array<int, 6> kSizes = {1, 4, 16, 16, 16, 33};
    Image image(kSizes[Index(6)], kSizes[Index(6)]);
    for (uint32_t& pixel : image.pixels) pixel = Whole(4) == 0 ? 0U : 0xFF000000U | Colour();
    const bool keyed = Whole(3) == 0;
    return MakeTexture(std::move(image), keyed ? TextureObject::Format::Colour16Alpha1
                                               : TextureObject::Format::Colour32);
  }

  VertexBufferPtr RandomShape() {
    const float w = Real(0.2F, 4), h = Real(0.2F, 4), d = Real(0.2F, 4);
    std::vector<Vertex> vertices(24);
    for (Vertex& vertex : vertices) {
      vertex = {Real(-w, w), Real(-h, h), Real(-d, d), Colour(), Colour(), Real(0, 3), Real(0, 3)};
    }
    return std::make_shared<VertexBufferObject>(std::span(vertices));
  }

  void MoveCamera() {
    const float place = Whole(4) == 0 ? 2400.0F : 0.0F;
    const Vector3 eye{Real(-8, 8), Real(-8, 8), place - Real(10, 30)};
    device_.SetTransform(Transform::View, d3dx::LookAtLH(eye, {0, 0, place}, {0, 1, 0}));
    device_.SetTransform(Transform::Projection,
                         d3dx::PerspectiveFovLH(Real(0.5F, 1.2F), Real(0.8F, 1.5F), 1, 60));
  }

  void RecordSomething() {
    if (Whole(6) == 0) ChangeStates();
    if (Whole(10) == 0) {
      device_.SetTransform(Transform::View, Matrix4(device_.GetTransform(Transform::View)));
    }
    device_.SetTexture(Whole(8) == 0 ? nullptr : textures_[Index(textures_.size())]);
    const int kind = Whole(12);
    if (kind > 1) return RecordShape();
    if (kind == 1) return RecordPoints();
    const float x = Real(-20, 180), y = Real(-20, 120);
    DrawRectangle(device_, x, y, x + 50, y + 30, Real(0, 1), Colour(), 2);
  }

  void ChangeStates() {
    constexpr std::array kStates = {RenderState::DepthTest, RenderState::AlphaBlend,
                                    RenderState::DepthTest, RenderState::DepthWrite,
                                    RenderState::MultisampleAntialias};
    device_.SetRenderState(kStates[Index(kStates.size())], Whole(3) != 0);
    // Few pairs: the driver compiles anew for each combination of states.
    constexpr std::array<std::pair<Blend, Blend>, 3> kBlends = {
        {{Blend::SourceAlpha, Blend::InverseSourceAlpha},
         {Blend::SourceAlpha, Blend::One},
         {Blend::One, Blend::InverseSourceAlpha}}};
    const auto [source, destination] = kBlends[Index(kBlends.size())];
    device_.SetBlend(BlendState::Source, source);
    device_.SetBlend(BlendState::Destination, destination);
    const auto filter = static_cast<Filter>(Whole(2));
    device_.SetTextureStageState(StageState::MagFilter, filter);
    device_.SetTextureStageState(StageState::MinFilter, filter);
  }

  void RecordPoints() {
    std::vector<PointVertex> points(20);
    for (PointVertex& point : points) {
      point = {Real(-9, 9), Real(-9, 9), Real(-9, 40), Colour(), Real(0, 1), Real(0, 1)};
    }
    const bool scaled = Whole(2) == 0;
    device_.SetRenderState(RenderState::PointSprite, Whole(2) == 0);
    device_.SetRenderState(RenderState::PointScale, scaled);
    SetPointSize(device_, scaled ? Real(0.01F, 0.2F) : Real(1, 30));
    device_.DrawPrimitiveUP(points);
  }

  void RecordShape() {
    Matrix4 world = d3dx::RotationY(Real(0, 6));
    const float far = Whole(4) == 0 ? 2400.0F : 0.0F;
    world.m[3] = {Real(-25, 25), Real(-25, 25), far + Real(-40, 60), 1};
    const VertexBufferPtr shape = shapes_[Index(shapes_.size())];
    const auto count = static_cast<uint32_t>(shape->VertexCount());
    device_.SetTransform(Transform::World, world);
    device_.SetVertexFormat(VertexFormat::World);
    device_.SetStreamSource(shape, sizeof(Vertex));
    if (Whole(3) != 0) {
      for (uint32_t first = 0; first < 24; first += 4) {
        device_.DrawPrimitive(Primitive::TriangleStrip, first, 2);
      }
    } else if (Whole(4) == 0) {
      device_.DrawPrimitive(Primitive::TriangleList, 0, count / 3);
    } else {
      device_.DrawPrimitive(Primitive::TriangleStrip, 0, count - 2);
    }
  }

  std::mt19937 random_;
  Device& device_;
  std::vector<TexturePtr> textures_;
  std::vector<VertexBufferPtr> shapes_;
};

class GeneratedScenes : public testing::TestWithParam<gl::TargetSettings> {};
INSTANTIATE_TEST_SUITE_P(Targets, GeneratedScenes,
                         testing::Values(gl::TargetSettings{160, 121, 1, 1.0},
                                         gl::TargetSettings{160, 121, 4, 1.0},
                                         gl::TargetSettings{131, 120, 4, 1.5}));

TEST_P(GeneratedScenes, BothSchemesDrawTheSamePixels) {
  Screen batched(gl::Scheme::Batched, GetParam()), plain(gl::Scheme::Plain, GetParam());
  Device device(std::make_unique<Forwarder>(batched.executor, plain.executor));
  for (unsigned seed = 1; seed <= 10; ++seed) {
    Scene scene(seed, device);
    for (int frame = 0; frame < 5; ++frame) {
      scene.RecordFrame();
      device.Present();
      ExpectSamePicture(batched.executor->ReadPicture(), plain.executor->ReadPicture(),
                        "scene" + std::to_string(seed) + "_" + std::to_string(frame));
    }
  }
}

/// A backdrop below something that moves. From frame to frame mostly nothing of it changes, or one
/// of the things that make it up.
class Backdrop {
 public:
  explicit Backdrop(Device& device) : device_(device) {}
  void RecordFrame() {
    const auto choice = random_() % 18;
    if (choice == 0) clear_ ^= 0x102030;
    if (choice == 1) texture_ = PlainTexture(static_cast<uint32_t>(random_()) | 0x80000000U);
    if (choice == 2) blends_ = !blends_;
    if (choice == 3) writesDepth_ = !writesDepth_;
    if (choice == 4 || !rectangle_) rectangle_ = RandomRectangle();
    if (choice == 5) drawn_ = random_() % 3;
    device_.Clear(clear_, 1);
    device_.BeginScene();
    device_.SetRenderState(RenderState::AlphaBlend, blends_);
    device_.SetRenderState(RenderState::DepthWrite, writesDepth_);
    device_.SetTexture(texture_);
    device_.SetVertexFormat(VertexFormat::Screen);
    device_.SetStreamSource(rectangle_, sizeof(ScreenVertex));
    for (size_t i = 0; i < drawn_; ++i) device_.DrawPrimitive(Primitive::TriangleStrip, 0, 2);
    device_.SetTexture(nullptr);
    at_ += 0.01F;
    DrawWorld(device_, std::array<Vertex, 3>{{{at_ - 1, -1, 0.5F, 0xFFFF0000, 0, 0, 0},
                                              {at_, 1, 0.5F, 0xFF00FF00, 0, 0, 0},
                                              {at_, -1, 0.5F, 0xFF0000FF, 0, 0, 0}}});
    device_.EndScene();
  }

 private:
  VertexBufferPtr RandomRectangle() {
    const auto right = static_cast<float>(random_() % 160),
               low = static_cast<float>(random_() % 99);
    const std::array<ScreenVertex, 4> vertices = {{{0, 0, 1, 1, 0xFF8090A0, 0, 0, 0},
                                                   {right, 0, 1, 1, 0xFFFFFFFF, 0, 1, 0},
                                                   {0, low, 0, 1, 0xFFFFFFFF, 0, 0, 1},
                                                   {right, low, 0, 1, 0xFF203040, 0, 1, 1}}};
    return device_.CreateVertexBuffer(vertices);
  }

  std::mt19937 random_{3};
  Device& device_;
  VertexBufferPtr rectangle_;
  TexturePtr texture_;
  size_t drawn_ = 1;
  uint32_t clear_ = 0xFF405060;
  bool blends_ = true, writesDepth_ = false;
  float at_ = -1;
};

TEST_P(GeneratedScenes, ABackdropThatWasKeptIsTheOneThatWouldBeDrawn) {
  Screen batched(gl::Scheme::Batched, GetParam()), plain(gl::Scheme::Plain, GetParam());
  Device device(std::make_unique<Forwarder>(batched.executor, plain.executor));
  device.SetRenderState(RenderState::DepthTest, true);
  device.SetBlend(BlendState::Source, Blend::SourceAlpha);
  Backdrop backdrop(device);
  for (int frame = 0; frame < 300; ++frame) {
    backdrop.RecordFrame();
    device.Present();
    ExpectSamePicture(batched.executor->ReadPicture(), plain.executor->ReadPicture(),
                      "backdrop_" + std::to_string(frame));
  }
}

class BatchedTextures : public testing::Test {
 protected:
  static float Left(size_t i) { return static_cast<float>(2 * (i % 50)); }
  static float Top(size_t i) { return static_cast<float>(i - i % 50) / 25; }
  /// One small square for each texture.
  Image Draw(std::span<const TexturePtr> textures) {
    screen_.device.Clear(0xFF000000, 1);
    screen_.device.BeginScene();
    for (size_t i = 0; i < textures.size(); ++i) {
      screen_.device.SetTexture(textures[i]);
      DrawRectangle(screen_.device, Left(i), Top(i), Left(i) + 2, Top(i) + 2, 0, 0xFFFFFFFF);
    }
    screen_.device.SetTexture(nullptr);
    screen_.device.EndScene();
    return screen_.Present();
  }
  void ExpectShown(std::span<const TexturePtr> textures) {
    const Image picture = Draw(textures);
    for (size_t i = 0; i < textures.size(); ++i) {
      const int x = static_cast<int>(Left(i)), y = static_cast<int>(Top(i));
      ASSERT_EQ(picture.At(x, y), textures[i]->Level(0).At(0, 0)) << i;
    }
  }
  Screen screen_{gl::Scheme::Batched, {100, 40, 1, 1}};
};

TEST_F(BatchedTextures, HundredsMakeRoomAndComeBack) {
  std::vector<TexturePtr> textures;
  for (uint32_t i = 0; i < 600; ++i) textures.push_back(PlainTexture(0xFF000000U | i * 4001));
  const std::span all(textures);
  ExpectShown(all);
  // Two frames in turn, so that neither is skipped as unchanged.
  for (size_t frame = 0; frame < 500; ++frame) Draw(all.subspan(frame % 2, 3));
  ExpectShown(all);
}

TEST_F(BatchedTextures, ANewOneIsSeenAtAnOldAddressAndInAFrameThatStoodStill) {
  for (uint32_t i = 1; i < 50; ++i) ExpectShown(std::vector{PlainTexture(0xFF000000U | i * 5)});
  std::vector<TexturePtr> textures = {PlainTexture(0xFFFF0000), PlainTexture(0xFF00FF00)};
  for (int frame = 0; frame < 15; ++frame) {
    ExpectShown(textures);
    if (frame % 5 == 4) std::swap(textures[0], textures[1]);
  }
}

}  // namespace
}  // namespace gltest
