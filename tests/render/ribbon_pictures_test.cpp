// What ribbon, marks and ghost look like: the same by both schemes, hit by the mouse where it is
// drawn, faint behind pieces.
#include "editor/ribbon/path_picking.h"
#include "editor/ribbon/ribbon.h"
#include "level/maths.h"
#include "level/pieces.h"
#include "play/clsPlayer.h"
#include "render/frame/RenderFrame.h"
#include "tests/platform/gl_test_tools.h"
#include "tests/support/null_editor.h"
#include "tests/support/paths_to_show.h"

namespace {

constexpr int kWidth = 601, kHeight = 457;

class RibbonPictures : public DeviceTest {
 protected:
  void SetUp() override {
    world->meshReader = [](const std::string&) {
      // A roof, seen from above.
      return std::vector{
          d3dx::MeshObject::Subset{{}, {{-0.4F, 0.5F, 0}, {0.4F, 0.5F, 0}, {0, 0.5F, -0.8F}}}};
    };
    DeviceTest::SetUp();
    gltest::Context();
    car_.load(paths::InInstallFolder("\\models\\player.x"));
  }
  /// The scene at a depth with the ribbon over it.
  Image Picture(gl::Scheme scheme, float depth, const FrameAdditions& additions) {
    auto executor = gl::CreateExecutor(scheme, {kWidth, kHeight, 4, 1.0});
    gl::PictureExecutor& drawing = *executor;
    auto device = std::make_unique<Device>(std::move(executor));
    device->SetRenderState(RenderState::DepthTest, true);
    device->SetRenderState(RenderState::MultisampleAntialias, true);
    std::swap(DirectX::D3DDevice, device);
    DirectX::CameraPosition = {0, 25, depth - 18};
    DirectX::CameraTarget = {0, 8, depth};
    DirectX::ApplyCamera();
    RenderFrame(additions);
    std::swap(DirectX::D3DDevice, device);
    // Later questions are answered by the same camera.
    DirectX::ApplyCamera();
    return drawing.ReadPicture();
  }
  FrameAdditions Over(ribbon::Ribbon& ribbon, const Vector3& car) {
    return {{}, [&ribbon, car, this] {
              ribbon.Draw();
              car_.DrawGhost(car);
            }};
  }
  static void AddBlock(const Vector3& at, const Vector3& size) {
    clsblock& block = Document.Blocks.emplace_back();
    block.create(at.x, at.y, at.z, size.x, size.y, size.z);
    ++Document.BlockCount;
  }

