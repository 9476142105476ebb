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

/// From 0xAABBGGRR.
uint32_t OpaqueArgb(uint32_t pixel) {
  return 0xFF000000U | (pixel & 0xFF00U) | (pixel & 0xFFU) << 16 | (pixel >> 16 & 0xFFU);
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
      height_(DevicePixels(settings.height, settings.scale)),
      // Zero asks for storage without multisampling.
      samples_(settings.samples > 1 ? settings.samples : 0) {
  CheckSize(width_, height_, settings.samples);
  Attach(drawn_, GL_COLOR_ATTACHMENT0, colour_, GL_RGBA8, samples_);
  Attach(drawn_, GL_DEPTH_ATTACHMENT, depth_, GL_DEPTH_COMPONENT16, samples_);
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

void Target::Keep() {
  if (!kept_) {
    kept_.emplace();
    Attach(kept_->framebuffer, GL_COLOR_ATTACHMENT0, kept_->colour, GL_RGBA8, samples_);
    CheckComplete();
  }
  CopyColours(drawn_, kept_->framebuffer);
  Bind();
}

void Target::Restore() const {
  CopyColours(kept_->framebuffer, drawn_);
  Bind();
}

void Target::CopyColours(const FramebufferName& from, const FramebufferName& to) const {
  glDisable(GL_SCISSOR_TEST);
  glBindFramebuffer(GL_READ_FRAMEBUFFER, from.Name());
  glBindFramebuffer(GL_DRAW_FRAMEBUFFER, to.Name());
  glBlitFramebuffer(0, 0, width_, height_, 0, 0, width_, height_, GL_COLOR_BUFFER_BIT, GL_NEAREST);
}

const Image& Target::Read() {
  CopyColours(drawn_, resolved_);
  glBindFramebuffer(GL_READ_FRAMEBUFFER, resolved_.Name());
  glBindBuffer(GL_PIXEL_PACK_BUFFER, 0);
  glPixelStorei(GL_PACK_ALIGNMENT, 4);
  glPixelStorei(GL_PACK_ROW_LENGTH, 0);
  const auto width = static_cast<size_t>(width_), height = static_cast<size_t>(height_);
  upsideDown_.resize(width * height);
  // In the order in which the picture is stored: OpenGL need not convert it.
  glReadPixels(0, 0, width_, height_, GL_RGBA, GL_UNSIGNED_INT_8_8_8_8_REV, upsideDown_.data());
  picture_.width = width_;
  picture_.height = height_;
  picture_.pixels.resize(width * height);
  for (size_t y = 0; y < height; ++y) {
    const uint32_t* from = upsideDown_.data() + (height - 1 - y) * width;
    std::transform(from, from + width,
                   picture_.pixels.begin() + static_cast<std::ptrdiff_t>(y * width), OpaqueArgb);
  }
  return picture_;
}

}  // namespace gl
