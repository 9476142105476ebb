// The system's requests to end, as events of the toolkit's loop.
#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace qt {

/// While it lives, SIGTERM, SIGHUP and SIGINT run the handler inside the message pump, dialogs
/// included; then every open dialog is closed. One at a time.
class EndSignals {
 public:
  explicit EndSignals(std::function<void()> handler);
  ~EndSignals();
  EndSignals(const EndSignals&) = delete;
  EndSignals& operator=(const EndSignals&) = delete;

 private:
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace qt
