// The file names of the frames of the animated texture.
#pragma once

#include <array>
#include <string>

#include "level/face_picture.h"

namespace AnimatedTextures {

/// File names in display order.
inline std::array<std::string, 4> AnimationFrames = {"AnimationTest_0.bmp", "AnimationTest_1.bmp",
                                                     "AnimationTest_2.bmp", "AnimationTest_3.bmp"};

/// The frames' pictures, each null until it is needed.
using Pictures = std::array<FacePicturePtr, 4>;

/// Whether Name is one of the frames; letter case counts.
bool IsAnimatedTexture(const std::string& Name);

/// The frame after Name, the first after the last; empty when Name is no frame.
std::string NextAnimationFrame(const std::string& Name);

}  // namespace AnimatedTextures
