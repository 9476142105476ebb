#include "platform/qt/virtual_keys.h"

#include <gtest/gtest.h>

namespace {

constexpr auto kNone = Qt::NoModifier;
constexpr auto kPad = Qt::KeypadModifier;

TEST(VirtualKeys, LettersDigitsAndFunctionKeys) {
  EXPECT_EQ(qt::VirtualKeyCode(Qt::Key_A, kNone), 65);
  EXPECT_EQ(qt::VirtualKeyCode(Qt::Key_Z, Qt::ControlModifier), 90);
  EXPECT_EQ(qt::VirtualKeyCode(Qt::Key_7, kNone), 55);
  EXPECT_EQ(qt::VirtualKeyCode(Qt::Key_F1, kNone), 112);
  EXPECT_EQ(qt::VirtualKeyCode(Qt::Key_F5, kNone), 116);
  EXPECT_EQ(qt::VirtualKeyCode(Qt::Key_F12, kNone), 123);
}

TEST(VirtualKeys, EditingKeys) {
  const std::pair<int, int> expected[] = {
      {Qt::Key_Left, 37},   {Qt::Key_Up, 38},       {Qt::Key_Right, 39},  {Qt::Key_Down, 40},
      {Qt::Key_Delete, 46}, {Qt::Key_Space, 32},    {Qt::Key_Return, 13}, {Qt::Key_Enter, 13},
      {Qt::Key_Comma, 188}, {Qt::Key_Period, 190},  {Qt::Key_Shift, 16},  {Qt::Key_Control, 17},
      {Qt::Key_Alt, 18},    {Qt::Key_Tab, 9},       {Qt::Key_Backtab, 9}, {Qt::Key_Escape, 27},
      {Qt::Key_Home, 36},   {Qt::Key_PageDown, 34}, {Qt::Key_Insert, 45}};
  for (const auto& [key, code] : expected) EXPECT_EQ(qt::VirtualKeyCode(key, kNone), code) << key;
}

TEST(VirtualKeys, KeypadDigitsWithAndWithoutNumLock) {
  const int below[] = {Qt::Key_Insert, Qt::Key_End,   Qt::Key_Down,  Qt::Key_PageDown,
                       Qt::Key_Left,   Qt::Key_Clear, Qt::Key_Right, Qt::Key_Home,
                       Qt::Key_Up,     Qt::Key_PageUp};
  for (int digit = 0; digit <= 9; ++digit) {
    EXPECT_EQ(qt::VirtualKeyCode(Qt::Key_0 + digit, kPad), 96 + digit);
    EXPECT_EQ(qt::VirtualKeyCode(below[digit], kPad), 96 + digit);
  }
  EXPECT_EQ(qt::VirtualKeyCode(Qt::Key_Slash, kPad), 111);
  EXPECT_EQ(qt::VirtualKeyCode(Qt::Key_Enter, kPad), 13);
}

TEST(VirtualKeys, UnknownKeysHaveNone) {
  EXPECT_EQ(qt::VirtualKeyCode(Qt::Key_LaunchMail, kNone), 0);
  EXPECT_EQ(qt::VirtualKeyCode(0x0416, kNone), 0);
}

TEST(VirtualKeys, PlacesOfLatinLetters) {
  EXPECT_EQ(qt::VirtualKeyCodeAt(30), 'A');
  EXPECT_EQ(qt::VirtualKeyCodeAt(44), 'Z');
  EXPECT_EQ(qt::VirtualKeyCodeAt(25), 'P');
  EXPECT_EQ(qt::VirtualKeyCodeAt(26), 0);
  EXPECT_EQ(qt::VirtualKeyCodeAt(51), 188);
  EXPECT_EQ(qt::VirtualKeyCodeAt(52), 190);
}

TEST(VirtualKeys, MaskCountsTheModifiersOwnKey) {
  const QKeyEvent down(QEvent::KeyPress, Qt::Key_Control, Qt::NoModifier);
  EXPECT_EQ(qt::ShiftMask(down), 2);
  const QKeyEvent up(QEvent::KeyRelease, Qt::Key_Control, Qt::ControlModifier);
  EXPECT_EQ(qt::ShiftMask(up), 0);
  const QKeyEvent all(QEvent::KeyPress, Qt::Key_A,
                      Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
  EXPECT_EQ(qt::ShiftMask(all), 7);
}

}  // namespace
