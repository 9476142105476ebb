#include "platform/qt/virtual_keys.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace qt {
namespace {

struct KeyCode {
  int key;
  int16_t code;
};

constexpr int kShift = 1, kCtrl = 2, kAlt = 4;

constexpr KeyCode kCodes[] = {
    {Qt::Key_Backspace, 8},     {Qt::Key_Tab, 9},         {Qt::Key_Backtab, 9},
    {Qt::Key_Clear, 12},        {Qt::Key_Return, 13},     {Qt::Key_Enter, 13},
    {Qt::Key_Shift, 16},        {Qt::Key_Control, 17},    {Qt::Key_Alt, 18},
    {Qt::Key_AltGr, 18},        {Qt::Key_Pause, 19},      {Qt::Key_CapsLock, 20},
    {Qt::Key_Escape, 27},       {Qt::Key_Space, 32},      {Qt::Key_PageUp, 33},
    {Qt::Key_PageDown, 34},     {Qt::Key_End, 35},        {Qt::Key_Home, 36},
    {Qt::Key_Left, 37},         {Qt::Key_Up, 38},         {Qt::Key_Right, 39},
    {Qt::Key_Down, 40},         {Qt::Key_Print, 44},      {Qt::Key_Insert, 45},
    {Qt::Key_Delete, 46},       {Qt::Key_Super_L, 91},    {Qt::Key_Super_R, 92},
    {Qt::Key_Meta, 91},         {Qt::Key_Menu, 93},       {Qt::Key_NumLock, 144},
    {Qt::Key_ScrollLock, 145},  {Qt::Key_Semicolon, 186}, {Qt::Key_Colon, 186},
    {Qt::Key_Equal, 187},       {Qt::Key_Plus, 187},      {Qt::Key_Comma, 188},
    {Qt::Key_Less, 188},        {Qt::Key_Minus, 189},     {Qt::Key_Underscore, 189},
    {Qt::Key_Period, 190},      {Qt::Key_Greater, 190},   {Qt::Key_Slash, 191},
    {Qt::Key_Question, 191},    {Qt::Key_QuoteLeft, 192}, {Qt::Key_AsciiTilde, 192},
    {Qt::Key_BracketLeft, 219}, {Qt::Key_Backslash, 220}, {Qt::Key_BracketRight, 221},
    {Qt::Key_Apostrophe, 222}};

// Without Num Lock the keypad's digits arrive as the keys printed below them.
constexpr KeyCode kKeypadCodes[] = {
    {Qt::Key_Insert, 96}, {Qt::Key_End, 97},     {Qt::Key_Down, 98},      {Qt::Key_PageDown, 99},
    {Qt::Key_Left, 100},  {Qt::Key_Clear, 101},  {Qt::Key_Right, 102},    {Qt::Key_Home, 103},
    {Qt::Key_Up, 104},    {Qt::Key_PageUp, 105}, {Qt::Key_Asterisk, 106}, {Qt::Key_Plus, 107},
    {Qt::Key_Minus, 109}, {Qt::Key_Delete, 110}, {Qt::Key_Period, 110},   {Qt::Key_Comma, 110},
    {Qt::Key_Slash, 111}};

template <size_t N>
int16_t Find(const KeyCode (&table)[N], int key) {
  const auto* found = std::ranges::find(table, key, &KeyCode::key);
  return found == std::end(table) ? int16_t{0} : found->code;
}

int16_t Offset(int base, int key, int first) { return static_cast<int16_t>(base + key - first); }

int MaskOfKey(int key) {
  switch (key) {
    case Qt::Key_Shift:
      return kShift;
    case Qt::Key_Control:
      return kCtrl;
    case Qt::Key_Alt:
      return kAlt;
    default:
      return 0;
  }
}

}  // namespace

int16_t VirtualKeyCode(int key, Qt::KeyboardModifiers modifiers) {
  const bool digit = key >= Qt::Key_0 && key <= Qt::Key_9;
  if (modifiers.testFlag(Qt::KeypadModifier)) {
    if (digit) return Offset(96, key, Qt::Key_0);
    if (const int16_t code = Find(kKeypadCodes, key); code != 0) return code;
  }
  if (digit) return Offset('0', key, Qt::Key_0);
  if (key >= Qt::Key_A && key <= Qt::Key_Z) return Offset('A', key, Qt::Key_A);
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return Offset(112, key, Qt::Key_F1);
  return Find(kCodes, key);
}

int16_t VirtualKeyCodeAt(uint32_t inputCode) {
  struct Row {
    uint32_t first;
    std::string_view letters;
  };
  constexpr Row kRows[] = {{16, "QWERTYUIOP"}, {30, "ASDFGHJKL"}, {44, "ZXCVBNM"}};
  for (const Row& row : kRows) {
    if (inputCode >= row.first && inputCode - row.first < row.letters.size()) {
      return row.letters[inputCode - row.first];
    }
  }
  return inputCode == 51 ? int16_t{188} : inputCode == 52 ? int16_t{190} : int16_t{0};
}

int ShiftMask(Qt::KeyboardModifiers modifiers) {
  return (modifiers.testFlag(Qt::ShiftModifier) ? kShift : 0) |
         (modifiers.testFlag(Qt::ControlModifier) ? kCtrl : 0) |
         (modifiers.testFlag(Qt::AltModifier) ? kAlt : 0);
}

int ShiftMask(const QKeyEvent& event) {
  // The toolkit reports the modifiers from before the event.
  const int own = MaskOfKey(event.key());
  const int mask = ShiftMask(event.modifiers());
  return event.type() == QEvent::KeyRelease ? mask & ~own : mask | own;
}

}  // namespace qt
