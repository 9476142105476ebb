// What a run notes on its way, and when it ends.
#include "drive/script_run.h"

#include <algorithm>

#include "tests/play/play_test.h"

namespace {

class ScriptRunTest : public PlayTest {
 protected:
  /// Frames with this mark, in order.
  static std::vector<int> FramesWith(const drive::Path& path, drive::Mark mark) {
    std::vector<int> frames;
    for (size_t i = 0; i < path.size(); ++i) {
      if ((path[i].marks & mark) != 0) frames.push_back(static_cast<int>(i));
    }
    return frames;
  }
  drive::ScriptRun RunOf(const std::string& text) {
    track = drive::FrozenTrack::OfDocument();
    script = drive::ParseScript(text);
    drive::ScriptRun run(track, script);
    while (run.Advance(7)) continue;
    return run;
  }
  using Frames = std::vector<int>;
  drive::FrozenTrack track;
  drive::KeyScript script;
};

TEST_F(ScriptRunTest, MarksFlightsPadsAndStars) {
  AddFloor();
  AddBlock({-2, 0, 30}, {4, 1, 4}, clsblock::TurboPad);
  AddStar(0, 1, 8);
  const auto run = RunOf(kLand + "30 up\n1 jump\n90 -");
  const drive::Path& path = run.Path();
  const Frames landings = FramesWith(path, drive::kLands);
  ASSERT_EQ(landings.size(), 2U);
  EXPECT_EQ(landings[0], kLanding);
  const Frames flights = FramesWith(path, drive::kTakesOff);
  ASSERT_EQ(flights.size(), 1U);
  EXPECT_EQ(flights[0], kLanding + 30) << "the last frame on the ground";
  EXPECT_EQ(landings[1] - flights[0], 28) << "the parabola";
  const Frames stars = FramesWith(path, drive::kTakesStar);
  ASSERT_EQ(stars.size(), 1U);
  // Taken before the step, so the place before it is within reach.
  const float z = path[static_cast<size_t>(stars[0]) - 1].place.z;
  EXPECT_TRUE(z > 8 && z < 9) << z;
  EXPECT_EQ(run.State().collected, std::vector<int32_t>{0});
  EXPECT_EQ(FramesWith(path, drive::kMeetsPad).size(), 1U) << "rolled over for several frames";
  EXPECT_EQ(run.HowItEnds(), drive::Ending::None);
  EXPECT_EQ(path.size(), 1U + 14 + 30 + 1 + 90);
}

TEST_F(ScriptRunTest, EndsWithTheFirstEnding) {
  AddFloor();
  clsblock& wall = AddBlock({-2, 1, 20}, {4, 3, 1});
  const auto crash = RunOf("100 up");
  EXPECT_EQ(crash.HowItEnds(), drive::Ending::Explodes);
  EXPECT_EQ(crash.Path().back().marks, drive::kExplodes);
  PutPiece(wall, {30, 1, 20}, {4, 3, 1});
  Document.Blocks[0].scaleZ(40);
  const auto fall = RunOf("400 up");
  EXPECT_EQ(fall.HowItEnds(), drive::Ending::Falls);
  EXPECT_LT(fall.Path().back().place.y, -40);
  Document.Blocks[0].changeactioncode(clsblock::WinLevel);
  const auto win = RunOf("400 -");
  EXPECT_EQ(win.HowItEnds(), drive::Ending::Wins);
  EXPECT_EQ(win.Path().size(), 1U + kLanding);

  const auto state = StateAfter(track, script, 5);
  EXPECT_EQ(state.car.position, win.Path()[5].place);
}

}  // namespace
