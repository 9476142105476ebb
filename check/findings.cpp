#include "check/findings.h"

#include <algorithm>
#include <cstdio>

namespace check {

const char* NameOf(Fault fault) {
  switch (fault) {
    case Fault::NoWin:
      return "no-win";
    case Fault::CarFalls:
      return "car-falls";
    case Fault::CarExplodes:
      return "car-explodes";
    case Fault::CarIsPushed:
      return "car-is-pushed";
    case Fault::LostStar:
      return "lost-star";
    case Fault::PlatformAtStart:
      return "platform-at-start";
    case Fault::Double:
      return "double";
    case Fault::Flicker:
      return "flicker";
    case Fault::NoSize:
      return "no-size";
    case Fault::MissingTexture:
      return "missing-texture";
    case Fault::MissingBackdrop:
      return "missing-backdrop";
  }
  return "";
}

const char* NameOf(ObjectType kind) {
  switch (kind) {
    case TypeBlock:
      return "block";
    case TypeRamp:
      return "ramp";
    case TypePlatform:
      return "platform";
    case TypeStar:
      return "star";
  }
  return "";
}

std::string Words(const PieceName& piece) {
  return std::string(NameOf(piece.kind)).append(" ").append(std::to_string(piece.index));
}

std::string Words(float number) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.7g", double{number});
  return text.data();
}

std::string Words(const Vector3& place) {
  return Words(place.x).append(" ").append(Words(place.y)).append(" ").append(Words(place.z));
}

void Findings::Add(Fault fault, const Vector3& place, std::string text) {
  push_back({fault, {}, {}, place, std::move(text)});
}

void Findings::Add(Fault fault, const PieceName& piece, const Vector3& place,
                   const std::string& predicate, std::optional<PieceName> other) {
  if (Full(fault)) return;
  std::string text = Words(piece).append(" at ").append(Words(place)).append(" ");
  push_back({fault, piece, other, place, text.append(predicate)});
}

bool Findings::Full(Fault fault) const {
  return size() >= kMostOfAFault &&
         static_cast<size_t>(std::ranges::count(*this, fault, &Finding::fault)) >= kMostOfAFault;
}

}  // namespace check
