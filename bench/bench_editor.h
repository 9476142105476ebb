// The editor without a window, with several devices over its one document.
#pragma once

#include <functional>
#include <memory>

#include "bench/frame_sinks.h"
#include "bench/private_install.h"
#include "editor/frmMain.h"
#include "files/level_format.h"
#include "platform/null/null_platform.h"
#include "tools/vorbilax_track/headless.h"

namespace bench {

/// A device and what draws for it.
template <typename DrawsHere>
struct Screen {
  std::unique_ptr<Device> device;
  DrawsHere* executor = nullptr;
};

/// Makes a screen's device the program's while it lives.
class Using {
 public:
  template <typename DrawsHere>
  explicit Using(Screen<DrawsHere>& screen) : Using(screen.device) {}
  explicit Using(std::unique_ptr<Device>& device);
  ~Using();
  Using(const Using&) = delete;
  Using& operator=(const Using&) = delete;

 private:
  std::unique_ptr<Device>& device_;
};

class BenchEditor {
 public:
  /// Started; its own device drops every frame. Throws std::runtime_error.
  BenchEditor();
  ~BenchEditor();
  BenchEditor(const BenchEditor&) = delete;
  BenchEditor& operator=(const BenchEditor&) = delete;

  /// Opens the track from its bytes. Throws std::runtime_error.
  void Open(const LevelFile& level);
  const std::string& Folder() const { return install_.Path(); }

 private:
  template <typename DrawsHere, typename Make>
  Screen<DrawsHere> MakeScreen(Make make);

  PrivateInstall install_;
  track_tool::HeadlessEditor headless_;
  SystemClock clock_;
  null_platform::NullPump pump_;
  null_platform::NullShell shell_;

 public:
  gl::TargetSettings target;  ///< of the two screens that draw
  Screen<gl::PictureExecutor> batched, plain;
  Screen<KeepFrames> kept;
  frmMain form{{clock_, pump_, shell_}};
};

/// The camera of all measurements, in the place that looks at this depth.
void LookAtDepth(float depth);

}  // namespace bench
