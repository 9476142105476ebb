// What can be wrong with a track, and how it is told.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "level/globals.h"

namespace check {

enum class Fault : uint8_t {
  NoWin,            ///< nothing to drive to
  CarFalls,         ///< with no key touched
  CarExplodes,      ///< the same
  CarIsPushed,      ///< the same: something moves it away
  LostStar,         ///< no car can take it
  PlatformAtStart,  ///< sweeps through the car before it stands
  Double,           ///< of a piece that is the same in everything
  Flicker,          ///< faces of two pieces lie in one plane
  NoSize,           ///< 0 or less along an axis
  MissingTexture,
  MissingBackdrop
};
/// A word for programs, such as "no-win".
const char* NameOf(Fault fault);

struct PieceName {
  ObjectType kind = TypeBlock;
  int32_t index = 0;
  auto operator<=>(const PieceName&) const = default;  // NOLINT: no null pointer
};
/// "block", "platform", "ramp", "star".
const char* NameOf(ObjectType kind);
/// Such as "block 12".
std::string Words(const PieceName& piece);
/// As short as it can be told, such as "0.9".
std::string Words(float number);
/// Such as "3 0 45".
std::string Words(const Vector3& place);

struct Finding {
  Fault fault = Fault::NoWin;
  std::optional<PieceName> piece;  ///< none: the track as a whole
  std::optional<PieceName> other;  ///< where two are involved
  Vector3 place;                   ///< where one should look
  std::string text;                ///< a sentence without full stop
};

class Findings : public std::vector<Finding> {
 public:
  /// Of one fault not more is told: nobody reads on.
  static constexpr size_t kMostOfAFault = 1000;

  /// About the track as a whole.
  void Add(Fault fault, const Vector3& place, std::string text);
  /// About a piece: the sentence begins with its name and place.
  void Add(Fault fault, const PieceName& piece, const Vector3& place, const std::string& predicate,
           std::optional<PieceName> other = {});
  bool Full(Fault fault) const;
};

}  // namespace check
