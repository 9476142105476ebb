// Dragging the picked piece with the mouse: over the ground, or with Shift up and down.
#pragma once

#include "platform/values.h"

namespace drag {

/// The left button went down on the selected piece at `hit`, at (x, y) in the viewport's pixels.
void Press(const Vector3& hit, float x, float y);
/// The mouse moved; beyond a few pixels the piece follows in whole units. shift: as a mouse-down's.
void Move(int shift, float x, float y);
/// The button was let go: what was dragged is one step.
void Release();
/// Puts the piece back where the drag began. False when nothing is being dragged.
bool Cancel();

}  // namespace drag
