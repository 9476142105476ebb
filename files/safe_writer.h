// Writing a file so that a full disk or a power cut never costs the old one.
#pragma once

#include <string>
#include <string_view>

/// How a write ended.
struct Written {
  std::string failure;  ///< why the old file still stands; empty: the new one does
  std::string warning;  ///< the new file stands, but a power cut might still bring back the old one
};

/// What becomes of the part of the old file that lies beyond the new bytes.
enum class OldRest { Kept, Dropped };

/// Replaces the start of the file at `path` by `bytes`, or creates it; what the old file holds
/// beyond them stays after them, unless it is to be dropped. The whole content goes into a
/// temporary file of the same folder, which is then renamed over the target: at every moment the
/// path holds the old file or the new. Symbolic links are followed; permissions stay, as far as
/// KeepAccess can keep them. A file beyond kGreatestFile is refused. Temporary files of killed
/// saves are removed first.
Written WriteFileSafely(const std::string& path, std::string_view bytes,
                        OldRest oldRest = OldRest::Kept);
