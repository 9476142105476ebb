// The part of a frame that stays while the camera moves: the clear and the backdrop over it.
#pragma once

#include <memory>
#include <vector>

#include "platform/commands.h"

namespace gl {

/// Knows the opening of the frame before. An opening is a clear and the draws in viewport pixels
/// that follow it and write no depth: what they leave depends on no camera.
class FrameOpening {
 public:
  /// How many commands of the frame are its opening; 0: it has none.
  static size_t LengthIn(const CommandList& frame);

  /// Whether this frame opens as the one before. Remembers how it opens.
  bool Repeats(const CommandList& frame, size_t length);
  void Forget() { *this = FrameOpening(); }

 private:
  struct Entry {
    Command command;
    DeviceStates states;
    // Kept alive, so that equal addresses mean equal objects.
    std::shared_ptr<const void> buffer, texture;
  };
  static Entry EntryOf(const CommandList& frame, const Command& command);
  static bool IsSame(const CommandList& frame, const Command& command, const Entry& entry);

  std::vector<Entry> last_;
};

}  // namespace gl
