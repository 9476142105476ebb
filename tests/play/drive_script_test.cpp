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
  EXPECT_EQ(runs[0].held, std::vector<uint8_t>{200});
  EXPECT_EQ(runs[1].held, (std::vector<uint8_t>{203, 57, 200}));
  EXPECT_TRUE(runs[2].held.empty());
  const KeyboardState keys = KeysOf(runs[3]);
  EXPECT_EQ(keys[208], 128);
  EXPECT_EQ(keys[205], 128);
  EXPECT_EQ(keys[200], 0);
  EXPECT_TRUE(ParseScript("").empty());
}

TEST(DriveScript, NamesTheBadLine) {
  for (const std::string bad :
       {"up", "3", "3 up down", "x up", "3x up", "-3 up", "0 up", "1.5 up", "9999999999 up",
        "3 fly", "3 up+", "3 +up", "3 up++down", "3 Up", "3 -+up", "3 up + down"}) {
    try {
      ParseScript("1 up\n# fine\n" + bad + "\n");
      ADD_FAILURE() << bad;
    } catch (const track_tool::ScriptError& failure) {
      EXPECT_EQ(std::string(failure.what()).substr(0, 8), "line 3: ") << bad;
    }
  }
}

TEST(DriveScript, RowsAreLinesOfTheTable) {
  const track_tool::DriveRow row{7,    0.1F,  1,     -2.5F, 0, 1e-8F, 0.6F,
                                 true, false, false, true,  3, "win"};
  EXPECT_EQ(DriveLine(row), "7,0.100000001,1,-2.5,0,9.99999994e-09,0.600000024,1,0,0,1,3,win");
}

}  // namespace
