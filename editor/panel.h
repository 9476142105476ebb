// What the controls of the property panel and the texture list do.
#pragma once

namespace panel {

/// Gives every control of the panel and the texture list its event.
void ConnectEvents();

/// Pauses the platforms, or lets them run again, from their starts.
void cmd_pause_Click();
/// Pauses running platforms, whatever the button's caption says.
void PausePlatforms();

/// The sizes by the up-down that shows them.
enum class SizeAxis { Height, Width, Depth };
/// Steps a size by one through its up-down; nothing at the limit.
void StepSize(SizeAxis axis, int step);

}  // namespace panel
