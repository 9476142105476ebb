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

QString TextOf(int key, Qt::KeyboardModifiers modifiers) {
  const bool letter = key >= Qt::Key_A && key <= Qt::Key_Z;
  return letter && modifiers == Qt::NoModifier ? QString(QChar(key - 'A' + 'a')) : QString();
}

void SendMouse(QWidget& widget, QEvent::Type type, QPointF at, Qt::MouseButton button,
               Qt::MouseButtons held, Qt::KeyboardModifiers modifiers) {
  QMouseEvent event(type, at, widget.mapToGlobal(at), button, held, modifiers);
  QApplication::sendEvent(&widget, &event);
}

}  // namespace

SampleWindow::SampleWindow() {
  name = "sample";
  Caption("Sample");
  clientWidth = 400;
  clientHeight = 300;
  PutMenu(file, "mnu_file", "File");
  PutMenu(open, "mnu_open", "Copy & Keep", "Ctrl+C");
  PutMenu(gravity, "mnu_gravity", "Gravity");
  PutMenu(normal, "mnu_normal", "Normal", "F11");
  PutMenu(low, "mnu_low", "Low", "F12");
  file.items = {&open};
  gravity.items = {&normal, &low};
  normal.Checked(true);
  menus = {&file, &gravity};

  // The child comes before its parent on purpose.
  Put(label, "label", {8, 8, 145, 17}, &frame);
  label.Caption("Texture Stretcher Side Face");
  Put(frame, "frame", {8, 180, 380, 105});
  Put(picture, "picture", {0, 0, 201, 157});
  Put(bar, "bar", {201, 0, 17, 157});
  bar.Range(0, 1000);
  bar.largeStep = 20;
  Put(list, "list", {220, 0, 169, 150});
  Put(box, "box", {8, 32, 40, 19}, &frame);
  box.Text("2500");
  Put(upDown, "upDown", {48, 32, 17, 19}, &frame);
  upDown.Range(1, 40);
  Put(drop, "drop", {80, 32, 73, 21}, &frame);
  drop.items = {"Left", "Right"};
  Put(button, "button", {160, 32, 113, 25}, &frame);
  button.Caption("UnPause Platforms");
  Put(check, "check", {160, 64, 105, 17}, &frame);
  check.Caption("Continous Loop");
}

void SampleWindow::Put(Control& control, const char* controlName, Place at, Control* in) {
  control.name = controlName;
  control.place = at;
  control.parent = in;
  controls.push_back(&control);
}

void SampleWindow::PutMenu(MenuItem& item, const char* itemName, const char* caption,
                           const char* key) {
  item.name = itemName;
  item.Caption(caption);
  item.shortcut = key;
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

void PressKey(QWidget& top, int key, Qt::KeyboardModifiers modifiers, bool repeated) {
  qt_handleKeyEvent(top.windowHandle(), QEvent::KeyPress, key, modifiers, TextOf(key, modifiers),
                    repeated, 1);
  Settle();
}

void ReleaseKey(QWidget& top, int key, Qt::KeyboardModifiers modifiers, bool repeated) {
  qt_handleKeyEvent(top.windowHandle(), QEvent::KeyRelease, key, modifiers, TextOf(key, modifiers),
                    repeated, 1);
  Settle();
}

void TypeKey(QWidget& top, int key, Qt::KeyboardModifiers modifiers) {
  PressKey(top, key, modifiers);
  ReleaseKey(top, key, modifiers);
}

void Click(QWidget& widget, QPointF at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
  SendMouse(widget, QEvent::MouseButtonPress, at, button, button, modifiers);
  SendMouse(widget, QEvent::MouseButtonRelease, at, button, Qt::NoButton, modifiers);
}

void ClickMiddle(QWidget& widget) { Click(widget, QRectF(widget.rect()).center()); }

}  // namespace fixture
