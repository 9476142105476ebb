// File permissions and access lists: a replaced file lets in who was let in before, nobody else.
#pragma once

#include <sys/stat.h>

#include <optional>
#include <string>

/// Who may do what with a file.
struct FileAccess {
  uid_t owner = 0;
  gid_t group = 0;
  mode_t mode = 0;                  ///< the lower 12 bits
  std::optional<std::string> list;  ///< as the kernel stores it; empty: none; not set: unreadable
};

/// Of the file at `path`, whose status is known.
FileAccess AccessOf(const std::string& path, const struct stat& status);

/// Gives an open file, made by this process with no more rights than the owner's, the access of the
/// one it replaces. What the system refuses to keep costs rights and never adds any:
/// - the owner, which only root can keep: the writer takes the owner's place;
/// - the group: members of the old and of the new group keep what both group and others had;
/// - the access list, or the list of a group that is not kept: only the owner's rights stay.
/// Returns false, with errno, when the file's rights could not be set at all.
bool KeepAccess(int file, const FileAccess& access);
