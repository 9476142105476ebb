#include "play/clsPlayer.h"

#include <algorithm>
#include <cmath>

#include "level/maths.h"
#include "tests/play/play_test.h"

namespace {

class PlayerTest : public PlayTest {
 protected:
  /// Where a point of the car is drawn, seen from its place; its test model is one triangle.
  Vector3 Drawn(const Vector3& point) const {
    const auto& screen = world->screen;
    const auto draw = std::ranges::find(screen.commands, 3U, &Command::vertexCount);
    EXPECT_NE(draw, screen.commands.end());
    Vector3 placed;
    maths::TransformCoord(placed, point, screen.worlds[draw->world]);
    return {placed.x - Player.Posx(), placed.y - Player.PosY(), placed.z - Player.Posz()};
  }
};

TEST_F(PlayerTest, TheCameraFollowsAlongTheTrackOnly) {
  AddFloor();
  Run("1 -");
  for (const char* keys : {"30 up+right", "20 jump", "9 down+left"}) {
    const float z = Continue(keys).back().z;
    const Vector3 &from = DirectX::CameraPosition, &to = DirectX::CameraTarget;
    EXPECT_NEAR(from.z, z - 19, 1e-4);
    EXPECT_NEAR(to.z, z - 1, 1e-4);
    EXPECT_EQ((std::array{from.x, from.y, to.x, to.y}), (std::array<float, 4>{0, 25, 0, 8}));
    const Matrix4 view = DirectX::D3DDevice->GetTransform(Transform::View);
    EXPECT_EQ(view, DirectX::MatView);
    DirectX::ApplyCamera();
    EXPECT_EQ(view, DirectX::MatView) << "as any camera of that place";
  }
}

TEST_F(PlayerTest, SlidingOnIceTurnsThePicture) {
  AddFloor(clsblock::Ice);
  Run(kLand);
  const double slide = 0.173648;  // the sine of 10 degrees
  for (const auto& [keys, aside] :
       {std::pair{"1 -", 0.0}, {"20 right", 0}, {"1 -", -slide}, {"1 left", 0}, {"1 -", slide}}) {
    Continue(keys);
    EXPECT_NEAR(Drawn({0, 0, 1}).x, aside, 1e-5) << "only while it slides without steering";
  }
}

TEST_F(PlayerTest, JumpPadSpinsItTwiceAboutItsMiddle) {
  AddFloor(clsblock::JumpPad);
  Run("13 -");
  for (int angle = 0; angle <= 720; angle += 30) {
    Continue("1 -");
    EXPECT_NEAR(Drawn({0, 0, -0.4F}).z, -0.4, 1e-5);
    EXPECT_NEAR(Drawn({0, 0, 0}).x, -0.4 * std::sin(angle * 0.017453292), 1e-5) << angle;
  }
  Continue("1 -");
  EXPECT_EQ(Drawn({0, 0, 0}), Vector3());
}

TEST_F(PlayerTest, ExplosionStandsStillWithTheCamera) {
  world->decoder = [](const std::string& path) {
    Image image(64, 64, path.ends_with("explode2.bmp") ? 0xFFFFFFFF : 0xFF0000FF);
    image.At(0, 0) = 0xFF000000;
    return image;
  };
  StartDevice();
  Player.load(folder / "models/player.x");
  AddFloor();
  Run("20 up");
  Player.explode();
  const Vector3 camera = DirectX::CameraPosition;
  const size_t with = world->screen.commands.size();
  EXPECT_GT(Continue("3 -").back().fv, 0);
  EXPECT_EQ(DirectX::CameraPosition, camera);
  EXPECT_EQ(with - world->screen.commands.size(), 4U) << "car and four pieces of shadow go";
  const Command& sprite = world->screen.commands.back();
  ASSERT_EQ(sprite.primitive, Primitive::PointList);
  const DeviceStates& states = world->screen.states[sprite.states];
  EXPECT_TRUE(states.pointSize == 0.06F && states.alphaBlend && !states.depthWrite);
  EXPECT_TRUE(DirectX::D3DDevice->States().depthWrite);
  EXPECT_EQ(world->screen.worlds[sprite.world], d3dx::Identity());
  const PointVertex& point = sprite.buffer->Vertices<PointVertex>()[0];
  EXPECT_TRUE(Near({point.x, point.y, point.z}, {0, kStanding + 1, Player.Posz() - 0.5}));
  const Image& picture = sprite.texture->Level(0);
  EXPECT_EQ((std::array{point.colour, picture.At(0, 0), picture.At(63, 63)}),
            (std::array{0xFFFFFFFFU, 0U, 0xFFFFFFFFU}))
      << "the second picture, whose black is transparent";
  EXPECT_EQ(sprite.texture->PixelFormat(), TextureObject::Format::Colour16Alpha1);
  // Blank pictures.
  Continue("40 -");
  EXPECT_NE(world->screen.commands.back().primitive, Primitive::PointList);
}

TEST_F(PlayerTest, PlayAdvancesAnimatedTexturesEveryThirdFrame) {
  AddFloor(clsblock::TurboPad).Texture("AnimationTest_0.bmp", "D", Document.TextureDir);
  Run("1 -");
  for (int frame = 2; frame <= 12; ++frame) {
    Continue("1 -");
    EXPECT_EQ(Document.Blocks[0].GetTextureD(),
              "AnimationTest_" + std::to_string(frame / 3 % 4) + ".bmp");
  }
}

}  // namespace
