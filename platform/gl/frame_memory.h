// Remembers the frame drawn last, so that an unchanged one need not be drawn again.
#pragma once

#include "platform/commands.h"

namespace gl {

/// Frames that change cost next to nothing here: the whole frame is copied only once its cameras
/// and places have stood still, and so the second frame of a standstill is still drawn.
class FrameMemory {
 public:
  /// Whether the frame would leave the very picture of the frame remembered last. Never for a frame
  /// that does not begin with a clear: it draws over what is there.
  bool Holds(const CommandList& frame) const;
  /// To be called after `frame` was drawn.
  void Remember(const CommandList& frame);
  void Forget() { *this = FrameMemory(); }

 private:
  bool StandsStill(const CommandList& frame) const;

  CommandList last_;  ///< its commands and resources only when whole_
  size_t commandCount_ = 0;
  bool whole_ = false;
};

}  // namespace gl
