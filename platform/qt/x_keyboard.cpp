#include "platform/qt/x_keyboard.h"

#include <QGuiApplication>
#include <array>

#include "platform/error.h"
#include "platform/qt/polled_keyboard.h"
#include "platform/qt/scan_codes.h"

// Last: these headers define macros with everyday names.
#include <X11/Xlib.h>
#include <X11/keysym.h>

namespace qt {
namespace {

constexpr size_t kKeyCodes = 256;
constexpr size_t kFirstKeyCode = 8;

struct NamedKey {
  KeySym symbol;
  uint8_t scanCode;
};

// Found by their symbols, so that a keyboard with exchanged keys works as it is labelled.
constexpr NamedKey kNamedKeys[] = {{XK_Left, scancode::kLeft},
                                   {XK_Right, scancode::kRight},
                                   {XK_Up, scancode::kUp},
                                   {XK_Down, scancode::kDown},
                                   {XK_Shift_L, scancode::kLeftShift},
                                   {XK_Shift_R, scancode::kRightShift},
                                   {XK_Control_L, scancode::kLeftCtrl},
                                   {XK_Control_R, scancode::kRightCtrl},
                                   {XK_space, scancode::kSpace}};

bool IsNamed(uint8_t scanCode) {
  return std::ranges::find(kNamedKeys, scanCode, &NamedKey::scanCode) != std::end(kNamedKeys);
}

struct CloseDisplay {
  void operator()(Display* display) const { XCloseDisplay(display); }
};
using DisplayPtr = std::unique_ptr<Display, CloseDisplay>;

DisplayPtr OpenDisplay() {
  // The toolkit may have been started with another display than the environment's.
  const char* name = nullptr;
  if (auto* native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()) {
    if (native->display() != nullptr) name = XDisplayString(native->display());
  }
  DisplayPtr display(XOpenDisplay(name));
  if (!display) throw PlatformError("The X server cannot be reached");
  return display;
}

class XKeyboard : public PolledKeyboard {
 public:
  XKeyboard() : display_(OpenDisplay()) { FindKeys(); }

 protected:
  KeyboardState Read() override {
    // Keys may have been exchanged since the last poll.
    while (XPending(display_.get()) > 0) Handle();
    char held[kKeyCodes / 8] = {};
    XQueryKeymap(display_.get(), held);
    KeyboardState state{};
    for (size_t code = kFirstKeyCode; code < kKeyCodes; ++code) {
      const bool down = (static_cast<unsigned char>(held[code / 8]) >> (code % 8) & 1U) != 0;
      if (down && scanCodes_[code] != 0) state[scanCodes_[code]] = kKeyHeld;
    }
    return state;
  }

 private:
  void Handle() {
    XEvent event;
    XNextEvent(display_.get(), &event);
    if (event.type != MappingNotify || event.xmapping.request == MappingPointer) return;
    XRefreshKeyboardMapping(&event.xmapping);
    FindKeys();
  }

  // Throws PlatformError when none of the keys exists.
  void FindKeys() {
    scanCodes_.fill(0);
    for (size_t code = kFirstKeyCode; code < kKeyCodes; ++code) {
      const uint8_t scanCode = ScanCodeOfInput(static_cast<uint32_t>(code - kFirstKeyCode));
      if (!IsNamed(scanCode)) scanCodes_[code] = scanCode;
    }
    bool found = false;
    for (const NamedKey& key : kNamedKeys) {
      const KeyCode code = XKeysymToKeycode(display_.get(), key.symbol);
      if (code == 0) continue;
      scanCodes_[code] = key.scanCode;
      found = true;
    }
    if (!found) throw PlatformError("The X server has no keyboard");
  }

  DisplayPtr display_;
  std::array<uint8_t, kKeyCodes> scanCodes_{};
};

}  // namespace

std::unique_ptr<KeyboardDevice> OpenXKeyboard() { return std::make_unique<XKeyboard>(); }

}  // namespace qt
