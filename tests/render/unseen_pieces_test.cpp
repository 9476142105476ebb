// What the camera cannot see is not recorded for the batched scheme. The plain scheme gets all of
// it, so both must give the same pictures, and the pieces the same motion.
#include <random>

#include "bench/scenes.h"
#include "files/FileIO.h"
#include "level/pieces.h"
#include "render/frame/RenderFrame.h"
#include "render/frame/frame_steps.h"
#include "tests/platform/gl_test_tools.h"
#include "tests/support/null_editor.h"

namespace {

class UnseenPieces : public DeviceTest {
 protected:
  UnseenPieces() {
    world->decoder = [](const std::string& path) {
      Image image(4, 4);
      std::mt19937 pixels(static_cast<unsigned>(path.size()));
      for (uint32_t& pixel : image.pixels) pixel = 0xFF000000U | static_cast<uint32_t>(pixels());
      return image;
    };
  }
  void SetUp() override {
    DeviceTest::SetUp();
    gltest::Context();
    for (const gl::Scheme scheme : {gl::Scheme::Batched, gl::Scheme::Plain}) {
      auto executor = gl::CreateExecutor(scheme, {160, 121, 4, 1.0});
      executors_.push_back(executor.get());
      devices_.push_back(std::make_unique<Device>(std::move(executor)));
      devices_.back()->SetRenderState(RenderState::DepthTest, true);
      devices_.back()->SetRenderState(RenderState::MultisampleAntialias, true);
    }
  }

  /// A frame of the present document by one of the two; how it has left the pieces is the result.
  PieceCollections Draw(size_t which) {
    PieceCollections before = Document;
    std::swap(DirectX::D3DDevice, devices_[which]);
    DirectX::ApplyCamera();
    RenderFrame();
    std::swap(DirectX::D3DDevice, devices_[which]);
    return std::exchange(static_cast<PieceCollections&>(Document), std::move(before));
  }
  int Whole(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
  template <typename Pieces>
  auto& AnyOf(Pieces& pieces) {
    return pieces[random_() % pieces.size()];
  }
  void ChangeSomething() {
    AnyOf(Document.Blocks).Fall();
    AnyOf(Document.Blocks).Bounce();
    PutPiece(AnyOf(Document.Blocks), Somewhere(), Size());
    PutPiece(AnyOf(Document.Platforms), Somewhere(), Size());
    PutPiece(AnyOf(Document.Ramps), Somewhere(), Size()).rotate();
    AnyOf(Document.Blocks).SelectBlock();
    AnyOf(Document.Blocks).AlignTexureCoords(static_cast<int16_t>(Whole(2)), 3);
    AnyOf(Document.Stars).visible(Whole(2) == 0);
    MovePlatforms();
    const auto depth = static_cast<float>(Whole(200));
    DirectX::CameraPosition = {0, 25, depth - 18};
    DirectX::CameraTarget = {static_cast<float>(Whole(9) - 4), 8, depth};
    for (clsStar& star : Document.Stars) {
      star.Xpos(Whole(60) - 30);
      star.Ypos(Whole(20));
      star.Zpos(static_cast<int32_t>(depth) + Whole(60));
    }
  }

  std::vector<gl::PictureExecutor*> executors_;

 private:
  Vector3 Somewhere() {
    return {static_cast<float>(Whole(80) - 40), static_cast<float>(Whole(30)),
            static_cast<float>(Whole(300))};
  }
  Vector3 Size() {
    return {static_cast<float>(Whole(9)), static_cast<float>(Whole(5)),
            static_cast<float>(Whole(9))};
  }

  std::mt19937 random_{11};
  std::vector<std::unique_ptr<Device>> devices_;
};

TEST_F(UnseenPieces, AreMissedInNoPictureAndMoveOn) {
  LevelFile level = bench::EveryKindTrack(400);
  level.Blocks.resize(200);
  ASSERT_TRUE(FileIO::ReadLevelBytes(SerializeLevel(level), "scene").Ok());
  for (int frame = 0; frame < 60; ++frame) {
    ChangeSomething();
    const PieceCollections culled = Draw(0), whole = Draw(1);
    gltest::ExpectSamePicture(executors_[0]->ReadPicture(), executors_[1]->ReadPicture(),
                              "unseen_" + std::to_string(frame));
    for (size_t i = 0; i < whole.Blocks.size(); ++i) {
      ASSERT_EQ(culled.Blocks[i].Ypos(), whole.Blocks[i].Ypos()) << frame << " " << i;
    }
    for (size_t i = 0; i < whole.Stars.size(); ++i) {
      ASSERT_EQ(culled.Stars[i].SpinAngle(), whole.Stars[i].SpinAngle()) << frame << " " << i;
    }
    static_cast<PieceCollections&>(Document) = whole;
  }
}

/// What is recorded of a corridor lies before the camera, down to where the view ends.
TEST_F(UnseenPieces, AreNotRecorded) {
  ASSERT_TRUE(FileIO::ReadLevelBytes(SerializeLevel(bench::EveryKindTrack(2000)), "scene").Ok());
  class Dropped : public Executor {
    void Execute(const CommandList&) override {}
    bool NeedsUnseen() const override { return false; }
  };
  Device culling(std::make_unique<Dropped>());
  culling.SetTransform(Transform::View, d3dx::LookAtLH({0, 25, 982}, {0, 8, 1000}, {0, 1, 0}));
  culling.SetTransform(Transform::Projection, d3dx::PerspectiveFovLH(0.785F, 1, 1, 500));
  int seen = 0;
  VisitKinds([&](auto kind) {
    for (const auto& piece : kind.Pieces()) {
      const auto [corner, size] = piece.Drawn();
      if (!culling.MaySee(corner, size)) continue;
      ++seen;
      EXPECT_TRUE(corner.z + size.z > 980 && corner.z < 1080);
    }
  });
  EXPECT_GT(seen, 8);
}

}  // namespace
