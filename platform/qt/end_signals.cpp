#include "platform/qt/end_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <QDialog>
#include <array>
#include <cerrno>
#include <csignal>
#include <utility>

#include "platform/dialogs.h"

namespace qt {
namespace {

constexpr std::array kSignals = {SIGTERM, SIGHUP, SIGINT};

// A handler may do next to nothing: it writes a byte, and the loop reads it.
std::array<int, 2> ends = {-1, -1};

void Note(int) {
  const int error = errno;
  [[maybe_unused]] const ssize_t written = write(ends[1], "", 1);
  errno = error;
}

void CloseDialogs() {
  while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (auto* dialog = qobject_cast<QDialog*>(widget)) dialog->reject();
  }
}

}  // namespace

EndSignals::EndSignals(std::function<void()> handler) {
  if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  notifier_ = std::make_unique<QSocketNotifier>(ends[0], QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, [handler = std::move(handler)] {
    std::array<char, 16> bytes{};
    [[maybe_unused]] const ssize_t taken = read(ends[0], bytes.data(), bytes.size());
    dialogs::Enter(handler);
    CloseDialogs();
  });
  for (const int signal : kSignals) std::signal(signal, Note);
}

EndSignals::~EndSignals() {
  for (const int signal : kSignals) std::signal(signal, SIG_DFL);
  notifier_.reset();
  for (int& end : ends) close(std::exchange(end, -1));
}

}  // namespace qt
