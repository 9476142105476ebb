#include "platform/qt/dialog_boxes.h"

#include <QApplication>
#include <algorithm>

#include "platform/qt/file_box.h"
#include "platform/qt/message_box.h"
#include "platform/qt/window_view.h"

namespace qt {
namespace {

// The active window, else any window that is seen; null before the first is shown.
QWidget* Owner() {
  if (QWidget* active = QApplication::activeWindow()) return active;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->isVisible() && dynamic_cast<WindowView*>(widget) != nullptr) return widget;
  }
  return nullptr;
}

std::optional<std::string> Ask(const dialogs::FileDialog& dialog, QFileDialog::AcceptMode mode) {
  FileBox box(Owner(), dialog, mode);
  if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) return std::nullopt;
  return box.selectedFiles().first().toStdString();
}

}  // namespace

void DialogBoxes::ShowMessage(const std::string& text, const std::string& title) {
  // What the user is reading already must not pile up.
  if (std::ranges::find(open_, text) != open_.end()) return;
  open_.push_back(text);
  MessageBox(Owner(), QString::fromStdString(title), QString::fromStdString(text)).exec();
  open_.pop_back();
}

std::optional<std::string> DialogBoxes::OpenFile(const dialogs::FileDialog& dialog) {
  return Ask(dialog, QFileDialog::AcceptOpen);
}

std::optional<std::string> DialogBoxes::SaveFile(const dialogs::FileDialog& dialog) {
  return Ask(dialog, QFileDialog::AcceptSave);
}

}  // namespace qt
