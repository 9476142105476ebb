// Shows every key of a window to its Window object before the focused widget sees it.
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QSet>
#include <QWidget>

#include "platform/controls.h"

namespace qt {

/// Listens to the whole application from its creation to its end. Dialogs, menus and dropped-down
/// lists keep their keys. A menu's shortcut reaches the menu whichever control has the focus, once
/// per key press.
class KeyPreview : public QObject {
 public:
  /// `top` is the real window of `window`; both must outlive this object.
  KeyPreview(QWidget& top, const ::Window& window);
  ~KeyPreview() override;

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  bool Filter(const QWidget& receiver, QKeyEvent& event);
  bool Override(const QWidget& receiver, QKeyEvent& event);
  bool Press(const QKeyEvent& event) const;
  bool IsFirstStop(const QWidget& receiver) const;
  bool IsShortcut(const QKeyEvent& event) const;

  QWidget& top_;
  const ::Window& window_;
  QSet<quint32> held_;  ///< keys pressed and not released since
};

}  // namespace qt
