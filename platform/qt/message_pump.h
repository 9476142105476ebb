// The queue of window messages.
#pragma once

#include <QTimer>

#include "platform/controls.h"

namespace qt {

/// Sleeps in the operating system while nothing happens; wakes within about a millisecond of the
/// wait's end. Needs the application object.
class EventPump : public MessagePump {
 public:
  EventPump();
  void Pump(double waitMilliseconds) override;

 private:
  QTimer alarm_;
};

}  // namespace qt
