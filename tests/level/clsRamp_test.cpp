#include "level/clsRamp.h"

#include "tests/support/null_editor.h"

namespace {

using RampTest = DeviceTest;

TEST_F(RampTest, SettersColoursAndTextures) {
  clsRamp ramp;
  ramp.create(1, 2, 3);
  ramp.Ypos(-1);
  ramp.Zpos(-1);
  ramp.Xpos(-5);
  EXPECT_EQ(ramp.Ypos(), 2);
  EXPECT_EQ(ramp.Zpos(), 3);
  EXPECT_EQ(ramp.Xpos(), -5);
  ramp.Zpos(0);
  EXPECT_EQ(ramp.Zpos(), 0);
  ramp.scaleX(-2);
  EXPECT_EQ(ramp.scaleX(), -2);
  const auto colours = [&ramp] {
    return std::array{ramp.GeometryVertices()[0].colour, ramp.GeometryVertices()[5].colour,
                      ramp.GeometryVertices()[6].colour, ramp.GeometryVertices()[17].colour};
  };
  constexpr std::array<uint32_t, 4> kPlain = {0xFFFFFF, 0xFFFFFF, 0x9A9A9A, 0x9A9A9A};
  EXPECT_EQ(colours(), kPlain);
  ramp.SelectRamp();
  EXPECT_EQ(colours(), (std::array<uint32_t, 4>{0x888888, 0x888888, 0x888888, 0x888888}));
  ramp.UnSelectramp();
  EXPECT_EQ(colours(), kPlain);
  ramp.Texture("a.bmp", "b", Document.TextureDir);
  ramp.Texture("a.bmp", "C", Document.TextureDir);
  EXPECT_EQ(ramp.GetTextureA(), "");
  EXPECT_EQ(ramp.GetTextureB(), "a.bmp");
  EXPECT_THROW(ramp.GetCollisionPlane(0), std::out_of_range);
  EXPECT_THROW(ramp.GetCollisionPlane(7), std::out_of_range);
}

TEST_F(RampTest, DrawsSlopeThenWallsWithTheirTextures) {
  clsRamp ramp;
  ramp.create(0, 0, 0);
  ramp.Texture("a.bmp", "A", Document.TextureDir);
  ramp.Texture("B.bmp", "B", Document.TextureDir);
  DirectX::D3DDevice->BeginScene();
  ramp.draw();
  DirectX::D3DDevice->EndScene();
  DirectX::D3DDevice->Present();
  std::vector<std::pair<uint32_t, uint32_t>> drawn;
  for (const Command& draw : world->screen.commands) {
    drawn.emplace_back(draw.firstVertex, draw.vertexCount);
    EXPECT_EQ(draw.texture == world->screen.commands[0].texture, draw.firstVertex == 0);
  }
  EXPECT_EQ(drawn, (decltype(drawn){{0, 6}, {6, 3}, {9, 3}, {12, 6}}));
}

}  // namespace
