// What a single draw looks like, by either scheme, with and without multisampling.
#include "tests/platform/gl_test_tools.h"

namespace gltest {
namespace {

constexpr uint32_t kGround = 0xFF102030;

Image FourColours() {
  Image image(2, 2);
  image.pixels = {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFFFFFFFF};
  return image;
}

class Pictures : public testing::TestWithParam<std::tuple<gl::Scheme, int>> {
 protected:
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

INSTANTIATE_TEST_SUITE_P(All, Pictures,
                         testing::Combine(testing::Values(gl::Scheme::Batched, gl::Scheme::Plain),
                                          testing::Values(1, 4)));

TEST_P(Pictures, ClearFillsThePictureAndTheDepthWhichIsLessOrEqual) {
  Screen screen = MakeScreen(6, 1);
  EXPECT_EQ(screen.executor->ReadPicture().pixels, Image(6, 1, 0xFF000000).pixels);
  Device& device = Begin(screen);
  const auto draw = [&device](float x, float z, uint32_t colour) {
    DrawRectangle(device, x, 0, x + 1, 1, z, colour);
  };
  device.SetRenderState(RenderState::DepthTest, true);
  DrawRectangle(device, 0, 0, 6, 1, 0.25F, 0xFFFF0000);
  device.SetRenderState(RenderState::DepthWrite, false);
  device.Clear(0x12345678, 0.5F);  // even while depth writes are off
  draw(0, 0.49F, 0xFF000001);
  draw(1, 0.5F, 0xFF000002);
  draw(2, 0.51F, 0xFF000003);
  draw(3, 0.2F, 0xFF000004);
  device.SetRenderState(RenderState::DepthWrite, true);
  draw(3, 0.4F, 0xFF000005);
  draw(4, 0.4F, 0xFF000006);
  draw(4, 0.45F, 0xFF000007);
  device.SetRenderState(RenderState::DepthTest, false);
  draw(5, 0.9F, 0xFF000008);
  EXPECT_EQ(End(screen).pixels,
            (std::vector{0xFF000001, 0xFF000002, 0xFF345678, 0xFF000005, 0xFF000006, 0xFF000008}));
}

TEST_P(Pictures, ScreenVerticesCoverExactlyTheirPixels) {
  Screen screen = MakeScreen(601, 457);
  Device& device = Begin(screen);
  DrawRectangle(device, 0, 0, 601, 457, 0.9F, 0xFF00FF00);
  DrawRectangle(device, 3, 5, 10, 9, 0, 0xFFFF8000);
  Image expected(601, 457, 0xFF00FF00);
  for (int y = 5; y < 9; ++y) {
    for (int x = 3; x < 10; ++x) expected.At(x, y) = 0xFFFF8000;
  }
  ExpectSamePicture(End(screen), expected, "screen vertices");
  Screen scaled = MakeScreen(21, 10, 1.5);
  DrawRectangle(Begin(scaled), 2, 2, 4, 6, 0, 0xFFFFFFFF);
  EXPECT_EQ(BoundsOf(End(scaled), 0xFFFFFFFF), (Bounds{3, 3, 6, 9}));
}

TEST_P(Pictures, ClockwiseIsFrontAndLightIgnored) {
  Screen screen = MakeScreen(8, 8);
  Device& device = Begin(screen);
  device.SetRenderState(RenderState::Lighting, true);
  // So that no pixel of the diagonal is mixed.
  device.SetRenderState(RenderState::MultisampleAntialias, false);
  const auto corner = [](float x, float y, uint32_t colour) {
    return Vertex{x, y, 0.5F, colour, 0xFFFFFFFF, 0, 0};
  };
  constexpr uint32_t kSeen = 0xFF405060, kCulled = 0xFFFF0000;
  // Upper left half clockwise, lower right half counter-clockwise.
  DrawWorld(device,
            std::array{corner(-1, 1, kSeen), corner(1, 1, kSeen), corner(-1, -1, kSeen),
                       corner(1, 1, kCulled), corner(-1, -1, kCulled), corner(1, -1, kCulled)});
  const Image picture = End(screen);
  EXPECT_TRUE(picture.At(1, 1) == kSeen && picture.At(6, 6) == kGround);
  for (const uint32_t pixel : picture.pixels) EXPECT_TRUE(pixel == kGround || pixel == kSeen);
}

TEST_P(Pictures, TexturesRepeatFromTheirTopLeftCornerAndAreFiltered) {
  Screen screen = MakeScreen(8, 16);
  Device& device = Begin(screen);
  device.SetTexture(MakeTexture(FourColours()));
  DrawRectangle(device, 0, 0, 8, 8, 0, 0xFFFFFFFF, 2);
  device.SetTextureStageState(StageState::MagFilter, Filter::Linear);
  DrawRectangle(device, 0, 8, 8, 16, 0, 0xFFFFFFFF);
  const Image picture = End(screen);
  for (size_t i = 0; i < 64; ++i) {
    EXPECT_EQ(picture.pixels[i], FourColours().pixels[i / 16 % 2 * 2 + i / 2 % 2]) << i;
  }
  EXPECT_TRUE(Near(picture.At(3, 11), 0xFF876060, 2)) << std::hex << picture.At(3, 11);
}

TEST_P(Pictures, ColoursMultiplyAndBlend) {
  Screen screen = MakeScreen(10, 1);
  Device& device = Begin(screen);
  struct Case {
    Blend source, destination;
    uint32_t texture, vertex, expected;
  };
  // Alpha is the texture's, else the vertex's; the first two draw without blending.
  const std::vector<Case> cases = {
      {Blend::SourceAlpha, Blend::Zero, 0xFF80FF40, 0x00FF8080, 0xFF808020},
      {Blend::SourceAlpha, Blend::Zero, 0x00445566, 0xFFFFFFFF, 0xFF445566},
      {Blend::SourceAlpha, Blend::InverseSourceAlpha, 0x00FFFFFF, 0xFFFFFFFF, kGround},
      {Blend::SourceAlpha, Blend::InverseSourceAlpha, 0xFFFFFFFF, 0x00FFFFFF, 0xFFFFFFFF},
      {Blend::SourceAlpha, Blend::InverseSourceAlpha, 0, 0x80FFFFFF, 0xFF889098},
      {Blend::One, Blend::One, 0, 0x80204060, 0xFF306090},
      {Blend::Zero, Blend::One, 0, 0x80204060, kGround},
      {Blend::One, Blend::Zero, 0, 0x80204060, 0xFF204060},
      {Blend::SourceAlpha, Blend::One, 0, 0x80204060, 0xFF204060}};
  for (size_t i = 0; i < cases.size(); ++i) {
    const Case& c = cases[i];
    device.SetRenderState(RenderState::AlphaBlend, i > 1);
    device.SetBlend(BlendState::Source, c.source);
    device.SetBlend(BlendState::Destination, c.destination);
    device.SetTexture(c.texture == 0 ? nullptr : PlainTexture(c.texture));
    const auto x = static_cast<float>(i);
    DrawRectangle(device, x, 0, x + 1, 1, 0, c.vertex);
  }
  const Image picture = End(screen);
  for (size_t i = 0; i < cases.size(); ++i) {
    EXPECT_TRUE(Near(picture.pixels[i], cases[i].expected)) << i << std::hex << picture.pixels[i];
  }
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
  DrawWorld(device, std::array{corner(-4, 4), corner(4, 4), corner(-4, 0), corner(4, 0)},
            Primitive::TriangleStrip);
  // Turned by a right angle z becomes x: x from 1 - 4 to 1 + 4, y from 2 to 6, 20 before the eye;
  // half the height of the view is 20 there, so a unit is 2.5 pixels.
  const Bounds bounds = BoundsOf(End(screen), 0xFFFFFFFF);
  constexpr std::array kExpected = {100 - 3 * 2.5, 50 - 6 * 2.5, 100 + 5 * 2.5, 50 - 2 * 2.5};
  for (size_t i = 0; i < 4; ++i) EXPECT_NEAR(bounds[i], kExpected[i], 1) << i;
}

/// The sprite of a point `distance` before the eye.
Bounds SpriteAt(Screen& screen, float distance, float x = 0) {
  Device& device = screen.device;
  device.SetTransform(Transform::Projection, d3dx::PerspectiveFovLH(0.785F, 2, 1, 500));
  device.Clear(kGround, 1);
  device.BeginScene();
  device.DrawPrimitiveUP(std::array{PointVertex{x, 0, distance, 0xFFFFFFFF, 0, 0}});
  device.EndScene();
  return BoundsOf(screen.Present(), 0xFFFFFFFF);
}

TEST_P(Pictures, OnlyScaledPointsShrinkWithDistance) {
  Screen screen = MakeScreen(200, 100);
  screen.device.SetRenderState(RenderState::PointSprite, true);
  screen.device.SetRenderState(RenderState::PointScale, true);
  SetPointSize(screen.device, 0.2F);
  for (const float distance : {12.38F, 24.76F, 49.52F, 100.0F}) {
    const auto [left, top, right, bottom] = SpriteAt(screen, distance);
    const double side = 100 * 0.2 * 24.76 / double{distance};
    EXPECT_NEAR(right - left, side, 1) << distance;
    EXPECT_NEAR(left + top + right + bottom, 300, 2.4);
  }
  // It is the distance from the eye that counts, not the depth.
  const Bounds aside = SpriteAt(screen, 24, 18);
  EXPECT_NEAR(aside[2] - aside[0], 100 * 0.2 * 24.76 / 30, 1);
}

TEST_P(Pictures, ATextureCoversASpriteUpright) {
  Screen screen = MakeScreen(20, 20);
  Device& device = screen.device;
  device.SetTexture(MakeTexture(FourColours()));
  device.SetRenderState(RenderState::PointSprite, true);
  SetPointSize(device, 10);
  SpriteAt(screen, 10);
  const Image picture = screen.executor->ReadPicture();
  for (int i = 0; i < 4; ++i)
    EXPECT_EQ(picture.At(7 + i % 2 * 5, 7 + i / 2 * 5), FourColours().At(i % 2, i / 2));
  // Without sprites each point has the one texel that its vertex names.
  device.SetRenderState(RenderState::PointSprite, false);
  EXPECT_EQ(SpriteAt(screen, 10), Bounds{});
  EXPECT_EQ(screen.executor->ReadPicture().At(12, 12), 0xFFFF0000);
}

TEST_P(Pictures, ATextureBeyondTheDeviceIsToldOnceByNameAndDrawnWithout) {
  Screen screen = MakeScreen(1, 1);
  const auto great = std::make_shared<TextureObject>(Image(1 << 20, 1),
                                                     TextureObject::Format::Colour32, "great.bmp");
  std::vector<std::string> told;
  for (int frame = 0; frame < 3; ++frame) {
    Begin(screen).SetTexture(great);
    DrawRectangle(screen.device, 0, 0, 1, 1, 0, 0xFF00FF00);
    try {
      EXPECT_EQ(End(screen).At(0, 0), 0xFF00FF00);
    } catch (const PlatformError& failure) {
      told.emplace_back(failure.what());
    }
  }
  ASSERT_EQ(told.size(), 1U);
  EXPECT_TRUE(told[0].starts_with("great.bmp: ")) << told[0];
}

}  // namespace
}  // namespace gltest
