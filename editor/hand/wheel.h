// The mouse wheel over the picture.
#pragma once

namespace wheel {

/// Scrolls the camera along the track in edit mode, five units a notch, away from the user
/// forwards; parts of a notch add up. Stays inside the scroll bar's range.
void Turn(double notches);

}  // namespace wheel
