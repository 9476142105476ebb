// Undo and redo: exact over random sessions, one step per command, nothing past it.
#include "editor/history/history.h"

#include <cstdlib>
#include <map>
#include <random>

#include "editor/selection.h"
#include "editor/selection_mark.h"
#include "tests/editor/editor_fixture.h"

namespace {

/// What the next frame would draw of the pieces, all of them unmarked: selecting is no step and
/// flattens a block's colours, a read brings them back. The spin of stars aside.
std::vector<std::vector<Vertex>> Pictures() {
  std::vector<std::vector<Vertex>> pictures;
  VisitKinds([&pictures](auto kind) {
    for (const auto& shown : kind.Pieces()) {
      auto piece = shown;
      std::vector<Vertex> vertices;
      if constexpr (!std::is_same_v<typename decltype(kind)::Piece, clsStar>) {
        selection::Unmark(piece);
        const auto drawn = piece.GeometryVertices();
        vertices.assign(drawn.begin(), drawn.end());
      }
      vertices.push_back({static_cast<float>(piece.Xpos()), static_cast<float>(piece.Ypos()),
                          static_cast<float>(piece.Zpos())});
      pictures.push_back(std::move(vertices));
    }
  });
  return pictures;
}

class HistoryTest : public EditorTest {
 protected:
  struct State {
    std::string bytes, backdrop;
    std::vector<std::vector<Vertex>> pictures;
    bool operator==(const State&) const = default;
  };
  /// A track without blocks has no bytes of its own.
  State Now() {
    State state{"", Document.Background.Name(), Pictures()};
    EXPECT_TRUE(FileIO::LevelBytes(state.bytes).Ok() || Document.BlockCount < 0);
    return state;
  }
  void Press(int16_t key) {
    c.frmMain.UserPressesKey(key, 0);
    c.frmMain.UserReleasesKey(key, 0);
  }
  void Deselect() {
    selection::DeselectCurrent();
    Document.ObjectSelected = false;
  }
  /// Every command that the window offers in edit mode, by a number.
  void RandomCommand(std::mt19937& random);

