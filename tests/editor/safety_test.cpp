// Safety copies: when they are made, of what, where, and how many stay.
#include <cstdlib>

#include "editor/history/history.h"
#include "editor/safety/copy_files.h"
#include "tests/editor/editor_fixture.h"

namespace {

class SafetyTest : public EditorTest {
 protected:
  SafetyTest() { setenv("XDG_STATE_HOME", (folder / "state").c_str(), 1); }
  ~SafetyTest() override { unsetenv("XDG_STATE_HOME"); }
  std::string Backups() const { return folder / "levels/backup"; }
  /// Names of the copies, the newest last.
  std::vector<std::string> Copies() const {
    auto names = paths::FileNames(Backups());
    std::ranges::sort(names, {}, [&](const std::string& name) {
      return std::filesystem::last_write_time(Backups() + "/" + name);
    });
    return names;
  }
  std::string Newest() const { return ReadBytes(Backups() + "/" + Copies().back()); }
  void Change() { selection::MoveSelection(1, 0, 0); }
  void Wait(double seconds) {
    for (int frame = 0; frame < 4; ++frame) PassAfter(seconds * 250);
  }
  void Open(const std::string& path) {
    boxes.answers = {path};
    c.mnu_load.UserClicks();
  }
};

TEST_F(SafetyTest, EveryMinuteWhileTheTrackDiffers) {
  Wait(200);
  EXPECT_TRUE(Copies().empty()) << "nothing was done";
  Change();
  Wait(1);
  ASSERT_EQ(Copies().size(), 1U);
  EXPECT_TRUE(Copies()[0].starts_with("New Track 20") && Copies()[0].ends_with(".lvl"));
  EXPECT_EQ(Newest(), Bytes());
  Change();
  Wait(55);
  EXPECT_EQ(Copies().size(), 1U);
  Wait(8);
  EXPECT_EQ(Copies().size(), 2U);
  Wait(300);
  EXPECT_EQ(Copies().size(), 2U) << "it is copied";
  Change();
  boxes.answers = {folder / "levels/mine.lvl"};
  c.mnu_save.UserClicks();
  Wait(300);
  EXPECT_EQ(Copies().size(), 2U) << "it is saved";
}

TEST_F(SafetyTest, BeforeWhatCouldCostWork) {
  const std::vector<std::function<void()>> dangers = {
      [&] { c.mnu_New.UserClicks(); }, [&] { c.mnu_load.UserClicks(); },
      [&] { c.mnu_playmode.UserClicks(), c.mnu_editmode.UserClicks(); }, [&] { form.Terminate(); }};
  for (size_t i = 0; i < dangers.size(); ++i) {
    Select(TypeBlock, 0);
    Change();
    const std::string track = Bytes();
    dangers[i]();
    ASSERT_EQ(Copies().size(), i + 1);
    bool found = false;
    for (const std::string& name : Copies()) found |= ReadBytes(Backups() + "/" + name) == track;
    EXPECT_TRUE(found) << i;
  }
  EXPECT_FALSE(form.IsRunning());
}

TEST_F(SafetyTest, WhatASaveWouldWriteOverUnseen) {
  const std::string mine = folder / "levels/mine.lvl";
  boxes.answers = {mine};
  c.mnu_save.UserClicks();
  Change();
  c.mnu_save.UserClicks();
  EXPECT_TRUE(Copies().empty()) << "its own";
  WriteBytes(mine, "somebody else's");
  c.mnu_save.UserClicks();
  EXPECT_EQ(Newest(), "somebody else's");
  const std::string saved = ReadBytes(mine);
  c.mnu_New.UserClicks();
  c.mnu_save.UserClicks();
  EXPECT_EQ(Newest(), saved) << "another track takes its place";
  EXPECT_TRUE(Copies().back().starts_with("mine "));

  Open(Backups() + "/" + Copies().back());
  EXPECT_EQ(Bytes(), saved);
  EXPECT_EQ(Document.CurrentFileName, "") << "the next save asks";
  Change();
  c.mnu_New.UserClicks();
  for (const std::string& name : Copies()) EXPECT_EQ(name.find(" 20"), name.rfind(" 20")) << name;
}

TEST_F(SafetyTest, TheNewestTwentyStayAndFailuresAreToldOnce) {
  for (int i = 0; i < 25; ++i) EXPECT_EQ(safety::WriteCopy("/x/a.lvl", std::to_string(i)), "");
  EXPECT_EQ(safety::WriteCopy("/x/a b.lvl", "other"), "");
  EXPECT_EQ(Copies().size(), 21U);
  EXPECT_FALSE(std::ranges::any_of(
      Copies(), [&](const std::string& name) { return ReadBytes(Backups() + "/" + name) == "4"; }));
  // A folder that takes no files.
  std::filesystem::remove_all(Backups());
  WriteBytes(Backups(), "");
  EXPECT_EQ(safety::WriteCopy("", "track"), "");
  const std::string state = folder / "state/vorbilax-level-editor/backup";
  EXPECT_EQ(paths::FileNames(state).size(), 1U);
  EXPECT_TRUE(safety::IsCopy(state + "/x.lvl") && !safety::IsCopy(folder / "levels/x.lvl"));
  std::filesystem::remove_all(folder / "state");
  WriteBytes(folder / "state", "");
  for (int i = 0; i < 3; ++i) {
    Change();
    Wait(70);
  }
  ASSERT_EQ(boxes.messages.size(), 1U);
  EXPECT_TRUE(boxes.messages[0].starts_with("No safety copy could be written: "));
  std::filesystem::remove(folder / "state");
  Wait(70);
  EXPECT_EQ(paths::FileNames(state).size(), 1U) << "tried again";
}

}  // namespace
