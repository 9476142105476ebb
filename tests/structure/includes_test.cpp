// Holds the includes of the tree against the house's plan: who may include whom, which room alone
// may use which library, and no circle between files.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

/// Include lines of a source file: the path, and whether it stood in quotes.
struct Include {
  std::string path;
  bool own;
};

using Sources = std::map<std::string, std::vector<Include>>;

std::vector<Include> IncludesOf(const fs::path& file) {
  static const std::regex line(R"re(^\s*#\s*include\s*(["<])([^">]+)[">])re");
  std::vector<Include> includes;
  std::ifstream in(file);
  for (std::string text; std::getline(in, text);) {
    std::smatch match;
    if (std::regex_search(text, match, line)) includes.push_back({match[2], match[1] == "\""});
  }
  return includes;
}

const Sources& AllSources() {
  static const Sources sources = [] {
    Sources found;
    const fs::path root = SOURCE_FOLDER;
    for (const char* room :
         {"app", "tools", "bench", "assets", "editor", "render", "play", "files", "level",
          "platform"}) {
      for (const auto& entry : fs::recursive_directory_iterator(root / room)) {
        const std::string extension = entry.path().extension();
        if (extension != ".cpp" && extension != ".h") continue;
        found[fs::relative(entry.path(), root).string()] = IncludesOf(entry.path());
      }
    }
    return found;
  }();
  return sources;
}

/// The part of the house that a file belongs to.
std::string RoomOf(const std::string& file) {
  for (const char* inner :
       {"platform/gl", "platform/qt", "platform/null", "render/device", "render/frame"}) {
    if (file.starts_with(std::string(inner) + "/")) return inner;
  }
  if (file.starts_with("platform/mesh")) return "platform/mesh";
  return file.substr(0, file.find('/'));
}

/// Rooms that each room may include besides itself.
const std::map<std::string, std::set<std::string>> kAllowed = {
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
    {"editor", {"platform", "render/device", "render/frame", "level", "files", "play"}},
    {"assets", {"platform", "platform/qt", "files"}},
    {"app", {"platform", "platform/qt", "level", "editor"}},
    {"tools",
     {"platform", "platform/qt", "platform/gl", "platform/mesh", "platform/null", "render/device",
      "render/frame", "level", "files", "play"}},
    {"bench", {"platform", "platform/gl"}},
};

TEST(Structure, RoomsIncludeOnlyDownwards) {
  ASSERT_GT(AllSources().size(), 50U);
  for (const auto& [file, includes] : AllSources()) {
    const std::string room = RoomOf(file);
    ASSERT_TRUE(kAllowed.contains(room)) << file;
    for (const Include& include : includes) {
      if (!include.own) continue;
      EXPECT_TRUE(AllSources().contains(include.path)) << file << " includes " << include.path;
      const std::string target = RoomOf(include.path);
      EXPECT_TRUE(target == room || kAllowed.at(room).contains(target))
          << file << " includes " << include.path;
    }
  }
}

TEST(Structure, EachLibraryHasOneRoom) {
  const std::vector<std::pair<std::regex, std::string>> libraries = {
      {std::regex("^Q[A-Z]|^Qt|^X11/|^xcb/"), "platform/qt"},
      {std::regex("^GL/|^epoxy/|^EGL/"), "platform/gl"},
      {std::regex("^assimp/"), "platform/mesh"},
      {std::regex("^CLI/|^nlohmann/"), "tools"}};
  for (const auto& [file, includes] : AllSources()) {
    for (const Include& include : includes) {
      for (const auto& [pattern, room] : libraries) {
        if (!std::regex_search(include.path, pattern)) continue;
        EXPECT_EQ(RoomOf(file), room) << file << " includes " << include.path;
      }
    }
  }
}

/// A header and its source count as one file.
std::string Stem(const std::string& file) { return file.substr(0, file.rfind('.')); }

TEST(Structure, NoCircleBetweenFiles) {
  std::map<std::string, std::set<std::string>> arrows;
  for (const auto& [file, includes] : AllSources()) {
    for (const Include& include : includes) {
      if (include.own && Stem(include.path) != Stem(file))
        arrows[Stem(file)].insert(Stem(include.path));
    }
  }
  std::set<std::string> done;
  std::vector<std::string> path;
  const std::function<void(const std::string&)> visit = [&](const std::string& file) {
    const auto onPath = std::ranges::find(path, file);
    if (onPath != path.end()) {
      std::string circle;
      for (auto at = onPath; at != path.end(); ++at) circle += *at + " -> ";
      FAIL() << circle << file;
    }
    if (done.contains(file)) return;
    path.push_back(file);
    for (const std::string& next : arrows[file]) visit(next);
    path.pop_back();
    done.insert(file);
  };
  for (const auto& [file, includes] : AllSources()) visit(Stem(file));
}

}  // namespace
