#include "bench/bench_editor.h"

#include <stdexcept>

#include "files/FileIO.h"
#include "platform/numbers.h"
#include "play/DirectInput.h"
#include "render/device/DirectX.h"

namespace bench {

Using::Using(std::unique_ptr<Device>& device) : device_(device) {
  std::swap(DirectX::D3DDevice, device_);
}

Using::~Using() { std::swap(DirectX::D3DDevice, device_); }

template <typename DrawsHere, typename Make>
Screen<DrawsHere> BenchEditor::MakeScreen(Make make) {
  Screen<DrawsHere> screen;
  const bool started = headless_.Start([&](const gl::TargetSettings& settings) {
    target = settings;
    std::unique_ptr<DrawsHere> executor = make(settings);
    screen.executor = executor.get();
    return executor;
  });
  if (!started) throw std::runtime_error("no device");
  screen.device = std::move(DirectX::D3DDevice);
  return screen;
}

BenchEditor::BenchEditor() {
  const auto scheme = [](gl::Scheme which) {
    return
        [which](const gl::TargetSettings& settings) { return gl::CreateExecutor(which, settings); };
  };
  batched = MakeScreen<gl::PictureExecutor>(scheme(gl::Scheme::Batched));
  plain = MakeScreen<gl::PictureExecutor>(scheme(gl::Scheme::Plain));
  kept = MakeScreen<KeepFrames>([](const auto&) { return std::make_unique<KeepFrames>(); });
  // The window starts the device once more, on the root that was named last.
  const bool started =
      headless_.Start([](const gl::TargetSettings&) { return std::make_unique<DropFrames>(); });
  if (!started || !form.Start()) throw std::runtime_error("the editor does not start");
}

BenchEditor::~BenchEditor() {
  DirectInput::KeyboardDevice.reset();
  DirectInput::DI.reset();
}

void BenchEditor::Open(const LevelFile& level) {
  const FileIO::Result result = FileIO::ReadLevelBytes(SerializeLevel(level), "the scene");
  if (!result.Ok()) throw std::runtime_error(result.message);
}

void LookAtDepth(float depth) {
  DirectX::ResetCamera();
  DirectX::CameraPosition.z = ToSingle(double{DirectX::CameraPosition.z} + depth);
  DirectX::CameraTarget.z = ToSingle(double{DirectX::CameraTarget.z} + depth);
  DirectX::ApplyCamera();
}

}  // namespace bench
