// Executors that do not draw.
#pragma once

#include <utility>

#include "platform/gl/picture_executor.h"

namespace bench {

/// Keeps the last frame.
class KeepFrames : public gl::PictureExecutor {
 public:
  void Execute(const CommandList& frame) override { frame_ = frame; }
  const Image& ReadPicture() override { return none_; }
  CommandList Take() { return std::exchange(frame_, {}); }

 private:
  CommandList frame_;
  Image none_;
};

/// Drops every frame. Answers devices as the batched executor does: recording for this one is what
/// recording costs the user.
class DropFrames : public gl::PictureExecutor {
 public:
  void Execute(const CommandList&) override {}
  bool NeedsUnseen() const override { return false; }
  const Image& ReadPicture() override { return none_; }

 private:
  Image none_;
};

}  // namespace bench
