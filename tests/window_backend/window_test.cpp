// File lists and the message pump.
#include <QListWidget>
#include <QMouseEvent>
#include <QPixmap>
#include <QTemporaryDir>
#include <QTimer>
#include <chrono>
#include <ctime>
#include <fstream>

#include "platform/qt/images.h"
#include "tests/window_backend/fixture.h"

namespace {

using Windows = fixture::ShownWindow;

TEST_F(Windows, FileListsShowPicturesAndMirrorTheSelection) {
  const QTemporaryDir folder;
  const auto path = [&](const char* name) { return folder.filePath(name).toStdString(); };
  qt::SaveImageFile(Image(8, 8, 0xFFFF0000), path("a.bmp"));
  for (const char* name : {"b.bmp", "c.txt"}) std::ofstream(path(name)) << "damaged";
  qt::SaveImageFile(Image(8, 8, 0xFF00FF00), path("d.bmp"));
  c.File1.Folder(folder.path().toStdString());
  auto& view = Find<QListWidget>("File1");
  ASSERT_EQ(view.count(), 3);
  EXPECT_EQ(view.currentRow(), -1);

  const QImage shown = view.grab().toImage();
  const QColor colours[] = {{255, 0, 0}, view.palette().color(QPalette::Base), {0, 255, 0}};
  for (int row = 0; row < 3; ++row) {
    const QPoint place = view.visualItemRect(view.item(row)).topLeft() + QPoint(14, 14);
    const QPointF inside = (view.viewport()->pos() + place) * view.devicePixelRatioF();
    EXPECT_EQ(shown.pixelColor(inside.toPoint()), colours[row]) << row;
  }

  c.File1.ListIndex(2);
  EXPECT_EQ(view.currentRow(), 2);
  view.setCurrentRow(1);
  EXPECT_EQ(c.File1.FileName(), "b.bmp");
  c.File1.onDoubleClick = count_;
  const QPointF at = view.visualItemRect(view.item(2)).center();
  for (const auto button : {Qt::RightButton, Qt::LeftButton}) {
    EXPECT_EQ(events_, 0) << "the right button";
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonDblClick}) {
      QMouseEvent event(type, at, view.viewport()->mapToGlobal(at), button, button, {});
      QApplication::sendEvent(view.viewport(), &event);
    }
  }
  EXPECT_EQ(events_, 1);
}

double PumpFor(double milliseconds) {
  using Moments = std::chrono::steady_clock;
  fixture::Settle();
  const auto begin = Moments::now();
  fixture::Toolkit().Pump().Pump(milliseconds);
  return std::chrono::duration<double, std::milli>(Moments::now() - begin).count();
}

TEST(Pump, WaitsAboutAsLongAsAskedWithoutSpinningAndWakesForAnEvent) {
  // Other programs may delay a wait, never shorten every one.
  double longest = 0.0;
  const std::clock_t before = std::clock();
  for (int round = 0; round < 10; ++round) longest = std::max(longest, PumpFor(39.5));
  EXPECT_GE(longest, 39.5);
  EXPECT_LT(static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC, 0.2);

  QTimer::singleShot(20, [] {});
  EXPECT_LT(PumpFor(5000.0), 3000.0);
}

}  // namespace
