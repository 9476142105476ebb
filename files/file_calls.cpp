#include "files/file_calls.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <cstdio>
#include <utility>

#include "platform/retry.h"

namespace {

FileCalls*& Replacement() {
  static FileCalls* calls = nullptr;
  return calls;
}

}  // namespace

int FileCalls::OpenFolder(const char* path) {
  return RetryInterrupted([&] { return open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
}
int FileCalls::Create(const char* path, mode_t mode) {
  return RetryInterrupted([&] { return open(path, O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode); });
}
int FileCalls::SetOwner(int file, uid_t owner, gid_t group) {
  return RetryInterrupted([&] { return fchown(file, owner, group); });
}
int FileCalls::SetMode(int file, mode_t mode) {
  return RetryInterrupted([&] { return fchmod(file, mode); });
}
int FileCalls::SetList(int file, const std::string& list) {
  if (!list.empty()) return fsetxattr(file, kAccessListName, list.data(), list.size(), 0);
  const int result = fremovexattr(file, kAccessListName);
  return result != 0 && (errno == ENODATA || errno == ENOTSUP) ? 0 : result;
}
ssize_t FileCalls::Write(int file, const char* bytes, size_t count) {
  return RetryInterrupted([&] { return write(file, bytes, count); });
}
int FileCalls::Sync(int file) {
  return RetryInterrupted([&] { return fsync(file); });
}
int FileCalls::Close(int file) {
  const int result = close(file);
  return result != 0 && errno == EINTR ? 0 : result;
}
int FileCalls::Rename(const char* from, const char* to) { return rename(from, to); }
int FileCalls::Remove(const char* path) { return unlink(path); }

void UseFileCalls(FileCalls* calls) { Replacement() = calls; }

FileCalls& CurrentFileCalls() {
  static FileCalls system;
  return Replacement() != nullptr ? *Replacement() : system;
}

OpenedFile::~OpenedFile() { Close(); }

bool OpenedFile::Close() {
  return !Opened() || CurrentFileCalls().Close(std::exchange(file_, -1)) == 0;
}
