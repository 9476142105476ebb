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
    window_.open.onClick = window_.low.onClick = [this] { ++commands_; };
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
    Type(Qt::Key_Left);
    EXPECT_EQ(pressed_, Seen({{37, 0}})) << name;
    EXPECT_EQ(released_, pressed_) << name;
  }
}

TEST_F(Keys, ChangedCodeKeepsTheKeyFromTheWidget) {
  Find<QWidget>("button").setFocus();
  Type(Qt::Key_Space);
  EXPECT_EQ(clicks_, 0);
  Type(Qt::Key_Tab);
  EXPECT_TRUE(Find<QWidget>("button").hasFocus());
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
  Find<QLineEdit>("box").setFocus();
  Find<QLineEdit>("box").selectAll();
  Type(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(commands_, 1);
  EXPECT_EQ(released_, Seen({{67, 2}}));
  Press(Qt::Key_F12);
  Press(Qt::Key_F12, true);
  // Some window systems do not mark the repetition.
  Press(Qt::Key_F12);
  EXPECT_EQ(commands_, 2);
  Release(Qt::Key_F12);
  Type(Qt::Key_F12);
  EXPECT_EQ(commands_, 3);
  EXPECT_TRUE(pressed_.empty());
  window_.low.Enabled(false);
  Type(Qt::Key_F12);
  EXPECT_EQ(commands_, 3);
  EXPECT_EQ(pressed_, Seen({{123, 0}})) << "a disabled item leaves its key to the window";
}

TEST_F(Keys, ControlsGetNothingPressedWithAltNorTheWindowWithSuper) {
  Find<QWidget>("button").setFocus();
  Type(Qt::Key_Space, Qt::AltModifier);
  EXPECT_EQ(pressed_, Seen({{32, 4}}));
  Type(Qt::Key_Space, Qt::MetaModifier);
  EXPECT_EQ(pressed_.size(), 1U);
  EXPECT_EQ(clicks_, 0);
}

TEST(KeyCodes, ComeFromKeysAndPlaces) {
  const std::pair<int, int> codes[] = {
      {Qt::Key_A, 65},       {Qt::Key_Z, 90},         {Qt::Key_7, 55},
      {Qt::Key_F1, 112},     {Qt::Key_F12, 123},      {Qt::Key_Left, 37},
      {Qt::Key_Up, 38},      {Qt::Key_Right, 39},     {Qt::Key_Down, 40},
      {Qt::Key_Delete, 46},  {Qt::Key_Space, 32},     {Qt::Key_Return, 13},
      {Qt::Key_Enter, 13},   {Qt::Key_Comma, 188},    {Qt::Key_Period, 190},
      {Qt::Key_Shift, 16},   {Qt::Key_Control, 17},   {Qt::Key_Alt, 18},
      {Qt::Key_Tab, 9},      {Qt::Key_Backtab, 9},    {Qt::Key_Escape, 27},
      {Qt::Key_Home, 36},    {Qt::Key_End, 35},       {Qt::Key_PageUp, 33},
      {Qt::Key_Insert, 45},  {Qt::Key_LaunchMail, 0}, {0x0416, 0},
      {Qt::Key_PageDown, 34}};
  for (const auto& [key, code] : codes) EXPECT_EQ(qt::VirtualKeyCode(key, {}), code) << key;
  const std::pair<int, int> pad[] = {
      {Qt::Key_Insert, 96}, {Qt::Key_End, 97},     {Qt::Key_Down, 98},   {Qt::Key_PageDown, 99},
      {Qt::Key_Left, 100},  {Qt::Key_Clear, 101},  {Qt::Key_Right, 102}, {Qt::Key_Home, 103},
      {Qt::Key_Up, 104},    {Qt::Key_PageUp, 105}, {Qt::Key_0, 96},      {Qt::Key_9, 105},
      {Qt::Key_Slash, 111}, {Qt::Key_Enter, 13}};
  for (const auto& [key, code] : pad) {
    EXPECT_EQ(qt::VirtualKeyCode(key, Qt::KeypadModifier), code) << key;
  }
  const std::pair<int, int> places[] = {{30, 'A'}, {44, 'Z'}, {25, 'P'}, {26, 0}, {51, 188}};
  for (const auto& [place, code] : places) EXPECT_EQ(qt::VirtualKeyCodeAt(place), code) << place;
  EXPECT_EQ(qt::ScanCodeOfInput(97), scancode::kRightCtrl);
  EXPECT_EQ(qt::ScanCodeOfInput(105), scancode::kLeft);
  EXPECT_EQ(qt::ScanCodeOfInput(183), 0);
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
  EXPECT_TRUE(events[0].pressed);
  EXPECT_FALSE(events[1].pressed);

  for (size_t code = 1; code <= 30; ++code) keyboard.held[code] = kKeyHeld;
  EXPECT_EQ(keyboard.GetDeviceData(events), 10);
  EXPECT_EQ(keyboard.GetDeviceData(events), 0);
}

}  // namespace
