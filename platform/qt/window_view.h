// The real window of a Window object.
#pragma once

#include <QWidget>

#include "platform/controls.h"
#include "platform/qt/key_preview.h"

namespace qt {

/// A window of fixed size with a menu bar above its client area and a widget for every control. It
/// starts hidden. `window` and its controls must outlive every message that is handled.
class WindowView : public QWidget {
 public:
  /// `owner` is the view of the window's owner, or null.
  WindowView(::Window& window, WindowView* owner);
  ~WindowView() override;
  bool Shows(const ::Window& window) const { return &window == &window_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Fill();
  QWidget* WidgetFor(Control& control);
  void StayAbove(WindowView& owner);
  void Present();

  ::Window& window_;
  QWidget* client_;
  KeyPreview preview_;
};

}  // namespace qt
