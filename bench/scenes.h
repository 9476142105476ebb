// Tracks of a given size for measurements and tests, the same on every machine.
#pragma once

#include "files/level_format.h"

namespace bench {

/// The most that the documents of measurements hold of a kind.
inline constexpr int kManyPieces = 32767;
/// The depth that the camera of most measurements looks at.
inline constexpr float kSceneDepth = 1000;

/// Where blocks lie.
enum class Layout {
  Corridor,  ///< x -50..50, y 0..50, z 0..2500
  View,      ///< whole inside what the camera sees that looks at kSceneDepth
  Small      ///< as View, each 0.15 times the size
};

enum class Kind { Block, Ramp, Platform, Star };

/// Wear ten textures of the install folder. Every number survives a level file.
LevelFile BlockTrack(Layout layout, int count, uint32_t seed = 1);
/// So many of each of the four kinds in the corridor.
LevelFile EveryKindTrack(int countOfEach, uint32_t seed = 1);
/// So many of one kind in the corridor, and the one block more that a track needs.
LevelFile KindTrack(Kind kind, int count, uint32_t seed = 1);

}  // namespace bench
