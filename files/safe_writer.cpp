#include "files/safe_writer.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <optional>
#include <utility>

namespace {

namespace fs = std::filesystem;

/// More than any track needs; a track file beyond it is somebody else's file.
constexpr off_t kGreatestFile = off_t{1} << 30;

std::string Reason() { return std::strerror(errno); }

/// Closes and removes what is left of an unfinished write.
class TemporaryFile {
 public:
  TemporaryFile(FileCalls& calls, std::string name)
      : calls_(calls), name_(std::move(name)), file_(calls.OpenTemporary(name_.data())) {}
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    if (opened_ && file_ >= 0) calls_.Close(file_);
    if (opened_ && !renamed_) calls_.Remove(name_.c_str());
  }

  bool Opened() const { return opened_; }
  int File() const { return file_; }
  bool Close() { return calls_.Close(std::exchange(file_, -1)) == 0; }
  bool RenameTo(const std::string& target) {
    renamed_ = calls_.Rename(name_.c_str(), target.c_str()) == 0;
    return renamed_;
  }

 private:
  FileCalls& calls_;
  std::string name_;
  int file_;
  bool opened_ = file_ >= 0;
  bool renamed_ = false;
};

bool WriteAll(FileCalls& calls, int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = calls.Write(file, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) {
      if (written == 0) errno = ENOSPC;
      return false;
    }
    bytes.remove_prefix(static_cast<size_t>(written));
  }
  return true;
}

/// Some file systems cannot sync a folder; they say so with EINVAL.
bool SyncFolder(FileCalls& calls, int folder) {
  return calls.Sync(folder) == 0 || errno == EINVAL || errno == ENOTSUP;
}

mode_t NewFileMode() {
  const mode_t mask = umask(0);
  umask(mask);
  return 0666 & ~mask;
}

/// What stands at the target before the write.
struct OldFile {
  mode_t mode = 0;
  uid_t owner = 0;
  gid_t group = 0;
  std::string tail;  ///< what lies beyond the new bytes
};

/// Reads what must survive of the old file; nothing when there is none. `reason` tells a refusal.
std::optional<OldFile> ReadOldFile(const std::string& target, size_t newSize, std::string& reason) {
  struct stat status {};
  if (stat(target.c_str(), &status) != 0) {
    if (errno != ENOENT) reason = Reason();
    return std::nullopt;
  }
  if (!S_ISREG(status.st_mode)) {
    reason = S_ISDIR(status.st_mode) ? "it is a folder" : "it is not a regular file";
    return std::nullopt;
  }
  if (access(target.c_str(), W_OK) != 0) {
    reason = Reason();
    return std::nullopt;
  }
  OldFile old{static_cast<mode_t>(status.st_mode & 07777), status.st_uid, status.st_gid, {}};
  if (status.st_size > static_cast<off_t>(newSize)) {
    std::string content;
    reason = ReadWholeFile(target, content);
    if (reason.empty()) old.tail = content.substr(std::min(newSize, content.size()));
  }
  return old;
}

/// The file that a chain of symbolic links leads to, whether it exists or not.
std::string FollowLinks(const std::string& path, std::string& reason) {
  std::error_code failure;
  fs::path target(path);
  for (int links = 0; fs::is_symlink(fs::symlink_status(target, failure)); ++links) {
    const fs::path next = fs::read_symlink(target, failure);
    if (failure || links > 40) {
      reason = std::strerror(ELOOP);
      return path;
    }
    target = next.is_absolute() ? next : target.parent_path() / next;
  }
  return target.string();
}

}  // namespace

int FileCalls::OpenFolder(const char* path) {
  return open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}
int FileCalls::OpenTemporary(char* nameTemplate) { return mkostemp(nameTemplate, O_CLOEXEC); }
int FileCalls::SetOwnerAndMode(int file, uid_t owner, gid_t group, mode_t mode) {
  // Only root may give files away; the mode matters to everybody, and is set last because a
  // change of owner clears bits of it.
  const bool sameOwner = owner == geteuid() && group == getegid();
  if (!sameOwner && fchown(file, owner, group) != 0 && errno != EPERM) return -1;
  return fchmod(file, mode);
}
ssize_t FileCalls::Write(int file, const char* bytes, size_t count) {
  return write(file, bytes, count);
}
int FileCalls::Sync(int file) { return fsync(file); }
int FileCalls::Close(int file) { return close(file); }
int FileCalls::Rename(const char* from, const char* to) { return rename(from, to); }
int FileCalls::Remove(const char* path) { return unlink(path); }

std::string WriteFileSafely(const std::string& path, std::string_view bytes, FileCalls& calls) {
  std::string reason;
  const std::string target = FollowLinks(path, reason);
  if (!reason.empty()) return reason;
  const std::optional<OldFile> old = ReadOldFile(target, bytes.size(), reason);
  if (!reason.empty()) return reason;

  const fs::path parent = fs::path(target).parent_path();
  const fs::path folder = parent.empty() ? fs::path(".") : parent;
  const int folderFile = calls.OpenFolder(folder.c_str());
  if (folderFile < 0) return Reason();
  const auto finish = [&](std::string result) {
    calls.Close(folderFile);
    return result;
  };

  TemporaryFile temporary(calls, (folder / ".vorbilax-XXXXXX").string());
  if (!temporary.Opened()) return finish(Reason());
  const int file = temporary.File();
  const bool complete =
      calls.SetOwnerAndMode(file, old ? old->owner : geteuid(), old ? old->group : getegid(),
                            old ? old->mode : NewFileMode()) == 0 &&
      WriteAll(calls, file, bytes) && WriteAll(calls, file, old ? old->tail : "") &&
      calls.Sync(file) == 0 && temporary.Close() && temporary.RenameTo(target) &&
      SyncFolder(calls, folderFile);
  return finish(complete ? std::string() : Reason());
}

std::string WriteFileSafely(const std::string& path, std::string_view bytes) {
  FileCalls calls;
  return WriteFileSafely(path, bytes, calls);
}

std::string ReadWholeFile(const std::string& path, std::string& bytes) {
  bytes.clear();
  const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (file < 0) return Reason();
  std::string reason;
  struct stat status {};
  if (fstat(file, &status) != 0) {
    reason = Reason();
  } else if (!S_ISREG(status.st_mode)) {
    reason = S_ISDIR(status.st_mode) ? "it is a folder" : "it is not a regular file";
  } else if (status.st_size > kGreatestFile) {
    reason = "it is too large";
  } else {
    bytes.resize(static_cast<size_t>(status.st_size));
    size_t filled = 0;
    while (filled < bytes.size()) {
      const ssize_t got = read(file, bytes.data() + filled, bytes.size() - filled);
      if (got < 0 && errno == EINTR) continue;
      if (got < 0) reason = Reason();
      if (got <= 0) break;
      filled += static_cast<size_t>(got);
    }
    bytes.resize(filled);
  }
  close(file);
  return reason;
}
