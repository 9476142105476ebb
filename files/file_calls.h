// The system calls of a save.
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <string>

/// The attribute that holds a file's access list.
inline constexpr const char* kAccessListName = "system.posix_acl_access";

/// A test replaces them to make one fail. Each returns what the call returns and sets errno; none
/// ends because of a signal.
class FileCalls {
 public:
  virtual ~FileCalls() = default;
  virtual int OpenFolder(const char* path);
  /// Creates and opens a file that must not exist yet.
  virtual int Create(const char* path, mode_t mode);
  /// −1 for owner or group: as it is.
  virtual int SetOwner(int file, uid_t owner, gid_t group);
  virtual int SetMode(int file, mode_t mode);
  /// Gives the file an access list in the kernel's own form; empty: none.
  virtual int SetList(int file, const std::string& list);
  virtual ssize_t Write(int file, const char* bytes, size_t count);
  virtual int Sync(int file);
  virtual int Close(int file);
  virtual int Rename(const char* from, const char* to);
  virtual int Remove(const char* path);
};

/// The calls that every save uses; null: the system's.
void UseFileCalls(FileCalls* calls);
FileCalls& CurrentFileCalls();

/// An open file, closed when it goes out of scope; −1: none.
class OpenedFile {
 public:
  explicit OpenedFile(int file) : file_(file) {}
  OpenedFile(const OpenedFile&) = delete;
  OpenedFile& operator=(const OpenedFile&) = delete;
  ~OpenedFile();

  bool Opened() const { return file_ >= 0; }
  int File() const { return file_; }
  /// False when the system reports a failure; the file is closed all the same.
  bool Close();

 private:
  int file_;
};
