#include "platform/qt/panel_view.h"

#include <QPainter>

#include "platform/qt/colours.h"

namespace qt {

void PanelView::paintEvent(QPaintEvent*) {
  constexpr double kRadius = 4.0;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor::fromRgb(colours::kSoftLine), 1.0));
  painter.setBrush(QColor::fromRgb(colours::kSurface));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
}

}  // namespace qt
