// The operations on the selected object of the document.
#pragma once

#include <cstdint>
#include <string>

namespace selection {

inline constexpr const char* kPauseFirstText =
    "You must pause the moving platforms before you can alter them";
inline constexpr const char* kNotResizableText = "This block type cannot be resized";
inline constexpr const char* kSpecialBlockText =
    "This is a special block and it's texture cannot be changed.";
inline constexpr const char* kTrackFullText =
    "A track cannot hold more than 32768 objects of a kind.";

/// Removes the highlight of the selected object; the selection stays.
void DeselectCurrent();

/// Selects the piece of this kind with this index, which must be there, as a click on its top does.
void Select(int32_t type, int32_t index);

/// Copies the selected object to the clipboard; with `cut` deletes it then.
void CopySelection(bool cut);
/// Adds a new object made from the clipboard, where the camera looks, and selects it. Throws
/// PlatformError, adding nothing, when one of its pictures cannot be loaded.
void PasteClipboard();
/// Adds a copy of the selected object directly behind it and selects it; the clipboard stays.
void DuplicateSelection();
/// Removes the selected object; those after it move down by one.
void DeleteSelection();

/// Moves the selected object by world units. A block stays inside the panel's ranges, each axis
/// for itself; moving platforms must be paused.
void MoveSelection(int32_t dx, int32_t dy, int32_t dz);
/// Sets the sizes that are above 0. Some block kinds refuse; moving platforms must be paused.
void ResizeSelection(int32_t width, int32_t height, int32_t depth);
/// Paints every face that may be painted with a file of TextureDir and removes the highlight.
/// Throws PlatformError when the file cannot be loaded.
void RetextureSelection(const std::string& name);

/// Puts every moving platform back to its initial place.
void ResetPlatforms();

/// Fills the property panel from the selection and highlights the selected object again.
void ShowProperties();

/// False, after a message, when a collection whose last index is `count` can take no more.
bool RoomForOneMore(int32_t count);

}  // namespace selection
