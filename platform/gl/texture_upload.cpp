#include "platform/gl/texture_upload.h"

#include <string>

#include "platform/error.h"

namespace gl {
namespace {

/// Pictures lie in memory as tightly packed 0xAARRGGBB.
constexpr GLenum kFormat = GL_BGRA, kType = GL_UNSIGNED_INT_8_8_8_8_REV;

void PrepareUpload() {
  glBindBuffer(GL_PIXEL_UNPACK_BUFFER, 0);
  glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
  glPixelStorei(GL_UNPACK_ROW_LENGTH, 0);
}

/// Errors of earlier calls would be taken for this one's.
void ForgetErrors() {
  while (glGetError() != GL_NO_ERROR) {
  }
}

void CheckRoom(int width, int height, int layers) {
  const GLenum failure = glGetError();
  if (failure == GL_NO_ERROR) return;
  throw PlatformError("OpenGL has no room for " + std::to_string(layers) + " pictures of " +
                          std::to_string(width) + " x " + std::to_string(height) + " pixels",
                      failure);
}

}  // namespace

void AllocateLayers(int width, int height, int layers) {
  PrepareUpload();
  ForgetErrors();
  glTexParameteri(GL_TEXTURE_2D_ARRAY, GL_TEXTURE_MAX_LEVEL, 0);
  glTexImage3D(GL_TEXTURE_2D_ARRAY, 0, GL_RGBA8, width, height, layers, 0, kFormat, kType, nullptr);
  CheckRoom(width, height, layers);
}

void UploadLayer(const Image& image, int layer) {
  PrepareUpload();
  ForgetErrors();
  glTexSubImage3D(GL_TEXTURE_2D_ARRAY, 0, 0, 0, layer, image.width, image.height, 1, kFormat, kType,
                  image.pixels.data());
  CheckRoom(image.width, image.height, 1);
}

}  // namespace gl
