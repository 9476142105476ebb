// The frozen track against the objects, bit for bit, on tracks that nobody has thought of.
#include "drive/frozen_track.h"

#include <bit>
#include <cstdlib>
#include <set>

#include "drive/object_drive.h"
#include "tests/drive/random_track.h"
#include "tests/drive/seeds.h"
#include "tests/play/play_test.h"

namespace {

using FrozenTrackTest = PlayTest;

/// All that a drive shows, as exact bits.
std::string BitsOf(const drive::Row& row) {
  std::string bits;
  for (const float value : {row.x, row.y, row.z, row.hv, row.vv, row.fv}) {
    bits.append(std::to_string(std::bit_cast<uint32_t>(value))).append(" ");
  }
  return bits + drive::RowLine(row);
}

TEST_F(FrozenTrackTest, DrivesAsTheObjectsDo) {
  std::set<std::string> endings;
  size_t moved = 0, ice = 0, stars = 0;
  for (int seed = 1; seed <= Seeds(150); ++seed) {
    RandomTrack random(static_cast<uint32_t>(seed));
    random.Build();
    const drive::FrozenTrack frozen = drive::FrozenTrack::OfDocument();
    drive::DriveState state;
    drive::ObjectDrive objects;
    for (int frame = 0; frame < 400;) {
      const CarKeys keys = random.NextKeys();
      for (int i = random.Whole(1, 16); i > 0; --i, ++frame) {
        const drive::StepEvents events = frozen.Step(state, keys);
        const drive::Row row = objects.Step(keys);
        ASSERT_EQ(BitsOf(RowOf(state, events)), BitsOf(row)) << "seed " << seed;
        endings.insert(row.event);
        moved = std::max(moved, state.moved.size());
        ice += row.onIce ? 1 : 0;
        stars = std::max(stars, state.collected.size());
      }
    }
  }
  EXPECT_EQ(endings, (std::set<std::string>{"", "explode", "fall", "win"})) << "it saw everything";
  EXPECT_GT(moved, 1U);
  EXPECT_GT(ice, 50U);
  EXPECT_GT(stars, 3U);
}

}  // namespace
