#include "editor/safety/copy_files.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <regex>
#include <vector>

#include "files/safe_writer.h"
#include "platform/paths.h"

namespace safety {
namespace {

namespace fs = std::filesystem;

constexpr size_t kLongestStem = 180;  ///< bytes; the time and the ending must fit behind it

/// What WriteCopy puts behind a name, so that a copy's copy bears the track's name again.
const std::regex& Stamp() {
  static const std::regex stamp(R"( \d{4}-\d\d-\d\d \d\d-\d\d-\d\d( \(\d+\))?$)");
  return stamp;
}

std::array<fs::path, 2> Folders() {
  const char* state = std::getenv("XDG_STATE_HOME");
  const char* home = std::getenv("HOME");
  const fs::path user = state != nullptr && *state == '/' ? fs::path(state)
                        : home != nullptr                 ? fs::path(home) / ".local/state"
                                                          : fs::temp_directory_path();
  return {fs::path(paths::InInstallFolder("\\levels\\backup")),
          user / "vorbilax-level-editor" / "backup"};
}

std::string Now() {
  std::array<char, 32> text{};
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  const size_t size = std::strftime(text.data(), text.size(), " %Y-%m-%d %H-%M-%S", &local);
  return {text.data(), size};
}

std::string StemOf(const std::string& original) {
  std::string stem = original.empty() ? "New Track" : fs::path(original).stem().string();
  stem = std::regex_replace(stem, Stamp(), "");
  size_t size = std::min(stem.size(), kLongestStem);
  // Not in the middle of a character.
  while (size < stem.size() && (static_cast<unsigned char>(stem[size]) & 0xC0U) == 0x80) --size;
  return stem.substr(0, size);
}

/// A name that no file in the folder has yet.
fs::path FreeName(const fs::path& folder, const std::string& name, const std::string& ending) {
  fs::path path = folder / (name + ending);
  std::error_code failure;
  for (int number = 2; fs::exists(path, failure); ++number) {
    std::string numbered = name;
    numbered.append(" (").append(std::to_string(number)).append(")").append(ending);
    path = folder / numbered;
  }
  return path;
}

void DropOldest(const fs::path& folder, const std::string& stem, const std::string& ending) {
  std::vector<std::pair<fs::file_time_type, fs::path>> copies;
  for (const std::string& name : paths::FileNames(folder.string())) {
    const fs::path path = folder / name;
    const std::string copyStem = path.stem().string();
    std::error_code failure;
    if (path.extension() == ending && std::regex_search(copyStem, Stamp()) &&
        std::regex_replace(copyStem, Stamp(), "") == stem) {
      copies.emplace_back(fs::last_write_time(path, failure), path);
    }
  }
  std::ranges::sort(copies);
  for (size_t i = 0; i + kCopiesKept < copies.size(); ++i) {
    std::error_code failure;
    fs::remove(copies[i].second, failure);
  }
}

}  // namespace

std::string WriteCopy(const std::string& original, std::string_view bytes) {
  const std::string stem = StemOf(original);
  const std::string ending = original.empty() ? ".lvl" : fs::path(original).extension().string();
  std::string reasons;
  for (const fs::path& folder : Folders()) {
    std::error_code failure;
    fs::create_directories(folder, failure);
    const fs::path path = FreeName(folder, stem + Now(), ending);
    const Written written = WriteFileSafely(path.string(), bytes);
    if (written.failure.empty()) {
      DropOldest(folder, stem, ending);
      return {};
    }
    reasons += (reasons.empty() ? "" : "; ") + path.string() + ": " + written.failure;
  }
  return reasons;
}

bool IsCopy(const std::string& path) {
  std::error_code failure;
  const fs::path folder = fs::weakly_canonical(fs::path(path).parent_path(), failure);
  return std::ranges::any_of(Folders(), [&](const fs::path& copies) {
    return folder == fs::weakly_canonical(copies, failure);
  });
}

}  // namespace safety
