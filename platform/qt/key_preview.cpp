#include "platform/qt/key_preview.h"

#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QMenuBar>

#include "platform/qt/virtual_keys.h"
#include "platform/qt/x_held_keys.h"

namespace qt {
namespace {

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

// The keys pressed, named by the letter at the key's place; nothing for a key that has a code.
QKeySequence ByPlace(const QKeyEvent& event) {
  const int16_t code = Code(event);
  if (code < 'A' || code > 'Z' || VirtualKeyCode(event.key(), event.modifiers()) != 0) return {};
  return QKeyCombination(event.modifiers(), static_cast<Qt::Key>(code));
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
  if (!receiver->isWidgetType()) return false;
  auto& widget = *static_cast<QWidget*>(receiver);
  if (widget.isWindow()) NoteWindows(widget, event->type());
  return IsKey(event->type()) && Filter(widget, *static_cast<QKeyEvent*>(event));
}

void KeyPreview::NoteWindows(const QWidget& window, QEvent::Type type) {
  if (type == QEvent::WindowBlocked && &window == &top_) {
    for (const QWidget*& user : held_) user = nullptr;
    window_.UserReleasesKey(0, 0);
  }
  if (type != QEvent::WindowActivate && type != QEvent::WindowUnblocked) return;
  // What was released while no window of the program had the keyboard was not told here.
  const std::bitset<256> down = KeysDown();
  held_.removeIf([&down](const auto& key) { return key.key() >= down.size() || !down[key.key()]; });
}

bool KeyPreview::Filter(const QWidget& receiver, QKeyEvent& event) {
  const bool released = event.type() == QEvent::KeyRelease && !event.isAutoRepeat();
  if (released) held_.remove(Identity(event));
  if (event.type() != QEvent::KeyRelease && IsSpent(receiver, event)) return true;
  const bool menu = qobject_cast<const QMenuBar*>(&receiver) != nullptr;
  if (menu || receiver.window() != &top_) return false;
  if (QApplication::activePopupWidget() != nullptr) return false;

  if (event.type() == QEvent::ShortcutOverride) return Override(receiver, event);
  if (!IsFirstStop(receiver)) return false;
  if (event.type() == QEvent::KeyPress) return Press(event);
  if (released) window_.UserReleasesKey(Code(event), ShiftMask(event));
  return false;
}

// Whether the key went down in another window than the one that gets it now.
bool KeyPreview::IsSpent(const QWidget& receiver, const QKeyEvent& event) {
  if (QApplication::activePopupWidget() != nullptr) {
    // A menu may be walked through with one key, and what it opens must not see that key.
    held_.insert(Identity(event), nullptr);
    return false;
  }
  const auto known = held_.constFind(Identity(event));
  if (known != held_.cend()) return *known != receiver.window();
  // Override has to see which presses in the window are new.
  if (receiver.window() != &top_) held_.insert(Identity(event), receiver.window());
  return false;
}

// Decides whether a shortcut's key goes to the menu: a text box must not claim it for itself.
bool KeyPreview::Override(const QWidget& receiver, QKeyEvent& event) {
  bool repeated = event.isAutoRepeat();
  if (IsFirstStop(receiver)) {
    repeated = repeated || held_.contains(Identity(event));
    held_.insert(Identity(event), &top_);
  }
  if (ItemWith(QKeySequence(event.keyCombination())) != nullptr) {
    event.setAccepted(repeated);
    return true;
  }
  QAction* item = ItemWith(ByPlace(event));
  if (item == nullptr) return false;
  // The toolkit must not look for it as well: it may know another keyboard that has the letter.
  event.accept();
  if (!repeated) item->trigger();
  return true;
}

bool KeyPreview::Press(const QKeyEvent& event) const {
  // The menu has had it when the key went down; this is the key being held.
  if (ItemWith(QKeySequence(event.keyCombination())) != nullptr) return true;
  if (ItemWith(ByPlace(event)) != nullptr) return true;
  // Commands with this key belong to the desktop.
  if (event.modifiers().testFlag(Qt::MetaModifier)) return true;
  const int16_t code = Code(event);
  const int mask = ShiftMask(event);
  const bool kept = window_.UserPressesKey(code, mask) != code;
  // Alt alone opens the menus; what is pressed with it must not reach a control.
  return kept && event.key() != Qt::Key_Alt;
}

// A key that its widget does not use climbs to the parents.
bool KeyPreview::IsFirstStop(const QWidget& receiver) const {
  const QWidget* focused = top_.focusWidget();
  return &receiver == (focused != nullptr ? focused : &top_);
}

QAction* KeyPreview::ItemWith(const QKeySequence& keys) const {
  const auto actions = top_.findChildren<QAction*>();
  const auto found = std::ranges::find_if(actions, [&keys](const QAction* action) {
    return !keys.isEmpty() && action->isEnabled() && action->shortcuts().contains(keys);
  });
  return found != actions.end() ? *found : nullptr;
}

}  // namespace qt
