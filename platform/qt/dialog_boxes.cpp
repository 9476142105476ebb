#include "platform/qt/dialog_boxes.h"

#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>

#include "platform/qt/window_view.h"

namespace qt {
namespace {

constexpr int kLongestName = 255;
constexpr int kMessageWidth = 260;

// The active window, else any window that is seen; null before the first is shown.
QWidget* Owner() {
  if (QWidget* active = QApplication::activeWindow()) return active;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->isVisible() && dynamic_cast<WindowView*>(widget) != nullptr) return widget;
  }
  return nullptr;
}

void SetUp(QFileDialog& box, const dialogs::FileDialog& dialog) {
  // Without details hidden the pattern would be shown a second time.
  box.setOptions(box.options() | QFileDialog::DontUseNativeDialog |
                 QFileDialog::HideNameFilterDetails);
  box.setWindowTitle(QString::fromStdString(dialog.title));
  box.setDirectory(QString::fromStdString(dialog.folder));
  box.setNameFilter(QString::fromStdString(dialog.filterText + " (" + dialog.pattern + ")"));
  box.setFileMode(QFileDialog::AnyFile);
  box.setDefaultSuffix(QString::fromStdString(dialog.defaultExtension));
  if (auto* name = box.findChild<QLineEdit*>("fileNameEdit")) {
    name->clear();
    name->setMaxLength(kLongestName);
    name->setFocus();
  }
}

std::optional<std::string> Ask(QFileDialog& box) {
  if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) return std::nullopt;
  return box.selectedFiles().first().toStdString();
}

}  // namespace

void DialogBoxes::ShowMessage(const std::string& text, const std::string& title) {
  QMessageBox box(QMessageBox::NoIcon, QString::fromStdString(title), QString::fromStdString(text),
                  QMessageBox::Ok, Owner());
  // A file's name in the text must not be read as markup.
  box.setTextFormat(Qt::PlainText);
  // Wide enough for the title.
  if (auto* label = box.findChild<QLabel*>("qt_msgbox_label"))
    label->setMinimumWidth(kMessageWidth);
  box.exec();
}

std::optional<std::string> DialogBoxes::OpenFile(const dialogs::FileDialog& dialog) {
  QFileDialog box(Owner());
  SetUp(box, dialog);
  box.setAcceptMode(QFileDialog::AcceptOpen);
  return Ask(box);
}

std::optional<std::string> DialogBoxes::SaveFile(const dialogs::FileDialog& dialog) {
  QFileDialog box(Owner());
  SetUp(box, dialog);
  box.setOption(QFileDialog::DontConfirmOverwrite);
  box.setAcceptMode(QFileDialog::AcceptSave);
  return Ask(box);
}

}  // namespace qt
