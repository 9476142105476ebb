// Backends without window, display or disk decoders: they keep what they are given for tests and
// headless tools to read, and never return null objects.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/graphics.h"
#include "platform/shell.h"

namespace null_platform {

/// What the null device presented last, and how often it presented.
struct Screen {
  std::vector<Command> commands;
  std::vector<Matrix4> worlds;
  std::vector<Camera> cameras;
  std::vector<DeviceStates> states;
  std::vector<std::shared_ptr<const void>> resources;  ///< keep alive what the commands point to
  int frames = 0;
};

/// Settings and observations of one null root; shared with the devices that come from it.
struct World {
  Screen screen;
  KeyboardState keys{};
  std::deque<KeyboardEvent> keyEvents;
  int samplesSupported = 4;
  std::optional<PresentSettings> created;  ///< what CreateDevice was asked for
  uint32_t cooperativeLevel = 0;
  int bufferSize = 0;
  bool acquired = false;
  /// Name of the operation that fails, and with what code; empty: none.
  std::string failing;
  uint32_t failureCode = 0;
  /// Decoder and mesh reader; by default every existing file is a white 1 x 1 picture and a
  /// one-triangle model.
  d3dx::ImageDecoder decoder;
  d3dx::MeshReader meshReader;
};

std::unique_ptr<PlatformRoot> CreateRoot(const std::shared_ptr<World>& world);

/// Answers from a queue; keeps every message.
class Dialogs : public dialogs::Backend {
 public:
  std::vector<std::string> messages;
  std::vector<dialogs::FileDialog> shown;
  std::deque<std::optional<std::string>> answers;  ///< empty queue: cancelled

  void ShowMessage(const std::string& text, const std::string& title) override;
  std::optional<std::string> OpenFile(const dialogs::FileDialog& dialog) override;
  std::optional<std::string> SaveFile(const dialogs::FileDialog& dialog) override;

 private:
  std::optional<std::string> Answer(const dialogs::FileDialog& dialog);
};

/// A clock that stands still until it is moved.
class VirtualClock : public Clock {
 public:
  int64_t microseconds = 0;
  int64_t Counter() override { return microseconds; }
  int64_t Frequency() override { return 1'000'000; }
  int32_t TickCount() override { return static_cast<int32_t>(microseconds / 1000); }
};

/// Runs `onPump` in place of window messages.
class NullPump : public MessagePump {
 public:
  std::function<void(double waitMilliseconds)> onPump;
  void Pump(double waitMilliseconds) override {
    if (onPump) onPump(waitMilliseconds);
  }
};

class NullShell : public Shell {
 public:
  std::vector<std::string> opened;
  void Open(const std::string& path) override { opened.push_back(path); }
};

}  // namespace null_platform
