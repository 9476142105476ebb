// Menu bars from menu items.
#pragma once

#include <QMenuBar>
#include <vector>

#include "platform/controls.h"

namespace qt {

/// Fills `bar` with the menus and mirrors them. Shortcuts work in the whole window of `bar`.
void BuildMenus(QMenuBar& bar, const std::vector<MenuItem*>& menus);

}  // namespace qt
