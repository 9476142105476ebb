// The box around a piece.
#pragma once

#include "platform/values.h"

struct Extent {
  Vector3 corner, size;  ///< a negative size goes the other way
};
