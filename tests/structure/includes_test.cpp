// Holds the includes of the tree against the house's plan: who may include whom, which room alone
// may use which library, and no circle between files.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>

namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;

/// What each source file includes, own headers and those of libraries.
struct Sources {
  std::map<std::string, Names> own, others;
  Sources() {
    static const std::regex line(R"re(^\s*#\s*include\s*(["<])([^">]+)[">])re");
    const fs::path root = SOURCE_FOLDER;
    for (const char* room : {"app", "tools", "bench", "assets", "editor", "check", "search",
                             "drive", "render", "play", "files", "level", "platform"}) {
      for (const auto& entry : fs::recursive_directory_iterator(root / room)) {
        const std::string extension = entry.path().extension();
        if (extension != ".cpp" && extension != ".h") continue;
        const std::string file = fs::relative(entry.path(), root).string();
        Names &mine = own[file], &foreign = others[file];
        std::ifstream in(entry.path());
        std::smatch match;
        for (std::string text; std::getline(in, text);) {
          if (!std::regex_search(text, match, line)) continue;
          (match[1] == "\"" ? mine : foreign).insert(match[2]);
        }
      }
    }
  }
};
const Sources kSources;

/// The part of the house that a file belongs to.
std::string RoomOf(const std::string& file) {
  for (const char* const inner : {"platform/gl", "platform/qt", "platform/null", "platform/mesh",
                                  "render/device", "render/frame"}) {
    if (file.starts_with(inner)) return inner;
  }
  return file.substr(0, file.find('/'));
}

/// Rooms that each room may include besides itself.
const std::map<std::string, Names> kAllowed = {
    {"platform", {}},
    {"platform/null", {"platform"}},
    {"platform/gl", {"platform"}},
    {"platform/mesh", {"platform"}},
    {"platform/qt", {"platform", "platform/gl", "platform/mesh"}},
    {"render/device", {"platform"}},
    {"level", {"platform", "render/device"}},
    {"files", {"platform", "level"}},
    // One floor: the car draws its shadow, the frame draws the car.
    {"play", {"platform", "render/device", "level", "render/frame"}},
    {"render/frame", {"platform", "render/device", "level", "play"}},
    {"drive", {"platform", "render/device", "render/frame", "level", "files", "play"}},
    {"search", {"platform", "level", "play", "drive"}},
    {"check", {"platform", "level", "files", "play", "drive"}},
    {"editor",
     {"platform", "render/device", "render/frame", "level", "files", "play", "drive", "search",
      "check"}},
    {"assets", {"platform", "platform/qt", "files"}},
    {"app", {"platform", "platform/qt", "level", "editor"}},
    {"tools",
     {"platform", "platform/qt", "platform/gl", "platform/mesh", "platform/null", "render/device",
      "render/frame", "level", "files", "play", "drive", "search", "check"}},
    {"bench",
     {"platform", "platform/gl", "platform/null", "render/device", "render/frame", "level", "files",
      "play", "drive", "search", "check", "editor", "tools"}},
};

TEST(Structure, RoomsIncludeOnlyDownwards) {
  ASSERT_GT(kSources.own.size(), 50U);
  for (const auto& [file, includes] : kSources.own) {
    const std::string room = RoomOf(file);
    ASSERT_TRUE(kAllowed.contains(room)) << file;
    for (const std::string& header : includes) {
      const std::string target = RoomOf(header);
      EXPECT_TRUE(kSources.own.contains(header) &&
                  (target == room || kAllowed.at(room).contains(target)))
          << file << " includes " << header;
    }
  }
}

TEST(Structure, EachLibraryHasOneRoom) {
  const std::pair<std::regex, std::string> libraries[] = {
      {std::regex("^Q[A-Z]|^Qt|^X11/|^xcb/"), "platform/qt"},
      {std::regex("^GL/|^epoxy/|^EGL/"), "platform/gl"},
      {std::regex("^assimp/"), "platform/mesh"},
      {std::regex("^CLI/|^nlohmann/"), "tools"}};
  for (const auto& [file, includes] : kSources.others) {
    for (const std::string& header : includes) {
      for (const auto& [pattern, room] : libraries) {
        const bool elsewhere = RoomOf(file) != room && std::regex_search(header, pattern);
        EXPECT_FALSE(elsewhere) << file << " includes " << header;
      }
    }
  }
}

TEST(Structure, NoCircleBetweenFiles) {
  // A header and its source count as one file.
  const auto stem = [](const std::string& file) { return file.substr(0, file.rfind('.')); };
  std::map<std::string, Names> needs;
  for (const auto& [file, includes] : kSources.own) {
    Names& mine = needs[stem(file)];
    for (const std::string& header : includes) {
      if (stem(header) != stem(file)) mine.insert(stem(header));
    }
  }
  // Whoever needs nobody that is left goes; only circles, and who needs them, stay.
  const auto isFree = [&](const auto& entry) {
    return std::ranges::none_of(entry.second, [&](auto& name) { return needs.contains(name); });
  };
  while (std::erase_if(needs, isFree) > 0) continue;
  std::string left;
  for (const auto& [file, names] : needs) left += file + " ";
  EXPECT_EQ(left, "");
}

}  // namespace
