#include "platform/paths.h"

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

std::vector<std::string> FileNames(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code failure;
  for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end;
       entry.increment(failure)) {
    std::error_code unreadable;
    if (entry->is_regular_file(unreadable)) names.push_back(entry->path().filename().string());
  }
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
