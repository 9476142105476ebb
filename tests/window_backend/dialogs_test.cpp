// The real boxes, looked at and then dismissed while they are open.
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

#include "tests/window_backend/fixture.h"

namespace {

// Runs `look` on the first open box of a kind, as soon as there is one.
template <class Box>
void WhenOpen(std::function<void(Box&)> look) {
  QTimer::singleShot(20, [look] {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      auto* box = qobject_cast<Box*>(widget);
      if (box != nullptr && box->isVisible()) return look(*box);
    }
    WhenOpen<Box>(look);
  });
}

class Dialogs : public fixture::ShownWindow {
 protected:
  Dialogs() { dialog_.folder = folder_.path().toStdString(); }

  QTemporaryDir folder_;
  dialogs::FileDialog dialog_{"Save File", "", "Vorbilax Levels *.lvl", "*.lvl", "bin"};
};

TEST_F(Dialogs, MessageBoxHasTitleTextAndOneButton) {
  bool looked = false;
  WhenOpen<QMessageBox>([&](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle(), "Vorbilax Level Editor");
    EXPECT_EQ(box.text(), "<b>text");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
    EXPECT_EQ(box.parentWidget(), top_);
    looked = true;
    box.accept();
  });
  dialogs::ShowMessage("<b>text");
  EXPECT_TRUE(looked);
}

TEST_F(Dialogs, SaveDialogIsSetUpAndCanBeCancelled) {
  bool looked = false;
  WhenOpen<QFileDialog>([&](QFileDialog& box) {
    EXPECT_EQ(box.windowTitle(), "Save File");
    EXPECT_EQ(box.directory().absolutePath(), folder_.path());
    EXPECT_EQ(box.nameFilters(), QStringList("Vorbilax Levels *.lvl (*.lvl)"));
    EXPECT_TRUE(box.testOption(QFileDialog::HideNameFilterDetails));
    EXPECT_TRUE(box.testOption(QFileDialog::DontConfirmOverwrite));
    EXPECT_TRUE(box.testOption(QFileDialog::DontUseNativeDialog));
    EXPECT_EQ(box.acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(box.defaultSuffix(), "bin");
    const auto& name = *box.findChild<QLineEdit*>("fileNameEdit");
    EXPECT_TRUE(name.text().isEmpty());
    EXPECT_EQ(name.maxLength(), 255);
    EXPECT_EQ(box.parentWidget(), top_);
    looked = true;
    box.reject();
  });
  EXPECT_EQ(dialogs::SaveFile(dialog_), std::nullopt);
  EXPECT_TRUE(looked);
}

TEST_F(Dialogs, FilterIsShownAsGiven) {
  WhenOpen<QFileDialog>([](QFileDialog& box) {
    const auto& filters = *box.findChild<QComboBox*>("fileTypeCombo");
    EXPECT_EQ(filters.count(), 1);
    EXPECT_EQ(filters.currentText(), "Vorbilax Levels *.lvl");
    box.reject();
  });
  dialogs::OpenFile(dialog_);
}

// Types a name into the box and confirms it.
void Answer(const QString& name) {
  WhenOpen<QFileDialog>([name](QFileDialog& box) {
    box.findChild<QLineEdit*>("fileNameEdit")->setText(name);
    QMetaObject::invokeMethod(&box, "accept");
  });
}

TEST_F(Dialogs, SaveAddsTheDefaultExtensionOnlyToABareName) {
  Answer("track");
  EXPECT_EQ(dialogs::SaveFile(dialog_), dialog_.folder + "/track.bin");
  Answer("track.lvl");
  EXPECT_EQ(dialogs::SaveFile(dialog_), dialog_.folder + "/track.lvl");
}

TEST_F(Dialogs, OpenTakesAFileThatDoesNotExist) {
  dialog_.defaultExtension.clear();
  Answer("missing");
  EXPECT_EQ(dialogs::OpenFile(dialog_), dialog_.folder + "/missing");
}

TEST_F(Dialogs, SaveReplacesWithoutAsking) {
  QFile file(folder_.filePath("old.lvl"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  Answer("old.lvl");
  EXPECT_EQ(dialogs::SaveFile(dialog_), dialog_.folder + "/old.lvl");
}

}  // namespace
