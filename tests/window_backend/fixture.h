// The editor's own window without its events, shown for real.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QWidget>

#include "editor/main_controls.h"
#include "platform/qt/application.h"

namespace fixture {

qt::Application& Toolkit();

/// Handles messages until none is left.
inline void Settle() {
  for (int round = 0; round < 10; ++round) Toolkit().Pump().Pump(0.0);
}

class ShownWindow : public testing::Test {
 protected:
  ShownWindow();
  ~ShownWindow() override;

  /// The widget of a control.
  template <class Widget>
  Widget& Find(const char* name) {
    return *top_->findChild<Widget*>(name);
  }
  /// Keys as the window system sends them.
  void Send(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers, bool repeated);
  void Press(int key, bool repeated = false) { Send(QEvent::KeyPress, key, {}, repeated); }
  void Release(int key, bool repeated = false) { Send(QEvent::KeyRelease, key, {}, repeated); }
  void Type(int key, Qt::KeyboardModifiers modifiers = {}) {
    Send(QEvent::KeyPress, key, modifiers, false);
    Send(QEvent::KeyRelease, key, modifiers, false);
  }
  void Click(const char* name, QPointF at = {6, 6}, Qt::MouseButton button = Qt::LeftButton,
             Qt::KeyboardModifiers modifiers = {});

  MainControls c;
  Window& window_ = c.frmMain;
  QWidget* top_ = nullptr;
  int events_ = 0;
  const std::function<void()> count_ = [this] { ++events_; };
};

}  // namespace fixture
