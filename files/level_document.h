// Between the records of a level file and the objects of the document.
#pragma once

#include <string>
#include <vector>

#include "files/level_format.h"
#include "level/globals.h"

/// Objects built from a level file, not yet in place.
struct BuiltTrack {
  PieceCollections pieces;
  float Gravity = 0;
};

/// Builds every object with its textures; a texture whose file does not exist under exactly its
/// name becomes "_default.bmp". Throws PlatformError when a picture or model cannot be loaded and
/// std::overflow_error when a value does not fit its property.
BuiltTrack BuildTrack(const LevelFile& level);

/// Rebuilds the document's TextureNames and TextureCount: each distinct name once, in the order of
/// first use by blocks, platforms and ramps.
void BuildTextureTable();

/// The document as the records that a level file holds. BuildTextureTable comes first.
LevelFile DescribeDocument();
