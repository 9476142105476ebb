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

/// Names of the regular files in `folder`, in the order in which file lists show them: letter case
/// ignored. Empty when the folder cannot be read.
std::vector<std::string> FileNames(const std::string& folder);

/// Whether `name` ends with the pattern's text after its leading "*", letter case ignored.
bool MatchesPattern(std::string_view name, std::string_view pattern);

}  // namespace paths
