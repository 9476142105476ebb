// Lines of text on a dark plate, legible over any picture.
#pragma once

#include <QPainter>
#include <QStringList>

namespace qt {

/// Paints them at the lower left of `area`, in the painter's font; too long ones are cut short. No
/// lines, no plate.
void PaintNotes(QPainter& painter, const QRect& area, const QStringList& lines);

}  // namespace qt
