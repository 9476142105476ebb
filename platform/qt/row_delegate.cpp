#include "platform/qt/row_delegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

namespace qt {

bool RowDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                            const QStyleOptionViewItem& option, const QModelIndex& index) {
  if (event->type() != QEvent::ToolTip) {
    return QStyledItemDelegate::helpEvent(event, view, option, index);
  }
  QStyleOptionViewItem row(option);
  initStyleOption(&row, index);
  const int room = view->style()->subElementRect(QStyle::SE_ItemViewItemText, &row, view).width() -
                   2 * (view->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, &row, view) + 1);
  const bool elided = row.fontMetrics.horizontalAdvance(row.text) > room;
  QToolTip::showText(event->globalPos(), elided ? row.text : QString(), view);
  return true;
}

}  // namespace qt
