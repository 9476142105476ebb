// Key preview, shortcuts, key codes and the keyboard that play mode polls.
#include <QKeySequence>
#include <QLineEdit>

#include "platform/qt/scan_codes.h"
#include "platform/qt/virtual_keys.h"
#include "platform/qt/window_keyboard.h"
#include "tests/window_backend/fixture.h"

namespace {

using Seen = std::vector<std::pair<int, int>>;

class Keys : public fixture::ShownWindow {
 protected:
  Keys() {
    window_.onKeyDown = [this](int16_t& code, int shift) {
      pressed_.emplace_back(code, shift);
      if (eat_) code = 111;
    };
    window_.onKeyUp = [this](int16_t code, int shift) { released_.emplace_back(code, shift); };
    c.mnu_copy.onClick = c.mnu_low.onClick = count_;
    c.cmd_ramp.onClick = [this] { ++clicks_; };
  }

  Seen pressed_, released_;
  bool eat_ = true;
  int clicks_ = 0;
};

TEST_F(Keys, WindowSeesEveryKeyOnceAndBeforeTheWidgetWhichGetsOnlyUnchangedCodes) {
  for (const char* name : {"txt_X", "File1", "Combo1", "Check_Loop", "viewport", "cmd_ramp"}) {
    Find<QWidget>(name).setFocus();
    pressed_.clear();
    released_.clear();
    Type(Qt::Key_Left);
    EXPECT_EQ(pressed_, Seen({{37, 0}})) << name;
    EXPECT_EQ(released_, pressed_) << name;
  }
  Type(Qt::Key_Space);
  Type(Qt::Key_Space, Qt::AltModifier);
  Type(Qt::Key_Tab);
  EXPECT_TRUE(clicks_ == 0 && Find<QWidget>("cmd_ramp").hasFocus());
  eat_ = false;
  pressed_.clear();
  Type(Qt::Key_Space, Qt::MetaModifier);
  EXPECT_TRUE(pressed_.empty() && clicks_ == 0) << "Super's commands are the desktop's";
  Type(Qt::Key_Space);
  EXPECT_EQ(clicks_, 1);
}

TEST_F(Keys, HeldKeyRepeatsPressesAndStaysHeld) {
  qt::WindowKeyboard keyboard;
  keyboard.Acquire();
  const auto held = [&keyboard](uint8_t code) {
    KeyboardState state;
    keyboard.GetDeviceState(state);
    return state[code] == kKeyHeld;
  };
  Press(Qt::Key_Left);
  Release(Qt::Key_Left, true);
  Press(Qt::Key_Left, true);
  EXPECT_EQ(pressed_, Seen(2, {37, 0}));
  EXPECT_TRUE(released_.empty() && held(scancode::kLeft));
  Release(Qt::Key_Left);
  EXPECT_EQ(released_, Seen({{37, 0}}));
  EXPECT_FALSE(held(scancode::kLeft));
  Press(Qt::Key_Space);
  EXPECT_TRUE(held(scancode::kSpace));
  emit qGuiApp->focusWindowChanged(nullptr);
  EXPECT_FALSE(held(scancode::kSpace));
}

TEST_F(Keys, ShortcutRunsOncePerPressEvenInATextBox) {
  Find<QLineEdit>("txt_X").setFocus();
  Find<QLineEdit>("txt_X").selectAll();
  Type(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(events_, 1);
  EXPECT_EQ(released_, Seen({{67, 2}}));
  Press(Qt::Key_F12);
  Press(Qt::Key_F12, true);
  // Some window systems do not mark the repetition.
  Press(Qt::Key_F12);
  EXPECT_EQ(events_, 2);
  Release(Qt::Key_F12);
  Type(Qt::Key_F12);
  EXPECT_EQ(events_, 3);
  EXPECT_TRUE(pressed_.empty());
  c.mnu_low.Enabled(false);
  Type(Qt::Key_F12);
  EXPECT_EQ(events_, 3);
  EXPECT_EQ(pressed_, Seen({{123, 0}})) << "a disabled item leaves its key to the window";
}

std::string CodesOf(const QString& keys, Qt::KeyboardModifiers modifiers) {
  std::string codes;
  for (const QString& key : keys.split(' '))
    codes += std::to_string(qt::VirtualKeyCode(QKeySequence(key)[0].key(), modifiers)) + " ";
  return codes;
}

TEST(KeyCodes, ComeFromKeysAndPlaces) {
  EXPECT_EQ(CodesOf("A Z 7 F1 F12 Left Up Right Down Del Space Return Enter , .", {}),
            "65 90 55 112 123 37 38 39 40 46 32 13 13 188 190 ");
  EXPECT_EQ(CodesOf("Ins End Down Clear PgUp 0 9", Qt::KeypadModifier), "96 97 98 101 105 96 105 ");
  EXPECT_EQ(qt::VirtualKeyCodeAt(44), 'Z');
  EXPECT_EQ(qt::ScanCodeOfInput(105), scancode::kLeft);
}

}  // namespace
