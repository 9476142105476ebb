// Shows every key of a window to its Window object before the focused widget sees it.
#pragma once

#include <QAction>
#include <QHash>
#include <QKeyEvent>
#include <QObject>
#include <QWidget>

#include "platform/controls.h"

namespace qt {

/// Listens to the whole application from its creation to its end. Dialogs, menus and dropped-down
/// lists keep their keys. A menu's shortcut reaches the menu whichever control has the focus, once
/// per key press; where the keyboard has no Latin letters its letter is the key at that letter's
/// place. A key that is held while the active window changes acts in no window until it is pressed
/// anew.
class KeyPreview : public QObject {
 public:
  /// `top` is the real window of `window`; both must outlive this object.
  KeyPreview(QWidget& top, const ::Window& window);
  ~KeyPreview() override;

  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  void NoteWindows(const QWidget& window, QEvent::Type type);
  bool Filter(const QWidget& receiver, QKeyEvent& event);
  bool IsSpent(const QWidget& receiver, const QKeyEvent& event);
  bool Override(const QWidget& receiver, QKeyEvent& event);
  bool Press(const QKeyEvent& event) const;
  bool IsFirstStop(const QWidget& receiver) const;
  QAction* ItemWith(const QKeySequence& keys) const;

  QWidget& top_;
  const ::Window& window_;
  /// The keys pressed and not released since, each with the window that it went down in; null for
  /// one that no window may use any more.
  QHash<quint32, const QWidget*> held_;
};

}  // namespace qt
