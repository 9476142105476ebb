#include "drive/key_script.h"

#include <gtest/gtest.h>

#include <random>

namespace {

TEST(KeyScript, HasCommentsAndBlankLinesAndNamesTheBadOne) {
  const auto runs = drive::ParseScript("# a drive\n\n 30 up \r\n\t7 left+jump # hop\n5 -");
  ASSERT_EQ(runs.size(), 3U);
  EXPECT_EQ(runs[1].frames, 7);
  EXPECT_EQ(runs[1].keys, kLeftKey | kJumpKey);
  for (const std::string bad :
       {"up", "3", "3 up down", "x up", "3x up", "-3 up", "0 up", "1.5 up", "9999999999 up",
        "3 fly", "3 up+", "3 +up", "3 up++down", "3 Up", "3 -+up", "3 up + down"}) {
    try {
      drive::ParseScript("1 up\n# fine\n" + bad + "\n");
      ADD_FAILURE() << bad;
    } catch (const drive::ScriptError& failure) {
      EXPECT_TRUE(std::string(failure.what()).starts_with("line 3: ")) << bad;
    }
  }
}

TEST(KeyScript, IsReadAsItWasRecordedAndWritten) {
  std::mt19937 random(5);
  for (int round = 0; round < 50; ++round) {
    std::vector<CarKeys> frames;
    drive::KeyScript script;
    for (int i = 0; i < 200; ++i) {
      const bool same = random() % 4 != 0 && !frames.empty();
      frames.push_back(same ? frames.back() : static_cast<CarKeys>(random() % 32));
      AddFrame(script, frames.back());
    }
    const drive::KeyScript read = drive::ParseScript(ScriptText(script));
    EXPECT_EQ(read, script);
    EXPECT_EQ(FrameCount(read), 200);
    const auto cut = static_cast<int>(random() % 220);
    drive::KeyReader all(read);
    const drive::KeyScript beginning = drive::Beginning(read, cut);
    EXPECT_EQ(FrameCount(beginning), std::min(cut, 200));
    drive::KeyReader some(beginning);
    for (const CarKeys keys : frames) {
      const bool both = !some.AtEnd();
      EXPECT_EQ(both ? some.Next() : keys, keys);
      EXPECT_EQ(all.Next(), keys);
    }
    EXPECT_TRUE(all.AtEnd() && some.AtEnd());
    EXPECT_EQ(all.Next(), 0) << "nobody holds anything";
  }
}

}  // namespace
