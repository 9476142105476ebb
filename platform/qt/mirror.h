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
    guard->setEnabled(control.Enabled());
    show(control, *guard);
  };
  control.mirror();
}

}  // namespace qt
