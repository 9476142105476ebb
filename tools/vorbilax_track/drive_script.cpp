#include "tools/vorbilax_track/drive_script.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <utility>

namespace track_tool {
namespace {

constexpr int kMostFrames = 1'000'000;
constexpr std::string_view kBlanks = " \t\r\f\v";
constexpr std::array<std::pair<std::string_view, uint8_t>, 5> kKeys = {
    {{"left", scancode::kLeft},
     {"right", scancode::kRight},
     {"up", scancode::kUp},
     {"down", scancode::kDown},
     {"jump", scancode::kSpace}}};

/// Takes what stands before the separator off the text.
std::string_view TakeUntil(std::string_view& text, char separator) {
  const size_t end = text.find(separator);
  const std::string_view taken = text.substr(0, end);
  text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
  return taken;
}

std::vector<std::string_view> Words(std::string_view line) {
  std::vector<std::string_view> words;
  for (size_t start = line.find_first_not_of(kBlanks); start != std::string_view::npos;) {
    const size_t end = std::min(line.find_first_of(kBlanks, start), line.size());
    words.push_back(line.substr(start, end - start));
    start = line.find_first_not_of(kBlanks, end);
  }
  return words;
}

int ParseCount(std::string_view word, int line) {
  int count = 0;
  const auto [end, failure] = std::from_chars(word.data(), word.data() + word.size(), count);
  if (failure != std::errc() || end != word.data() + word.size() || count < 1 ||
      count > kMostFrames) {
    throw ScriptError(line, "\"" + std::string(word) + "\" is no number of frames");
  }
  return count;
}

std::vector<uint8_t> ParseKeys(std::string_view word, int line) {
  std::vector<uint8_t> held;
  if (word == "-") return held;
  const std::string_view whole = word;
  for (bool more = true; more;) {
    more = word.find('+') != std::string_view::npos;
    const std::string_view name = TakeUntil(word, '+');
    const auto* const key = std::ranges::find(kKeys, name, &decltype(kKeys)::value_type::first);
    if (key == kKeys.end()) {
      throw ScriptError(line, "\"" + std::string(name) + "\" in \"" + std::string(whole) +
                                  "\" is no key; the keys are left, right, up, down, jump");
    }
    held.push_back(key->second);
  }
  return held;
}

}  // namespace

std::vector<KeyRun> ParseScript(std::string_view text) {
  std::vector<KeyRun> runs;
  for (int number = 1; !text.empty(); ++number) {
    std::string_view line = TakeUntil(text, '\n');
    const auto words = Words(TakeUntil(line, '#'));
    if (words.empty()) continue;
    if (words.size() != 2) throw ScriptError(number, "expected a number of frames and keys");
    runs.push_back({ParseCount(words[0], number), ParseKeys(words[1], number)});
  }
  return runs;
}

KeyboardState KeysOf(const KeyRun& run) {
  KeyboardState keys{};
  for (const uint8_t code : run.held) keys[code] = kKeyHeld;
  return keys;
}

}  // namespace track_tool
