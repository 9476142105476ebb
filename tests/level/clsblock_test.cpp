#include "level/clsblock.h"

#include "level/AnimatedTextures.h"
#include "level/maths.h"
#include "tests/support/null_editor.h"

namespace {

class BlockTest : public DeviceTest {
 protected:
  /// Greatest texture coordinates of the front face.
  using UV = std::pair<float, float>;
  static UV FrontRepeats(const BoxObject& box) {
    UV most{0, 0};
    for (size_t i = 0; i < 6; ++i) {
      most.first = std::max(most.first, box.GeometryVertices()[i].tu);
      most.second = std::max(most.second, box.GeometryVertices()[i].tv);
    }
    return most;
  }
};

TEST_F(BlockTest, CreateTakesATenthOffTheDepth) {
  clsblock block;
  block.create(0, -5, 7.5F, 1, 1, 1);
  EXPECT_EQ(block.scaleZ(), 0.9F);
  EXPECT_EQ(block.Ypos(), -5) << "create does not check ranges";
  EXPECT_EQ(block.Zpos(), 8);
  block.scaleZ(1);
  EXPECT_EQ(block.scaleZ(), 1.0F);
  block.create(0, 0, 2.5F, 1, 1, 1);
  EXPECT_EQ(block.Zpos(), 2) << "halves to even";
}

TEST_F(BlockTest, SettersRefuseSilently) {
  clsblock block;
  block.create(0, 0, 0, 1, 1, 1);
  block.Ypos(-0.99F);
  block.Ypos(-1.0F);
  EXPECT_EQ(block.Ypos(), -0.99F);
  block.Zpos(4);
  block.Zpos(-1);
  EXPECT_EQ(block.Zpos(), 4);
  block.Zpos(0);
  EXPECT_EQ(block.Zpos(), 0);
  block.scaleX(0);
  block.scaleY(-3);
  EXPECT_EQ(block.scaleX(), 1.0F);
  EXPECT_EQ(block.scaleY(), 1.0F);
}

TEST_F(BlockTest, StretchIsSeenAtTheNextSizeOrAtOnce) {
  clsblock block;
  block.create(0, 0, 0, 1, 1, 1);
  block.scaleX(4);
  block.scaleY(2);
  block.ScaleTextureSide(2);
  EXPECT_EQ(FrontRepeats(block), (UV{4, 2})) << "the property alone changes nothing";
  block.scaleX(5);
  EXPECT_EQ(FrontRepeats(block), (UV{2, 2})) << "the other coordinate stays";
  block.AlignTexureCoords(1, 0);
  EXPECT_EQ(FrontRepeats(block), (UV{5, 2}));
  EXPECT_EQ(block.TextAlignSide(), 0);
  EXPECT_THROW(block.AlignTexureCoords(1, 256), std::overflow_error);
  EXPECT_EQ(FrontRepeats(block), (UV{256, 256})) << "the coordinates come first";
}

TEST_F(BlockTest, ColoursFollowSizeAndSelection) {
  clsblock block;
  block.create(0, 0, 0, 1, 1, 1);
  const auto colour = [&](size_t vertex) { return block.GeometryVertices()[vertex].colour; };
  EXPECT_EQ(colour(0), 0x9A9A9AU);
  EXPECT_EQ(colour(18), 0xFFFFFFU);
  block.scaleX(2);
  EXPECT_EQ(colour(0), 0xBBBBBBU) << "front, y = 1";
  EXPECT_EQ(colour(2), 0x9A9A9AU) << "front, y = 0";
  EXPECT_EQ(colour(7), 0x9A9A9AU) << "the left face does not span x";
  block.SelectBlock();
  EXPECT_TRUE(std::ranges::all_of(block.GeometryVertices(),
                                  [](const Vertex& v) { return v.colour == 0x888888; }));
  block.UnSelectBlock();
  EXPECT_EQ(colour(0), 0x9A9A9AU) << "flat again";
  EXPECT_EQ(colour(23), 0xFFFFFFU);
}

TEST_F(BlockTest, PlanesFollowAMoveAtTheNextRefresh) {
  clsblock block;
  block.create(0, 0, 0, 1, 1, 1);
  block.Xpos(5);
  EXPECT_EQ(block.GetCollisionPlane(1).d, 0.0F);
  block.SelectBlock();
  EXPECT_EQ(block.GetCollisionPlane(1).d, 5.0F);
  EXPECT_THROW(block.GetCollisionPlane(0), std::out_of_range);
  EXPECT_THROW(block.GetPlaneNormal(6), std::out_of_range);
}

TEST_F(BlockTest, DrawsFourFacesScaledThenMoved) {
  clsblock block;
  block.create(1, 2, 3, 4, 5, 6.1F);
  for (const char* face : {"a", "B", "c", "D"}) block.Texture("a.bmp", face, Document.TextureDir);
  DirectX::D3DDevice->BeginScene();
  block.draw();
  DirectX::D3DDevice->EndScene();
  DirectX::D3DDevice->Present();
  const auto& screen = world->screen;
  ASSERT_EQ(screen.commands.size(), 4U);
  for (uint32_t face = 0; face < 4; ++face) {
    EXPECT_EQ(screen.commands[face].firstVertex, face * 6);
    EXPECT_EQ(screen.commands[face].vertexCount, 6U);
    EXPECT_NE(screen.commands[face].texture, nullptr);
  }
  ASSERT_EQ(screen.worlds.size(), 1U);
  Vector3 corner;
  maths::TransformCoord(corner, {1, 1, 1}, screen.worlds[0]);
  EXPECT_EQ(corner, (Vector3{5, 7, 9}));
}

TEST_F(BlockTest, TextureFailureKeepsTheFace) {
  clsblock block;
  block.Texture("a.bmp", "a", Document.TextureDir);
  EXPECT_EQ(block.GetTextureA(), "a.bmp");
  EXPECT_THROW(block.Texture("none.bmp", "A", Document.TextureDir), PlatformError);
  EXPECT_EQ(block.GetTextureA(), "a.bmp");
  block.Texture("B.bmp", "E", Document.TextureDir);
  EXPECT_EQ(block.GetTextureB() + block.GetTextureC() + block.GetTextureD(), "");
}

TEST_F(BlockTest, AnimatedFacesStepThroughTheFrames) {
  clsblock block;
  block.Texture("a.bmp", "A", Document.TextureDir);
  block.Texture("AnimationTest_2.bmp", "D", Document.TextureDir);
  block.UpdateAnimatedTexture();
  EXPECT_EQ(block.GetTextureD(), "AnimationTest_3.bmp");
  block.UpdateAnimatedTexture();
  EXPECT_EQ(block.GetTextureD(), "AnimationTest_0.bmp");
  EXPECT_EQ(block.GetTextureA(), "a.bmp");
  EXPECT_FALSE(AnimatedTextures::IsAnimatedTexture("animationtest_0.bmp"));
  EXPECT_EQ(AnimatedTextures::NextAnimationFrame("a.bmp"), "");
}

class BlockMotionTest : public BlockTest {
 protected:
  void SetUp() override {
    BlockTest::SetUp();
    DirectX::D3DDevice->BeginScene();
    block.create(0, 0, 0, 2, 1, 2);
  }
  clsblock block;
};

TEST_F(BlockMotionTest, BounceRisesByOneAndEndsAfter22Frames) {
  block.Bounce();
  float highest = 0;
  for (int frame = 1; frame <= 21; ++frame) {
    block.draw();
    highest = std::max(highest, block.Ypos());
  }
  EXPECT_NEAR(highest, 1.0, 1e-6);
  EXPECT_GT(block.fallvel(), 0) << "still on its way down";
  block.draw();
  EXPECT_EQ(block.Ypos(), 0.0F);
  EXPECT_EQ(block.fallvel(), 0.0F);
  block.draw();
  EXPECT_EQ(block.Ypos(), 0.0F) << "the 23rd frame is idle";
}

TEST_F(BlockMotionTest, FallAcceleratesByTheTracksGravity) {
  Document.Gravity = 0.025F;
  block.Fall();
  block.draw();
  EXPECT_FLOAT_EQ(block.Ypos(), -0.025F);
  EXPECT_FLOAT_EQ(block.GetCollisionPlane(3).d, -(1 - 0.025F));
  block.draw();
  EXPECT_FLOAT_EQ(block.Ypos(), -0.075F);
  EXPECT_FLOAT_EQ(block.fallvel(), 0.05F);
}

}  // namespace
