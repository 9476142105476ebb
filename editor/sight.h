// What the camera shows.
#pragma once

#include "platform/values.h"

namespace sight {

/// Moves the camera along the track to the point, unless it shows it already.
void Bring(const Vector3& point);
/// The same with the selected piece; false when nothing is selected.
bool BringSelection();

}  // namespace sight