  clsPlayer car_;
};

TEST_F(RibbonPictures, AreTheSameByBothSchemes) {
  AddBlock({-5, 0, 0}, {10, 3, 30});
  AddBlock({-2, 3, 12}, {4, 3, 1});
  for (unsigned seed = 0; seed < 60; ++seed) {
    // Many lie at the rim of the view, where what is left out would be missed.
    drive::Path path = RandomPath(seed, 500);
    const auto shift = static_cast<float>(seed % 12) * 3 - 18;
    for (drive::PathPoint& point : path) point.place.x += shift;
    ribbon::Ribbon ribbon(seed % 2 == 0 ? ribbon::kOwnDrive : ribbon::kFoundDrive);
    ribbon.Show(path, RandomPath(seed + 100, 60));
    const auto frame = [&](gl::Scheme scheme) {
      return Picture(scheme, static_cast<float>(seed % 7) * 10, Over(ribbon, path[40].place));
    };
    gltest::ExpectSamePicture(frame(gl::Scheme::Batched), frame(gl::Scheme::Plain),
                              "ribbon_" + std::to_string(seed));
  }
}

/// Also on the way back, sideways, up and down: no piece of it shows its back.
TEST_F(RibbonPictures, AreThereWhereTheMouseFindsThem) {
  int met = 0;
  for (unsigned seed = 0; seed < 12; ++seed) {
    drive::Path path = RandomPath(seed, 120);
    for (drive::PathPoint& point : path) point.marks = 0;
    ribbon::Ribbon ribbon(ribbon::kOwnDrive);
    ribbon.Show(path, {});
    const Image picture = Picture(gl::Scheme::Batched, 15, {{}, [&] { ribbon.Draw(); }});
    for (size_t i = 1; i < path.size(); ++i) {
      const Vector3 &from = path[i - 1].place, &to = path[i].place;
      if (maths::Distance(from, to) < 0.1) continue;
      const auto at = ribbon::PlaceOnScreen(
          {(from.x + to.x) / 2, (from.y + to.y) / 2 + 0.07F, (from.z + to.z) / 2});
      if (!at || !(at->x > 8 && at->x < kWidth - 8 && at->y > 8 && at->y < kHeight - 8)) continue;
      ++met;
      const uint32_t pixel = picture.At(static_cast<int>(at->x), static_cast<int>(at->y));
      EXPECT_NE(pixel & 0xFFFFFFU, 0U) << seed << " " << i << ", see " << at->x << " " << at->y;
      const auto found =
          ribbon.PointAt(static_cast<float>(at->x + 2), static_cast<float>(at->y - 2));
      ASSERT_TRUE(found) << seed << " " << i;
      const auto hit = ribbon::PlaceOnScreen(path[*found].place);
      EXPECT_LT(std::hypot(hit->x - at->x, hit->y - at->y), 16);
    }
    EXPECT_FALSE(ribbon.PointAt(-500, 200));
  }
  EXPECT_GT(met, 200);
}

TEST_F(RibbonPictures, AreFaintBehindPieces) {
  drive::Path path;
  for (int i = 0; i < 60; ++i)
    path.push_back({{0, 3, static_cast<float>(i) * 0.5F}, {0, 0, 0.5F}, 0});
  ribbon::Ribbon ribbon(ribbon::kOwnDrive);
  ribbon.Show(path, {});
  const auto shown = [&](const FrameAdditions& additions) {
    const Image picture = Picture(gl::Scheme::Batched, 5, additions);
    const auto at = ribbon::PlaceOnScreen(path[30].place);
    return picture.At(static_cast<int>(at->x), static_cast<int>(at->y));
  };
  const auto difference = [](uint32_t a, uint32_t b) {
    int sum = 0;
    for (const unsigned shift : {0U, 8U, 16U})
      sum +=
          std::abs(static_cast<int>((a >> shift) & 0xFFU) - static_cast<int>((b >> shift) & 0xFFU));
    return sum;
  };
  const FrameAdditions added{{}, [&] { ribbon.Draw(); }};
  const uint32_t open = shown(added);
  AddBlock({-3, 3.5F, 10}, {6, 6, 1});
  const uint32_t hidden = shown(added), bare = shown({});
  EXPECT_GT(difference(hidden, bare), 30);
  EXPECT_LT(difference(hidden, bare), difference(open, bare) / 2);
}

TEST_F(RibbonPictures, ShowPlatformsElsewhereWithoutMovingThem) {
  clsMovingPlatform& platform = Document.Platforms.emplace_back();
  platform.create(0, 0, 0);
  PutPiece(platform, {-2, 3, 5}, {4, 1, 4});
  Document.PlatformCount = 0;
  const auto bytesOf = [&] { return platform.GetCollisionPlane(2); };
  const CollisionPlane before = bytesOf();
  const auto shownAt = [&](float x) {
    return Picture(gl::Scheme::Batched, 5, {[x](size_t, const auto&) { return x; }, {}});
  };
  const Image elsewhere = shownAt(3);
  EXPECT_TRUE(bytesOf() == before && platform.Xpos() == -2);
  EXPECT_EQ(shownAt(-2).pixels, Picture(gl::Scheme::Batched, 5, {}).pixels);
  platform.Xpos(3);
  EXPECT_EQ(elsewhere.pixels, Picture(gl::Scheme::Batched, 5, {}).pixels);
  platform.Zpos(-1);
  platform.Zpos(2000);
  bool asked = false;
  Picture(gl::Scheme::Batched, 5, {[&](size_t, const auto&) { return asked = true, 0.0F; }, {}});
  EXPECT_FALSE(asked) << "it may be seen nowhere on its way";
}

}  // namespace
