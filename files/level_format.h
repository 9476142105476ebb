// The content of a level file as plain records, and its bytes.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "level/globals.h"

/// The version that is written; versions above it are read as it is.
inline constexpr uint8_t kLevelFileVersion = 4;

struct BlockRecord {
  float Xpos = 0, Ypos = 0, Zpos = 0, scaleX = 0, scaleY = 0, scaleZ = 0;
  std::array<int16_t, 4> Textures{};  ///< indices into the texture table, faces "A" to "D"
  uint8_t ScaleTextureTop = 0, ScaleTextureSide = 0, changeactioncode = 0;
};

struct PlatformRecord {
  BlockRecord Box;  ///< with the starting position
  uint8_t Mspeed = 0, StartingDir = 0, Mdist = 0, MloopBack = 0;
};

struct RampRecord {
  float Xpos = 0, Ypos = 0, Zpos = 0, scaleX = 0, scaleY = 0, scaleZ = 0;
  std::array<int16_t, 2> Textures{};
  uint8_t Rotation = 0;  ///< quarter turns
};

struct StarRecord {
  float Xpos = 0, Ypos = 0, Zpos = 0;
};

struct LevelFile {
  uint8_t Version = kLevelFileVersion;
  std::optional<TrackRecordsRecord> TrackRecords;  ///< versions 0 and 1 hold none
  std::vector<std::string> TextureNames;           ///< UTF-8
  FixedText<50> BackgroundName;
  std::vector<BlockRecord> Blocks;
  std::vector<PlatformRecord> Platforms;
  std::vector<RampRecord> Ramps;
  std::vector<StarRecord> Stars;
  float StoredGravity = 0;  ///< 400 times the document's
  TrackSettingsRecord TrackSettings;
};

/// The document's gravity for a stored one, and the other way round.
float GravityOf(float stored);
float StoredGravityOf(float gravity);

/// The strongest gravity that is read, either way: what falls for hours still has a height whose
/// square is a Single.
inline constexpr float kGreatestGravity = 1e6F;

/// Reads a level file of any version; bytes after its end are ignored. Throws LevelFormatError,
/// also for a position or size outside the range of a Long and a gravity beyond kGreatestGravity.
LevelFile ParseLevel(std::string_view bytes);

/// The bytes of version 4. Throws std::overflow_error when a text is too long for its length field.
std::string SerializeLevel(const LevelFile& level);
