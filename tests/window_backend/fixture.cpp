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
