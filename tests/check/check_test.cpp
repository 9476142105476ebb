// Seeded faults on generated roads: each is named, and nothing else is said.
#include "check/check.h"

#include <functional>
#include <map>
#include <random>

#include "files/FileIO.h"
#include "tests/drive/random_track.h"
#include "tests/play/play_test.h"

namespace {

using check::Fault;
using check::Finding;

class CheckTest : public PlayTest {
 protected:
  int Whole(int low, int high) { return std::uniform_int_distribution(low, high)(random_); }
  float Part(float low, float high) {
    return std::uniform_real_distribution<float>(low, high)(random_);
  }

  /// A road with what a builder puts on it and beside it, a WIN block at its end.
  void BuildRoad(uint32_t seed) {
    random_.seed(seed);
    static_cast<PieceCollections&>(Document) = {};
    Document.BackgroundName = Whole(0, 1) == 0 ? "bk001.jpg" : "_bk002.jpg";
    Document.Gravity = Whole(0, 3) == 0 ? kLowGravity : kNormalGravity;
    AddBlock({-4, Part(0, 1), 0}, {8, 1, 12});
    int z = 12;
    for (int sections = Whole(3, 30); sections > 0; --sections) z += AddSection(z) + Whole(0, 4);
    AddBlock({-3, 0, static_cast<float>(z)}, {6, Part(0.5F, 3), 8}, clsblock::WinLevel);
    end_ = z;
  }
  int AddSection(int z) {
    const int length = Whole(3, 14);
    const auto depth = static_cast<float>(z), size = static_cast<float>(length);
    const Vector3 at{Part(-4, -2), Part(0, 1), depth};
    switch (Whole(0, 5)) {
      case 0:
        AddPlatform(at, {6, Part(0.5F, 1), size}, clsMovingPlatform::Right);
        break;
      case 1:
        AddRamp({-3, 0, depth}, {6, static_cast<float>(Whole(1, 3)), size}, Whole(0, 3));
        break;
      default: {
        constexpr std::array<uint8_t, 6> kinds = {0, 0, 2, 3, 4, 5};
        AddBlock(at, {6, Part(0.5F, 2), size}, kinds[static_cast<size_t>(Whole(0, 5))]);
      }
    }
    if (Whole(0, 1) == 0) AddStar(Whole(-2, 2), Whole(3, 5), z + Whole(0, length));
    // A house with a roof and a hidden core, which may share planes with its walls.
    AddBlock({10, 0, depth}, {4, 3, size}, clsblock::Building);
    if (Whole(0, 1) == 0) AddBlock({10, 3, depth}, {4, 1, size});
    return length;
  }

  static check::Findings Findings() { return check::FindFaultsOfDocument(); }
  static std::string Told(const check::Findings& findings) {
    std::string told;
    for (const Finding& finding : findings) told.append(finding.text).append("; ");
    return told;
  }
  static clsblock& Block(size_t index) { return Document.Blocks[index]; }
  static clsMovingPlatform& StopAt(const Vector3& at, const Vector3& size, uint8_t direction) {
    clsMovingPlatform& platform = AddPlatform(at, size, direction);
    platform.Mdist(5);
    return platform;
  }

  struct Seed {
    Fault fault;
    std::function<void()> sow;
  };
  /// Changes that are faults, whatever the road is.
  std::vector<Seed> Seeds();

