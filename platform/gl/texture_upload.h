// How a picture becomes an OpenGL texture. Only level 0: nothing samples the others.
#pragma once

#include "platform/gl/objects.h"
#include "platform/image.h"

namespace gl {

/// Frames after which a texture that nothing drew with is given up.
inline constexpr uint64_t kFramesKept = 300;

/// Storage for so many layers in the bound GL_TEXTURE_2D_ARRAY. Throws PlatformError when OpenGL
/// has none.
void AllocateLayers(int width, int height, int layers);

/// Fills one layer of the bound GL_TEXTURE_2D_ARRAY, top row first. Throws PlatformError.
void UploadLayer(const Image& image, int layer);

}  // namespace gl
