// Selecting the piece under the mouse, and the shortcuts of the right button.
#pragma once

namespace picking {

/// A mouse button goes down on the viewport at (x, y) in its pixels. button: 1 left, 2 right, 4
/// middle; shift: mask of modifier keys, 0 for none. Throws PlatformError when painting fails; the
/// selection made by then stays.
void MouseDown(int button, int shift, float x, float y);

}  // namespace picking
