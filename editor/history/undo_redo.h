// The commands Undo and Redo, and their menu items.
#pragma once

namespace history {

/// Takes the last step back, or does it again: selects what it changed, shows it in the panel and
/// brings the camera there when it would be out of sight. Nothing outside edit mode.
void UndoStep();
void RedoStep();

/// Enables the two items and names in their captions what they would do.
void ShowInMenu();

}  // namespace history
