#include "drive/key_script.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <numeric>
#include <utility>

namespace drive {
namespace {

constexpr int kMostFrames = 1'000'000;
constexpr std::string_view kBlanks = " \t\r\f\v";
constexpr std::array<std::pair<std::string_view, CarKey>, 5> kKeys = {{{"left", kLeftKey},
                                                                       {"right", kRightKey},
                                                                       {"up", kUpKey},
                                                                       {"down", kDownKey},
                                                                       {"jump", kJumpKey}}};

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

CarKeys ParseKeys(std::string_view word, int line) {
  CarKeys keys = 0;
  if (word == "-") return keys;
  const std::string_view whole = word;
  for (bool more = true; more;) {
    more = word.find('+') != std::string_view::npos;
    const std::string_view name = TakeUntil(word, '+');
    const auto* const key = std::ranges::find(kKeys, name, &decltype(kKeys)::value_type::first);
    if (key == kKeys.end()) {
      throw ScriptError(line, "\"" + std::string(name) + "\" in \"" + std::string(whole) +
                                  "\" is no key; the keys are left, right, up, down, jump");
    }
    keys |= key->second;
  }
  return keys;
}

}  // namespace

KeyScript ParseScript(std::string_view text) {
  KeyScript runs;
  for (int number = 1; !text.empty(); ++number) {
    std::string_view line = TakeUntil(text, '\n');
    const auto words = Words(TakeUntil(line, '#'));
    if (words.empty()) continue;
    if (words.size() != 2) throw ScriptError(number, "expected a number of frames and keys");
    runs.push_back({ParseCount(words[0], number), ParseKeys(words[1], number)});
  }
  return runs;
}

std::string ScriptText(const KeyScript& script) {
  std::string text;
  for (const KeyRun& run : script) {
    std::string names;
    for (const auto& [name, key] : kKeys) {
      if ((run.keys & key) == 0) continue;
      if (!names.empty()) names += '+';
      names += name;
    }
    text.append(std::to_string(run.frames)).append(" ").append(names.empty() ? "-" : names);
    text += '\n';
  }
  return text;
}

void AddFrame(KeyScript& script, CarKeys keys) {
  if (script.empty() || script.back().keys != keys || script.back().frames == kMostFrames) {
    script.push_back({0, keys});
  }
  ++script.back().frames;
}

int FrameCount(const KeyScript& script) {
  const auto add = [](int64_t sum, const KeyRun& run) { return sum + run.frames; };
  const int64_t frames = std::accumulate(script.begin(), script.end(), int64_t{0}, add);
  return static_cast<int>(std::min<int64_t>(frames, std::numeric_limits<int>::max()));
}

KeyScript Beginning(const KeyScript& script, int frames) {
  KeyScript beginning;
  for (const KeyRun& run : script) {
    if (frames <= 0) break;
    beginning.push_back({std::min(run.frames, frames), run.keys});
    frames -= run.frames;
  }
  return beginning;
}

CarKeys KeyReader::Next() {
  if (AtEnd()) return 0;
  const KeyRun& run = (*script_)[run_];
  if (++frame_ == run.frames) {
    frame_ = 0;
    ++run_;
  }
  return run.keys;
}

}  // namespace drive
