#include "platform/gl/headless_context.h"

#include <epoxy/egl.h>

#include "platform/error.h"

namespace gl {
namespace {

PlatformError Failure(const std::string& step) {
  return PlatformError("no OpenGL 3.3: " + step + " failed", static_cast<uint32_t>(eglGetError()));
}

/// The display is shared by the whole process and never terminated: another context may use it.
EGLDisplay SurfacelessDisplay() {
  for (const char* needed : {"EGL_EXT_platform_base", "EGL_MESA_platform_surfaceless"}) {
    if (!epoxy_has_egl_extension(EGL_NO_DISPLAY, needed)) throw Failure(needed);
  }
  const EGLDisplay display =
      eglGetPlatformDisplayEXT(EGL_PLATFORM_SURFACELESS_MESA, EGL_DEFAULT_DISPLAY, nullptr);
  if (display == EGL_NO_DISPLAY) throw Failure("eglGetPlatformDisplay");
  if (!eglInitialize(display, nullptr, nullptr)) throw Failure("eglInitialize");
  for (const char* needed : {"EGL_KHR_no_config_context", "EGL_KHR_surfaceless_context"}) {
    if (!epoxy_has_egl_extension(display, needed)) throw Failure(needed);
  }
  return display;
}

}  // namespace

struct HeadlessContext::Handles {
  EGLDisplay display = EGL_NO_DISPLAY;
  EGLContext context = EGL_NO_CONTEXT;
};

HeadlessContext::HeadlessContext() : handles_(std::make_unique<Handles>()) {
  handles_->display = SurfacelessDisplay();
  if (!eglBindAPI(EGL_OPENGL_API)) throw Failure("eglBindAPI");
  constexpr EGLint attributes[] = {EGL_CONTEXT_MAJOR_VERSION,
                                   3,
                                   EGL_CONTEXT_MINOR_VERSION,
                                   3,
                                   EGL_CONTEXT_OPENGL_PROFILE_MASK,
                                   EGL_CONTEXT_OPENGL_CORE_PROFILE_BIT,
                                   EGL_NONE};
  handles_->context =
      eglCreateContext(handles_->display, EGL_NO_CONFIG_KHR, EGL_NO_CONTEXT, attributes);
  if (handles_->context == EGL_NO_CONTEXT) throw Failure("eglCreateContext");
  MakeCurrent();
}

HeadlessContext::~HeadlessContext() {
  if (eglGetCurrentContext() == handles_->context) {
    eglMakeCurrent(handles_->display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
  }
  eglDestroyContext(handles_->display, handles_->context);
}

void HeadlessContext::MakeCurrent() {
  if (!eglMakeCurrent(handles_->display, EGL_NO_SURFACE, EGL_NO_SURFACE, handles_->context)) {
    throw Failure("eglMakeCurrent");
  }
}

}  // namespace gl
