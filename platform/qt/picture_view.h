// The widget of a picture area: shows the last picture that it was given.
#pragma once

#include <QImage>
#include <QStringList>
#include <QWidget>

#include "platform/controls.h"
#include "platform/image.h"

namespace qt {

class PictureView : public QWidget {
 public:
  PictureView(QWidget* parent, const PictureArea& area);

  /// Repaints with `picture` at the next chance.
  void Show(const Image& picture);
  /// Shows the area's notes over the picture, and tells them to screen readers.
  void ShowNotes();
  /// The view of a picture area; null when none was built.
  static PictureView* Of(const PictureArea& area);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void PaintPicture(QPainter& painter) const;

  const PictureArea& area_;
  QStringList notes_;
  Image picture_;
};

}  // namespace qt
