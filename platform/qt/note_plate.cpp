#include "platform/qt/note_plate.h"

#include <algorithm>

#include "platform/qt/colours.h"

namespace qt {
namespace {

constexpr int kMargin = 8, kPaddingX = 9, kPaddingY = 6, kBetweenLines = 2;
constexpr double kRound = 6;

}  // namespace

void PaintNotes(QPainter& painter, const QRect& area, const QStringList& lines) {
  if (lines.empty()) return;
  const QFontMetrics metrics = painter.fontMetrics();
  const int room = area.width() - 2 * (kMargin + kPaddingX);
  QStringList shown;
  int width = 0;
  for (const QString& line : lines) {
    shown.append(metrics.elidedText(line, Qt::ElideRight, room));
    width = std::max(width, metrics.horizontalAdvance(shown.back()));
  }
  const int step = metrics.height() + kBetweenLines;
  const auto count = static_cast<int>(shown.size());
  QRect plate(0, 0, width + 2 * kPaddingX, count * step - kBetweenLines + 2 * kPaddingY);
  plate.moveBottomLeft(area.bottomLeft() + QPoint(kMargin, -kMargin));

  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor::fromRgba(colours::kPlate));
  painter.drawRoundedRect(plate, kRound, kRound);
  painter.setPen(QColor::fromRgb(colours::kPlateText));
  int baseline = plate.top() + kPaddingY + metrics.ascent();
  for (const QString& line : shown) {
    painter.drawText(plate.left() + kPaddingX, baseline, line);
    baseline += step;
  }
}

}  // namespace qt
