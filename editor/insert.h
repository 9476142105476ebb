// New pieces in front of the camera.
#pragma once

#include <cstdint>

namespace insert {

/// The block kinds of the Insert menu.
enum class BlockKind : uint8_t {
  Plain,
  JumpPad,
  Building,
  WinLevel,
  Falling,
  Ice,
  InstantKill,
  TurboPad
};

/// Depth that the camera looks at, where new pieces are put.
float DepthAhead();

// Each adds one piece, selects and highlights it; the panel is the caller's. False, changing
// nothing, when the collection is full. Throws PlatformError, changing nothing, when a picture or
// the model cannot be loaded.
bool AddBlock(BlockKind kind);
bool AddPlatform();
bool AddRamp();
bool AddStar();

}  // namespace insert
