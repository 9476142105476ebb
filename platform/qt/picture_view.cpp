#include "platform/qt/picture_view.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

#include "platform/error.h"
#include "platform/qt/colours.h"
#include "platform/qt/images.h"
#include "platform/qt/note_plate.h"
#include "platform/qt/virtual_keys.h"

namespace qt {
namespace {

int ButtonNumber(Qt::MouseButton button) {
  switch (button) {
    case Qt::LeftButton:
      return 1;
    case Qt::RightButton:
      return 2;
    case Qt::MiddleButton:
      return 4;
    default:
      return 0;
  }
}

// Shares the picture's bytes.
QImage Wrap(const Image& picture, bool opaque) {
  return {reinterpret_cast<const uchar*>(picture.pixels.data()), picture.width, picture.height,
          picture.width * static_cast<qsizetype>(sizeof(uint32_t)),
          opaque ? QImage::Format_RGB32 : QImage::Format_ARGB32};
}

}  // namespace

PictureView::PictureView(QWidget* parent, const PictureArea& area) : QWidget(parent), area_(area) {
  setFocusPolicy(Qt::ClickFocus);
  try {
    if (!area.picture.empty()) picture_ = LoadImageFile(area.picture);
  } catch (const PlatformError&) {
    // A missing decoration is no reason to stop.
  }
}

void PictureView::Show(const Image& picture) {
  picture_ = picture;
  setAttribute(Qt::WA_OpaquePaintEvent);
  update();
}

PictureView* PictureView::Of(const PictureArea& area) {
  for (QWidget* widget : QApplication::allWidgets()) {
    auto* view = dynamic_cast<PictureView*>(widget);
    if (view != nullptr && &view->area_ == &area) return view;
  }
  return nullptr;
}

void PictureView::ShowNotes() {
  QStringList notes;
  for (const std::string& note : area_.Notes()) notes.append(QString::fromStdString(note));
  if (notes == notes_) return;
  notes_ = notes;
  setAccessibleDescription(notes.join('\n'));
  update();
}

void PictureView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintPicture(painter);
  painter.setFont(QApplication::font());
  PaintNotes(painter, rect(), notes_);
}

void PictureView::PaintPicture(QPainter& painter) const {
  if (picture_.pixels.empty()) {
    painter.fillRect(rect(), QColor::fromRgb(colours::kEmptyPicture));
    return;
  }
  // Frames are opaque: painting them is copying them.
  QImage image = Wrap(picture_, testAttribute(Qt::WA_OpaquePaintEvent));
  const double scale = devicePixelRatioF();
  if (std::abs(picture_.width - width() * scale) < 1.5 &&
      std::abs(picture_.height - height() * scale) < 1.5) {
    // One picture pixel per device pixel: nothing to blur.
    image.setDevicePixelRatio(scale);
    painter.drawImage(QPointF(), image);
    return;
  }
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(rect(), image);
}

void PictureView::mousePressEvent(QMouseEvent* event) {
  const int button = ButtonNumber(event->button());
  if (button == 0) return;
  const QPointF at = event->position();
  area_.UserPresses(button, ShiftMask(event->modifiers()), static_cast<float>(at.x()),
                    static_cast<float>(at.y()));
}

void PictureView::mouseMoveEvent(QMouseEvent* event) {
  if (!event->buttons().testFlag(Qt::LeftButton)) return;
  const QPointF at = event->position();
  area_.UserDrags(ShiftMask(event->modifiers()), static_cast<float>(at.x()),
                  static_cast<float>(at.y()));
}

void PictureView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) area_.UserReleases();
}

void PictureView::wheelEvent(QWheelEvent* event) {
  constexpr double kNotch = 120;  // in eighths of a degree
  area_.UserTurnsWheel(event->angleDelta().y() / kNotch);
  event->accept();
}

// The second click of a quick pair is a press like any other.
void PictureView::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

}  // namespace qt
