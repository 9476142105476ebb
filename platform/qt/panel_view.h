// The light panel with a thin border that a frame becomes.
#pragma once

#include <QWidget>

namespace qt {

class PanelView : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace qt
