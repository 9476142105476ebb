#include "platform/qt/application.h"

#include <QApplication>
#include <QDesktopServices>
#include <QUrl>

#include "platform/qt/dialog_boxes.h"
#include "platform/qt/graphics.h"
#include "platform/qt/message_pump.h"
#include "platform/qt/theme.h"
#include "platform/qt/toolkit_start.h"
#include "platform/qt/window_view.h"
#include "platform/qt/x_held_keys.h"

namespace qt {
namespace {

class DesktopShell : public Shell {
 public:
  void Open(const std::string& path) override {
    QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(path)));
  }
};

}  // namespace

// Destroyed from the bottom up: the toolkit's own object goes last.
struct Application::Parts {
  std::unique_ptr<QApplication> toolkit;
  EventPump pump;
  DialogBoxes dialogs;
  DesktopShell desktop;
  std::vector<std::unique_ptr<WindowView>> windows;

  Parts(int& argc, char** argv, QSize client) : toolkit(StartToolkit(argc, argv, client)) {}

  WindowView* ViewOf(const ::Window* window) const {
    for (const auto& view : windows) {
      if (window != nullptr && view->Shows(*window)) return view.get();
    }
    return nullptr;
  }
};

Application::Application(int& argc, char** argv, int clientWidth, int clientHeight)
    : parts_(std::make_unique<Parts>(argc, argv, QSize(clientWidth, clientHeight))) {
  // The program's own loop decides when it ends.
  QApplication::setQuitOnLastWindowClosed(false);
  StopAutoRepeatReleases();
  ApplyTheme(*parts_->toolkit);
}

Application::~Application() = default;

MessagePump& Application::Pump() { return parts_->pump; }
dialogs::Backend& Application::Dialogs() { return parts_->dialogs; }
Shell& Application::Desktop() { return parts_->desktop; }
std::unique_ptr<PlatformRoot> Application::CreateRoot() { return std::make_unique<GraphicsRoot>(); }

void Application::Build(::Window& window) {
  parts_->windows.push_back(std::make_unique<WindowView>(window, parts_->ViewOf(window.owner)));
}

void Application::Discard(const ::Window& window) {
  std::erase_if(parts_->windows, [&window](const auto& view) { return view->Shows(window); });
}

}  // namespace qt
