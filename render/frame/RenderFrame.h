// One frame: the backdrop, the objects in their order, the car, the particles.
#pragma once

/// Draws and presents one frame of the document. Moves what moves by being drawn: falling and
/// bouncing blocks, spinning stars, particles, and in play mode the car with the camera.
void RenderFrame();
