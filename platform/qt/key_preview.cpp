#include "platform/qt/key_preview.h"

#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QMenuBar>

#include "platform/qt/virtual_keys.h"

namespace qt {
namespace {

constexpr int kOnlyAlt = 4;

bool IsKey(QEvent::Type type) {
  return type == QEvent::ShortcutOverride || type == QEvent::KeyPress || type == QEvent::KeyRelease;
}

int16_t Code(const QKeyEvent& event) {
  const int16_t code = VirtualKeyCode(event.key(), event.modifiers());
  // Both window systems count their key codes from the input code + 8.
  constexpr quint32 kFirst = 8;
  if (code != 0 || event.nativeScanCode() < kFirst) return code;
  return VirtualKeyCodeAt(event.nativeScanCode() - kFirst);
}

quint32 Identity(const QKeyEvent& event) {
  return event.nativeScanCode() != 0 ? event.nativeScanCode() : static_cast<quint32>(event.key());
}

}  // namespace

KeyPreview::KeyPreview(QWidget& top, const ::Window& window) : top_(top), window_(window) {
  QCoreApplication::instance()->installEventFilter(this);
}

KeyPreview::~KeyPreview() { QCoreApplication::instance()->removeEventFilter(this); }

bool KeyPreview::eventFilter(QObject* receiver, QEvent* event) {
  // What is released in another window is not told here.
  const bool left =
      event->type() == QEvent::WindowDeactivate || event->type() == QEvent::WindowBlocked;
  if (left && receiver == &top_) held_.clear();
  if (!IsKey(event->type()) || !receiver->isWidgetType()) return false;
  return Filter(*static_cast<QWidget*>(receiver), *static_cast<QKeyEvent*>(event));
}

bool KeyPreview::Filter(const QWidget& receiver, QKeyEvent& event) {
  const bool released = event.type() == QEvent::KeyRelease && !event.isAutoRepeat();
  if (released) held_.remove(Identity(event));
  const bool menu = qobject_cast<const QMenuBar*>(&receiver) != nullptr;
  if (menu || receiver.window() != &top_) return false;
  if (QApplication::activePopupWidget() != nullptr) return false;

  if (event.type() == QEvent::ShortcutOverride) return Override(receiver, event);
  if (!IsFirstStop(receiver)) return false;
  if (event.type() == QEvent::KeyPress) return Press(event);
  if (released) window_.UserReleasesKey(Code(event), ShiftMask(event));
  return false;
}

// Decides whether a shortcut's key goes to the menu: a text box must not claim it for itself.
bool KeyPreview::Override(const QWidget& receiver, QKeyEvent& event) {
  bool repeated = event.isAutoRepeat();
  if (IsFirstStop(receiver)) {
    repeated = repeated || held_.contains(Identity(event));
    held_.insert(Identity(event));
  }
  if (!IsShortcut(event)) return false;
  event.setAccepted(repeated);
  return true;
}

bool KeyPreview::Press(const QKeyEvent& event) const {
  // The menu has had it when the key went down; this is the key being held.
  if (IsShortcut(event)) return true;
  const int16_t code = Code(event);
  const int mask = ShiftMask(event);
  const bool kept = window_.UserPressesKey(code, mask) != code;
  return kept && mask != kOnlyAlt;
}

// A key that its widget does not use climbs to the parents.
bool KeyPreview::IsFirstStop(const QWidget& receiver) const {
  const QWidget* focused = top_.focusWidget();
  return &receiver == (focused != nullptr ? focused : &top_);
}

bool KeyPreview::IsShortcut(const QKeyEvent& event) const {
  const QKeySequence pressed(event.keyCombination());
  const auto actions = top_.findChildren<QAction*>();
  return std::ranges::any_of(actions, [&pressed](const QAction* action) {
    return action->isEnabled() && action->shortcut() == pressed;
  });
}

}  // namespace qt
