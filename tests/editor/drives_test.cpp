// Drives in the edit view and in the seat: what is remembered, shown, driven on and watched.
#include "editor/drives/drives.h"

#include <chrono>
#include <thread>

#include "drive/object_drive.h"
#include "editor/drives/drive_file.h"
#include "editor/history/history.h"
#include "editor/ribbon/path_picking.h"
#include "play/clsPlayer.h"
#include "play/play_frame.h"
#include "tests/drive/random_track.h"
#include "tests/editor/editor_fixture.h"

namespace {

class DrivesTest : public EditorTest {
 protected:
  void Frames(int count) {
    for (int i = 0; i < count; ++i) PassAfter(41);
  }
  void Hold(CarKeys keys) {
    const KeyboardState state = play::KeyboardWith(keys);
    std::ranges::copy(state, world->keys.begin());
  }
  /// Enters play mode and drives with random keys until an attempt ends, or so many frames.
  void DriveAtRandom(RandomTrack& random, int frames) {
    c.mnu_playmode.UserClicks();
    const uint64_t kept = form.drives.memory.Changes();
    while (frames > 0 && form.drives.memory.Changes() == kept) {
      Hold(random.NextKeys());
      const int count = std::min(frames, random.Whole(1, 16));
      Frames(count);
      frames -= count;
    }
    Hold(0);
  }
  const drives::Attempt& Last() { return form.drives.memory.Present().last.value(); }
  /// Where the objects lead the script.
  static std::vector<Vector3> Places(const drive::KeyScript& script) {
    std::vector<Vector3> places{Car::kStart};
    drive::ObjectDrive objects;
    for (drive::KeyReader keys(script); !keys.AtEnd();) {
      const drive::Row row = objects.Step(keys.Next());
      places.push_back({row.x, row.y, row.z});
    }
    return places;
  }
  static std::vector<Vector3> PlacesOf(const drive::Path& path) {
    std::vector<Vector3> places;
    for (const drive::PathPoint& point : path) places.push_back(point.place);
    return places;
  }
  std::string Note() {
    Frames(1);
    return c.viewport.Notes().empty() ? "" : c.viewport.Notes().front();
  }
  /// A straight road that a car without brakes stays on, with a WIN block at its end.
  void BuildRoad() {
    clsblock& road = Document.Blocks[0];
    PutPiece(road, {-5, 0, 0}, {10, 1, 60});
    clsblock& end = Document.Blocks.emplace_back(road);
    Document.BlockCount = 1;
    PutPiece(end, {-5, 0, 60}, {10, 1, 20}).changeactioncode(clsblock::WinLevel);
    history::steps.Reset();
  }
  void DriveToTheEnd() {
    c.mnu_playmode.UserClicks();
    Hold(kUpKey);
    const uint64_t kept = form.drives.memory.Changes();
    for (int i = 0; i < 400 && form.drives.memory.Changes() == kept; ++i) Frames(1);
    Hold(0);
    c.mnu_editmode.UserClicks();
  }
};

TEST_F(DrivesTest, AnAttemptIsTheScriptThatLeadsTheSameWay) {
  c.mnu_showdrive.UserClicks();
  std::set<drive::Ending> endings;
  for (uint32_t seed = 1; seed <= 40; ++seed) {
    RandomTrack random(seed);
    random.Build();
    const std::string track = Bytes();
    DriveAtRandom(random, random.Whole(30, 400));
    // Some go on after their death.
    if (random.Whole(0, 3) == 0) Frames(60);
    c.mnu_editmode.UserClicks();
    const drives::Attempt attempt = Last();
    endings.insert(attempt.ending);
    EXPECT_TRUE(Bytes() == track);
    EXPECT_EQ(PlacesOf(attempt.path), Places(attempt.script)) << "seed " << seed;
  }
  EXPECT_EQ(endings.size(), 4U) << "wins, crashes, falls and breaks off";
}

TEST_F(DrivesTest, DrivingOnFromTheMiddleEndsAsTheWholeDrive) {
  for (uint32_t seed = 101; seed <= 125; ++seed) {
    RandomTrack random(seed);
    random.Build();
    DriveAtRandom(random, random.Whole(60, 300));
    c.mnu_editmode.UserClicks();
    const std::string track = Bytes();
    const drives::Attempt whole = Last();
    const auto frames = static_cast<int>(whole.path.size()) - 1;
    const int from = random.Whole(0, frames - 1);
    DirectX::CameraTarget.z = whole.path[static_cast<size_t>(from)].place.z;
    c.mnu_drivefromhere.UserClicks();
    ASSERT_EQ(Document.EditorMode, PlayMode);
    const Vector3 begun = Player.GetPosition();
    drive::KeyReader keys(whole.script);
    size_t frame = 0;
    for (; whole.path[frame].place != begun; ++frame) keys.Next();
    for (; !keys.AtEnd(); ++frame) {
      Hold(keys.Next());
      Frames(1);
      ASSERT_EQ(Player.GetPosition(), whole.path[frame + 1].place) << "seed " << seed;
    }
    // Having died, it begins there again.
    if (whole.ending != drive::Ending::None) {
      EXPECT_EQ(PlacesOf(Last().path), PlacesOf(whole.path)) << "counts as one attempt";
      Hold(0);
      for (int i = 0; i < 60 && !Player.DeathStatus(); ++i) Frames(1);
      Frames(1);
      EXPECT_NEAR(Player.Posz(), begun.z, 1.01F);
    }
    Hold(0);
    c.mnu_editmode.UserClicks();
    EXPECT_TRUE(Bytes() == track);
  }
}

TEST_F(DrivesTest, WatchingRepeatsTheDriveUntilAKeyTakesOver) {
  BuildRoad();
  DriveToTheEnd();
  const drives::Attempt win = Last();
  ASSERT_EQ(win.ending, drive::Ending::Wins);
  const uint64_t state = history::steps.State();
  const std::string bytes = Bytes();
  c.mnu_watchdrive.UserClicks();
  for (int round = 0; round < 2; ++round) {
    for (size_t frame = 1; frame < win.path.size(); ++frame) {
      Frames(1);
      ASSERT_EQ(Player.GetPosition(), win.path[frame].place) << round << ' ' << frame;
    }
    EXPECT_TRUE(Player.DeathStatus());
  }
  EXPECT_EQ(form.drives.memory.Changes(), 1U) << "watching is no attempt";
  Frames(10);
  Hold(kRightKey);
  Frames(2);
  Hold(0);
  Frames(40);
  EXPECT_LT(Player.Posz(), win.path[50].place.z) << "nobody accelerates any more";
  c.mnu_editmode.UserClicks();
  EXPECT_EQ(Last().script.front(), (drive::KeyRun{10, kUpKey}));
  EXPECT_EQ(PlacesOf(Last().path), Places(Last().script)) << "the whole of it is one attempt";
  EXPECT_EQ(form.drives.memory.Present().best->path.size(), win.path.size());
  EXPECT_EQ(Words(Bytes() == bytes, history::steps.State() == state, Document.ClipboardFull,
                  Document.CurrentFileName),
            "1 1 0 ");
}

TEST_F(DrivesTest, TheLineFollowsEveryChangeAndTheRibbonWithIt) {
  BuildRoad();
  Frames(1);
  const auto plain = world->screen;
  c.mnu_showdrive.UserClicks();
  EXPECT_EQ(Note(), "No drive to show yet: press F3 and drive");
  DriveToTheEnd();
  const auto frames = static_cast<double>(Last().path.size() - 1);
  std::array<char, 64> wins{};
  std::snprintf(wins.data(), wins.size(), "Your drive wins after %.1f s", frames * 0.04);
  EXPECT_EQ(Note(), wins.data());
  EXPECT_GT(world->screen.commands.size(), plain.commands.size());

  Select(TypeBlock, 1);
  selection::DeleteSelection();
  EXPECT_TRUE(Note().starts_with("Your drive ends after ")) << Note();
  c.mnu_undo.UserClicks();
  EXPECT_EQ(Note(), wins.data());
  Select(TypeBlock, 0);
  for (int i = 0; i < 15; ++i) selection::MoveSelection(1, 0, 0);
  EXPECT_TRUE(Note().starts_with("Your drive falls after ")) << Note();

  c.mnu_showdrive.UserClicks();
  for (int i = 0; i < 15; ++i) c.mnu_undo.UserClicks();
  selection::DeselectCurrent();
  DirectX::ResetCamera();
  EXPECT_EQ(Note(), "");
  ASSERT_EQ(world->screen.commands.size(), plain.commands.size());
  for (size_t i = 0; i < plain.commands.size(); ++i) {
    EXPECT_EQ(world->screen.states[world->screen.commands[i].states].depthTest,
              plain.states[plain.commands[i].states].depthTest);
  }
}

TEST_F(DrivesTest, ClicksBesidePiecesFollowTheRibbonAndPlatformsStandAsThen) {
  BuildRoad();
  Document.BlockCount = 0;
  AddRunningPlatform();
  c.cmd_pause.UserClicks();
  DriveToTheEnd();
  ASSERT_EQ(Last().ending, drive::Ending::Falls);
  c.cmd_pause.UserClicks();
  c.mnu_showdrive.UserClicks();
  c.VScroll1.UserScrolls(c.VScroll1.Maximum() - 60);
  Frames(1);
  // Where it falls there is no piece.
  const auto& path = Last().path;
  const auto off = std::ranges::find_if(path, [](const auto& at) { return at.place.z > 66; });
  const auto pixel = ribbon::PlaceOnScreen(off->place);
  ASSERT_TRUE(pixel.has_value());
  const auto x = static_cast<float>(pixel->x), y = static_cast<float>(pixel->y);
  c.viewport.UserPresses(1, 0, x + 60, y);
  EXPECT_EQ(c.VScroll1.Value(), c.VScroll1.Maximum() - 60) << "beside it";
  c.viewport.UserPresses(1, 0, x, y);
  EXPECT_EQ(c.VScroll1.Value(), c.VScroll1.Maximum() - std::lround(off->place.z));

  c.VScroll1.UserScrolls(c.VScroll1.Maximum() - 5);
  Document.PlatformsPaused = true;
  const float stands = Document.Platforms[0].Xpos();
  Frames(1);
  const auto nearest = std::ranges::min_element(
      path, {}, [](const auto& at) { return std::abs(at.place.z - DirectX::CameraTarget.z); });
  const float then = 0.05F * static_cast<float>(nearest - path.begin());
  const auto shown = [&](float at) {
    return std::ranges::any_of(world->screen.worlds, [at](const Matrix4& matrix) {
      return std::abs(matrix.m[3][0] - at) < 1e-3 && matrix.m[3][2] == 0 && matrix.m[0][0] == 2;
    });
  };
  EXPECT_TRUE(shown(then)) << then;
  EXPECT_EQ(Document.Platforms[0].Xpos(), stands) << "it is a picture only";
  Document.PlatformsPaused = false;
  Frames(1);
  EXPECT_FALSE(shown(then)) << "a moving one is where it is";
  const auto road = ribbon::PlaceOnScreen(nearest->place);
  c.viewport.UserPresses(1, 0, static_cast<float>(road->x), static_cast<float>(road->y));
  EXPECT_EQ(Words(Document.ObjectSelected, c.VScroll1.Value()), "1 995") << "pieces go first";
}

TEST_F(DrivesTest, BelongToTheirTrackAndItsFile) {
  BuildRoad();
  const std::string file = folder / "levels/road.lvl", keys = folder / "levels/road.keys";
  EXPECT_EQ(drives::DriveFileOf(file), keys);
  DriveToTheEnd();
  const auto win = Last().script;
  // Asked for a name while the track has none.
  boxes.answers.push_back(std::nullopt);
  c.mnu_savedrive.UserClicks();
  boxes.answers.push_back(file);
  c.mnu_saveAS.UserClicks();
  WriteBytes(keys, std::string(5000, '#'));
  c.mnu_savedrive.UserClicks();
  EXPECT_EQ(drive::ParseScript(ReadBytes(keys)), win) << "nothing of the longer file is left";

  c.mnu_New.UserClicks();
  EXPECT_FALSE(form.drives.memory.Present().last.has_value());
  c.mnu_undo.UserClicks();
  EXPECT_EQ(Last().script, win);
  c.mnu_New.UserClicks();
  boxes.answers.push_back(file);
  c.mnu_load.UserClicks();
  EXPECT_EQ(Last().script, win) << "found beside it";
  EXPECT_EQ(Last().ending, drive::Ending::Wins);

  WriteBytes(keys, "3 up\n4 fly\n");
  boxes.answers.push_back(file);
  c.mnu_load.UserClicks();
  EXPECT_TRUE(boxes.messages.empty()) << "nobody has asked";
  c.mnu_showdrive.UserClicks();
  EXPECT_TRUE(Note().starts_with("road.keys: line 2: ")) << Note();
  DriveToTheEnd();
  std::filesystem::remove(keys);
  std::filesystem::create_directory(keys);
  c.mnu_savedrive.UserClicks();
  EXPECT_EQ(boxes.messages, Texts{keys + ": it is a folder"});
}

TEST_F(DrivesTest, AnIdleMomentAfterACrashIsNoAttempt) {
  c.mnu_playmode.UserClicks();
  Frames(2);
  c.mnu_editmode.UserClicks();
  EXPECT_EQ(FrameCount(Last().script), 2) << "the first one counts";
  c.mnu_playmode.UserClicks();
  Hold(kUpKey);
  for (int i = 0; i < 300 && form.drives.memory.Changes() < 2; ++i) Frames(1);
  Hold(0);
  const drives::Attempt fall = Last();
  EXPECT_EQ(fall.ending, drive::Ending::Falls);
  Frames(5);
  c.mnu_editmode.UserClicks();
  EXPECT_EQ(Last().script, fall.script);
}

TEST_F(DrivesTest, AWinIsLookedForBesideTheLoopAndConfirmedBesideTheTrack) {
  BuildRoad();
  Document.PlatformsPaused = true;
  c.VScroll1.UserScrolls(900);
  Player.SetBouncePad();
  const auto camera = DirectX::CameraPosition;
  const std::string bytes = Bytes();
  const auto answer = [this] {
    std::string note = Note();
    for (int i = 0; i < 2000 && note.starts_with("Searching"); ++i) {
      std::this_thread::sleep_for(std::chrono::milliseconds(2));
      note = Note();
    }
    return note;
  };
  c.mnu_finddrive.UserClicks();
  EXPECT_TRUE(Note().starts_with("Searching"));
  const std::string won = answer();
  EXPECT_TRUE(won.starts_with("Can be won: ")) << won;
  EXPECT_TRUE(Bytes() == bytes);
  EXPECT_EQ(Words(DirectX::CameraPosition == camera, Document.EditorMode, Document.PlatformsPaused,
                  Particles.ParticleCount(), ticks::InUse() == &clock),
            "1 1 1 0 1");

  Select(TypeBlock, 1);
  selection::DeleteSelection();
  EXPECT_EQ(answer(), "The track has no WIN block");
  c.mnu_undo.UserClicks();
  EXPECT_EQ(Note(), won) << "known from before";
  Select(TypeBlock, 1);
  for (int i = 0; i < 40; ++i) selection::MoveSelection(1, 0, 0);
  EXPECT_EQ(answer(), "No WIN block can be reached");
  for (int i = 0; i < 40; ++i) c.mnu_undo.UserClicks();
  EXPECT_EQ(Note(), won);

  // With no drive of the user's own shown, it is the one to watch, save and drive on from.
  c.mnu_watchdrive.UserClicks();
  bool dead = false;
  for (int i = 0; i < 1000 && !dead; ++i) {
    Frames(1);
    dead = Player.DeathStatus();
  }
  EXPECT_TRUE(dead && Player.PosY() > 0) << "it wins";
  c.mnu_editmode.UserClicks();
  EXPECT_EQ(form.drives.memory.Changes(), 0U);
  EXPECT_EQ(Note(), won);
  c.mnu_finddrive.UserClicks();
  EXPECT_EQ(Note(), "");
  EXPECT_TRUE(Bytes() == bytes);
}

}  // namespace
