// The changes that a step is made of. Each holds what the document does not: applied once it undoes
// itself, applied again it redoes itself.
#pragma once

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include "level/kept_track.h"
#include "level/pieces.h"

namespace history {

/// A piece as it was, or as it will be again.
template <typename Piece>
struct ChangedPiece {
  int32_t index;
  Piece other;
};

/// A piece that stands in the document (`present`) or here.
template <typename Piece>
struct AddedPiece {
  int32_t index;
  bool present;
  Piece piece;
};

struct ChangedValues {
  float gravity;
  FixedText<50> backgroundName;
};

struct ReplacedTrack {
  KeptTrack other;
};

using Change =
    std::variant<ChangedPiece<clsblock>, ChangedPiece<clsMovingPlatform>, ChangedPiece<clsRamp>,
                 ChangedPiece<clsStar>, AddedPiece<clsblock>, AddedPiece<clsMovingPlatform>,
                 AddedPiece<clsRamp>, AddedPiece<clsStar>, ChangedValues, ReplacedTrack>;

/// Exchanges the document's side and the change's.
void Exchange(Change& change);

/// Whether the document differs, in what a level file holds, from what the changes keep. They must
/// be the newest ones.
bool Differ(const std::vector<Change>& changes);

/// About what the change keeps in memory.
size_t BytesOf(const Change& change);

/// Depth of what was changed: where to look when nothing is selected. Negative: everywhere.
float DepthOf(const Change& change);

}  // namespace history
