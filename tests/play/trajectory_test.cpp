// One long drive over a track of everything, as a single number: the same for every compiler and at
// every optimisation level. other_compilers_test.sh builds this file with the others.
#include <set>

#include "search/drive_search.h"
#include "tests/play/play_test.h"

namespace {

class TrajectoryTest : public PlayTest {
 protected:
  static void BuildTrack() {
    AddBlock({-6, 0, 0}, {12, 1, 20});
    AddRamp({-4, 1, 12}, {8, 2, 6}, 0);
    AddBlock({-4.3F, 1.7F, 18}, {8.6F, 1.3F, 9}, clsblock::Ice);
    AddRamp({-4, 1, 27}, {8, 2, 4}, 2);
    AddBlock({-8, 0, 26}, {16, 1, 24});
    AddRamp({3, 1, 2}, {3, 1, 12}, 1);
    AddRamp({-6, 1, 2}, {3, 1, 12}, 3);
    AddBlock({-1.5F, 0.2F, 36}, {3, 1, 2}, clsblock::JumpPad);
    AddBlock({-5, 0.1F, 40}, {2, 1, 4}, clsblock::TurboPad);
    AddBlock({3, 0.1F, 42}, {2, 1, 2}, clsblock::InstantKill);
    AddBlock({-2, 2.4F, 44}, {3, 0.6F, 4});
    AddPlatform({-3, 0, 51}, {6, 1, 8}, clsMovingPlatform::Right).Mspeed(7);
    AddPlatform({-7, 1, 30}, {2, 2, 12}, clsMovingPlatform::Right).MloopBack(false);
    for (int i = 0; i < 6; ++i) {
      AddBlock({-3, 0.15F * static_cast<float>(i), 60 + 5.0F * static_cast<float>(i)}, {6, 1, 4},
               clsblock::FallingBlock);
    }
    AddBlock({-8, 0, 92}, {16, 1, 20});
    AddBlock({-1, 1, 100}, {2, 2, 1}, clsblock::Building);
    AddBlock({-8, 0, 112}, {16, 1, 8}, clsblock::WinLevel);
    for (int z = 6; z < 120; z += 6) AddStar(z % 4 - 2, 1, z);
  }

  static uint32_t Random(uint32_t& state) {
    state = state * 1664525U + 1013904223U;
    return state >> 24;
  }

  /// Mostly forwards, with a taste for jumps.
  static CarKeys NextKeys(uint32_t& state) {
    CarKeys keys = 0;
    for (const auto& [key, chance] : {std::pair{kUpKey, 190U},
                                      {kDownKey, 40U},
                                      {kLeftKey, 60U},
                                      {kRightKey, 60U},
                                      {kJumpKey, 90U}}) {
      if (Random(state) < chance) keys |= key;
    }
    return keys;
  }
};

TEST_F(TrajectoryTest, IsTheSameEverywhere) {
  BuildTrack();
  drive::ObjectDrive drive;
  uint32_t random = 1;
  uint64_t hash = 0xCBF29CE484222325U;
  std::set<std::string> events;
  float furthest = 0;
  for (int run = 0; run < 1500; ++run) {
    const CarKeys keys = NextKeys(random);
    for (uint32_t i = Random(random) % 16; i > 0; --i) {
      const Row row = drive.Step(keys);
      events.insert(row.event);
      furthest = std::max(furthest, row.z);
      for (const char letter : drive::RowLine(row)) {
        hash = (hash ^ static_cast<uint8_t>(letter)) * 0x100000001B3U;
      }
    }
  }
  EXPECT_EQ(events, (std::set<std::string>{"", "explode", "fall", "win"})) << "it saw everything";
  EXPECT_GT(furthest, 112);
  EXPECT_EQ(hash, 0x12CD406A7153A699U);
}

/// Keys that were looked for are the same everywhere, too.
TEST_F(TrajectoryTest, AWinIsFoundTheSameWayEverywhere) {
  BuildTrack();
  const search::Result found = search::FindDrive(drive::FrozenTrack::OfDocument());
  uint64_t hash = 0xCBF29CE484222325U;
  for (const char letter : ScriptText(found.script)) {
    hash = (hash ^ static_cast<uint8_t>(letter)) * 0x100000001B3U;
  }
  EXPECT_EQ(WordsFor(found), "Can be won: 8.0 s");
  EXPECT_EQ(hash, 5137511046588065544U);
  EXPECT_TRUE(drive::WinsThroughObjects(found.script));
}

}  // namespace
