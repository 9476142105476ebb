#include "platform/null/null_platform.h"

namespace null_platform {
namespace {

using WorldPtr = std::shared_ptr<World>;

void FailIf(const World& world, const char* operation) {
  if (world.failing == operation) throw PlatformError(world.failing, world.failureCode);
}

class NullExecutor : public Executor {
 public:
  explicit NullExecutor(WorldPtr world) : world_(std::move(world)) {}
  void Execute(const CommandList& frame) override {
    Screen& screen = world_->screen;
    screen.commands = frame.commands;
    screen.worlds = frame.worlds;
    screen.cameras = frame.cameras;
    screen.states = frame.states;
    screen.resources = frame.resources;
    ++screen.frames;
  }

 private:
  WorldPtr world_;
};

class NullAdapter : public GraphicsAdapter {
 public:
  explicit NullAdapter(WorldPtr world) : world_(std::move(world)) {}
  void GetDeviceCaps() override { FailIf(*world_, "GetDeviceCaps"); }
  DisplayFormat GetDisplayMode() override {
    FailIf(*world_, "GetDisplayMode");
    return DisplayFormat::X8R8G8B8;
  }
  bool CheckMultisample(DisplayFormat, int samples) override {
    return samples <= world_->samplesSupported;
  }
  std::unique_ptr<Device> CreateDevice(PictureArea&, const PresentSettings& settings) override {
    FailIf(*world_, "CreateDevice");
    world_->created = settings;
    return std::make_unique<Device>(std::make_unique<NullExecutor>(world_));
  }

 private:
  WorldPtr world_;
};

class NullKeyboard : public KeyboardDevice {
 public:
  explicit NullKeyboard(WorldPtr world) : world_(std::move(world)) {}
  void SetCooperativeLevel(uint32_t flags) override { world_->cooperativeLevel = flags; }
  void SetBufferSize(int events) override { world_->bufferSize = events; }
  void Acquire() override {
    FailIf(*world_, "Acquire");
    world_->acquired = true;
  }
  void GetDeviceState(KeyboardState& state) override { state = world_->keys; }
  int GetDeviceData(std::span<KeyboardEvent> events) override {
    FailIf(*world_, "GetDeviceData");
    int count = 0;
    for (KeyboardEvent& event : events) {
      if (world_->keyEvents.empty()) break;
      event = world_->keyEvents.front();
      world_->keyEvents.pop_front();
      ++count;
    }
    return count;
  }

 private:
  WorldPtr world_;
};

class NullInput : public KeyboardInput {
 public:
  explicit NullInput(WorldPtr world) : world_(std::move(world)) {}
  std::unique_ptr<KeyboardDevice> CreateDevice(std::string_view) override {
    FailIf(*world_, "CreateKeyboard");
    return std::make_unique<NullKeyboard>(world_);
  }

 private:
  WorldPtr world_;
};

Image WhitePixel(const std::string&) { return Image(1, 1, 0xFFFFFFFF); }

std::vector<d3dx::MeshObject::Subset> OneTriangle(const std::string&) {
  std::vector<d3dx::MeshObject::Subset> subsets(1);
  constexpr uint32_t white = 0xFFFFFFFF;
  subsets[0].triangles = {
      {0, 0, 0, white, 0, 0, 0}, {0, 1, 0, white, 0, 0, 1}, {1, 0, 0, white, 0, 1, 0}};
  return subsets;
}

class NullRoot : public PlatformRoot {
 public:
  explicit NullRoot(WorldPtr world) : world_(std::move(world)) {}
  std::unique_ptr<GraphicsAdapter> CreateD3D() override {
    FailIf(*world_, "CreateD3D");
    return std::make_unique<NullAdapter>(world_);
  }
  std::unique_ptr<d3dx::Library> CreateD3DX() override {
    return std::make_unique<d3dx::Library>(world_->decoder ? world_->decoder : WhitePixel,
                                           world_->meshReader ? world_->meshReader : OneTriangle);
  }
  std::unique_ptr<KeyboardInput> CreateDirectInput() override {
    FailIf(*world_, "CreateDirectInput");
    return std::make_unique<NullInput>(world_);
  }

 private:
  WorldPtr world_;
};

}  // namespace

std::unique_ptr<PlatformRoot> CreateRoot(const std::shared_ptr<World>& world) {
  return std::make_unique<NullRoot>(world);
}

void Dialogs::ShowMessage(const std::string& text, const std::string&) { messages.push_back(text); }

std::optional<std::string> Dialogs::OpenFile(const dialogs::FileDialog& dialog) {
  return Answer(dialog);
}

std::optional<std::string> Dialogs::SaveFile(const dialogs::FileDialog& dialog) {
  return Answer(dialog);
}

std::optional<std::string> Dialogs::Answer(const dialogs::FileDialog& dialog) {
  shown.push_back(dialog);
  if (answers.empty()) return std::nullopt;
  auto answer = answers.front();
  answers.pop_front();
  return answer;
}

}  // namespace null_platform
