#include "platform/qt/menus.h"

#include <QAction>
#include <QMenu>
#include <QPointer>

#include "platform/qt/mirror.h"

namespace qt {
namespace {

void Show(const MenuItem& item, QAction& action) {
  action.setText(Literal(item.Caption()));
  action.setEnabled(item.Enabled());
  action.setCheckable(item.checkable);
  action.setChecked(item.Checked());
}

void Mirror(MenuItem& item, QAction* action) {
  action->setObjectName(QString::fromStdString(item.name));
  // One command per key press, however long the key is held.
  action->setAutoRepeat(false);
  if (!item.shortcut.empty()) {
    action->setShortcuts({QKeySequence(QString::fromStdString(item.shortcut)),
                          QKeySequence(QString::fromStdString(item.otherShortcut))});
    action->setShortcutContext(Qt::WindowShortcut);
  }
  item.mirror = [&item, guard = QPointer<QAction>(action)] {
    if (!guard.isNull()) Show(item, *guard);
  };
  item.mirror();
  QObject::connect(action, &QAction::triggered, action, [&item, action] {
    // The toolkit has moved the check mark; the program decides where it belongs.
    action->setChecked(item.Checked());
    item.UserClicks();
  });
}

void Fill(QWidget& menu, const std::vector<MenuItem*>& items) {
  for (MenuItem* item : items) {
    auto* action = new QAction(&menu);
    if (!item->items.empty()) {
      auto* inner = new QMenu(&menu);
      inner->setObjectName(QString::fromStdString(item->name) + "_list");
      Fill(*inner, item->items);
      action->setMenu(inner);
    }
    menu.addAction(action);
    Mirror(*item, action);
  }
}

}  // namespace

void BuildMenus(QMenuBar& bar, const std::vector<MenuItem*>& menus) {
  // A menu bar outside the window would change the client area's place.
  bar.setNativeMenuBar(false);
  Fill(bar, menus);
}

}  // namespace qt
