// Key preview and shortcuts.
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

#include "tests/window_backend/fixture.h"

namespace {

using fixture::PressKey;
using fixture::ReleaseKey;
using fixture::TypeKey;
using Seen = std::vector<std::pair<int, int>>;

class Keys : public fixture::ShownWindow {
 protected:
  Keys() {
    window_.onKeyDown = [this](int16_t& code, int shift) {
      pressed_.emplace_back(code, shift);
      if (eat_) code = 111;
    };
    window_.onKeyUp = [this](int16_t code, int shift) { released_.emplace_back(code, shift); };
    window_.open.onClick = [this] { ++commands_; };
    window_.low.onClick = [this] { ++commands_; };
    window_.button.onClick = [this] { ++clicks_; };
  }

  Seen pressed_, released_;
  bool eat_ = true;
  int commands_ = 0, clicks_ = 0;
};

TEST_F(Keys, WindowSeesEveryKeyOnceAndBeforeTheWidget) {
  for (const char* name : {"box", "list", "button", "drop", "check", "picture"}) {
    Find<QWidget>(name).setFocus();
    pressed_.clear();
    released_.clear();
    TypeKey(*top_, Qt::Key_Left);
    EXPECT_EQ(pressed_, Seen({{37, 0}})) << name;
    EXPECT_EQ(released_, Seen({{37, 0}})) << name;
  }
}

TEST_F(Keys, ChangedCodeKeepsTheKeyFromTheWidget) {
  Find<QPushButton>("button").setFocus();
  TypeKey(*top_, Qt::Key_Space);
  EXPECT_EQ(clicks_, 0);
  TypeKey(*top_, Qt::Key_Tab);
  EXPECT_TRUE(Find<QPushButton>("button").hasFocus());
  eat_ = false;
  TypeKey(*top_, Qt::Key_Space);
  EXPECT_EQ(clicks_, 1);
}

TEST_F(Keys, KeypadWithAndWithoutNumLock) {
  TypeKey(*top_, Qt::Key_7, Qt::KeypadModifier);
  TypeKey(*top_, Qt::Key_Home, Qt::KeypadModifier);
  EXPECT_EQ(pressed_, Seen({{103, 0}, {103, 0}}));
}

TEST_F(Keys, HeldKeyRepeatsPressesButNotReleases) {
  PressKey(*top_, Qt::Key_A);
  ReleaseKey(*top_, Qt::Key_A, Qt::NoModifier, true);
  PressKey(*top_, Qt::Key_A, Qt::NoModifier, true);
  EXPECT_EQ(pressed_.size(), 2U);
  EXPECT_TRUE(released_.empty());
  ReleaseKey(*top_, Qt::Key_A);
  EXPECT_EQ(released_, Seen({{65, 0}}));
}

TEST_F(Keys, ShortcutWinsOverTheTextBoxExactlyOnce) {
  auto& box = Find<QLineEdit>("box");
  box.setFocus();
  box.selectAll();
  TypeKey(*top_, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(commands_, 1);
  EXPECT_TRUE(pressed_.empty());
  EXPECT_EQ(released_, Seen({{67, 2}}));
}

TEST_F(Keys, HeldShortcutRunsOncePerPress) {
  PressKey(*top_, Qt::Key_F12);
  PressKey(*top_, Qt::Key_F12, Qt::NoModifier, true);
  // Some window systems do not mark the repetition.
  PressKey(*top_, Qt::Key_F12);
  EXPECT_EQ(commands_, 1);
  ReleaseKey(*top_, Qt::Key_F12);
  TypeKey(*top_, Qt::Key_F12);
  EXPECT_EQ(commands_, 2);
  EXPECT_TRUE(pressed_.empty());
}

TEST_F(Keys, DisabledItemLeavesItsKeyToTheWindow) {
  window_.low.Enabled(false);
  TypeKey(*top_, Qt::Key_F12);
  EXPECT_EQ(commands_, 0);
  EXPECT_EQ(pressed_, Seen({{123, 0}}));
}

TEST_F(Keys, AltOpensTheMenusFromTheKeyboard) {
  auto& bar = *top_->findChild<QMenuBar*>();
  PressKey(*top_, Qt::Key_Alt);
  ReleaseKey(*top_, Qt::Key_Alt, Qt::AltModifier);
  EXPECT_TRUE(bar.hasFocus());
  pressed_.clear();
  TypeKey(*top_, Qt::Key_Down);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  TypeKey(*top_, Qt::Key_Return);
  EXPECT_EQ(commands_, 1);
  EXPECT_TRUE(pressed_.empty());
}

TEST_F(Keys, HandlerFailureIsShownAndTheLoopGoesOn) {
  struct Noted : dialogs::Backend {
    std::string text;
    void ShowMessage(const std::string& shown, const std::string&) override { text = shown; }
    std::optional<std::string> OpenFile(const dialogs::FileDialog&) override { return {}; }
    std::optional<std::string> SaveFile(const dialogs::FileDialog&) override { return {}; }
  } noted;
  dialogs::Use(&noted);
  window_.onKeyDown = [](int16_t&, int) { throw std::out_of_range("no such block"); };
  TypeKey(*top_, Qt::Key_B);
  dialogs::Use(&fixture::Toolkit().Dialogs());
  EXPECT_EQ(noted.text, "no such block");
}

}  // namespace
