// The level document: the one track in memory and the editor state that refers to it.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "level/clsMovingPlatform.h"
#include "level/clsRamp.h"
#include "level/clsStar.h"
#include "level/clsblock.h"
#include "level/fixed_text.h"
#include "level/track_values.h"
#include "render/device/clsBackground.h"

/// What level files carry for the game; the editor neither sets nor shows these.
struct TrackSettingsRecord {
  std::string SettingsText;
  std::array<uint32_t, 4> SettingsValues{};
  bool operator==(const TrackSettingsRecord&) const = default;
};

struct TrackRecordsRecord {
  std::array<FixedText<15>, 3> RecordNames;
  std::array<uint32_t, 6> RecordValues{};
  bool operator==(const TrackRecordsRecord&) const = default;
};

/// Codes of SelectedType and ClipType.
enum ObjectType : int32_t { TypeBlock = 0, TypeRamp = 1, TypePlatform = 2, TypeStar = 3 };

enum EditorModes : int32_t { EditMode = 1, PlayMode = 2 };

/// The copied object's properties. Fields that do not apply to its type keep their values.
struct ClipboardRecord {
  uint8_t ClipType = 0;
  std::string ClipTextureA, ClipTextureB, ClipTextureC, ClipTextureD;
  int32_t ClipScaleX = 0, ClipScaleY = 0, ClipScaleZ = 0;
  int32_t ClipSpeed = 0, ClipDirection = 0, ClipDistance = 0;
  uint8_t ClipActionCode = 0;
  bool ClipLoopBack = false;
  uint8_t ClipRotation = 0;
  int16_t ClipAlignTop = 0, ClipAlignSide = 0;
};

inline constexpr float kNormalGravity = 0.025F;
inline constexpr float kLowGravity = 0.0125F;
inline constexpr const char* kDefaultTexture = "_default.bmp";
inline constexpr const char* kDefaultBackdrop = "_default.jpg";
/// Greatest index of an object in its collection.
inline constexpr int32_t kGreatestIndex = 32767;

/// The four collections. A count holds the index of the collection's last element, −1 when it is
/// empty; elements beyond it are never reached.
struct PieceCollections {
  std::vector<clsblock> Blocks;
  int32_t BlockCount = -1;
  std::vector<clsRamp> Ramps;
  int32_t RampCount = -1;
  std::vector<clsMovingPlatform> Platforms;
  int32_t PlatformCount = -1;
  std::vector<clsStar> Stars;
  int32_t StarCount = -1;
};

struct LevelDocument : TrackValues, PieceCollections {
  FixedText<50> BackgroundName;  ///< file name in BackgroundDir
  std::string BackgroundDir;
  clsBackground Background;
  TrackSettingsRecord TrackSettings;
  TrackRecordsRecord TrackRecords;

  int32_t EditorMode = EditMode;
  bool PlatformsPaused = false;
  bool TrackLoaded = false;
  bool ObjectSelected = false;
  int32_t SelectedType = TypeBlock;
  int32_t SelectedIndex = 0;
  int32_t SelectedPlane = 1;
  bool ClipboardFull = false;
  ClipboardRecord Clipboard;
  std::string CurrentFileName;
  std::string Origin;  ///< the file that the track was last read from or saved to; empty: a new one
  uint32_t TrackNumber = 0;  ///< which track of this run it is; play and saving leave it as it is

  // Working state of the level file code.
  std::vector<std::string> TextureNames;
  int16_t TextureCount = -1;
};

/// The one document; a test makes a fresh one by assignment.
extern LevelDocument Document;

/// The live objects of a collection, in index order.
template <typename T>
std::span<T> Live(std::vector<T>& collection, int32_t count) {
  return {collection.data(), static_cast<size_t>(count + 1)};
}
