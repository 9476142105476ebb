// A window with one control of every kind, shown for real.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QWidget>
#include <deque>

#include "platform/qt/application.h"

namespace fixture {

qt::Application& Toolkit();

/// Handles messages until none is left.
inline void Settle() {
  for (int round = 0; round < 10; ++round) Toolkit().Pump().Pump(0.0);
}

struct SampleWindow : Window {
  MenuItem file, open, gravity, normal, low;
  PictureArea picture;
  ScrollBar bar;
  FileList list;
  Frame frame;
  Label label;
  TextBox box;
  UpDown upDown;
  DropDown drop;
  Button button;
  CheckBox check;

  SampleWindow();

 private:
  void Put(Control& control, const char* controlName, Place at, Control* in = nullptr);
  void PutMenu(MenuItem& item, const char* itemName, const char* caption, const char* key = "");
};

class ShownWindow : public testing::Test {
 protected:
  ShownWindow();
  ~ShownWindow() override;

  /// The widget of a control.
  template <class Widget>
  Widget& Find(const std::string& name) {
    auto* found = top_->findChild<Widget*>(QString::fromStdString(name));
    if (found == nullptr) throw std::runtime_error("no widget " + name);
    return *found;
  }

  SampleWindow window_;
  QWidget* top_ = nullptr;
};

/// A press and a release as the window system sends them.
void TypeKey(QWidget& top, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void PressKey(QWidget& top, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
              bool repeated = false);
void ReleaseKey(QWidget& top, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                bool repeated = false);

void Click(QWidget& widget, QPointF at, Qt::MouseButton button = Qt::LeftButton,
           Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void ClickMiddle(QWidget& widget);

}  // namespace fixture
