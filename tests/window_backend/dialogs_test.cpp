// The real boxes, looked at and then dismissed while they are open.
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>

#include "tests/window_backend/fixture.h"

namespace {

class Dialogs : public fixture::ShownWindow {
 protected:
  Dialogs() { dialog_.folder = folder_.path().toStdString(); }

  /// Runs `look` on the first open box of a kind, as soon as there is one.
  template <class Box>
  void WhenOpen(std::function<void(Box&)> look) {
    auto* const timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [this, timer, look] {
      for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* box = qobject_cast<Box*>(widget);
        if (box == nullptr || !box->isVisible()) continue;
        looked_ = true;
        timer->stop();
        timer->deleteLater();
        return look(*box);
      }
    });
    timer->start(20);
  }
  /// Types a name into the box and confirms it.
  void Answer(const QString& name) {
    WhenOpen<QFileDialog>([name](QFileDialog& box) {
      box.findChild<QLineEdit*>("fileNameEdit")->setText(name);
      QMetaObject::invokeMethod(&box, "accept");
    });
  }
  /// What is said to a name.
  QString Refusal(const QString& name) {
    QString said;
    Answer(name);
    WhenOpen<QMessageBox>([&](QMessageBox& message) {
      said = message.text();
      WhenOpen<QFileDialog>([](QFileDialog& box) { box.reject(); });
      message.accept();
    });
    EXPECT_EQ(dialogs::SaveFile(dialog_), std::nullopt);
    return said;
  }

  bool looked_ = false;
  QTemporaryDir folder_;
  dialogs::FileDialog dialog_{"Save File", "", "Vorbilax Levels *.lvl", "*.lvl", "bin"};
};

TEST_F(Dialogs, HandlerFailureIsShownOnceInAMessageBox) {
  WhenOpen<QMessageBox>([&](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle() + ": " + box.text(), "Vorbilax Level Editor: <b>text");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    dialogs::ShowMessage("<b>text");  // returns at once
    box.accept();
  });
  window_.onKeyDown = [](int16_t&, int) { throw std::out_of_range("<b>text"); };
  Type(Qt::Key_B);
  EXPECT_TRUE(looked_);
}

TEST_F(Dialogs, MessagesAreShownWhole) {
  const std::string path = "/home/" + std::string(250, 'w');
  for (const std::string& text :
       {std::string("You must pause the moving platforms before you can alter them"),
        path + ": /a b/c: damaged", std::string(250, 'm'), std::string("short")}) {
    WhenOpen<QMessageBox>([&](QMessageBox& box) {
      const auto& label = *box.findChild<QLabel*>("qt_msgbox_label");
      const int flags = Qt::AlignLeft | (label.wordWrap() ? Qt::TextWordWrap : 0);
      const QRect room = label.contentsRect();
      const QRect needed =
          label.fontMetrics().boundingRect(room.adjusted(0, 0, 0, 5000), flags, label.text());
      EXPECT_TRUE(needed.width() <= room.width() && needed.height() <= room.height()) << text;
      EXPECT_LE(box.width(), 600) << text;
      EXPECT_EQ(label.text().count('\n'), QString::fromStdString(text).count(": ")) << text;
      box.accept();
    });
    dialogs::ShowMessage(text);
  }
}

TEST_F(Dialogs, SaveDialogIsSetUpAndCanBeCancelled) {
  WhenOpen<QFileDialog>([&](QFileDialog& box) {
    EXPECT_EQ(box.windowTitle(), "Save File");
    EXPECT_EQ(box.directory().absolutePath(), folder_.path());
    EXPECT_EQ(box.nameFilters(), QStringList("Vorbilax Levels *.lvl (*.lvl)"));
    EXPECT_TRUE(box.findChild<QTreeView*>("treeView")->isColumnHidden(2)) << "the type";
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
  EXPECT_EQ(Refusal("a\"b"), "A file name cannot contain a quotation mark.");
  EXPECT_EQ(Refusal(QString(125, QChar(0xFC)) + 'a'), "The file name is too long.");
  Answer(QString(125, QChar(0xFC)));
  EXPECT_TRUE(dialogs::SaveFile(dialog_)) << "254 bytes with the extension";
  dialog_.defaultExtension.clear();
  Answer("missing");
  EXPECT_EQ(dialogs::OpenFile(dialog_), dialog_.folder + "/missing");
}

}  // namespace
