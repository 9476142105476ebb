#include "files/file_access.h"

#include <sys/xattr.h>

#include <cerrno>

#include "files/file_calls.h"

namespace {

constexpr mode_t kOwnerBits = 0700, kGroupBits = 0070, kOtherBits = 0007, kRights = 0777;
constexpr uid_t kSameOwner = static_cast<uid_t>(-1);

/// The rights that group and others share, for both.
mode_t SharedByGroupAndOthers(mode_t mode) {
  const mode_t shared = (mode & kGroupBits) >> 3 & mode;
  return (mode & kOwnerBits) | shared << 3 | shared;
}

/// The mode of a file without access list that cannot have the old owner or group.
mode_t ReducedMode(const FileAccess& access, bool ownerKept, bool groupKept, bool listKept) {
  if (!listKept) return access.mode & kOwnerBits;
  if (!groupKept) return SharedByGroupAndOthers(access.mode);
  return ownerKept ? access.mode : access.mode & kRights;
}

}  // namespace

FileAccess AccessOf(const std::string& path, const struct stat& status) {
  FileAccess access{status.st_uid, status.st_gid, status.st_mode & 07777U, std::string()};
  std::string list(65536, '\0');  // the kernel stores no longer ones
  const ssize_t size = getxattr(path.c_str(), kAccessListName, list.data(), list.size());
  if (size >= 0) {
    access.list = list.substr(0, static_cast<size_t>(size));
  } else if (errno != ENODATA && errno != ENOTSUP) {
    access.list = std::nullopt;
  }
  return access;
}

bool KeepAccess(int file, const FileAccess& access) {
  FileCalls& calls = CurrentFileCalls();
  // A folder's default list has reached the new file already.
  const bool bare = calls.SetList(file, {}) == 0;
  struct stat made {};
  if (fstat(file, &made) != 0) return false;
  const bool ownerKept = (made.st_uid == access.owner && made.st_gid == access.group) ||
                         calls.SetOwner(file, access.owner, access.group) == 0;
  const bool groupKept = ownerKept || made.st_gid == access.group ||
                         calls.SetOwner(file, kSameOwner, access.group) == 0;
  const bool listed = access.list && !access.list->empty();
  const bool listKept =
      bare && access.list && (!listed || (groupKept && calls.SetList(file, *access.list) == 0));
  return calls.SetMode(file, ReducedMode(access, ownerKept, groupKept, listKept)) == 0;
}
