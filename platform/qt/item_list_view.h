// The widget of a list of lines.
#pragma once

#include <QListWidget>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "platform/qt/row_delegate.h"

namespace qt {

/// A line is chosen by a click, by the arrow keys, and once more by Enter or another click.
class ItemListView : public QListWidget {
 public:
  ItemListView(QWidget* parent, ItemList& list);
  void Show(const ItemList& list);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  ItemList& list_;
  RowDelegate rows_;
  std::vector<std::string> shown_;
  int rowBeforePress_ = -1;
};

}  // namespace qt
