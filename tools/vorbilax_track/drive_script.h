// The key script of a drive: which keys are held for how many frames.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "platform/keyboard.h"

namespace track_tool {

struct KeyRun {
  int frames = 0;
  std::vector<uint8_t> held;  ///< scan codes
};

/// A line that cannot be read; what() names it by its number, from 1.
class ScriptError : public std::runtime_error {
 public:
  ScriptError(int line, const std::string& reason)
      : std::runtime_error("line " + std::to_string(line) + ": " + reason) {}
};

/// Reads lines `COUNT KEYS`: COUNT frames from 1 to a million; KEYS is `-` for none, or names of
/// left, right, up, down, jump joined by `+`. `#` starts a comment; blank lines are skipped. Throws
/// ScriptError.
std::vector<KeyRun> ParseScript(std::string_view text);

/// The keyboard with these keys held.
KeyboardState KeysOf(const KeyRun& run);

}  // namespace track_tool
