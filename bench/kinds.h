// The kinds of pieces as names of figures call them.
#pragma once

#include <array>

#include "bench/scenes.h"

namespace bench {

struct NamedKind {
  Kind kind;
  const char* name;
};
inline constexpr std::array kKinds = {
    NamedKind{Kind::Block, "block"}, NamedKind{Kind::Ramp, "ramp"},
    NamedKind{Kind::Platform, "platform"}, NamedKind{Kind::Star, "star"}};

}  // namespace bench
