#include "tools/vorbilax_track/headless.h"

#include <cstdio>

#include "level/backdrop.h"
#include "level/globals.h"
#include "platform/mesh.h"
#include "platform/null/null_platform.h"
#include "platform/paths.h"
#include "platform/qt/images.h"
#include "play/clsPlayer.h"
#include "render/device/DirectX.h"
#include "render/device/clsParticles.h"
#include "render/frame/clsShadow.h"

namespace track_tool {
namespace {

using MakeExecutor = HeadlessEditor::MakeExecutor;

constexpr Place kViewport{0, 0, 601, 457};

std::shared_ptr<null_platform::World> WorldWithRealFiles() {
  auto world = std::make_shared<null_platform::World>();
  world->decoder = qt::LoadImageFile;
  world->meshReader = mesh::ReadXFile;
  return world;
}

/// The headless context as display adapter.
class HeadlessAdapter : public GraphicsAdapter {
 public:
  HeadlessAdapter(const MakeExecutor& make, gl::PictureExecutor*& made)
      : make_(make), made_(made) {}
  void GetDeviceCaps() override {}
  DisplayFormat GetDisplayMode() override { return DisplayFormat::X8R8G8B8; }
  bool CheckMultisample(DisplayFormat, int samples) override {
    return gl::SupportsSamples(samples);
  }
  std::unique_ptr<Device> CreateDevice(PictureArea& target,
                                       const PresentSettings& settings) override {
    auto executor = make_({target.ScaleWidth(), target.ScaleHeight(), settings.samples, 1.0});
    made_ = executor.get();
    return std::make_unique<Device>(std::move(executor));
  }

 private:
  MakeExecutor make_;
  gl::PictureExecutor*& made_;
};

class HeadlessRoot : public PlatformRoot {
 public:
  HeadlessRoot(const MakeExecutor& make, gl::PictureExecutor*& made) : make_(make), made_(made) {}
  std::unique_ptr<GraphicsAdapter> CreateD3D() override {
    return std::make_unique<HeadlessAdapter>(make_, made_);
  }
  std::unique_ptr<d3dx::Library> CreateD3DX() override {
    return std::make_unique<d3dx::Library>(qt::LoadImageFile, mesh::ReadXFile);
  }
  std::unique_ptr<KeyboardInput> CreateDirectInput() override {
    return null_platform::CreateRoot(WorldWithRealFiles())->CreateDirectInput();
  }

 private:
  MakeExecutor make_;
  gl::PictureExecutor*& made_;
};

}  // namespace

void StderrDialogs::ShowMessage(const std::string& text, const std::string&) {
  std::fprintf(stderr, "%s\n", text.c_str());
}

HeadlessEditor::HeadlessEditor() {
  dialogs::Use(&dialogs_);
  viewport_.place = kViewport;
  Document = LevelDocument();
  Document.TextureDir = paths::InInstallFolder("\\textures\\");
  Document.BackgroundDir = paths::InInstallFolder("\\backgrounds\\");
}

HeadlessEditor::~HeadlessEditor() {
  Document = LevelDocument();
  DirectX::ReleaseDirectX();
  dialogs::Use(nullptr);
}

bool HeadlessEditor::Start() {
  createPlatformRoot = [] { return null_platform::CreateRoot(WorldWithRealFiles()); };
  return InitDevice();
}

bool HeadlessEditor::Start(gl::Scheme scheme) {
  return Start([scheme](const gl::TargetSettings& settings) {
    return gl::CreateExecutor(scheme, settings);
  });
}

bool HeadlessEditor::Start(const MakeExecutor& make) {
  try {
    if (!context_) context_ = std::make_unique<gl::HeadlessContext>();
  } catch (const PlatformError& failure) {
    dialogs::ShowMessage(failure.what());
    return false;
  }
  createPlatformRoot = [this, make] { return std::make_unique<HeadlessRoot>(make, executor_); };
  return InitDevice();
}

bool HeadlessEditor::InitDevice() {
  if (!DirectX::InitDirect3D(viewport_)) return false;
  // What stays on the screen should the track's own backdrop be missing.
  ShowBackdrop(kDefaultBackdrop);
  return true;
}

void HeadlessEditor::LoadCar() {
  Player.load(paths::InInstallFolder("\\models\\player.x"));
  Particles.create();
  Shadow.create();
}

Image HeadlessEditor::ReadPicture() { return executor_ ? executor_->ReadPicture() : Image(); }

}  // namespace track_tool
