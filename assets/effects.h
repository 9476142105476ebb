// Small cut-out pictures: the explosion, sparks, the car's shadow, the program's icon.
#pragma once

#include "assets/bake.h"

namespace art {

/// explode1.bmp to explode16.bmp; pure black is see-through.
Pictures Explosion();

/// starParticle.bmp and shadowimage.bmp; magenta is see-through.
Pictures CutOuts();

Pictures Icon();

}  // namespace art
