// The key script of a drive: which keys are held for how many frames.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "play/car.h"

namespace drive {

/// The same keys held for some frames.
struct KeyRun {
  int frames = 0;
  CarKeys keys = 0;
  bool operator==(const KeyRun&) const = default;
};
using KeyScript = std::vector<KeyRun>;

/// A line that cannot be read; what() names it by its number, from 1.
class ScriptError : public std::runtime_error {
 public:
  ScriptError(int line, const std::string& reason)
      : std::runtime_error("line " + std::to_string(line) + ": " + reason) {}
};

/// Reads lines `COUNT KEYS`: COUNT frames from 1 to a million; KEYS is `-` for none, or names of
/// left, right, up, down, jump joined by `+`. `#` starts a comment; blank lines are skipped. Throws
/// ScriptError.
KeyScript ParseScript(std::string_view text);
/// The text that is read as this script.
std::string ScriptText(const KeyScript& script);

/// Adds a frame to the script's end.
void AddFrame(KeyScript& script, CarKeys keys);
int FrameCount(const KeyScript& script);
/// The first frames of a script.
KeyScript Beginning(const KeyScript& script, int frames);

/// Hands out a script frame by frame.
class KeyReader {
 public:
  explicit KeyReader(const KeyScript& script) : script_(&script) {}
  bool AtEnd() const { return run_ == script_->size(); }
  /// The keys of the next frame; none after the end.
  CarKeys Next();

 private:
  const KeyScript* script_;
  size_t run_ = 0;
  int frame_ = 0;
};

}  // namespace drive
