// Looks one level file over: what is wrong with it, and whether it can be won.
#pragma once

#include <string>

#include "tools/vorbilax_track/search_answer.h"
#include "tools/vorbilax_track/verdict.h"

namespace track_tool {

/// Of the track in this file, which becomes the document's, and of the drive beside it: the file of
/// its name with the ending ".keys". Where that does not win, `search` is asked. The device must be
/// started and the car loaded.
Verdict Judge(const std::string& file, const Search& search);

}  // namespace track_tool
