// OpenGL without a window or a display.
#pragma once

#include <memory>

namespace gl {

/// An OpenGL 3.3 core context without a surface, current in its thread from construction on.
class HeadlessContext {
 public:
  /// Throws PlatformError when this machine offers none.
  HeadlessContext();
  ~HeadlessContext();
  HeadlessContext(const HeadlessContext&) = delete;
  HeadlessContext& operator=(const HeadlessContext&) = delete;

  /// Throws PlatformError.
  void MakeCurrent();

 private:
  struct Handles;
  std::unique_ptr<Handles> handles_;
};

}  // namespace gl
