#include <charconv>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <unordered_set>

#include "files/level_bytes.h"
#include "files/level_format.h"
#include "platform/paths.h"
#include "platform/whole_file.h"
#include "tools/vorbilax_track/commands.h"

namespace track_tool {
namespace {

using nlohmann::ordered_json;

/// The shortest decimal that is the same Single.
double ShortestDecimal(float value) {
  std::array<char, 32> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
  double decimal = 0;
  std::from_chars(digits.data(), end, decimal);
  return decimal;
}

ordered_json Describe(const LevelFile& level) {
  const auto names = paths::FileNames(paths::InInstallFolder("\\textures\\"));
  const std::unordered_set<std::string> existing(names.begin(), names.end());
  ordered_json textures = ordered_json::array();
  for (const std::string& name : level.TextureNames) {
    textures.push_back({{"name", name}, {"missing", !existing.contains(name)}});
  }
  return {{"version", level.Version},
          {"blocks", level.Blocks.size()},
          {"platforms", level.Platforms.size()},
          {"ramps", level.Ramps.size()},
          {"stars", level.Stars.size()},
          {"gravity", ShortestDecimal(GravityOf(level.StoredGravity))},
          {"background", level.BackgroundName.Trimmed()},
          {"textures", textures}};
}

void PrintText(const ordered_json& description) {
  for (const auto& [key, value] : description.items()) {
    if (key == "textures") continue;
    const std::string text = value.is_string() ? value.get<std::string>() : value.dump();
    std::printf("%s: %s\n", key.c_str(), text.c_str());
  }
  std::printf("textures:\n");
  for (const auto& texture : description.at("textures")) {
    std::printf("  %s%s\n", texture.at("name").get<std::string>().c_str(),
                texture.at("missing").get<bool>() ? " (missing)" : "");
  }
}

}  // namespace

int Info(const std::string& file, bool json) {
  std::string bytes;
  std::string reason = ReadWholeFile(file, bytes);
  try {
    if (reason.empty()) {
      const ordered_json description = Describe(ParseLevel(bytes));
      if (json) {
        std::printf("%s\n", description.dump(2).c_str());
      } else {
        PrintText(description);
      }
      return kFine;
    }
  } catch (const LevelFormatError& failure) {
    reason = failure.what();
  }
  std::fprintf(stderr, "%s: %s\n", file.c_str(), reason.c_str());
  return kBadInput;
}

}  // namespace track_tool
