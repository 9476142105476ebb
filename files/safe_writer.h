// Writing a file so that a full disk or a power cut never costs the old one.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <string>
#include <string_view>

/// The system calls of a write; a test replaces them to make one fail. Each returns what the call
/// returns and sets errno.
class FileCalls {
 public:
  virtual ~FileCalls() = default;
  virtual int OpenFolder(const char* path);
  /// Creates and opens a file under a name made from the template, which ends in XXXXXX.
  virtual int OpenTemporary(char* nameTemplate);
  virtual int SetOwnerAndMode(int file, uid_t owner, gid_t group, mode_t mode);
  virtual ssize_t Write(int file, const char* bytes, size_t count);
  virtual int Sync(int file);
  virtual int Close(int file);
  virtual int Rename(const char* from, const char* to);
  virtual int Remove(const char* path);
};

/// Replaces the start of the file at `path` by `bytes`, or creates it; what the old file holds
/// beyond them stays after them. The whole content goes into a temporary file of the same folder,
/// which is then renamed over the target: at every moment the path holds the old file or the new.
/// Permissions stay, symbolic links are followed. Returns an empty text, or why it failed.
std::string WriteFileSafely(const std::string& path, std::string_view bytes, FileCalls& calls);
std::string WriteFileSafely(const std::string& path, std::string_view bytes);

/// Reads a whole regular file. Returns an empty text, or why it failed.
std::string ReadWholeFile(const std::string& path, std::string& bytes);
