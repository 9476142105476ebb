#include "platform/error.h"
#include "platform/qt/polled_keyboard.h"
#include "platform/qt/scan_codes.h"
#include "platform/qt/window_keyboard.h"
#include "tests/window_backend/fixture.h"

namespace {

class Fingers : public qt::PolledKeyboard {
 public:
  KeyboardState held{};

 protected:
  KeyboardState Read() override { return held; }
};

TEST(PolledKeyboard, IsSilentBeforeItIsAcquired) {
  Fingers keyboard;
  KeyboardState state;
  EXPECT_THROW(keyboard.GetDeviceState(state), PlatformError);
  keyboard.Acquire();
  EXPECT_NO_THROW(keyboard.GetDeviceState(state));
}

TEST(PolledKeyboard, ChangesBecomeEventsUpToTheBuffersSize) {
  Fingers keyboard;
  keyboard.SetBufferSize(10);
  keyboard.Acquire();
  keyboard.held[scancode::kSpace] = kKeyHeld;
  KeyboardState state;
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
  keyboard.GetDeviceState(state);
  EXPECT_EQ(state[30], 128);
}

TEST(ScanCodes, InputCodesOfTheCar) {
  EXPECT_EQ(qt::ScanCodeOfInput(29), scancode::kLeftCtrl);
  EXPECT_EQ(qt::ScanCodeOfInput(97), scancode::kRightCtrl);
  EXPECT_EQ(qt::ScanCodeOfInput(105), scancode::kLeft);
  EXPECT_EQ(qt::ScanCodeOfInput(183), 0);
}

TEST(KeyboardInput, OnlyTheSystemKeyboardExists) {
  const auto input = fixture::Toolkit().CreateRoot()->CreateDirectInput();
  EXPECT_THROW(input->CreateDevice("GUID_SysMouse"), PlatformError);
  const auto keyboard = input->CreateDevice("GUID_SysKeyboard");
  keyboard->SetCooperativeLevel(10);
  keyboard->SetBufferSize(10);
  keyboard->Acquire();
  KeyboardState state;
  state.fill(1);
  keyboard->GetDeviceState(state);
  EXPECT_EQ(state, KeyboardState{});
}

class WindowKeys : public fixture::ShownWindow {
 protected:
  uint8_t Held(uint8_t code) {
    KeyboardState state;
    keyboard_.GetDeviceState(state);
    return state[code];
  }
  qt::WindowKeyboard keyboard_;
};

TEST_F(WindowKeys, FollowPressesAndReleasesButNotRepetitions) {
  keyboard_.Acquire();
  window_.onKeyDown = [](int16_t& code, int) { code = 111; };
  fixture::PressKey(*top_, Qt::Key_Left);
  EXPECT_EQ(Held(scancode::kLeft), kKeyHeld);
  fixture::ReleaseKey(*top_, Qt::Key_Left, Qt::NoModifier, true);
  EXPECT_EQ(Held(scancode::kLeft), kKeyHeld);
  fixture::ReleaseKey(*top_, Qt::Key_Left);
  EXPECT_EQ(Held(scancode::kLeft), 0);
}

TEST_F(WindowKeys, AreReleasedWhenTheProgramLosesTheFocus) {
  keyboard_.Acquire();
  fixture::PressKey(*top_, Qt::Key_Space);
  EXPECT_EQ(Held(scancode::kSpace), kKeyHeld);
  emit qGuiApp->focusWindowChanged(nullptr);
  EXPECT_EQ(Held(scancode::kSpace), 0);
}

}  // namespace
