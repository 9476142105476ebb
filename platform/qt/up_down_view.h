// A pair of small arrow buttons, one above the other.
#pragma once

#include <QAbstractButton>
#include <QWidget>
#include <functional>

namespace qt {

/// Half of the pair; repeats its click while it is held and its window can be used.
class ArrowButton : public QAbstractButton {
 public:
  ArrowButton(QWidget* parent, bool up);
  QSize sizeHint() const override;
  bool event(QEvent* event) override;
  std::function<void()> letGo;  ///< after the last click

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  bool up_;
};

class UpDownView : public QWidget {
 public:
  /// `onClick` gets whether the upper button was clicked; `onRelease` runs when it is let go.
  UpDownView(QWidget* parent, const std::function<void(bool up)>& onClick,
             const std::function<void()>& onRelease);
  /// The buttons are called "name_up" and "name_down".
  void Names(const QString& name, const QString& spokenName);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  ArrowButton up_, down_;
};

}  // namespace qt
