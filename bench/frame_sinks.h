// Executors that do not draw.
#pragma once

#include <utility>

#include "platform/gl/picture_executor.h"

namespace bench {

/// Keeps the last frame.
class KeepFrames : public gl::PictureExecutor {
 public:
  void Execute(const CommandList& frame) override { frame_ = frame; }
  Image ReadPicture() override { return {}; }
  CommandList Take() { return std::exchange(frame_, {}); }

 private:
  CommandList frame_;
};

/// Drops every frame. Whatever a device asks its executor is to be answered as the batched executor
/// does: recording for this one is what recording costs the user.
class DropFrames : public gl::PictureExecutor {
 public:
  void Execute(const CommandList&) override {}
  Image ReadPicture() override { return {}; }
};

}  // namespace bench
