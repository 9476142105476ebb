// What a search for a way to win a track answers.
#pragma once

#include <functional>
#include <string>

#include "drive/frozen_track.h"

namespace track_tool {

struct SearchAnswer {
  std::string words;     ///< a sentence without full stop
  bool won = false;      ///< a way was found
  bool possible = true;  ///< false: there is none
};
using Search = std::function<SearchAnswer(const drive::FrozenTrack&)>;

}  // namespace track_tool
