#include "files/stray_files.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <functional>
#include <string_view>

#include "files/file_calls.h"
#include "platform/paths.h"

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kPrefix = ".vorbilax-";
constexpr time_t kDay = time_t{24} * 60 * 60;

/// The pseudo files of the system have no size to read them by.
std::string SystemText(const std::string& path) {
  std::array<char, 1024> text{};
  std::FILE* const file = std::fopen(path.c_str(), "re");
  if (file == nullptr) return {};
  const size_t size = std::fread(text.data(), 1, text.size(), file);
  std::fclose(file);
  return {text.data(), size};
}

/// The time at which a process started, as text; empty when there is none to be seen.
std::string StartOf(pid_t process) {
  const std::string status = SystemText("/proc/" + std::to_string(process) + "/stat");
  // The second field is a name that may hold anything, in brackets; the start is the 22nd.
  size_t at = status.rfind(')');
  for (int field = 2; field < 22 && at != std::string::npos; ++field) at = status.find(' ', at + 1);
  return at == std::string::npos ? std::string()
                                 : status.substr(at + 1, status.find(' ', at + 1) - at - 1);
}

/// Process numbers mean the same only in one system start and one space of numbers.
std::string Machine() {
  std::error_code failure;
  const std::string spaces = fs::read_symlink("/proc/self/ns/pid", failure).string();
  return std::to_string(
      std::hash<std::string>()(SystemText("/proc/sys/kernel/random/boot_id") + spaces));
}

/// Takes the text before the next "-" off the name.
std::string_view TakePart(std::string_view& name) {
  const std::string_view part = name.substr(0, name.find('-'));
  name.remove_prefix(std::min(name.size(), part.size() + 1));
  return part;
}

bool Runs(pid_t process, std::string_view start) {
  if (kill(process, 0) != 0 && errno == ESRCH) return false;
  const std::string seen = StartOf(process);
  return seen.empty() || seen == start;
}

bool IsStray(const std::string& path, const std::string& name) {
  struct stat status {};
  if (!name.starts_with(kPrefix) || lstat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) {
    return false;
  }
  std::string_view rest = std::string_view(name).substr(kPrefix.size());
  const std::string_view number = TakePart(rest), start = TakePart(rest), machine = TakePart(rest);
  pid_t process = 0;
  std::from_chars(number.data(), number.data() + number.size(), process);
  if (process > 0 && machine == Machine()) return !Runs(process, start);
  return status.st_mtime + kDay < std::time(nullptr);
}

}  // namespace

std::string TemporaryName() {
  static unsigned number = 0;
  const pid_t process = getpid();
  return std::string(kPrefix) + std::to_string(process) + "-" + StartOf(process) + "-" + Machine() +
         "-" + std::to_string(++number);
}

void RemoveStrayFiles(const std::string& folder) {
  for (const std::string& name : paths::EntryNames(folder, true)) {
    const std::string path = (std::filesystem::path(folder) / name).string();
    if (IsStray(path, name)) CurrentFileCalls().Remove(path.c_str());
  }
}
