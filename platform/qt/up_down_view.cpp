#include "platform/qt/up_down_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>

#include "platform/qt/flat_style.h"

namespace qt {

ArrowButton::ArrowButton(QWidget* parent, bool up) : QAbstractButton(parent), up_(up) {
  setAutoRepeat(true);
  setAutoRepeatDelay(400);
  setAutoRepeatInterval(60);
  // The keys belong to the number beside it.
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_Hover);
}

QSize ArrowButton::sizeHint() const { return {17, 10}; }

bool ArrowButton::event(QEvent* event) {
  // The release will go to the other window; without it the click would repeat behind that one.
  if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::WindowDeactivate) {
    setDown(false);
    QMouseEvent release(QEvent::MouseButtonRelease, {-1, -1}, mapToGlobal(QPointF(-1, -1)),
                        Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    mouseReleaseEvent(&release);
  }
  return QAbstractButton::event(event);
}

void ArrowButton::paintEvent(QPaintEvent*) {
  QStyleOption option;
  option.initFrom(this);
  option.state.setFlag(QStyle::State_Sunken, isDown());
  QPainter painter(this);
  DrawButtonBox(painter, rect(), option.state);
  DrawChevron(painter, rect(), up_, isEnabled());
}

void ArrowButton::mouseReleaseEvent(QMouseEvent* event) {
  QAbstractButton::mouseReleaseEvent(event);
  if (letGo) letGo();
}

UpDownView::UpDownView(QWidget* parent, const std::function<void(bool up)>& onClick,
                       const std::function<void()>& onRelease)
    : QWidget(parent), up_(this, true), down_(this, false) {
  up_.letGo = down_.letGo = onRelease;
  connect(&up_, &QAbstractButton::clicked, this, [onClick] { onClick(true); });
  connect(&down_, &QAbstractButton::clicked, this, [onClick] { onClick(false); });
}

void UpDownView::Names(const QString& name, const QString& spokenName) {
  up_.setObjectName(name + "_up");
  down_.setObjectName(name + "_down");
  up_.setAccessibleName(spokenName + " up");
  down_.setAccessibleName(spokenName + " down");
}

void UpDownView::resizeEvent(QResizeEvent*) {
  // The halves share their middle line.
  const int half = (height() + 1) / 2;
  up_.setGeometry(0, 0, width(), half);
  down_.setGeometry(0, height() - half, width(), half);
}

}  // namespace qt
