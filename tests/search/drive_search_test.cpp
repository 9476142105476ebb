// No state on the way to a win is ever condemned.
#include "search/reach_graph.h"

#include <filesystem>

#include "bench/roads.h"
#include "drive/object_drive.h"
#include "drive/script_run.h"
#include "files/FileIO.h"
#include "platform/whole_file.h"
#include "search/drive_search.h"
#include "tests/drive/random_track.h"
#include "tests/drive/seeds.h"
#include "tests/play/play_test.h"

namespace {

class SearchTest : public PlayTest {
 protected:
  /// Every state of a drive that wins the track is one from which a win is in reach.
  static void ExpectNeverCondemned(const drive::FrozenTrack& track, const drive::KeyScript& script,
                                   const std::string& what) {
    const search::ReachGraph graph(track);
    drive::DriveState state;
    drive::Ending ending = drive::Ending::None;
    for (drive::KeyReader keys(script); !keys.AtEnd() && ending == drive::Ending::None;
         ending = track.Step(state, keys.Next()).ending) {
      if (graph.FramesFrom(state) < search::kNever) continue;
      const Vector3& at = state.car.position;
      ADD_FAILURE() << what << ": frame " << state.frame << " at " << at.x << ' ' << at.y << ' '
                    << at.z;
      return;
    }
  }
};

TEST_F(SearchTest, WinsTheShippedTracksAndCondemnsNoStateOfTheirDrives) {
  int tracks = 0;
  for (const auto& entry : std::filesystem::directory_iterator(SHIPPED_TRACKS)) {
    if (entry.path().extension() != ".lvl") continue;
    ++tracks;
    const std::string file = entry.path().string();
    ASSERT_TRUE(FileIO::ReadLevel(file).Ok());
    const auto track = drive::FrozenTrack::OfDocument();
    std::string text;
    ASSERT_EQ(ReadWholeFile(std::filesystem::path(file).replace_extension("keys"), text), "");
    ExpectNeverCondemned(track, drive::ParseScript(text), file);
    const search::Result found = search::FindDrive(track);
    ASSERT_EQ(found.outcome, search::Outcome::Won) << file;
    ExpectNeverCondemned(track, found.script, file + ", found");
    EXPECT_TRUE(drive::WinsThroughObjects(found.script)) << file;
    EXPECT_LT(found.effort.steps, 2'000'000) << file;
  }
  EXPECT_GE(tracks, 6);
}

TEST_F(SearchTest, CondemnsNoStateOfWinsOnRandomTracks) {
  int wins = 0;
  for (int seed = 1; seed <= Seeds(400); ++seed) {
    RandomTrack random(static_cast<uint32_t>(seed));
    random.Build();
    const auto track = drive::FrozenTrack::OfDocument();
    drive::KeyScript script;
    for (int i = 0; i < 60; ++i) script.push_back({random.Whole(1, 16), random.NextKeys()});
    drive::ScriptRun run(track, script);
    run.Advance(1000);
    if (run.HowItEnds() == drive::Ending::Wins) {
      ++wins;
      ExpectNeverCondemned(track, drive::Beginning(script, run.State().frame),
                           "seed " + std::to_string(seed));
    }
  }
  EXPECT_GT(wins, 5);
}

TEST_F(SearchTest, WinsRoadsTheSameWayEveryTimeAndNeverWithoutAWay) {
  for (uint32_t seed = 1; seed <= static_cast<uint32_t>(Seeds(12)); ++seed) {
    const std::string what = "road " + std::to_string(seed);
    LevelFile road = bench::Road(5 + static_cast<int>(seed % 40), seed);
    ASSERT_TRUE(FileIO::ReadLevelBytes(SerializeLevel(road), what).Ok());
    const auto track = drive::FrozenTrack::OfDocument();
    const search::Result found = search::FindDrive(track);
    ASSERT_EQ(found.outcome, search::Outcome::Won) << what;
    EXPECT_EQ(search::FindDrive(track).script, found.script) << what;
    EXPECT_TRUE(drive::WinsThroughObjects(found.script)) << what;
    ExpectNeverCondemned(track, found.script, what);

    // Nothing leads on from the middle, or nothing ends it.
    const float middle = road.Blocks.back().Zpos / 2;
    const auto cut = [middle](const auto& piece) {
      const auto& box = [&piece]() -> const auto& {
        if constexpr (requires { piece.Box; })
          return piece.Box;
        else
          return piece;
      }
      ();
      return box.Zpos + box.scaleZ > middle && box.Zpos < middle + 40;
    };
    LevelFile broken = road;
    std::erase_if(broken.Blocks, cut);
    std::erase_if(broken.Platforms, cut);
    std::erase_if(broken.Ramps, cut);
    ASSERT_TRUE(FileIO::ReadLevelBytes(SerializeLevel(broken), what).Ok());
    search::Limits little;
    little.steps = 300'000;
    EXPECT_NE(search::FindDrive(drive::FrozenTrack::OfDocument(), little).outcome,
              search::Outcome::Won)
        << what;
    road.Blocks.back().changeactioncode = clsblock::Normal;
    ASSERT_TRUE(FileIO::ReadLevelBytes(SerializeLevel(road), what).Ok());
    EXPECT_EQ(WordsFor(search::FindDrive(drive::FrozenTrack::OfDocument())),
              "The track has no WIN block");
  }
}

/// 17.6 units are what a car at its top speed clears on level ground.
TEST_F(SearchTest, FindsTheJumpThatIsOnlyJustPossible) {
  for (const auto& [gap, possible] : {std::pair{16.5F, true}, {17.5F, true}, {19.5F, false}}) {
    static_cast<PieceCollections&>(Document) = {};
    AddBlock({-3, 0, 0}, {6, 1, 30});
    AddBlock({-3, 0, 60}, {6, 1, 6}, clsblock::WinLevel);
    Document.Blocks[0].scaleZ(60 - gap);
    search::Limits limits;
    limits.steps /= possible ? 1 : 20;
    const search::Result found = search::FindDrive(drive::FrozenTrack::OfDocument(), limits);
    EXPECT_EQ(found.outcome == search::Outcome::Won, possible) << gap << ' ' << WordsFor(found);
  }
}

TEST_F(SearchTest, StopsWhenAskedAndAtItsLimits) {
  ASSERT_TRUE(FileIO::ReadLevelBytes(SerializeLevel(bench::Road(30, 3)), "road").Ok());
  const auto track = drive::FrozenTrack::OfDocument();
  std::atomic<bool> stop = false;
  int told = 0;
  search::Watch watch{&stop, [&](const search::Effort&) { stop = ++told == 2; }};
  // A wall in front of the goal keeps it busy.
  search::Limits few;
  few.steps = 20'000;
  EXPECT_EQ(search::FindDrive(track, few).outcome, search::Outcome::NotFound);
  few = {};
  few.states = 50;
  const search::Result small = search::FindDrive(track, few);
  EXPECT_LE(small.effort.states, 50 * 7);
  stop = true;
  EXPECT_EQ(search::FindDrive(track, {}, watch).outcome, search::Outcome::Stopped);
}

}  // namespace
