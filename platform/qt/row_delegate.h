// The rows of lists.
#pragma once

#include <QStyledItemDelegate>

namespace qt {

class RowDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  /// Shows the whole text when the row has no room for it.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;
};

}  // namespace qt
