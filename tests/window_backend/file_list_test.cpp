#include <QListWidget>
#include <QTemporaryDir>
#include <fstream>

#include "platform/qt/images.h"
#include "tests/window_backend/fixture.h"

namespace {

class FileLists : public fixture::ShownWindow {
 protected:
  FileLists() {
    qt::SaveImageFile(Image(8, 8, 0xFFFF0000), Path("a.bmp"));
    std::ofstream(Path("b.bmp")) << "damaged";
    std::ofstream(Path("c.txt")) << "other";
    qt::SaveImageFile(Image(8, 8, 0xFF00FF00), Path("d.bmp"));
    window_.list.pattern = "*.bmp";
    window_.list.Folder(folder_.path().toStdString());
  }

  std::string Path(const char* name) { return folder_.filePath(name).toStdString(); }
  QListWidget& View() { return Find<QListWidget>("list"); }

  QTemporaryDir folder_;
};

TEST_F(FileLists, ShowsTheEntries) {
  ASSERT_EQ(View().count(), 3);
  EXPECT_EQ(View().item(0)->text(), "a.bmp");
  EXPECT_EQ(View().item(2)->text(), "d.bmp");
  EXPECT_EQ(View().currentRow(), -1);
}

TEST_F(FileLists, SelectionBothWays) {
  window_.list.ListIndex(2);
  EXPECT_EQ(View().currentRow(), 2);
  View().setCurrentRow(1);
  EXPECT_EQ(window_.list.FileName(), "b.bmp");
}

TEST_F(FileLists, DoubleClickSelectsAndReports) {
  std::string painted;
  window_.list.onDoubleClick = [&] { painted = window_.list.FileName(); };
  emit View().doubleClicked(View().model()->index(2, 0));
  EXPECT_EQ(painted, "d.bmp");
}

TEST_F(FileLists, RowsShowTheirPicturesAndDamagedFilesNone) {
  const QImage shown = View().grab().toImage();
  const double scale = View().devicePixelRatioF();
  const auto colourIn = [&](int row) {
    const QRect place = View().visualItemRect(View().item(row));
    const QPoint inside = View().viewport()->pos() + place.topLeft() + QPoint(14, 14);
    return shown.pixelColor((QPointF(inside) * scale).toPoint());
  };
  EXPECT_EQ(colourIn(0), QColor(255, 0, 0));
  EXPECT_EQ(colourIn(1), View().palette().color(QPalette::Base));
  EXPECT_EQ(colourIn(2), QColor(0, 255, 0));
}

}  // namespace