  std::string opened_;
};

void HistoryTest::RandomCommand(std::mt19937& random) {
  const auto upTo = [&random](size_t count) { return static_cast<size_t>(random() % count); };
  switch (upTo(15)) {
    case 0:
      return c.mnu_insert.items[upTo(c.mnu_insert.items.size())]->UserClicks();
    case 1:
      return c.mnu_edit.items[upTo(c.mnu_edit.items.size())]->UserClicks();
    case 2: {
      constexpr int16_t keys[] = {46, 32, 37, 38, 39, 40, 'A', 'Z', 97, 99, 100, 102, 103, 104, 98};
      return Press(keys[upTo(std::size(keys))]);
    }
    case 3: {
      UpDown* const numbers[] = {&c.UpDown1, &c.UpDown2,      &c.UpDown3,        &c.UpDownX,
                                 &c.UpDownY, &c.UpDown_speed, &c.UpDown_distance};
      UpDown& number = *numbers[upTo(std::size(numbers))];
      for (size_t held = upTo(4) + 1; held > 0; --held) number.UserClicks(random() % 2 == 0);
      return number.UserReleases();
    }
    case 4:
      return (random() % 2 == 0 ? c.Combo1 : c.Combo2).UserSelects(static_cast<int>(upTo(6)));
    case 5:
      return c.File1.UserDoubleClicks(static_cast<int>(upTo(c.File1.Entries().size())));
    case 6:
      return c.cmbo_Direction.UserSelects(static_cast<int>(upTo(2)));
    case 7:
      return random() % 2 == 0 ? c.Check_Loop.UserClicks() : c.cmd_ramp.UserClicks();
    case 8:
      return c.cmd_pause.UserClicks();
    case 9:
      return (random() % 2 == 0 ? c.mnu_low : c.mnu_normal).UserClicks();
    case 10:
      return c.mnu_background.items[upTo(3)]->UserClicks();
    case 11:  // select any piece as a click does
      Deselect();
      VisitKind(static_cast<int32_t>(upTo(4)), [&](auto kind) {
        if (kind.Count() < 0) return;
        Document.ObjectSelected = true;
        Document.SelectedType = kind.type;
        Document.SelectedIndex = static_cast<int32_t>(upTo(kind.Pieces().size()));
      });
      return selection::ShowProperties();
    case 12:
      if (upTo(4) > 0) return c.VScroll1.UserScrolls(static_cast<int>(900 + upTo(100)));
      if (random() % 2 == 0) return c.mnu_New.UserClicks();
      boxes.answers = {opened_};
      return c.mnu_load.UserClicks();
    case 13: {  // pick, tell, paint a face or a piece, drag
      const auto anywhere = [&] { return static_cast<float>(120 + upTo(300)); };
      c.viewport.UserPresses(random() % 2 == 0 ? 1 : 2, static_cast<int>(upTo(2)), anywhere(),
                             anywhere());
      for (size_t moves = upTo(4); moves > 0; --moves) {
        c.viewport.UserDrags(static_cast<int>(upTo(2)), anywhere(), anywhere());
      }
      if (upTo(3) == 0) c.frmMain.UserPressesKey(27, 0);
      return c.viewport.UserReleases();
    }
    default:
      c.mnu_playmode.UserClicks();
      for (int frame = 0; frame < 3; ++frame) PassAfter(41);
      c.mnu_editmode.UserClicks();
  }
}

TEST_F(HistoryTest, UndoingAndRedoingEverythingIsExact) {
  const char* wanted = std::getenv("VORBILAX_HISTORY_SEEDS");
  const unsigned seeds = wanted != nullptr ? static_cast<unsigned>(std::atoi(wanted)) : 200;
  c.mnu_MovingPlatform.UserClicks();
  c.mnu_Ramp.UserClicks();
  opened_ = folder / "levels/other.lvl";
  ASSERT_TRUE(FileIO::WriteLevel(opened_).Ok());
  for (unsigned seed = 1; seed <= seeds; ++seed) {
    std::mt19937 random(seed);
    c.mnu_New.UserClicks();
    Deselect();
    history::steps.Reset();
    const State initial = Now();
    for (size_t commands = random() % 200 + 1; commands > 0; --commands) {
      const std::string before = Now().bytes;
      const size_t steps = history::steps.StepCount();
      const uint64_t state = history::steps.State();
      RandomCommand(random);
      const bool changed = Now().bytes != before;
      ASSERT_TRUE(!changed || history::steps.State() != state) << "past the history, seed " << seed;
      ASSERT_TRUE(history::steps.StepCount() <= steps + 1);
    }
    Deselect();
    const State last = Now();
    size_t done = 0;
    for (; c.mnu_undo.Enabled(); ++done) c.mnu_undo.UserClicks();
    Deselect();
    ASSERT_EQ(Now().bytes, initial.bytes) << "seed " << seed;
    ASSERT_EQ(Now().backdrop, initial.backdrop) << "seed " << seed;
    ASSERT_EQ(Now().pictures, initial.pictures) << "seed " << seed;
    for (size_t i = 0; i < done; ++i) c.mnu_redo.UserClicks();
    ASSERT_EQ(Now().bytes, last.bytes) << "seed " << seed;
    boxes.messages.clear();
  }
}

TEST_F(HistoryTest, StepsAreNamedAndWhatIsHeldIsOne) {
  const auto menu = [&] {
    return Words(c.mnu_undo.Caption(), c.mnu_undo.Enabled(), c.mnu_redo.Caption(),
                 c.mnu_redo.Enabled());
  };
  EXPECT_EQ(menu(), "Undo 0 Redo 0");
  EXPECT_FALSE(history::steps.DiffersFromSaved());
  for (int i = 0; i < 5; ++i) c.frmMain.UserPressesKey(39, 0);
  c.frmMain.UserPressesKey(38, 0);
  c.frmMain.UserReleasesKey(38, 0);
  Press(38);
  EXPECT_EQ(history::steps.StepCount(), 3U) << "a held key, and two presses of another";
  for (int i = 0; i < 3; ++i) c.UpDown2.UserClicks(true);
  c.UpDown2.UserReleases();
  c.UpDown2.UserClicks(false);
  EXPECT_EQ(history::steps.StepCount(), 5U);
  c.UpDown2.UserClicks(true);  // still held, and back where it was
  c.UpDown2.UserReleases();
  EXPECT_EQ(menu(), "Undo Resize 1 Redo 0");
  EXPECT_EQ(history::steps.StepCount(), 4U) << "what comes back to where it began is none";
  for (int i = 0; i < 3; ++i) c.mnu_undo.UserClicks();
  EXPECT_EQ(SelectedPlace() + " " + menu(), "5 0 0 Undo Move 1 Redo Move 1");
  c.mnu_playmode.UserClicks();
  EXPECT_EQ(menu(), "Undo 0 Redo 0");
  c.mnu_undo.UserClicks();
  c.mnu_editmode.UserClicks();
  c.mnu_undo.UserClicks();
  EXPECT_EQ(SelectedPlace() + " " + menu(), "0 0 0 Undo 0 Redo Move 1");
  EXPECT_FALSE(history::steps.DiffersFromSaved()) << "back where it was";
}

TEST_F(HistoryTest, RefusalsAndWhatChangesNothingAreNoSteps) {
  c.mnu_BouncePad.UserClicks();
  c.mnu_MovingPlatform.UserClicks();
  c.cmd_pause.UserClicks();
  history::steps.Reset();
  Press(39);                        // a running platform
  c.UpDown_speed.UserClicks(true);  // the same
  Select(TypeBlock, 1);
  Press(103);                   // a pad's size
  c.File1.UserDoubleClicks(2);  // its texture
  Select(TypeBlock, 0);
  c.File1.UserDoubleClicks(0);  // the texture that it has
  c.Combo1.UserSelects(0);      // the stretch that it has
  Press('Z');                   // below the ground
  c.mnu_normal.UserClicks();
  c.mnu_background1.UserClicks();
  c.mnu_copy.UserClicks();
  c.cmd_pause.UserClicks();
  EXPECT_EQ(history::steps.StepCount(), 0U);
  c.mnu_New.UserClicks();
  c.mnu_New.UserClicks();
  EXPECT_EQ(history::steps.StepCount(), 1U) << "a new track that is new already";
}

TEST_F(HistoryTest, UndoShowsWhatItChanged) {
  c.mnu_ice.UserClicks();
  Press(46);
  c.VScroll1.Value(400);
  c.mnu_undo.UserClicks();
  EXPECT_EQ(Words(Document.SelectedIndex, DirectX::CameraTarget.z, Marked()), "1 0 0 1;");
  c.VScroll1.Value(995);
  c.mnu_redo.UserClicks();
  EXPECT_EQ(Words(Document.ObjectSelected, DirectX::CameraTarget.z), "0 5") << "it was in sight";
}

TEST_F(HistoryTest, AFullTrackIsNoException) {
  Document.Blocks.resize(32767, Document.Blocks[0]);
  Document.BlockCount = 32766;
  const std::string track = Bytes();
  c.mnu_block.UserClicks();
  const std::string full = Bytes();
  c.mnu_block.UserClicks();
  c.mnu_duplicate.UserClicks();
  EXPECT_EQ(boxes.messages, Texts(2, selection::kTrackFullText));
  Press(46);
  c.mnu_undo.UserClicks();
  EXPECT_EQ(Bytes() == full, true);
  c.mnu_undo.UserClicks();
  EXPECT_EQ(Bytes() == track, true);
  EXPECT_FALSE(c.mnu_undo.Enabled());
}

TEST_F(HistoryTest, OldStepsGoBeforeMemoryDoes) {
  for (int i = 0; i < 40; ++i) {
    Document.Blocks.resize(kGreatestIndex);
    Document.BlockCount = kGreatestIndex - 1;
    c.mnu_New.UserClicks();
    ASSERT_LE(history::steps.Bytes(), history::History::kMostBytes);
  }
  EXPECT_GT(history::steps.StepCount(), 8U);
  EXPECT_LT(history::steps.StepCount(), 40U);
}

TEST_F(HistoryTest, PlayThatIsLeftWithoutARestoreIsAStep) {
  const std::string track = Bytes();
  c.mnu_playmode.UserClicks();
  Document.Blocks[0].Ypos(30);
  c.mnu_load.UserClicks();  // cancelled: the track stays as play left it
  EXPECT_NE(Bytes(), track);
  c.mnu_undo.UserClicks();
  EXPECT_EQ(Bytes(), track);
}

}  // namespace
