// The toolkit: everything of the window system that the program needs, behind plain interfaces.
#pragma once

#include <memory>

#include "platform/controls.h"
#include "platform/dialogs.h"
#include "platform/graphics.h"
#include "platform/shell.h"

namespace qt {

/// One per process, made first and destroyed last: devices and windows must not outlive it. Ends
/// the process with status 1 and a line on the standard error when there is no display.
class Application {
 public:
  /// `argc` and `argv` must stay valid; the toolkit takes its own arguments out of them. The scale
  /// is lowered, to 100 % at most, until a client area of this size fits the screen.
  Application(int& argc, char** argv, int clientWidth = 0, int clientHeight = 0);
  ~Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  MessagePump& Pump();
  dialogs::Backend& Dialogs();
  Shell& Desktop();
  std::unique_ptr<PlatformRoot> CreateRoot();

  /// Makes the real window, hidden, and fills in the window's show, unload and takeFocus. `window`
  /// must stay complete: controls and menu items added later are not seen. Throws
  /// std::invalid_argument for a kind of control without a widget.
  void Build(::Window& window);
  /// Ends the real window; for a window object that ends before this one and the last Pump.
  void Discard(const ::Window& window);

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace qt
