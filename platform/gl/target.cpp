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
  glGetIntegerv(GL_MAX_COLOR_TEXTURE_SAMPLES, &mostSamples);
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
      height_(DevicePixels(settings.height, settings.scale)),
      samples_(settings.samples),
      resolver_(settings.samples) {
  CheckSize(width_, height_, settings.samples);
  AttachColours(drawn_, colour_, samples_);
  AttachDepth();
  CheckComplete();
  // What was never drawn is black rather than whatever the memory held.
  glDisable(GL_SCISSOR_TEST);
  glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
  glDepthMask(GL_TRUE);
  glClearColor(0, 0, 0, 1);
  glClearDepth(1);
  glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
  AttachColours(resolved_, resolvedColour_, 1);
  CheckComplete();
}

void Target::AttachColours(const FramebufferName& framebuffer, const TextureName& storage,
                           int samples) const {
  const GLenum kind = samples > 1 ? GL_TEXTURE_2D_MULTISAMPLE : GL_TEXTURE_2D;
  glBindTexture(kind, storage.Name());
  if (samples > 1) {
    glTexImage2DMultisample(kind, samples, GL_RGBA8, width_, height_, GL_TRUE);
  } else {
    glTexImage2D(kind, 0, GL_RGBA8, width_, height_, 0, GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
    glTexParameteri(kind, GL_TEXTURE_MAX_LEVEL, 0);
  }
  glBindFramebuffer(GL_FRAMEBUFFER, framebuffer.Name());
  glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, kind, storage.Name(), 0);
}

void Target::AttachDepth() {
  // Zero asks for storage without multisampling.
  glBindRenderbuffer(GL_RENDERBUFFER, depth_.Name());
  glRenderbufferStorageMultisample(GL_RENDERBUFFER, samples_ > 1 ? samples_ : 0,
                                   GL_DEPTH_COMPONENT16, width_, height_);
  glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, GL_RENDERBUFFER, depth_.Name());
}

void Target::Bind() const {
  glBindFramebuffer(GL_FRAMEBUFFER, drawn_.Name());
  glViewport(0, 0, width_, height_);
}

void Target::Keep() {
  if (!kept_) {
    kept_.emplace();
    AttachColours(kept_->framebuffer, kept_->colour, samples_);
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
  glBindFramebuffer(GL_FRAMEBUFFER, resolved_.Name());
  resolver_.Draw(colour_, width_, height_);
  glBindBuffer(GL_PIXEL_PACK_BUFFER, 0);
  glPixelStorei(GL_PACK_ALIGNMENT, 4);
  glPixelStorei(GL_PACK_ROW_LENGTH, 0);
  if (picture_.width != width_) picture_ = Image(width_, height_);
  // As it is stored, so that OpenGL need not convert it.
  glReadPixels(0, 0, width_, height_, GL_RGBA, GL_UNSIGNED_INT_8_8_8_8_REV, picture_.pixels.data());
  return picture_;
}

}  // namespace gl
