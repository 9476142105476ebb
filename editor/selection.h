// The operations on the selected object of the document.
#pragma once

namespace selection {

/// Removes the highlight of the selected object; the selection stays.
void DeselectCurrent();

/// Fills the property panel from the selection and highlights the selected object again.
void ShowProperties();

}  // namespace selection
