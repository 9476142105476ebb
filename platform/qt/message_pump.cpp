#include "platform/qt/message_pump.h"

#include <QAbstractEventDispatcher>
#include <chrono>
#include <thread>

namespace qt {

EventPump::EventPump() {
  alarm_.setSingleShot(true);
  alarm_.setTimerType(Qt::PreciseTimer);
}

void EventPump::Pump(double waitMilliseconds) {
  using Moments = std::chrono::steady_clock;
  constexpr double kLongest = 60'000.0;
  const std::chrono::duration<double, std::milli> wait(std::clamp(waitMilliseconds, 0.0, kLongest));
  const auto end = Moments::now() + std::chrono::duration_cast<Moments::duration>(wait);
  QAbstractEventDispatcher& events = *QAbstractEventDispatcher::instance();
  if (events.processEvents(QEventLoop::AllEvents) || waitMilliseconds <= 0.0) return;

  // The alarm counts whole milliseconds and may be one late; what it leaves is slept away exactly.
  const int early = static_cast<int>(wait.count()) - 1;
  if (early > 0) {
    alarm_.start(early);
    events.processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    const bool woken = alarm_.isActive();
    alarm_.stop();
    if (woken) return;
  }
  std::this_thread::sleep_until(end);
}

}  // namespace qt
