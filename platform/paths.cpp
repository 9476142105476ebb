#include "platform/paths.h"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <system_error>

namespace paths {
namespace {

namespace fs = std::filesystem;

std::string& Folder() {
  static std::string folder = ".";
  return folder;
}

int Lower(char c) { return std::tolower(static_cast<unsigned char>(c)); }

bool ListOrder(const std::string& a, const std::string& b) {
  const auto less = [](char x, char y) { return Lower(x) < Lower(y); };
  if (std::ranges::lexicographical_compare(a, b, less)) return true;
  if (std::ranges::lexicographical_compare(b, a, less)) return false;
  return a < b;
}

/// Whether the entry is a regular file or a link to one.
bool IsFile(int folder, const dirent& entry) {
  if (entry.d_type == DT_REG) return true;
  struct stat status {};
  return (entry.d_type == DT_LNK || entry.d_type == DT_UNKNOWN) &&
         fstatat(folder, entry.d_name, &status, 0) == 0 && S_ISREG(status.st_mode);
}

}  // namespace

const std::string& InstallFolder() { return Folder(); }
void InstallFolder(std::string folder) { Folder() = std::move(folder); }

std::string ProgramFolder() {
  std::error_code failure;
  return fs::read_symlink("/proc/self/exe", failure).parent_path().string();
}

std::string InInstallFolder(std::string_view literal) {
  std::string path(literal);
  std::ranges::replace(path, '\\', static_cast<char>(fs::path::preferred_separator));
  return Folder() + path;
}

bool IsFolder(const std::string& path) {
  std::error_code failure;
  return fs::is_directory(path, failure);
}

std::vector<std::string> EntryNames(const std::string& folder, bool onlyFiles) {
  std::vector<std::string> names;
  // The standard library's iterator ends the program when there is no memory for it.
  const std::unique_ptr<DIR, void (*)(DIR*)> entries(opendir(folder.c_str()),
                                                     [](DIR* opened) { closedir(opened); });
  if (!entries) return names;
  while (const dirent* const entry = readdir(entries.get())) {
    if (!onlyFiles || IsFile(dirfd(entries.get()), *entry)) names.emplace_back(entry->d_name);
  }
  return names;
}

std::vector<std::string> FileNames(const std::string& folder) {
  std::vector<std::string> names = EntryNames(folder, true);
  std::ranges::sort(names, ListOrder);
  return names;
}

bool MatchesPattern(std::string_view name, std::string_view pattern) {
  if (pattern.starts_with('*')) pattern.remove_prefix(1);
  if (name.size() < pattern.size()) return false;
  return std::ranges::equal(name.substr(name.size() - pattern.size()), pattern,
                            [](char a, char b) { return Lower(a) == Lower(b); });
}

}  // namespace paths
