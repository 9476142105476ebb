#include "files/safe_writer.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <optional>
#include <utility>
#include <vector>

#include "files/file_access.h"
#include "files/file_calls.h"
#include "files/stray_files.h"
#include "platform/error_text.h"
#include "platform/retry.h"
#include "platform/whole_file.h"

namespace {

namespace fs = std::filesystem;

constexpr size_t kPieceBytes = 1U << 16;

std::string Reason() { return ErrorText(errno); }

/// A write beyond the size that the user allows files to have then fails instead of killing.
class SizeSignalIgnored {
 public:
  SizeSignalIgnored() {
    struct sigaction ignore {};
    ignore.sa_handler = SIG_IGN;
    sigaction(SIGXFSZ, &ignore, &before_);
  }
  SizeSignalIgnored(const SizeSignalIgnored&) = delete;
  SizeSignalIgnored& operator=(const SizeSignalIgnored&) = delete;
  ~SizeSignalIgnored() { sigaction(SIGXFSZ, &before_, nullptr); }

 private:
  struct sigaction before_ {};
};

/// Closes and removes what is left of an unfinished write.
class TemporaryFile {
 public:
  TemporaryFile(std::string name, mode_t mode)
      : name_(std::move(name)), opened_(CurrentFileCalls().Create(name_.c_str(), mode)) {
    unfinished_ = opened_.Opened();
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    opened_.Close();
    if (unfinished_) CurrentFileCalls().Remove(name_.c_str());
  }

  bool Opened() const { return opened_.Opened(); }
  int File() const { return opened_.File(); }
  bool Close() { return opened_.Close(); }
  bool RenameTo(const std::string& target) {
    unfinished_ = CurrentFileCalls().Rename(name_.c_str(), target.c_str()) != 0;
    return !unfinished_;
  }

 private:
  std::string name_;
  OpenedFile opened_;
  bool unfinished_ = false;
};

bool WriteAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = CurrentFileCalls().Write(file, bytes.data(), bytes.size());
    if (written <= 0) {
      if (written == 0) errno = ENOSPC;
      return false;
    }
    bytes.remove_prefix(static_cast<size_t>(written));
  }
  return true;
}

/// Copies what `from` holds from the offset on; −1 holds nothing.
bool CopyTail(int from, off_t offset, int to) {
  if (from < 0) return true;
  std::vector<char> piece(kPieceBytes);
  for (;;) {
    const ssize_t got =
        RetryInterrupted([&] { return pread(from, piece.data(), piece.size(), offset); });
    if (got <= 0) return got == 0;
    if (!WriteAll(to, {piece.data(), static_cast<size_t>(got)})) return false;
    offset += got;
  }
}

/// Some file systems cannot sync a folder; they say so with EINVAL.
bool SyncFolder(int folder) {
  return CurrentFileCalls().Sync(folder) == 0 || errno == EINVAL || errno == ENOTSUP;
}

/// What stands at the target before the write.
struct OldFile {
  FileAccess access;
  bool longer = false;  ///< than the new bytes
};

/// What must survive of the old file; nothing when there is none. `reason` tells a refusal.
std::optional<OldFile> LookAtOldFile(const std::string& target, size_t newSize,
                                     std::string& reason) {
  struct stat status {};
  if (stat(target.c_str(), &status) != 0) {
    if (errno != ENOENT) reason = Reason();
    return std::nullopt;
  }
  reason = NoFileReason(status.st_mode);
  if (reason.empty() && access(target.c_str(), W_OK) != 0) reason = Reason();
  if (reason.empty() && status.st_size > kGreatestFile) reason = "it is too large";
  if (!reason.empty()) return std::nullopt;
  return OldFile{AccessOf(target, status), status.st_size > static_cast<off_t>(newSize)};
}

/// The file that a chain of symbolic links leads to, whether it exists or not.
std::string FollowLinks(const std::string& path, std::string& reason) {
  std::error_code failure;
  fs::path target(path);
  for (int links = 0; fs::is_symlink(fs::symlink_status(target, failure)); ++links) {
    const fs::path next = fs::read_symlink(target, failure);
    if (failure || links > 40) {
      reason = ErrorText(ELOOP);
      return path;
    }
    target = next.is_absolute() ? next : target.parent_path() / next;
  }
  return target.string();
}

/// The user sees that the file may be written; it is the folder that refuses.
std::string FolderReason(const fs::path& folder, const char* refused) {
  const bool named = errno == EACCES || errno == EPERM;
  return (named ? "the folder " + folder.string() + " cannot be " + refused + ": " : "") + Reason();
}

/// Writes the new file beside the old and puts it in its place.
std::string Replace(const std::string& target, const fs::path& folder, std::string_view bytes,
                    const std::optional<OldFile>& old) {
  const OpenedFile tail(old && old->longer ? RetryInterrupted([&] {
    return open(target.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  })
                                           : -1);
  if (old && old->longer && !tail.Opened()) return Reason();
  // A new file gets its rights at its making; in the place of another it starts with the least.
  TemporaryFile temporary((folder / TemporaryName()).string(),
                          old ? old->access.mode & 0600U : 0666);
  if (!temporary.Opened()) return FolderReason(folder, "written to");
  const int file = temporary.File();
  const bool complete = (!old || KeepAccess(file, old->access)) && WriteAll(file, bytes) &&
                        CopyTail(tail.File(), static_cast<off_t>(bytes.size()), file) &&
                        CurrentFileCalls().Sync(file) == 0 && temporary.Close() &&
                        temporary.RenameTo(target);
  return complete ? std::string() : Reason();
}

}  // namespace

Written WriteFileSafely(const std::string& path, std::string_view bytes, OldRest oldRest) {
  std::string reason;
  const std::string target = FollowLinks(path, reason);
  if (!reason.empty()) return {reason, {}};
  std::optional<OldFile> old = LookAtOldFile(target, bytes.size(), reason);
  if (!reason.empty()) return {reason, {}};
  if (old && oldRest == OldRest::Dropped) old->longer = false;

  const fs::path parent = fs::path(target).parent_path();
  const fs::path folder = parent.empty() ? fs::path(".") : parent;
  const OpenedFile folderFile(CurrentFileCalls().OpenFolder(folder.c_str()));
  if (!folderFile.Opened()) return {FolderReason(folder, "opened"), {}};
  RemoveStrayFiles(folder.string());
  const SizeSignalIgnored ignored;
  reason = Replace(target, folder, bytes, old);
  if (!reason.empty()) return {reason, {}};
  if (SyncFolder(folderFile.File())) return {};
  return {{}, "saved, but a power cut might still undo it: " + Reason()};
}
