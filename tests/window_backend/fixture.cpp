#include "tests/window_backend/fixture.h"

#include <QMouseEvent>
#include <QWindow>

#include "platform/qt/window_view.h"

// The toolkit's own door for test events; it takes the way of real ones.
Q_GUI_EXPORT void qt_handleKeyEvent(QWindow* window, QEvent::Type type, int key,
                                    Qt::KeyboardModifiers modifiers, const QString& text,
                                    bool repeated, ushort count);

namespace fixture {
namespace {
qt::Application* running = nullptr;
}  // namespace

qt::Application& Toolkit() { return *running; }

SampleWindow::SampleWindow() {
  const auto put = [this](Control& control, const char* as, Place at, Control* in = nullptr) {
    control.name = as;
    control.place = at;
    control.parent = in;
    controls.push_back(&control);
  };
  const auto putMenu = [](MenuItem& item, const char* as, const char* text, const char* key = "") {
    item.name = as;
    item.Caption(text);
    item.shortcut = key;
  };
  clientWidth = 400;
  clientHeight = 300;
  putMenu(file, "mnu_file", "File");
  putMenu(open, "mnu_open", "Copy & Keep", "Ctrl+C");
  putMenu(gravity, "mnu_gravity", "Gravity");
  putMenu(normal, "mnu_normal", "Normal", "F11");
  putMenu(low, "mnu_low", "Low", "F12");
  file.items = {&open};
  gravity.items = {&normal, &low};
  normal.checkable = low.checkable = true;
  normal.Checked(true);
  menus = {&file, &gravity};

  // The child comes before its parent on purpose.
  put(label, "label", {8, 8, 145, 17}, &frame);
  put(frame, "frame", {8, 180, 380, 105});
  put(picture, "picture", {0, 0, 201, 157});
  put(bar, "bar", {201, 0, 17, 157});
  put(list, "list", {220, 0, 169, 150});
  put(box, "box", {8, 32, 40, 19}, &frame);
  put(upDown, "upDown", {48, 32, 17, 19}, &frame);
  put(drop, "drop", {80, 32, 73, 21}, &frame);
  put(button, "button", {160, 32, 113, 25}, &frame);
  put(check, "check", {160, 64, 105, 17}, &frame);
  bar.Range(0, 1000);
  bar.largeStep = 20;
  box.Text("2500");
  upDown.Range(1, 40);
  drop.items = {"a very long entry that no narrow box can hold", "Right"};
  button.Caption("UnPause Platforms");
  check.Caption("Continous Loop");
}

ShownWindow::ShownWindow() {
  Toolkit().Build(window_);
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (dynamic_cast<qt::WindowView*>(widget) != nullptr) top_ = widget;
  }
  window_.Show();
  for (int round = 0; round < 100 && QApplication::activeWindow() != top_; ++round) {
    Toolkit().Pump().Pump(20.0);
  }
  Settle();
}

ShownWindow::~ShownWindow() {
  Toolkit().Discard(window_);
  Settle();
}

void ShownWindow::Send(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers, bool repeated) {
  const QString text = key == Qt::Key_A ? "a" : "";
  qt_handleKeyEvent(top_->windowHandle(), type, key, modifiers, text, repeated, 1);
  Settle();
}

void ShownWindow::Click(const char* name, QPointF at, Qt::MouseButton button,
                        Qt::KeyboardModifiers modifiers) {
  auto& widget = Find<QWidget>(name);
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    const auto held = type == QEvent::MouseButtonPress ? button : Qt::NoButton;
    QMouseEvent event(type, at, widget.mapToGlobal(at), button, held, modifiers);
    QApplication::sendEvent(&widget, &event);
  }
}

}  // namespace fixture

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qt::Application application(argc, argv);
  fixture::running = &application;
  dialogs::Use(&application.Dialogs());
  return RUN_ALL_TESTS();
}
