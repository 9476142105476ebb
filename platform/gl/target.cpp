#include "platform/gl/target.h"

#include <algorithm>
#include <cmath>

#include "platform/error.h"

namespace gl {
namespace {

int DevicePixels(int pixels, double scale) { return static_cast<int>(std::lround(pixels * scale)); }

void CheckSize(int width, int height, int samples) {
  GLint greatest = 0, mostSamples = 0;
  glGetIntegerv(GL_MAX_RENDERBUFFER_SIZE, &greatest);
  glGetIntegerv(GL_MAX_SAMPLES, &mostSamples);
  if (width < 1 || height < 1 || width > greatest || height > greatest || samples < 1 ||
      (samples > 1 && samples > mostSamples)) {
    throw PlatformError("OpenGL refuses a picture of " + std::to_string(width) + " x " +
                        std::to_string(height) + " pixels with " + std::to_string(samples) +
                        " samples");
  }
}

void CheckComplete() {
  const GLenum status = glCheckFramebufferStatus(GL_FRAMEBUFFER);
  if (status != GL_FRAMEBUFFER_COMPLETE) {
    throw PlatformError("OpenGL refuses the picture to draw into", status);
  }
}

}  // namespace

Target::Target(const TargetSettings& settings)
    : width_(DevicePixels(settings.width, settings.scale)),
      height_(DevicePixels(settings.height, settings.scale)) {
  CheckSize(width_, height_, settings.samples);
  // Zero asks for storage without multisampling.
  const int samples = settings.samples > 1 ? settings.samples : 0;
  Attach(drawn_, GL_COLOR_ATTACHMENT0, colour_, GL_RGBA8, samples);
  Attach(drawn_, GL_DEPTH_ATTACHMENT, depth_, GL_DEPTH_COMPONENT16, samples);
  CheckComplete();
  // What was never drawn is black rather than whatever the memory held.
  glDisable(GL_SCISSOR_TEST);
  glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
  glDepthMask(GL_TRUE);
  glClearColor(0, 0, 0, 1);
  glClearDepth(1);
  glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
  Attach(resolved_, GL_COLOR_ATTACHMENT0, resolvedColour_, GL_RGBA8, 0);
  CheckComplete();
}

void Target::Attach(const FramebufferName& framebuffer, GLenum attachment,
                    const RenderbufferName& storage, GLenum format, int samples) const {
  glBindRenderbuffer(GL_RENDERBUFFER, storage.Name());
  glRenderbufferStorageMultisample(GL_RENDERBUFFER, samples, format, width_, height_);
  glBindFramebuffer(GL_FRAMEBUFFER, framebuffer.Name());
  glFramebufferRenderbuffer(GL_FRAMEBUFFER, attachment, GL_RENDERBUFFER, storage.Name());
}

void Target::Bind() const {
  glBindFramebuffer(GL_FRAMEBUFFER, drawn_.Name());
  glViewport(0, 0, width_, height_);
}

Image Target::Read() const {
  glDisable(GL_SCISSOR_TEST);
  glBindFramebuffer(GL_READ_FRAMEBUFFER, drawn_.Name());
  glBindFramebuffer(GL_DRAW_FRAMEBUFFER, resolved_.Name());
  glBlitFramebuffer(0, 0, width_, height_, 0, 0, width_, height_, GL_COLOR_BUFFER_BIT, GL_NEAREST);
  glBindFramebuffer(GL_READ_FRAMEBUFFER, resolved_.Name());
  glBindBuffer(GL_PIXEL_PACK_BUFFER, 0);
  glPixelStorei(GL_PACK_ALIGNMENT, 4);
  glPixelStorei(GL_PACK_ROW_LENGTH, 0);
  const auto width = static_cast<size_t>(width_), height = static_cast<size_t>(height_);
  const auto upsideDown = std::make_unique_for_overwrite<uint32_t[]>(width * height);
  glReadPixels(0, 0, width_, height_, GL_BGRA, GL_UNSIGNED_INT_8_8_8_8_REV, upsideDown.get());

  Image image(width_, height_);
  for (size_t y = 0; y < height; ++y) {
    const uint32_t* from = upsideDown.get() + (height - 1 - y) * width;
    std::transform(from, from + width,
                   image.pixels.begin() + static_cast<std::ptrdiff_t>(y * width),
                   [](uint32_t pixel) { return pixel | 0xFF000000U; });
  }
  return image;
}

}  // namespace gl
