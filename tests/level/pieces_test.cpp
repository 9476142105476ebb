// What blocks, ramps and stars do beyond their shape.
#include "level/AnimatedTextures.h"
#include "level/backdrop.h"
#include "level/clsRamp.h"
#include "level/clsStar.h"
#include "level/clsblock.h"
#include "level/maths.h"
#include "tests/support/null_editor.h"

namespace {

class PieceTest : public DeviceTest {
 protected:
  void SetUp() override {
    DeviceTest::SetUp();
    block.create(0, 0, 0, 1, 1, 1);
    ramp.create(1, 2, 3);
    star.load(StarModel());
  }
  std::string StarModel() { return paths::InInstallFolder("\\models\\orb.x"); }
  template <typename Piece>
  void Texture(Piece& piece, const std::string& name, const std::string& faces) {
    for (const char face : faces) piece.Texture(name, {face}, Document.TextureDir);
  }
  std::string BlockTextures() {
    return block.GetTextureA() + ' ' + block.GetTextureB() + ' ' + block.GetTextureC() + ' ' +
           block.GetTextureD();
  }
  template <typename Piece>
  static std::vector<uint32_t> Colours(const Piece& piece, const std::vector<size_t>& vertices) {
    std::vector<uint32_t> colours(vertices.size());
    std::ranges::transform(vertices, colours.begin(),
                           [&](size_t i) { return piece.GeometryVertices()[i].colour; });
    return colours;
  }
  /// First vertex, number of vertices and whether it is the texture of the first one.
  using Draws = std::vector<std::tuple<uint32_t, uint32_t, bool>>;
  template <typename Piece>
  Draws DrawsOf(Piece& piece) {
    Draws draws;
    const auto& commands = DrawFrame([&] { piece.draw(); }).commands;
    for (const Command& draw : commands) {
      const bool same = draw.texture == commands[0].texture;
      draws.emplace_back(draw.firstVertex, draw.vertexCount, same);
    }
    return draws;
  }
  void DrawBlock() {
    DrawFrame([this] { block.draw(); });
  }
  clsblock block;
  clsRamp ramp;
  clsStar star;
};

using Colour = std::vector<uint32_t>;

TEST_F(PieceTest, ColoursFollowSizeAndSelection) {
  const std::vector<size_t> blockVertices = {0, 2, 7, 17, 18, 23}, rampVertices = {0, 5, 6, 17};
  const Colour flat = {0x9A9A9A, 0x9A9A9A, 0x9A9A9A, 0x9A9A9A, 0xFFFFFF, 0xFFFFFF};
  EXPECT_EQ(Colours(block, blockVertices), flat);
  block.scaleX(2);
  EXPECT_EQ(Colours(block, blockVertices),
            (Colour{0xBBBBBB, 0x9A9A9A, 0x9A9A9A, 0x9A9A9A, 0xFFFFFF, 0xFFFFFF}))
      << "only the upper edge of the front, which spans x";
  block.SelectBlock();
  EXPECT_EQ(Colours(block, blockVertices), Colour(6, 0x888888));
  block.UnSelectBlock();
  EXPECT_EQ(Colours(block, blockVertices), flat);

  const Colour plain = {0xFFFFFF, 0xFFFFFF, 0x9A9A9A, 0x9A9A9A};
  EXPECT_EQ(Colours(ramp, rampVertices), plain);
  ramp.SelectRamp();
  EXPECT_EQ(Colours(ramp, rampVertices), Colour(4, 0x888888));
  ramp.UnSelectramp();
  EXPECT_EQ(Colours(ramp, rampVertices), plain);
}

TEST_F(PieceTest, DrawsItsFacesScaledThenMoved) {
  block.create(1, 2, 3, 4, 5, 6.1F);
  Texture(block, "a.bmp", "aBcD");
  Texture(block, "B.bmp", "D");
  EXPECT_EQ(DrawsOf(block), (Draws{{0, 6, true}, {6, 6, true}, {12, 6, true}, {18, 6, false}}))
      << "textures of the front, left, right and top";
  ASSERT_EQ(world->screen.worlds.size(), 1U);
  Vector3 corner;
  maths::TransformCoord(corner, {1, 1, 1}, world->screen.worlds[0]);
  EXPECT_EQ(corner, (Vector3{5, 7, 9}));
  Texture(ramp, "a.bmp", "A");
  Texture(ramp, "B.bmp", "bC");
  EXPECT_EQ(ramp.GetTextureA() + ramp.GetTextureB(), "a.bmpB.bmp");
  EXPECT_EQ(DrawsOf(ramp), (Draws{{0, 6, true}, {6, 3, false}, {9, 3, false}, {12, 6, false}}));
}

TEST_F(PieceTest, TexturesThatCannotBeLoadedKeepTheFace) {
  Texture(block, "a.bmp", "a");
  EXPECT_THROW(Texture(block, "none.bmp", "A"), PlatformError);
  Texture(block, "B.bmp", "E@`e");
  EXPECT_EQ(BlockTextures(), "a.bmp   ");
  std::filesystem::remove(folder / "skins/StarSkin_selected.bmp");
  EXPECT_THROW(star.selectstar(), PlatformError);
  std::filesystem::remove(folder / "models/orb.x");
  EXPECT_THROW(star.load(StarModel()), PlatformError);
  EXPECT_TRUE(ShowBackdrop("bk002.jpg") && ShowBackdrop("_bk001.jpg") &&
              !ShowBackdrop("_gone.jpg"));
  EXPECT_EQ(Document.Background.Name(), folder / "backgrounds/bk001.jpg");
}

TEST_F(PieceTest, AnimatedFacesStepThroughTheFrames) {
  Texture(block, "AnimationTest_2.bmp", "AD");
  Texture(block, "a.bmp", "B");
  block.UpdateAnimatedTexture();
  EXPECT_EQ(BlockTextures(), "AnimationTest_3.bmp a.bmp  AnimationTest_3.bmp");
  block.UpdateAnimatedTexture();
  EXPECT_EQ(BlockTextures(), "AnimationTest_0.bmp a.bmp  AnimationTest_0.bmp");
  EXPECT_FALSE(AnimatedTextures::IsAnimatedTexture("animationtest_0.bmp"));
  EXPECT_EQ(AnimatedTextures::NextAnimationFrame("a.bmp"), "");
}

TEST_F(PieceTest, BounceRisesByOneAndEndsAfter22Frames) {
  block.Bounce();
  float highest = 0;
  for (int frame = 1; frame <= 21; ++frame) {
    DrawBlock();
    highest = std::max(highest, block.Ypos());
  }
  EXPECT_NEAR(highest, 1.0, 1e-6);
  EXPECT_GT(block.fallvel(), 0) << "still on its way down";
  for (int frame = 22; frame <= 23; ++frame) {
    DrawBlock();
    EXPECT_EQ(std::pair(block.Ypos(), block.fallvel()), std::pair(0.0F, 0.0F)) << frame;
  }
}

TEST_F(PieceTest, StarsSpinByFiveUntilTheyAreCollected) {
  const auto angleAfter = [this](int frames) {
    for (int i = 0; i < frames; ++i) DrawFrame([this] { star.draw(); });
    return std::pair(star.SpinAngle(), world->screen.commands.size());
  };
  EXPECT_EQ(angleAfter(72), std::pair(360, size_t{1}));
  EXPECT_EQ(angleAfter(1), std::pair(1, size_t{1})) << "starts again at one";
  EXPECT_EQ(angleAfter(1), std::pair(6, size_t{1}));
  star.GetStar();
  EXPECT_EQ(angleAfter(1), std::pair(6, size_t{0}));
}

}  // namespace
