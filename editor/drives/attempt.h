// One drive as it was driven.
#pragma once

#include "drive/drive_state.h"
#include "drive/key_script.h"
#include "drive/path.h"

namespace drives {

struct Attempt {
  drive::KeyScript script;
  drive::Path path;  ///< places only; where it began, then one a frame
  drive::Ending ending = drive::Ending::None;
};

}  // namespace drives
