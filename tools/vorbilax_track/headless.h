// The editor's device and document without a window.
#pragma once

#include <functional>
#include <memory>

#include "platform/controls.h"
#include "platform/dialogs.h"
#include "platform/gl/headless_context.h"
#include "platform/gl/picture_executor.h"

namespace track_tool {

/// Messages go to stderr; file dialogs are cancelled.
class StderrDialogs : public dialogs::Backend {
 public:
  void ShowMessage(const std::string& text, const std::string& title) override;
  std::optional<std::string> OpenFile(const dialogs::FileDialog&) override { return {}; }
  std::optional<std::string> SaveFile(const dialogs::FileDialog&) override { return {}; }
};

/// An empty document over the install folder and a device that draws into nothing.
class HeadlessEditor {
 public:
  HeadlessEditor();
  ~HeadlessEditor();
  HeadlessEditor(const HeadlessEditor&) = delete;
  HeadlessEditor& operator=(const HeadlessEditor&) = delete;

  /// Starts the device without OpenGL. False, after a message, when it failed.
  bool Start();
  /// Starts the device on a headless OpenGL context.
  bool Start(gl::Scheme scheme);
  /// The same with what draws for it, as for every device that is created later.
  using MakeExecutor =
      std::function<std::unique_ptr<gl::PictureExecutor>(const gl::TargetSettings&)>;
  bool Start(const MakeExecutor& make);
  /// Loads what driving needs beyond the track, on a started device. Throws PlatformError.
  static void LoadCar();
  /// The last frame, when started with OpenGL.
  Image ReadPicture();

 private:
  bool InitDevice();

  StderrDialogs dialogs_;
  PictureArea viewport_;
  std::unique_ptr<gl::HeadlessContext> context_;
  gl::PictureExecutor* executor_ = nullptr;
};

}  // namespace track_tool
