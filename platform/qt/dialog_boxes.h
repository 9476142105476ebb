// Message boxes and file dialogs.
#pragma once

#include "platform/dialogs.h"

namespace qt {

/// Boxes belong to the active window. File dialogs are the toolkit's own, the same everywhere.
class DialogBoxes : public dialogs::Backend {
 public:
  void ShowMessage(const std::string& text, const std::string& title) override;
  std::optional<std::string> OpenFile(const dialogs::FileDialog& dialog) override;
  std::optional<std::string> SaveFile(const dialogs::FileDialog& dialog) override;
};

}  // namespace qt
