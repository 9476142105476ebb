// Keys as the window system's virtual-key codes.
#pragma once

#include <QKeyEvent>
#include <cstdint>

namespace qt {

/// The virtual-key code of a key; 0 for a key without one. With KeypadModifier the keypad's keys
/// give the keypad codes, whether Num Lock is on or off.
int16_t VirtualKeyCode(int key, Qt::KeyboardModifiers modifiers);

/// The code of the letter, comma or period at a place of the keyboard (Linux input code), for
/// layouts whose keys carry no Latin letters; 0 for every other place.
int16_t VirtualKeyCodeAt(uint32_t inputCode);

/// 1 Shift, 2 Ctrl, 4 Alt, as they are once the event has happened.
int ShiftMask(const QKeyEvent& event);
int ShiftMask(Qt::KeyboardModifiers modifiers);

}  // namespace qt
