// The real boxes, looked at and then dismissed while they are open.
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

#include "tests/window_backend/fixture.h"

namespace {

class Dialogs : public fixture::ShownWindow {
 protected:
  Dialogs() { dialog_.folder = folder_.path().toStdString(); }

  /// Runs `look` on the first open box of a kind, as soon as there is one.
  template <class Box>
  void WhenOpen(std::function<void(Box&)> look) {
    QTimer::singleShot(20, [this, look] {
      for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* box = qobject_cast<Box*>(widget);
        if (box == nullptr || !box->isVisible()) continue;
        looked_ = true;
        return look(*box);
      }
      WhenOpen<Box>(look);
    });
  }
  /// Types a name into the box and confirms it.
  void Answer(const QString& name) {
    WhenOpen<QFileDialog>([name](QFileDialog& box) {
      box.findChild<QLineEdit*>("fileNameEdit")->setText(name);
      QMetaObject::invokeMethod(&box, "accept");
    });
  }

  bool looked_ = false;
  QTemporaryDir folder_;
  dialogs::FileDialog dialog_{"Save File", "", "Vorbilax Levels *.lvl", "*.lvl", "bin"};
};

TEST_F(Dialogs, HandlerFailureIsShownInAMessageBox) {
  WhenOpen<QMessageBox>([&](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle(), "Vorbilax Level Editor");
    EXPECT_EQ(box.text(), "<b>text");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
    EXPECT_EQ(box.parentWidget(), top_);
    box.accept();
  });
  window_.onKeyDown = [](int16_t&, int) { throw std::out_of_range("<b>text"); };
  Type(Qt::Key_B);
  EXPECT_TRUE(looked_);
}

TEST_F(Dialogs, SaveDialogIsSetUpAndCanBeCancelled) {
  WhenOpen<QFileDialog>([&](QFileDialog& box) {
    EXPECT_EQ(box.windowTitle(), "Save File");
    EXPECT_EQ(box.directory().absolutePath(), folder_.path());
    EXPECT_EQ(box.nameFilters(), QStringList("Vorbilax Levels *.lvl (*.lvl)"));
    EXPECT_EQ(box.findChild<QComboBox*>("fileTypeCombo")->currentText(), "Vorbilax Levels *.lvl");
    EXPECT_TRUE(box.testOption(QFileDialog::DontUseNativeDialog));
    EXPECT_EQ(box.acceptMode(), QFileDialog::AcceptSave);
    const auto& name = *box.findChild<QLineEdit*>("fileNameEdit");
    EXPECT_TRUE(name.text().isEmpty());
    EXPECT_EQ(name.maxLength(), 255);
    EXPECT_EQ(box.parentWidget(), top_);
    box.reject();
  });
  EXPECT_EQ(dialogs::SaveFile(dialog_), std::nullopt);
  EXPECT_TRUE(looked_);
}

TEST_F(Dialogs, SaveReplacesAndOpenTakesAMissingFileWithoutAsking) {
  QFile file(folder_.filePath("old.lvl"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  Answer("track");
  EXPECT_EQ(dialogs::SaveFile(dialog_), dialog_.folder + "/track.bin");
  Answer("old.lvl");
  EXPECT_EQ(dialogs::SaveFile(dialog_), dialog_.folder + "/old.lvl");
  dialog_.defaultExtension.clear();
  Answer("missing");
  EXPECT_EQ(dialogs::OpenFile(dialog_), dialog_.folder + "/missing");
}

}  // namespace
