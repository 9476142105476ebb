// Modal boxes that the user must answer, and the door through which every handler is entered.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace dialogs {

inline constexpr const char* kApplicationTitle = "Vorbilax Level Editor";

/// What a file dialog shows.
struct FileDialog {
  std::string title;
  std::string folder;
  std::string filterText;        ///< its one filter entry, as shown
  std::string pattern;           ///< what that entry lists
  std::string defaultExtension;  ///< without dot; empty: none
};

class Backend {
 public:
  virtual ~Backend() = default;
  virtual void ShowMessage(const std::string& text, const std::string& title) = 0;
  /// The chosen full path, or nothing when the user cancelled.
  virtual std::optional<std::string> OpenFile(const FileDialog& dialog) = 0;
  /// Does not ask before an existing file is replaced.
  virtual std::optional<std::string> SaveFile(const FileDialog& dialog) = 0;
};

/// Names the backend that shows the dialogs; it must outlive its use. Null: messages are dropped
/// and file dialogs are cancelled.
void Use(Backend* backend);
/// No handler is entered any more, until another backend is named.
void CloseDoor();

/// Message box with an OK button and the application's title.
void ShowMessage(const std::string& text);
std::optional<std::string> OpenFile(const FileDialog& dialog);
std::optional<std::string> SaveFile(const FileDialog& dialog);

/// Runs a handler; an exception's text is shown in a message box instead of passing on.
void Enter(const std::function<void()>& handler);

}  // namespace dialogs
