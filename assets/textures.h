// The pictures blocks wear. Each room of drawings adds one function here.
#pragma once

#include "assets/bake.h"

namespace art {

Pictures KindTextures();      // the looks that tell the kinds of blocks apart
Pictures BuildingTextures();  // house fronts, sides and roofs
Pictures GroundTextures();    // grass, sand, stone and the like
Pictures MadeTextures();      // brick, concrete, roads and paint
Pictures PlateTextures();     // metal, gold and patterns

}  // namespace art
