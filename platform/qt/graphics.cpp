#include "platform/qt/graphics.h"

#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QPointer>
#include <QScreen>
#include <cmath>

#include "platform/gl/picture_executor.h"
#include "platform/mesh.h"
#include "platform/qt/images.h"
#include "platform/qt/keyboard_input.h"
#include "platform/qt/picture_view.h"

namespace qt {
namespace {

// An OpenGL context and the invisible surface that it needs.
class GlContext {
 public:
  GlContext() {
    QSurfaceFormat format;
    format.setRenderableType(QSurfaceFormat::OpenGL);
    format.setVersion(3, 3);
    format.setProfile(QSurfaceFormat::CoreProfile);
    context_.setFormat(format);
    // The surface comes second: making one where there is no OpenGL can end the process.
    if (!context_.create() || context_.format().version() < std::pair(3, 3)) Refuse();
    surface_.setFormat(context_.format());
    surface_.create();
    if (!surface_.isValid()) Refuse();
    MakeCurrent();
  }

  void MakeCurrent() {
    if (!context_.makeCurrent(&surface_)) Refuse();
  }

 private:
  [[noreturn]] static void Refuse() {
    throw PlatformError("OpenGL 3.3 is not available", kErrorNotAvailable);
  }

  // The context must go before its surface.
  QOffscreenSurface surface_;
  QOpenGLContext context_;
};

// Draws each frame off the screen and shows the picture in the view.
class ViewExecutor : public Executor {
 public:
  ViewExecutor(std::shared_ptr<GlContext> context, PictureView& view, int samples)
      : context_(std::move(context)), view_(&view), samples_(samples) {
    context_->MakeCurrent();
    FitScale();
  }

  ~ViewExecutor() override {
    try {
      context_->MakeCurrent();
    } catch (const PlatformError&) {
      // Without a context there is nothing left to free.
    }
  }

  bool NeedsUnseen() const override { return false; }

  void Execute(const CommandList& frame) override {
    if (view_.isNull()) return;
    context_->MakeCurrent();
    FitScale();
    drawing_->Execute(frame);
    if (shown_ == drawing_->FramesDrawn()) return;
    view_->Show(drawing_->ReadPicture());
    shown_ = drawing_->FramesDrawn();
  }

 private:
  // The window may have moved to a screen of another scale.
  void FitScale() {
    const double scale = view_->devicePixelRatioF();
    if (drawing_ && scale == scale_) return;
    drawing_.reset();
    drawing_ =
        gl::CreateExecutor(gl::Scheme::Batched, {view_->width(), view_->height(), samples_, scale});
    scale_ = scale;
    shown_ = 0;
  }

  std::shared_ptr<GlContext> context_;
  QPointer<PictureView> view_;
  int samples_;
  double scale_ = 0.0;
  uint64_t shown_ = 0;  ///< frames drawn by then
  std::unique_ptr<gl::PictureExecutor> drawing_;
};

class Adapter : public GraphicsAdapter {
 public:
  void GetDeviceCaps() override { Context(); }

  DisplayFormat GetDisplayMode() override {
    if (QGuiApplication::primaryScreen() == nullptr) throw PlatformError("There is no screen");
    return DisplayFormat::X8R8G8B8;
  }

  bool CheckMultisample(DisplayFormat, int samples) override {
    Context()->MakeCurrent();
    return gl::SupportsSamples(samples);
  }

  std::unique_ptr<Device> CreateDevice(PictureArea& target,
                                       const PresentSettings& settings) override {
    PictureView* view = PictureView::Of(target);
    if (view == nullptr) throw PlatformError("The picture area is in no window");
    return std::make_unique<Device>(
        std::make_unique<ViewExecutor>(Context(), *view, settings.samples));
  }

 private:
  const std::shared_ptr<GlContext>& Context() {
    if (!context_) context_ = std::make_shared<GlContext>();
    return context_;
  }

  std::shared_ptr<GlContext> context_;
};

}  // namespace

std::unique_ptr<GraphicsAdapter> GraphicsRoot::CreateD3D() { return std::make_unique<Adapter>(); }

std::unique_ptr<d3dx::Library> GraphicsRoot::CreateD3DX() {
  return std::make_unique<d3dx::Library>(LoadImageFile, mesh::ReadXFile);
}

std::unique_ptr<KeyboardInput> GraphicsRoot::CreateDirectInput() {
  return std::make_unique<SystemKeyboardInput>();
}

}  // namespace qt
