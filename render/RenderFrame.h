// One frame: the backdrop, then the objects in their order.
#pragma once

/// Draws and presents one frame of the document. Moves what moves by being drawn: falling and
/// bouncing blocks, spinning stars.
void RenderFrame();
