// The selection mark of each kind of piece.
#pragma once

#include "level/pieces.h"

namespace selection {

inline void Mark(BoxObject& box) { box.SelectBlock(); }
inline void Mark(clsRamp& ramp) { ramp.SelectRamp(); }
inline void Mark(clsStar& star) { star.selectstar(); }

inline void Unmark(BoxObject& box) { box.UnSelectBlock(); }
inline void Unmark(clsRamp& ramp) { ramp.UnSelectramp(); }
inline void Unmark(clsStar& star) { star.unSelectStar(); }

}  // namespace selection
