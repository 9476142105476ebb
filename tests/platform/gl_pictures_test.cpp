// What a single draw looks like, by either scheme, with and without multisampling.
#include "tests/platform/gl_test_tools.h"

namespace gltest {
namespace {

constexpr uint32_t kGround = 0xFF102030;

class Pictures : public testing::TestWithParam<std::tuple<gl::Scheme, int>> {
 protected:
  Pictures() { NeedContext(); }
  Screen MakeScreen(int width, int height, double scale = 1) const {
    return {std::get<0>(GetParam()), {width, height, std::get<1>(GetParam()), scale}};
  }
  static Device& Begin(Screen& screen) {
    screen.device.Clear(kGround, 1);
    screen.device.BeginScene();
    screen.device.SetRenderState(RenderState::MultisampleAntialias, true);
    return screen.device;
  }
  static Image End(Screen& screen) {
    screen.device.EndScene();
    return screen.Present();
  }
};

std::string CaseName(const testing::TestParamInfo<Pictures::ParamType>& test) {
  const char* scheme = std::get<0>(test.param) == gl::Scheme::Plain ? "Plain" : "Batched";
  return scheme + std::to_string(std::get<1>(test.param));
}

INSTANTIATE_TEST_SUITE_P(All, Pictures,
                         testing::Combine(testing::Values(gl::Scheme::Batched, gl::Scheme::Plain),
                                          testing::Values(1, 4)),
                         CaseName);

TEST_P(Pictures, NothingPresentedIsBlack) {
  Screen screen = MakeScreen(5, 3);
  EXPECT_EQ(screen.executor->ReadPicture().pixels, Image(5, 3, 0xFF000000).pixels);
}

TEST_P(Pictures, ClearFillsThePictureAndTheDepth) {
  Screen screen = MakeScreen(7, 5);
  Device& device = Begin(screen);
  device.SetRenderState(RenderState::DepthTest, true);
  DrawRectangle(device, 0, 0, 7, 5, 0.25F, 0xFFFF0000);
  // Even while depth writes are off.
  device.SetRenderState(RenderState::DepthWrite, false);
  DrawRectangle(device, 0, 0, 7, 5, 0.1F, 0xFFFFFF00);
  device.Clear(0x12345678, 0.5F);
  DrawRectangle(device, 0, 0, 3, 5, 0.49F, 0xFF00FF00);
  DrawRectangle(device, 3, 0, 5, 5, 0.51F, 0xFF0000FF);
  const Image picture = End(screen);
  for (int y = 0; y < 5; ++y) {
    for (int x = 0; x < 7; ++x) {
      EXPECT_EQ(picture.At(x, y), x < 3 ? 0xFF00FF00 : 0xFF345678);
    }
  }
}

TEST_P(Pictures, ScreenVerticesCoverExactlyTheirPixels) {
  Screen screen = MakeScreen(20, 12);
  DrawRectangle(Begin(screen), 3, 5, 10, 9, 0, 0xFFFF8000);
  const Image picture = End(screen);
  Image expected(20, 12, kGround);
  for (int y = 5; y < 9; ++y) {
    for (int x = 3; x < 10; ++x) expected.At(x, y) = 0xFFFF8000;
  }
  ExpectSamePicture(picture, expected, "screen_vertices");
}

TEST_P(Pictures, AViewportOfAnySizeIsCoveredToItsEdges) {
  Screen screen = MakeScreen(601, 457);
  DrawRectangle(Begin(screen), 0, 0, 601, 457, 0.9F, 0xFF00FF00);
  EXPECT_EQ(BoundsOf(End(screen), 0xFF00FF00), (Bounds{0, 0, 601, 457}));
}

TEST_P(Pictures, ScaleMultipliesDevicePixelsOnly) {
  Screen screen = MakeScreen(21, 10, 1.5);
  DrawRectangle(Begin(screen), 2, 2, 4, 6, 0, 0xFFFFFFFF);
  const Image picture = End(screen);
  EXPECT_EQ(picture.width, 32);  // 31.5 rounds away from zero
  EXPECT_EQ(picture.height, 15);
  EXPECT_EQ(BoundsOf(picture, 0xFFFFFFFF), (Bounds{3, 3, 6, 9}));
}

TEST_P(Pictures, ClockwiseIsFrontAndCounterClockwiseIsCulled) {
  Screen screen = MakeScreen(8, 8);
  Device& device = Begin(screen);
  const auto corner = [](float x, float y, uint32_t colour) {
    return Vertex{x, y, 0.5F, colour, 0, 0, 0};
  };
  constexpr uint32_t kSeen = 0xFF00FF00, kCulled = 0xFFFF0000;
  // Upper left half clockwise, lower right half counter-clockwise.
  DrawWorld(device, std::array{corner(-1, 1, kSeen), corner(1, 1, kSeen), corner(-1, -1, kSeen)});
  DrawWorld(device,
            std::array{corner(1, 1, kCulled), corner(-1, -1, kCulled), corner(1, -1, kCulled)});
  const Image picture = End(screen);
  EXPECT_EQ(picture.At(1, 1), kSeen);
  EXPECT_EQ(picture.At(6, 6), kGround);
}

TEST_P(Pictures, TextureTimesVertexColour) {
  Screen screen = MakeScreen(4, 4);
  Device& device = Begin(screen);
  device.SetTexture(PlainTexture(0xFF80FF40));
  DrawRectangle(device, 0, 0, 2, 4, 0, 0xFFFFFFFF);
  DrawRectangle(device, 2, 0, 4, 4, 0, 0x00FF8080);
  const Image picture = End(screen);
  EXPECT_EQ(picture.At(0, 0), 0xFF80FF40);
  EXPECT_TRUE(Near(picture.At(3, 3), 0xFF808020)) << std::hex << picture.At(3, 3);
}

TEST_P(Pictures, SpecularAndLightingChangeNothing) {
  Screen screen = MakeScreen(4, 4);
  Device& device = Begin(screen);
  device.SetRenderState(RenderState::Lighting, true);
  const std::array<Vertex, 3> triangle = {{{-3, 1, 0, 0xFF405060, 0xFFFFFFFF, 0, 0},
                                           {1, 1, 0, 0xFF405060, 0xFFFFFFFF, 0, 0},
                                           {1, -3, 0, 0xFF405060, 0xFFFFFFFF, 0, 0}}};
  DrawWorld(device, triangle);
  EXPECT_EQ(End(screen).At(2, 1), 0xFF405060);
}

TEST_P(Pictures, TexturesRepeatFromTheirTopLeftCorner) {
  Screen screen = MakeScreen(8, 8);
  Device& device = Begin(screen);
  Image image(2, 2);
  image.pixels = {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFFFFFFFF};
  const Image copy = image;
  device.SetTexture(MakeTexture(std::move(image)));
  DrawRectangle(device, 0, 0, 8, 8, 0, 0xFFFFFFFF, 2);
  const Image picture = End(screen);
  for (int y = 0; y < 8; ++y) {
    for (int x = 0; x < 8; ++x) EXPECT_EQ(picture.At(x, y), copy.At(x / 2 % 2, y / 2 % 2));
  }
}

TEST_P(Pictures, LinearFiltersMixWhatPointFiltersTake) {
  Screen screen = MakeScreen(8, 8);
  Device& device = Begin(screen);
  Image image(2, 1);
  image.pixels = {0xFF000000, 0xFFFFFFFF};
  device.SetTexture(MakeTexture(std::move(image)));
  DrawRectangle(device, 0, 0, 8, 4, 0, 0xFFFFFFFF);
  device.SetTextureStageState(StageState::MagFilter, Filter::Linear);
  DrawRectangle(device, 0, 4, 8, 8, 0, 0xFFFFFFFF);
  const Image picture = End(screen);
  EXPECT_EQ(picture.At(3, 1), 0xFF000000);
  EXPECT_EQ(picture.At(4, 1), 0xFFFFFFFF);
  EXPECT_TRUE(Near(picture.At(3, 6), 0xFF606060, 2)) << std::hex << picture.At(3, 6);
  EXPECT_TRUE(Near(picture.At(4, 6), 0xFFA0A0A0, 2)) << std::hex << picture.At(4, 6);
}

TEST_P(Pictures, AlphaIsTheTexturesElseTheVertexs) {
  Screen screen = MakeScreen(6, 2);
  Device& device = Begin(screen);
  device.SetRenderState(RenderState::AlphaBlend, true);
  device.SetBlend(BlendState::Source, Blend::SourceAlpha);
  device.SetBlend(BlendState::Destination, Blend::InverseSourceAlpha);
  device.SetTexture(PlainTexture(0x00FFFFFF));
  DrawRectangle(device, 0, 0, 2, 2, 0, 0xFFFFFFFF);
  device.SetTexture(PlainTexture(0xFFFFFFFF));
  DrawRectangle(device, 2, 0, 4, 2, 0, 0x00FFFFFF);
  device.SetTexture(nullptr);
  DrawRectangle(device, 4, 0, 6, 2, 0, 0x80FFFFFF);
  const Image picture = End(screen);
  EXPECT_EQ(picture.At(0, 0), kGround);
  EXPECT_EQ(picture.At(2, 0), 0xFFFFFFFF);
  EXPECT_TRUE(Near(picture.At(5, 1), 0xFF889098)) << std::hex << picture.At(5, 1);
}

TEST_P(Pictures, WithoutBlendingAlphaIsIgnored) {
  Screen screen = MakeScreen(2, 2);
  Device& device = Begin(screen);
  device.SetBlend(BlendState::Source, Blend::SourceAlpha);
  device.SetTexture(PlainTexture(0x00445566));
  DrawRectangle(device, 0, 0, 2, 2, 0, 0xFFFFFFFF);
  EXPECT_EQ(End(screen).At(1, 1), 0xFF445566);
}

TEST_P(Pictures, BlendFactors) {
  Screen screen = MakeScreen(4, 1);
  Device& device = Begin(screen);
  device.SetRenderState(RenderState::AlphaBlend, true);
  const auto draw = [&](float x, Blend source, Blend destination) {
    device.SetBlend(BlendState::Source, source);
    device.SetBlend(BlendState::Destination, destination);
    DrawRectangle(device, x, 0, x + 1, 1, 0, 0x80204060);
  };
  draw(0, Blend::One, Blend::One);
  draw(1, Blend::Zero, Blend::One);
  draw(2, Blend::One, Blend::Zero);
  draw(3, Blend::SourceAlpha, Blend::One);
  const Image picture = End(screen);
  EXPECT_EQ(picture.At(0, 0), 0xFF306090);
  EXPECT_EQ(picture.At(1, 0), kGround);
  EXPECT_EQ(picture.At(2, 0), 0xFF204060);
  EXPECT_TRUE(Near(picture.At(3, 0), 0xFF204060)) << std::hex << picture.At(3, 0);
}

TEST_P(Pictures, DepthIsLessOrEqual) {
  Screen screen = MakeScreen(4, 1);
  Device& device = Begin(screen);
  device.SetRenderState(RenderState::DepthTest, true);
  DrawRectangle(device, 0, 0, 4, 1, 0.5F, 0xFF000001);
  DrawRectangle(device, 0, 0, 1, 1, 0.5F, 0xFF000002);
  DrawRectangle(device, 1, 0, 2, 1, 0.51F, 0xFF000003);
  device.SetRenderState(RenderState::DepthWrite, false);
  DrawRectangle(device, 2, 0, 3, 1, 0.2F, 0xFF000004);
  device.SetRenderState(RenderState::DepthWrite, true);
  DrawRectangle(device, 2, 0, 3, 1, 0.4F, 0xFF000005);
  device.SetRenderState(RenderState::DepthTest, false);
  DrawRectangle(device, 3, 0, 4, 1, 0.9F, 0xFF000006);
  const Image picture = End(screen);
  EXPECT_EQ(picture.pixels, (std::vector{0xFF000002, 0xFF000001, 0xFF000005, 0xFF000006}));
}

TEST_P(Pictures, StatesPersistAcrossFrames) {
  Screen screen = MakeScreen(4, 1);
  Device& device = Begin(screen);
  device.SetRenderState(RenderState::DepthTest, true);
  device.SetTexture(PlainTexture(0xFF0000FF));
  DrawRectangle(device, 0, 0, 4, 1, 0.5F, 0xFFFFFFFF);
  End(screen);
  Begin(screen);
  DrawRectangle(device, 0, 0, 2, 1, 0.5F, 0xFFFFFFFF);
  DrawRectangle(device, 0, 0, 4, 1, 0.7F, 0xFF000000);
  const Image picture = End(screen);
  EXPECT_EQ(picture.At(1, 0), 0xFF0000FF);
  EXPECT_EQ(picture.At(3, 0), 0xFF000000);
}

TEST_P(Pictures, WorldThenViewThenProjection) {
  Screen screen = MakeScreen(200, 100);
  Device& device = Begin(screen);
  Matrix4 world = d3dx::Multiply(d3dx::Scaling(2, 1, 1), d3dx::RotationY(1.5707964F));
  world.m[3] = {1, 2, 30, 1};
  device.SetTransform(Transform::World, world);
  device.SetTransform(Transform::View, d3dx::LookAtLH({0, 0, 10}, {0, 0, 20}, {0, 1, 0}));
  device.SetTransform(Transform::Projection, d3dx::PerspectiveFovLH(1.5707964F, 2, 1, 100));
  // In the plane x = 0 of the model; scaling comes first, so turning leaves its size as it is.
  const auto corner = [](float z, float y) { return Vertex{0, y, z, 0xFFFFFFFF, 0, 0, 0}; };
  const std::array<Vertex, 4> strip = {corner(-4, 4), corner(4, 4), corner(-4, 0), corner(4, 0)};
  DrawWorld(device, strip, Primitive::TriangleStrip);
  // Turned by a right angle z becomes x: x from 1 - 4 to 1 + 4, y from 2 to 6, 20 before the eye;
  // half the height of the view is 20 there, so a unit is 2.5 pixels.
  const Image picture = End(screen);
  const Bounds bounds = BoundsOf(picture, 0xFFFFFFFF);
  EXPECT_NEAR(bounds.left, 100 - 3 * 2.5, 1);
  EXPECT_NEAR(bounds.right, 100 + 5 * 2.5, 1);
  EXPECT_NEAR(bounds.top, 50 - 6 * 2.5, 1);
  EXPECT_NEAR(bounds.bottom, 50 - 2 * 2.5, 1);
}

/// Side of the sprite of a point `distance` before the eye.
Bounds SpriteAt(Screen& screen, float distance, float x = 0) {
  Device& device = screen.device;
  device.SetTransform(Transform::Projection, d3dx::PerspectiveFovLH(0.785F, 2, 1, 500));
  const std::array<PointVertex, 1> points = {{{x, 0, distance, 0xFFFFFFFF, 0, 0}}};
  device.Clear(kGround, 1);
  device.BeginScene();
  device.DrawPrimitiveUP(points);
  device.EndScene();
  return BoundsOf(screen.Present(), 0xFFFFFFFF);
}

TEST_P(Pictures, ScaledPointsShrinkWithDistance) {
  Screen screen = MakeScreen(200, 100);
  screen.device.SetRenderState(RenderState::PointSprite, true);
  screen.device.SetRenderState(RenderState::PointScale, true);
  SetPointSize(screen.device, 0.2F);
  for (const float distance : {12.38F, 24.76F, 49.52F, 100.0F}) {
    const Bounds bounds = SpriteAt(screen, distance);
    const double side = 100 * 0.2 * 24.76 / double{distance};
    EXPECT_NEAR(bounds.right - bounds.left, side, 1) << distance;
    EXPECT_NEAR(bounds.bottom - bounds.top, side, 1) << distance;
    EXPECT_NEAR(0.5 * (bounds.left + bounds.right), 100, 0.6);
    EXPECT_NEAR(0.5 * (bounds.top + bounds.bottom), 50, 0.6);
  }
  // It is the distance from the eye that counts, not the depth.
  const Bounds aside = SpriteAt(screen, 24, 18);
  EXPECT_NEAR(aside.right - aside.left, 100 * 0.2 * 24.76 / 30, 1);
}

TEST_P(Pictures, UnscaledPointsHaveTheirSizeInViewportPixels) {
  Screen screen = MakeScreen(200, 100, 2);
  SetPointSize(screen.device, 6);
  for (const float distance : {5.0F, 100.0F}) {
    const Bounds bounds = SpriteAt(screen, distance);
    EXPECT_NEAR(bounds.right - bounds.left, 12, 1);
    EXPECT_NEAR(bounds.bottom - bounds.top, 12, 1);
  }
}

TEST_P(Pictures, ATextureCoversASpriteUpright) {
  Screen screen = MakeScreen(20, 20);
  Image image(2, 2);
  image.pixels = {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFFFFFFFF};
  Device& device = screen.device;
  device.SetTexture(MakeTexture(std::move(image)));
  device.SetRenderState(RenderState::PointSprite, true);
  SetPointSize(device, 10);
  SpriteAt(screen, 10);
  const Image picture = screen.executor->ReadPicture();
  EXPECT_EQ(picture.At(7, 7), 0xFFFF0000);
  EXPECT_EQ(picture.At(12, 7), 0xFF00FF00);
  EXPECT_EQ(picture.At(7, 12), 0xFF0000FF);
  EXPECT_EQ(picture.At(12, 12), 0xFFFFFFFF);
  // Without sprites each point has the one texel that its vertex names.
  device.SetRenderState(RenderState::PointSprite, false);
  EXPECT_EQ(SpriteAt(screen, 10), Bounds{});
  EXPECT_EQ(screen.executor->ReadPicture().At(12, 12), 0xFFFF0000);
}

TEST_P(Pictures, MultisamplingCanBeSwitchedOff) {
  Screen screen = MakeScreen(40, 40);
  Device& device = Begin(screen);
  device.SetRenderState(RenderState::MultisampleAntialias, false);
  const std::array<Vertex, 3> triangle = {{{-1, 1, 0, 0xFFFFFFFF, 0, 0, 0},
                                           {1, 0.7F, 0, 0xFFFFFFFF, 0, 0, 0},
                                           {-0.9F, -1, 0, 0xFFFFFFFF, 0, 0, 0}}};
  DrawWorld(device, triangle);
  for (const uint32_t pixel : End(screen).pixels) {
    EXPECT_TRUE(pixel == kGround || pixel == 0xFFFFFFFF);
  }
}

TEST(Executors, RefuseImpossibleTargets) {
  NeedContext();
  for (const auto scheme : {gl::Scheme::Batched, gl::Scheme::Plain}) {
    EXPECT_THROW(gl::CreateExecutor(scheme, {0, 10, 1, 1}), PlatformError);
    EXPECT_THROW(gl::CreateExecutor(scheme, {10, 1 << 20, 1, 1}), PlatformError);
    EXPECT_THROW(gl::CreateExecutor(scheme, {10, 10, 1000, 1}), PlatformError);
  }
  EXPECT_TRUE(gl::SupportsSamples(1));
  EXPECT_FALSE(gl::SupportsSamples(0));
  EXPECT_FALSE(gl::SupportsSamples(1000));
}

}  // namespace
}  // namespace gltest
