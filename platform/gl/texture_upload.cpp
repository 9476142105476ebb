#include "platform/gl/texture_upload.h"

namespace gl {
namespace {

/// Pictures lie in memory as tightly packed 0xAARRGGBB.
constexpr GLenum kFormat = GL_BGRA, kType = GL_UNSIGNED_INT_8_8_8_8_REV;

void PrepareUpload() {
  glBindBuffer(GL_PIXEL_UNPACK_BUFFER, 0);
  glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
  glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);
}

}  // namespace

void AllocateLayers(int width, int height, int layers) {
  PrepareUpload();
  glTexParameteri(GL_TEXTURE_2D_ARRAY, GL_TEXTURE_MAX_LEVEL, 0);
  glTexImage3D(GL_TEXTURE_2D_ARRAY, 0, GL_RGBA8, width, height, layers, 0, kFormat, kType, nullptr);
}

void UploadLayer(const Image& image, int layer) {
  PrepareUpload();
  glTexSubImage3D(GL_TEXTURE_2D_ARRAY, 0, 0, 0, layer, image.width, image.height, 1, kFormat, kType,
                  image.pixels.data());
}

}  // namespace gl
