#include "platform/qt/item_list_view.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace qt {

ItemListView::ItemListView(QWidget* parent, ItemList& list) : QListWidget(parent), list_(list) {
  setItemDelegate(&rows_);
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setTextElideMode(Qt::ElideRight);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollMode(ScrollPerPixel);
  connect(this, &QListWidget::currentRowChanged, this, [this](int row) { list_.UserSelects(row); });
  connect(this, &QListWidget::clicked, this, [this](const QModelIndex& index) {
    if (index.row() == rowBeforePress_) list_.UserSelects(index.row());
  });
}

void ItemListView::Show(const ItemList& list) {
  if (list.Items() != shown_) {
    shown_ = list.Items();
    QStringList lines;
    lines.reserve(static_cast<qsizetype>(shown_.size()));
    for (const std::string& item : shown_) lines.append(QString::fromStdString(item));
    clear();
    addItems(lines);
  }
  setCurrentRow(list.ListIndex());
}

void ItemListView::mousePressEvent(QMouseEvent* event) {
  // The toolkit selects with every button.
  if (event->button() != Qt::LeftButton) return;
  rowBeforePress_ = currentRow();
  QListWidget::mousePressEvent(event);
}

void ItemListView::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!enter || currentRow() < 0) return QListWidget::keyPressEvent(event);
  list_.UserSelects(currentRow());
}

}  // namespace qt
