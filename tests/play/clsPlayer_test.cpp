#include "play/clsPlayer.h"

#include <algorithm>
#include <cmath>

#include "level/maths.h"
#include "play/end_program.h"
#include "play/play_frame.h"
#include "tests/play/play_test.h"

namespace {

class PlayerTest : public PlayTest {
 protected:
  clsPlayer car;
  /// Where the car is drawn; its test model is one triangle.
  Vector3 Placed(const Vector3& point) const {
    const auto& screen = world->screen;
    const auto draw = std::ranges::find(screen.commands, 3U, &Command::vertexCount);
    EXPECT_NE(draw, screen.commands.end());
    Vector3 placed;
    maths::TransformCoord(placed, point, screen.worlds[draw->world]);
    return placed;
  }
};

TEST_F(PlayerTest, SpeedsHaveLimits) {
  car.ForwardVelocity(1);
  car.accelerate();
  EXPECT_EQ(car.ForwardVelocity(), 1);
  car.resetPLayer();
  car.ForwardVelocity(0.03F);
  car.deccelerate();
  EXPECT_EQ(car.ForwardVelocity(), 0);
  for (const float limit : {-1.0F, 1.0F}) {
    car.HorizontalVelocity(limit);
    car.HorizontalVelocity(limit * 1.01F);
    EXPECT_EQ(car.HorizontalVelocity(), limit);
  }
}

TEST_F(PlayerTest, CollisionBox) {
  car.resetPLayer();
  EXPECT_NEAR(car.CalculateEffectiveRadius({0, 0.7071F, 0.7071F}), 0.5657, 1e-4);
  EXPECT_EQ(car.CalculateCollisionBoxCentre(), (Vector4{0, 3.9F, 0.6F, 1}));
  EXPECT_EQ(car.GetCollisionPoint(1), (Vector4{-0.4F, 4.3F, 1, 0}));
  EXPECT_EQ(car.GetCollisionPoint(6), (Vector4{0.4F, 4.3F, 1 - 0.8F, 0}));
  EXPECT_EQ(car.GetCollisionPoint(7), (Vector4{-0.4F, 3.5F, 1 - 0.8F, 0}));
  EXPECT_THROW(car.GetCollisionPoint(9), std::out_of_range);
}

TEST_F(PlayerTest, TheCameraFollowsAlongTheTrackOnly) {
  AddFloor();
  track_tool::Drive drive;
  for (const char* keys : {"30 up+right", "20 jump", "9 down+left"}) {
    const Row row = Continue(drive, keys).back();
    EXPECT_NEAR(DirectX::CameraPosition.z, row.z - 19, 1e-4);
    EXPECT_NEAR(DirectX::CameraTarget.z, row.z - 1, 1e-4);
    EXPECT_EQ(DirectX::CameraPosition.x + DirectX::CameraTarget.x, 0);
    EXPECT_EQ(DirectX::CameraPosition.y, 25);
    EXPECT_EQ(DirectX::CameraTarget.y, 8);
    const Matrix4 view = DirectX::D3DDevice->GetTransform(Transform::View);
    EXPECT_EQ(view, DirectX::MatView);
    DirectX::ApplyCamera();
    EXPECT_EQ(view, DirectX::MatView) << "as any camera of that place";
  }
}

TEST_F(PlayerTest, SlidingOnIceTurnsThePicture) {
  AddFloor(clsblock::Ice);
  track_tool::Drive drive;
  Continue(drive, "20 right");
  EXPECT_NEAR(Placed({0, 0, 1}).x, Player.Posx(), 1e-5) << "steering keeps it straight";
  Continue(drive, "1 -");
  EXPECT_NEAR(Placed({0, 0, 1}).x - Player.Posx(), -0.173648, 1e-5) << "sine of 10 degrees";
  Continue(drive, "1 left\n1 -");
  EXPECT_NEAR(Placed({0, 0, 1}).x - Player.Posx(), 0.173648, 1e-5);
}

TEST_F(PlayerTest, JumpPadSpinsItTwiceAboutItsMiddle) {
  AddFloor(clsblock::JumpPad);
  track_tool::Drive drive;
  Continue(drive, "13 -");
  for (int angle = 0; angle <= 720; angle += 30) {
    Continue(drive, "1 -");
    EXPECT_NEAR(Placed({0, 0, -0.4F}).z, Player.Posz() - 0.4, 1e-5);
    EXPECT_NEAR(Placed({0, 0, 0}).x - Player.Posx(), -0.4 * std::sin(angle * 0.017453292), 1e-5)
        << angle;
  }
  Continue(drive, "1 -");
  EXPECT_EQ(Placed({0, 0, 0}), Player.GetPosition());
}

TEST_F(PlayerTest, ExplosionStandsStillWithTheCamera) {
  world->decoder = [](const std::string&) {
    Image image(64, 64, 0xFFFFFFFF);
    image.At(0, 0) = 0xFF000000;
    return image;
  };
  StartDevice();
  Player.load(folder / "models/player.x");
  AddFloor();
  track_tool::Drive drive;
  Continue(drive, "20 up");
  Player.explode();
  const float camera = DirectX::CameraPosition.z;
  const size_t with = world->screen.commands.size();
  EXPECT_GT(Continue(drive, "3 -").back().fv, 0);
  EXPECT_EQ(DirectX::CameraPosition.z, camera);
  EXPECT_EQ(with - world->screen.commands.size(), 4U) << "car and four pieces of shadow go";
  const Command& sprite = world->screen.commands.back();
  ASSERT_EQ(sprite.primitive, Primitive::PointList);
  const DeviceStates& states = world->screen.states[sprite.states];
  EXPECT_EQ(states.pointSize, 0.06F);
  EXPECT_TRUE(states.alphaBlend && !states.depthWrite);
  EXPECT_TRUE(DirectX::D3DDevice->States().depthWrite);
  EXPECT_EQ(world->screen.worlds[sprite.world], d3dx::Identity());
  const PointVertex& point = sprite.buffer->Vertices<PointVertex>()[0];
  EXPECT_EQ(point.x, 0);
  EXPECT_NEAR(point.y, kStanding + 1, kNear);
  EXPECT_NEAR(point.z, Player.Posz() - 0.5, kNear);
  EXPECT_EQ(point.colour, 0xFFFFFFFFU);
  EXPECT_EQ(sprite.texture->Level(0).At(0, 0), 0U) << "black becomes transparent";
  EXPECT_EQ(sprite.texture->Level(0).At(63, 63), 0xFFFFFFFFU);
  EXPECT_EQ(sprite.texture->PixelFormat(), TextureObject::Format::Colour16Alpha1);
  EXPECT_EQ(Player.ExplosionFrame(), 2);
  // Blank pictures.
  Continue(drive, "40 -");
  EXPECT_NE(world->screen.commands.back().primitive, Primitive::PointList);
}

TEST_F(PlayerTest, PlayAdvancesAnimatedTexturesEveryThirdFrame) {
  AddFloor(clsblock::TurboPad).Texture("AnimationTest_0.bmp", "D", Document.TextureDir);
  track_tool::Drive drive;
  for (int frame = 1; frame <= 12; ++frame) {
    Continue(drive, "1 -");
    EXPECT_EQ(Document.Blocks[0].GetTextureD(),
              "AnimationTest_" + std::to_string(frame / 3 % 4) + ".bmp");
  }
  EXPECT_EQ(Document.Blocks[0].GetTextureA(), "_default.bmp");
}

TEST_F(PlayerTest, OppositeKeysAndOtherJumpKeysAct) {
  Player.resetPLayer();
  CollisionDetection::OnGround = true;
  for (const uint8_t key : {scancode::kUp, scancode::kDown, scancode::kRightCtrl}) {
    DirectInput::KeyState[key] = kKeyHeld;
  }
  play::PollCarKeys();
  EXPECT_EQ(Player.ForwardVelocity(), 0);
  EXPECT_EQ(Player.verticalvelocity(), 0.35F);
  Player.explode();
  Player.verticalvelocity(0);
  play::PollCarKeys();
  EXPECT_EQ(Player.verticalvelocity(), 0) << "no jump while exploding";
}

TEST_F(PlayerTest, ATiltedPlaneEndsTheProgram) {
  int ended = 0;
  const auto before = std::exchange(EndProgram, [&] { ++ended; });
  CollisionDetection::Sweep.AxesInvolved = 3;
  CollisionDetection::CalculateContactPoints();
  EndProgram = before;
  EXPECT_EQ(ended, 1);
  EXPECT_EQ(boxes.messages, std::vector<std::string>{"Whoops: You got eaten by a bug"});
}

}  // namespace
