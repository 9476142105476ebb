#include "platform/error.h"
#include "platform/gl/batched_executor.h"
#include "platform/gl/plain_executor.h"

namespace gl {

std::unique_ptr<PictureExecutor> CreateExecutor(Scheme scheme, const TargetSettings& settings) {
  while (glGetError() != GL_NO_ERROR) {
  }
  std::unique_ptr<PictureExecutor> executor;
  if (scheme == Scheme::Batched) {
    executor = std::make_unique<BatchedExecutor>(settings);
  } else {
    executor = std::make_unique<PlainExecutor>(settings);
  }
  const GLenum failure = glGetError();
  if (failure != GL_NO_ERROR) throw PlatformError("OpenGL refuses to draw", failure);
  return executor;
}

bool SupportsSamples(int samples) {
  GLint most = 0;
  glGetIntegerv(GL_MAX_COLOR_TEXTURE_SAMPLES, &most);
  return samples == 1 || (samples > 1 && samples <= most);
}

}  // namespace gl
