// Message boxes and file dialogs.
#pragma once

#include <string>
#include <vector>

#include "platform/dialogs.h"

namespace qt {

/// Boxes belong to the active window. A message that is being shown is not shown a second time.
class DialogBoxes : public dialogs::Backend {
 public:
  void ShowMessage(const std::string& text, const std::string& title) override;
  std::optional<std::string> OpenFile(const dialogs::FileDialog& dialog) override;
  std::optional<std::string> SaveFile(const dialogs::FileDialog& dialog) override;

 private:
  std::vector<std::string> open_;  ///< the messages being shown
};

}  // namespace qt
