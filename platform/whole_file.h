// Reading a file at one go.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <string>

/// More than any file of ours needs, in bytes; what is larger is somebody else's.
inline constexpr int64_t kGreatestFile = int64_t{256} << 20;

/// Why what has this mode cannot be read or replaced as a file; empty for a regular file.
std::string NoFileReason(mode_t mode);

/// Reads a whole regular file of at most kGreatestFile bytes; never waits for one that is none.
/// Returns an empty text, or why it failed.
std::string ReadWholeFile(const std::string& path, std::string& bytes);
