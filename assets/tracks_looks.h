// The textures, stretches and kind codes behind the tracks' looks.
#pragma once

#include <cstdint>

#include "assets/tracks_parts.h"

namespace art::tracks {

struct BoxLook {
  const char* front;
  const char* side;
  const char* top;
  uint8_t stretchTop, stretchSide;  ///< 0 one repeat per unit
  uint8_t kind;
};
const BoxLook& StyleOf(Look look);

}  // namespace art::tracks
