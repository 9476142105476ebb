#include "tools/vorbilax_track/drive_script.h"

#include <gtest/gtest.h>

#include "tools/vorbilax_track/drive_run.h"

namespace {

using track_tool::ParseScript;

TEST(DriveScript, ReadsRunsCommentsAndBlankLines) {
  const auto runs =
      ParseScript("# a drive\n\n 30 up \r\n\t2 left+jump+up # hop\n5 -\n7 down+right");
  ASSERT_EQ(runs.size(), 4U);
  EXPECT_EQ(runs[0].frames, 30);
  EXPECT_EQ(runs[1].held, (std::vector<uint8_t>{203, 57, 200}));
  EXPECT_TRUE(runs[2].held.empty());
  KeyboardState keys{};
  keys[208] = keys[205] = 128;
  EXPECT_EQ(KeysOf(runs[3]), keys);
}

TEST(DriveScript, NamesTheBadLine) {
  for (const std::string bad :
       {"up", "3", "3 up down", "x up", "3x up", "-3 up", "0 up", "1.5 up", "9999999999 up",
        "3 fly", "3 up+", "3 +up", "3 up++down", "3 Up", "3 -+up", "3 up + down"}) {
    try {
      ParseScript("1 up\n# fine\n" + bad + "\n");
      ADD_FAILURE() << bad;
    } catch (const track_tool::ScriptError& failure) {
      EXPECT_TRUE(std::string(failure.what()).starts_with("line 3: ")) << bad;
    }
  }
}

}  // namespace
