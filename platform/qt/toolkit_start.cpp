#include "platform/qt/toolkit_start.h"

#include <QScreen>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "platform/dialogs.h"

namespace qt {
namespace {

constexpr const char* kScaleVariable = "QT_SCALE_FACTOR";
// What the menu bar, the title and the border may add to a client area.
constexpr QSize kAround(4, 60);

// The toolkit ends the process by a signal when it finds no display, after several messages.
void TellOfMissingDisplay(QtMsgType type, const QMessageLogContext&, const QString&) {
  if (type != QtFatalMsg) return;
  std::fprintf(stderr, "%s needs a display.\n", dialogs::kApplicationTitle);
  std::_Exit(EXIT_FAILURE);
}

std::unique_ptr<QApplication> Create(int& argc, char** argv) {
  const QtMessageHandler former = qInstallMessageHandler(TellOfMissingDisplay);
  auto toolkit = std::make_unique<QApplication>(argc, argv);
  qInstallMessageHandler(former);
  return toolkit;
}

// What the scale must be multiplied with.
double Shrinking(const QScreen& screen, QSize client) {
  if (client.isEmpty()) return 1.0;
  const QSizeF room = screen.availableGeometry().size();
  const QSizeF needed = client + kAround;
  const double fitting = std::min(room.width() / needed.width(), room.height() / needed.height());
  const double scale = screen.devicePixelRatio();
  constexpr double kSteps = 16.0;
  const double chosen = std::max(1.0, std::floor(scale * fitting * kSteps) / kSteps);
  return std::min(1.0, chosen / scale);
}

}  // namespace

std::unique_ptr<QApplication> StartToolkit(int& argc, char** argv, QSize client) {
  // It takes its own arguments out of those that it is given.
  const std::vector<char*> arguments(argv, argv + argc + 1);
  auto toolkit = Create(argc, argv);
  const double shrinking = Shrinking(*QGuiApplication::primaryScreen(), client);
  if (shrinking >= 1.0) return toolkit;

  // The scale has many sources and is read once, at the start: only starting again changes it.
  toolkit.reset();
  std::ranges::copy(arguments, argv);
  argc = static_cast<int>(arguments.size()) - 1;
  const QByteArray given = qgetenv(kScaleVariable);
  const double factor = given.toDouble() > 0.0 ? given.toDouble() : 1.0;
  qputenv(kScaleVariable, QByteArray::number(factor * shrinking));
  toolkit = Create(argc, argv);
  // Programs started from here have their own needs.
  given.isNull() ? qunsetenv(kScaleVariable) : qputenv(kScaleVariable, given);
  return toolkit;
}

}  // namespace qt
