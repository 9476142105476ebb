#include "platform/qt/window_view.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QIcon>
#include <QKeyEvent>
#include <QPointer>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>
#include <QWindow>

#include "platform/dialogs.h"
#include "platform/paths.h"
#include "platform/qt/menus.h"
#include "platform/qt/theme.h"
#include "platform/qt/widgets.h"

namespace qt {
namespace {

constexpr Qt::WindowFlags kDecoration = Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                        Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
constexpr Qt::WindowFlags kMain = kDecoration | Qt::Window | Qt::WindowMinimizeButtonHint;
constexpr Qt::WindowFlags kOwned = kDecoration | Qt::Dialog;

void UseIcon(QWidget& view) {
  const QString file = QString::fromStdString(paths::InInstallFolder("\\misc\\icon.png"));
  if (QFileInfo::exists(file)) view.setWindowIcon(QIcon(file));
}

}  // namespace

WindowView::WindowView(::Window& window, WindowView* owner)
    : QWidget(nullptr, owner != nullptr ? kOwned : kMain),
      window_(window),
      client_(new QWidget(this)),
      preview_(*this, window) {
  setObjectName(QString::fromStdString(window.name));
  UseIcon(*this);
  Fill();
  if (owner != nullptr) StayAbove(*owner);

  const QPointer<WindowView> guard(this);
  window.mirror = [guard, &window] {
    if (guard.isNull()) return;
    guard->setWindowTitle(QString::fromStdString(window.Caption()));
    guard->setEnabled(window.Enabled());
  };
  window.mirror();
  window.show = [guard] {
    if (!guard.isNull()) guard->Present();
  };
  window.unload = [guard] {
    if (!guard.isNull()) guard->hide();
  };
  window.takeFocus = [guard] {
    if (!guard.isNull()) guard->client_->setFocus(Qt::OtherFocusReason);
  };
}

WindowView::~WindowView() {
  // The control objects may be gone already.
  for (QObject* child : findChildren<QObject*>()) child->blockSignals(true);
}

void WindowView::Fill() {
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  if (!window_.menus.empty()) {
    auto* bar = new QMenuBar(this);
    BuildMenus(*bar, window_.menus);
    rows->setMenuBar(bar);
  }
  rows->addWidget(client_);

  client_->setObjectName("client");
  client_->setFixedSize(window_.clientWidth, window_.clientHeight);
  client_->setFont(ControlFont());
  client_->setFocusPolicy(Qt::ClickFocus);
  for (Control* control : window_.controls) WidgetFor(*control);
  client_->setFocus(Qt::OtherFocusReason);
}

void WindowView::StayAbove(WindowView& owner) {
  // As a child the window would also be deleted and styled with its owner.
  winId();
  owner.winId();
  windowHandle()->setTransientParent(owner.windowHandle());
}

QWidget* WindowView::WidgetFor(Control& control) {
  // A control may be listed before its parent. Names need not be unique; objects are.
  const QString mark = QString::number(reinterpret_cast<quintptr>(&control));
  for (QWidget* built : client_->findChildren<QWidget*>()) {
    if (built->property("control") == mark) return built;
  }
  QWidget* parent = control.parent != nullptr ? WidgetFor(*control.parent) : client_;
  QWidget* widget = BuildWidget(control, parent);
  widget->setProperty("control", mark);
  return widget;
}

void WindowView::Present() {
  adjustSize();
  const QRect room = screen()->availableGeometry();
  QRect place = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size(), room);
  const QWindow* const owner =
      windowHandle() != nullptr ? windowHandle()->transientParent() : nullptr;
  if (window_.insideOwner > 0 && owner != nullptr) {
    place.moveTopLeft(owner->position() + QPoint(window_.insideOwner, 0));
    place.moveRight(std::min(place.right(), room.right()));
    place.moveLeft(std::max(place.left(), room.left()));
  }
  // On a small screen the title and the menus matter most.
  place.moveTop(std::max(place.top(), room.top()));
  move(place.topLeft());
  if (window_.defaultButton != nullptr) WidgetFor(*window_.defaultButton)->setFocus();
  if (isVisible()) raise();
  show();
  activateWindow();
}

void WindowView::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  const bool answer = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape;
  if (answer && window_.defaultButton != nullptr) return window_.defaultButton->UserClicks();
  QWidget::keyPressEvent(event);
}

void WindowView::closeEvent(QCloseEvent* event) {
  // The handler decides; a window without one simply goes.
  if (!window_.onUnload) return event->accept();
  event->ignore();
  dialogs::Enter(window_.onUnload);
}

}  // namespace qt
