// The files that safety copies are kept in: their folder, their names, how many stay.
#pragma once

#include <string>
#include <string_view>

namespace safety {

/// So many copies of a track stay, the newest.
inline constexpr size_t kCopiesKept = 20;

/// Writes a copy of what stood in the file `original`, whose name it bears with the present time:
/// to "backup" in the levels folder, or, where that cannot be written, to the user's state folder.
/// Older copies beyond kCopiesKept go. Returns an empty text, or why no copy could be written.
std::string WriteCopy(const std::string& original, std::string_view bytes);

/// Whether the path lies in one of the two folders.
bool IsCopy(const std::string& path);

}  // namespace safety
