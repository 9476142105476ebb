// What a search for a way to win a track answers.
#pragma once

#include <functional>
#include <string>

#include "drive/frozen_track.h"

namespace track_tool {

struct SearchAnswer {
  std::string words;  ///< a sentence without full stop
  bool won = false;   ///< a way was found
};
using Search = std::function<SearchAnswer(const drive::FrozenTrack&)>;

/// Searches within the usual limits; a win is confirmed by the objects of the document, in which
/// the same track must stand.
SearchAnswer SearchAndConfirm(const drive::FrozenTrack& track);

}  // namespace track_tool