  std::mt19937 random_;
  int end_ = 0;  ///< where the WIN block begins
};

std::vector<CheckTest::Seed> CheckTest::Seeds() {
  const auto far = [this] { return static_cast<float>(end_ + 40); };
  return {
      {Fault::NoWin, [] { Document.Blocks.back().changeactioncode(clsblock::Ice); }},
      {Fault::CarFalls,
       [] {
         PutPiece(Block(0), {2, 0, 0}, {8, 1, 12});
       }},
      {Fault::CarFalls, [] { Block(0).changeactioncode(clsblock::FallingBlock); }},
      {Fault::CarExplodes, [] { Block(0).changeactioncode(clsblock::InstantKill); }},
      {Fault::CarIsPushed, [] { Block(0).changeactioncode(clsblock::TurboPad); }},
      {Fault::LostStar, [this] { AddStar(0, 200, end_); }},
      {Fault::LostStar, [] { AddStar(0, 1, 0); }},
      {Fault::LostStar, [this] { AddStar(0, 1, end_ + 2000); }},
      {Fault::LostStar, [this] { AddStar(-2000, 1, end_); }},
      {Fault::LostStar,
       [this, far] {
         AddBlock({-30, 0, far()}, {4, 4, 4}, clsblock::Building);
         AddStar(-28, 2, static_cast<int>(far()) + 1);
       }},
      {Fault::PlatformAtStart,
       [] {
         StopAt({-5, 3, 0}, {1, 1, 4}, clsMovingPlatform::Right);
       }},
      {Fault::PlatformAtStart,
       [] {
         StopAt({3, 3, -0.5F}, {1, 1, 2}, clsMovingPlatform::Left);
       }},
      {Fault::Double,
       [] {
         const clsblock copy = Block(1);
         ++Document.BlockCount;
         Document.Blocks.push_back(copy);
       }},
      {Fault::Double, [this] { AddStar(1, 4, end_), AddStar(1, 4, end_); }},
      {Fault::Double,
       [far] {
         for (const int turns : {1, 1}) AddRamp({0, 0, far()}, {3, 2, 3}, turns);
       }},
      {Fault::Flicker,  // tops, nearly in one plane
       [far] {
         AddBlock({-20, 0, far()}, {4, 1, 9});
         AddBlock({-18, 0.5F, far() + 1}, {4, 0.505F, 9});
       }},
      {Fault::Flicker,  // left sides
       [far] {
         AddBlock({-20, 0, far()}, {4, 1, 9});
         AddBlock({-20, 0.5F, far() + 1}, {6, 1, 9});
       }},
      {Fault::Flicker,  // the triangle of a ramp in the right side of a block
       [far] {
         AddRamp({-20, 0, far()}, {4, 4, 8}, 2);
         AddBlock({-18, -0.5F, far() + 1}, {2, 1.5F, 3});
       }},
      {Fault::Flicker,  // slopes
       [far] {
         AddRamp({-20, 0, far()}, {4, 2, 4}, 0);
         AddRamp({-17, 1, far() + 2}, {4, 4, 8}, 0);
       }},
      {Fault::NoSize,
       [far] {
         AddRamp({-20, 0, far()}, {4, 0, 8}, 1);
       }},
      {Fault::NoSize,
       [far] {
         AddRamp({-20, 0, far()}, {-4, 3, 8}, 1);
       }},
      {Fault::NoSize,
       [far] {
         clsMovingPlatform& platform = Document.Platforms.emplace_back();
         ++Document.PlatformCount;
         platform.create(-20, 0, far());
         for (const char face : {'A', 'B', 'C', 'D'}) {
           platform.Texture("a.bmp", {face}, Document.TextureDir);
         }
       }},
      {Fault::MissingTexture,
       [this] {
         WriteBytes(folder / "textures/gone.bmp", "");
         Block(1).Texture("gone.bmp", "B", Document.TextureDir);
         std::filesystem::remove(folder / "textures/gone.bmp");
       }},
      {Fault::MissingBackdrop, [] { Document.BackgroundName = "_bk003.jpg"; }},
  };
}

TEST_F(CheckTest, NamesEverySeededFaultAndNothingElse) {
  std::map<Fault, int> named;
  int sown = 0;
  for (uint32_t seed = 1; seed <= 40; ++seed) {
    BuildRoad(seed);
    ASSERT_EQ(Told(Findings()), "") << "seed " << seed;
    for (const Seed& fault : Seeds()) {
      SCOPED_TRACE(++sown);
      BuildRoad(seed);
      fault.sow();
      const check::Findings findings = Findings();
      ASSERT_EQ(findings.size(), 1U)
          << NameOf(fault.fault) << ", seed " << seed << ": " << Told(findings);
      ASSERT_EQ(NameOf(findings[0].fault), std::string(NameOf(fault.fault))) << findings[0].text;
      ++named[fault.fault];
    }
  }
  EXPECT_EQ(named.size(), 11U) << "all kinds";
}

TEST_F(CheckTest, TellsPieceAndPlace) {
  AddFloor();
  AddBlock({3, 0.5F, 45}, {1, 1, 1});
  AddBlock({3, 0.5F, 45}, {1, 1, 1});
  AddBlock({3.5F, 0.5F, 45}, {1, 2, 1}, clsblock::WinLevel);
  const check::Findings findings = Findings();
  EXPECT_EQ(Told(findings),
            "block 2 at 3 0.5 45 is an exact double of block 1; The backdrop \"\" is not there; "
            "block 3 at 3.5 0.5 45 flickers: its front lies in the front of block 1; ");
  EXPECT_EQ(findings[0].piece, (check::PieceName{TypeBlock, 2}));
  EXPECT_EQ(findings[0].other, (check::PieceName{TypeBlock, 1}));
  EXPECT_EQ(findings[0].place, (Vector3{3, 0.5F, 45}));
  EXPECT_FALSE(findings[1].piece.has_value());
}

TEST_F(CheckTest, StandingOnAPlatformOrAPadIsFine) {
  Document.BackgroundName = "bk001.jpg";
  AddBlock({0, 0, 50}, {1, 1, 1}, clsblock::WinLevel);
  StopAt({-4, 0, -0.5F}, {8, 1, 4}, clsMovingPlatform::Right).Mdist(2);
  EXPECT_EQ(Told(Findings()), "");
  Document.Platforms.clear();
  Document.PlatformCount = -1;
  AddBlock({-4, 0, 0}, {8, 1, 8}, clsblock::JumpPad);
  EXPECT_EQ(Told(Findings()), "");
}

TEST_F(CheckTest, NoStarThatACarTakesIsCalledLost) {
  int taken = 0, lost = 0;
  for (uint32_t seed = 1; seed <= 150; ++seed) {
    RandomTrack random(seed);
    random.Build();
    for (int i = 0; i < 40; ++i) {
      AddStar(random.Whole(-3, 3), random.Whole(0, 3) * random.Whole(0, 20), random.Whole(0, 60));
    }
    const auto track = drive::FrozenTrack::OfDocument();
    std::set<int32_t> called;
    for (const Finding& finding : check::FindFaults(track, {})) {
      if (finding.fault == Fault::LostStar) called.insert(finding.piece.value().index);
    }
    lost += static_cast<int>(called.size());
    drive::DriveState state;
    for (int frame = 0; frame < 4000;) {
      const CarKeys keys = random.NextKeys();
      for (int i = random.Whole(1, 16); i > 0; --i, ++frame) track.Step(state, keys);
      for (const int32_t star : state.collected) {
        ASSERT_FALSE(called.contains(star)) << "seed " << seed << ", star " << star;
      }
      taken += static_cast<int>(state.collected.size());
    }
  }
  EXPECT_GT(taken, 1000);
  EXPECT_GT(lost, 10);
}

TEST_F(CheckTest, FilesNameWhatAReadReplaces) {
  BuildRoad(1);
  std::string bytes;
  ASSERT_TRUE(FileIO::LevelBytes(bytes).Ok());
  LevelFile level = ParseLevel(bytes);
  level.TextureNames = {"_default.bmp", "nobody wears it.bmp", "A.BMP"};
  level.Ramps = {{.Zpos = 7, .scaleX = 1, .Textures = {0, 2}}};
  check::Findings findings;
  CheckFiles(check::FilesOf(level), findings);
  EXPECT_EQ(Told(findings), "ramp 0 at 0 0 7 wears the picture \"A.BMP\", which is not there; ");
}

}  // namespace
