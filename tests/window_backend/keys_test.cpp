// Key preview, shortcuts, key codes and the keyboard that play mode polls.
#include <QLineEdit>

#include "platform/error.h"
#include "platform/qt/polled_keyboard.h"
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

TEST_F(Keys, WindowSeesEveryKeyOnceAndBeforeTheWidget) {
  for (const char* name : {"txt_X", "File1", "cmd_ramp", "Combo1", "Check_Loop", "viewport"}) {
    Find<QWidget>(name).setFocus();
    pressed_.clear();
    released_.clear();
    Type(Qt::Key_Left);
    EXPECT_EQ(pressed_, Seen({{37, 0}})) << name;
    EXPECT_EQ(released_, pressed_) << name;
  }
}

TEST_F(Keys, ChangedCodeKeepsTheKeyFromTheWidget) {
  Find<QWidget>("cmd_ramp").setFocus();
  Type(Qt::Key_Space);
  EXPECT_EQ(clicks_, 0);
  Type(Qt::Key_Tab);
  EXPECT_TRUE(Find<QWidget>("cmd_ramp").hasFocus());
  eat_ = false;
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
  EXPECT_EQ(pressed_.size(), 2U);
  EXPECT_TRUE(released_.empty());
  EXPECT_TRUE(held(scancode::kLeft));
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

TEST_F(Keys, ControlsGetNothingPressedWithAltNorTheWindowWithSuper) {
  Find<QWidget>("cmd_ramp").setFocus();
  Type(Qt::Key_Space, Qt::AltModifier);
  EXPECT_EQ(pressed_, Seen({{32, 4}}));
  Type(Qt::Key_Space, Qt::MetaModifier);
  EXPECT_EQ(pressed_.size(), 1U);
  EXPECT_EQ(clicks_, 0);
}

TEST(KeyCodes, ComeFromKeysAndPlaces) {
  using Codes = std::vector<int>;
  const auto codesOf = [](const Codes& keys, Qt::KeyboardModifiers modifiers) {
    Codes codes;
    for (const int key : keys) codes.push_back(qt::VirtualKeyCode(key, modifiers));
    return codes;
  };
  EXPECT_EQ(codesOf({Qt::Key_A,       Qt::Key_Z,          Qt::Key_7,      Qt::Key_F1,
                     Qt::Key_F12,     Qt::Key_Left,       Qt::Key_Up,     Qt::Key_Right,
                     Qt::Key_Down,    Qt::Key_Delete,     Qt::Key_Space,  Qt::Key_Return,
                     Qt::Key_Enter,   Qt::Key_Comma,      Qt::Key_Period, Qt::Key_Shift,
                     Qt::Key_Control, Qt::Key_Alt,        Qt::Key_Tab,    Qt::Key_Backtab,
                     Qt::Key_Escape,  Qt::Key_Home,       Qt::Key_End,    Qt::Key_PageUp,
                     Qt::Key_Insert,  Qt::Key_LaunchMail, 0x0416,         Qt::Key_PageDown},
                    {}),
            (Codes{65,  90, 55, 112, 123, 37, 38, 39, 40, 46, 32, 13, 13, 188,
                   190, 16, 17, 18,  9,   9,  27, 36, 35, 33, 45, 0,  0,  34}));
  EXPECT_EQ(codesOf({Qt::Key_Insert, Qt::Key_End, Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Left,
                     Qt::Key_Clear, Qt::Key_Right, Qt::Key_Home, Qt::Key_Up, Qt::Key_PageUp,
                     Qt::Key_0, Qt::Key_9, Qt::Key_Slash, Qt::Key_Enter},
                    Qt::KeypadModifier),
            (Codes{96, 97, 98, 99, 100, 101, 102, 103, 104, 105, 96, 105, 111, 13}));
  const std::pair<int, int> places[] = {{30, 'A'}, {44, 'Z'}, {25, 'P'}, {26, 0}, {51, 188}};
  for (const auto& [place, code] : places) EXPECT_EQ(qt::VirtualKeyCodeAt(place), code) << place;
  const std::pair<int, int> scanCodes[] = {
      {97, scancode::kRightCtrl}, {105, scancode::kLeft}, {183, 0}};
  for (const auto& [input, code] : scanCodes) EXPECT_EQ(qt::ScanCodeOfInput(input), code) << input;
}

TEST(KeyCodes, MaskCountsTheModifiersOwnKey) {
  EXPECT_EQ(qt::ShiftMask({QEvent::KeyPress, Qt::Key_Control, Qt::NoModifier}), 2);
  EXPECT_EQ(qt::ShiftMask({QEvent::KeyRelease, Qt::Key_Control, Qt::ControlModifier}), 0);
  const auto all = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;
  EXPECT_EQ(qt::ShiftMask({QEvent::KeyPress, Qt::Key_A, all}), 7);
}

struct Fingers : qt::PolledKeyboard {
  KeyboardState held{};
  KeyboardState Read() override { return held; }
};

TEST(PolledKeyboard, ChangesBecomeEventsUpToTheBuffersSize) {
  Fingers keyboard;
  KeyboardState state;
  EXPECT_THROW(keyboard.GetDeviceState(state), PlatformError) << "not acquired";
  keyboard.SetBufferSize(10);
  keyboard.Acquire();
  keyboard.held[scancode::kSpace] = kKeyHeld;
  keyboard.GetDeviceState(state);
  EXPECT_EQ(state[scancode::kSpace], 128);
  keyboard.held[scancode::kSpace] = 0;
  std::array<KeyboardEvent, 11> events;
  ASSERT_EQ(keyboard.GetDeviceData(events), 2);
  EXPECT_EQ(events[0].scanCode, scancode::kSpace);
  EXPECT_TRUE(events[0].pressed && !events[1].pressed);
  for (size_t code = 1; code <= 30; ++code) keyboard.held[code] = kKeyHeld;
  EXPECT_EQ(keyboard.GetDeviceData(events), 10);
  EXPECT_EQ(keyboard.GetDeviceData(events), 0);
}

}  // namespace
