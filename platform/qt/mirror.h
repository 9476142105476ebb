// Keeps a widget equal to its control object.
#pragma once

#include <QPointer>
#include <QSignalBlocker>
#include <QString>
#include <QWidget>

#include "platform/controls.h"

namespace qt {

/// A caption as it is: the toolkit would take an ampersand for the mark of an access key.
inline QString Literal(const std::string& caption) {
  return QString::fromStdString(caption).replace('&', "&&");
}

/// The toolkit hands the focus of a disabled widget on to the next one, which may be a button that
/// the next key clicks. Here the window itself takes it.
inline void Enable(QWidget& widget, bool enabled) {
  if (!enabled && widget.window()->focusWidget() == &widget) {
    auto* client = widget.window()->findChild<QWidget*>("client");
    if (client != nullptr) client->setFocus(Qt::OtherFocusReason);
  }
  widget.setEnabled(enabled);
}

/// Places and names `widget`, then repeats every change of `control` on it through `show`, without
/// signals: what the program changes must not look like the user's doing.
template <class Model, class Widget>
void Mirror(Model& control, Widget* widget, void (*show)(const Model&, Widget&)) {
  const Place& place = control.place;
  widget->setGeometry(place.left, place.top, place.width, place.height);
  widget->setObjectName(QString::fromStdString(control.name));
  widget->setAccessibleName(QString::fromStdString(control.accessibleName));
  control.mirror = [&control, show, guard = QPointer<Widget>(widget)] {
    if (guard.isNull()) return;
    const QSignalBlocker quiet(guard.data());
    Enable(*guard, control.Enabled());
    show(control, *guard);
  };
  control.mirror();
}

}  // namespace qt
