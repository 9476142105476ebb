// The install folder and the names inside a folder. Paths are UTF-8.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace paths {

/// Folder of the program, without trailing separator.
const std::string& InstallFolder();
void InstallFolder(std::string folder);

/// Folder that holds the running program.
std::string ProgramFolder();

/// Appends a literal that begins with a backslash ("\\textures\\") to the install folder, with
/// native separators.
std::string InInstallFolder(std::string_view literal);

/// Whether a folder stands at `path`.
bool IsFolder(const std::string& path);

/// Names of what lies in `folder`, in no order; without what is no regular file if so wanted. Empty
/// when the folder cannot be read.
std::vector<std::string> EntryNames(const std::string& folder, bool onlyFiles);

/// Names of the regular files in `folder`, in the order in which file lists show them: letter case
/// ignored. Empty when the folder cannot be read.
std::vector<std::string> FileNames(const std::string& folder);

/// Whether `name` ends with the pattern's text after its leading "*", letter case ignored.
bool MatchesPattern(std::string_view name, std::string_view pattern);

}  // namespace paths
