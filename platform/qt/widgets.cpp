#include "platform/qt/widgets.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <stdexcept>

#include "platform/qt/file_list_view.h"
#include "platform/qt/item_list_view.h"
#include "platform/qt/mirror.h"
#include "platform/qt/panel_view.h"
#include "platform/qt/picture_view.h"
#include "platform/qt/theme.h"
#include "platform/qt/up_down_view.h"

namespace qt {
namespace {

template <class Button>
void ShowCaption(const Captioned& control, Button& button) {
  button.setText(Literal(control.Caption()));
  if (control.accessibleName.empty()) {
    button.setAccessibleName(QString::fromStdString(control.Caption()));
  }
}

QWidget* Build(Label& label, QWidget* parent) {
  auto* widget = new QLabel(parent);
  widget->setTextFormat(Qt::PlainText);
  widget->setWordWrap(true);
  widget->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  // The words stand on the line of the numbers beside them.
  widget->setContentsMargins(0, 2, 0, 0);
  widget->setFont(ControlFont(label.bold));
  Mirror<Label, QLabel>(label, widget, [](const Label& from, QLabel& to) {
    to.setText(QString::fromStdString(from.Caption()));
  });
  return widget;
}

QWidget* Build(Frame& frame, QWidget* parent) {
  auto* widget = new PanelView(parent);
  Mirror<Frame, PanelView>(frame, widget, [](const Frame& from, PanelView& to) {
    if (from.accessibleName.empty()) to.setAccessibleName(QString::fromStdString(from.Caption()));
  });
  return widget;
}

QWidget* Build(Button& button, QWidget* parent) {
  auto* widget = new QPushButton(parent);
  widget->setAutoDefault(false);
  Mirror<Button, QPushButton>(button, widget,
                              [](const Button& from, QPushButton& to) { ShowCaption(from, to); });
  QObject::connect(widget, &QPushButton::clicked, widget, [&button] { button.UserClicks(); });
  return widget;
}

QWidget* Build(CheckBox& box, QWidget* parent) {
  auto* widget = new QCheckBox(parent);
  Mirror<CheckBox, QCheckBox>(box, widget, [](const CheckBox& from, QCheckBox& to) {
    ShowCaption(from, to);
    to.setChecked(from.Checked());
  });
  QObject::connect(widget, &QCheckBox::clicked, widget, [&box] { box.UserClicks(); });
  return widget;
}

QWidget* Build(TextBox& box, QWidget* parent) {
  auto* widget = new QLineEdit(parent);
  widget->setReadOnly(true);
  // Nothing can be done with a display: a click goes to the window.
  widget->setFocusPolicy(Qt::NoFocus);
  widget->setAttribute(Qt::WA_TransparentForMouseEvents);
  widget->setTextMargins(2, 0, 2, 1);
  Mirror<TextBox, QLineEdit>(box, widget, [](const TextBox& from, QLineEdit& to) {
    const QString text = QString::fromStdString(from.Text());
    if (to.text() == text) return;
    to.setText(text);
    to.setCursorPosition(0);
  });
  return widget;
}

void ShowItems(const DropDown& from, QComboBox& to) {
  QStringList items;
  for (const std::string& item : from.items) items.append(QString::fromStdString(item));
  QStringList shown;
  for (int row = 0; row < to.count(); ++row) shown.append(to.itemText(row));
  if (items == shown) return;
  to.clear();
  to.addItems(items);
  // The box may be narrower than its longest entry; the opened list must not be.
  QAbstractItemView& list = *to.view();
  list.setMinimumWidth(list.sizeHintForColumn(0) + 2 * list.frameWidth() + 8);
}

QWidget* Build(DropDown& list, QWidget* parent) {
  auto* widget = new QComboBox(parent);
  widget->setMaxVisibleItems(20);
  Mirror<DropDown, QComboBox>(list, widget, [](const DropDown& from, QComboBox& to) {
    ShowItems(from, to);
    to.setCurrentIndex(from.ListIndex());
  });
  QObject::connect(widget, &QComboBox::activated, widget,
                   [&list](int index) { list.UserSelects(index); });
  return widget;
}

QWidget* Build(::ScrollBar& bar, QWidget* parent) {
  auto* widget = new QScrollBar(Qt::Vertical, parent);
  Mirror<::ScrollBar, QScrollBar>(bar, widget, [](const ::ScrollBar& from, QScrollBar& to) {
    to.setSingleStep(from.smallStep);
    to.setPageStep(from.largeStep);
    to.setRange(from.Minimum(), from.Maximum());
    to.setValue(from.Value());
  });
  QObject::connect(widget, &QScrollBar::valueChanged, widget,
                   [&bar](int value) { bar.UserScrolls(value); });
  return widget;
}

QWidget* Build(UpDown& upDown, QWidget* parent) {
  auto* widget = new UpDownView(
      parent, [&upDown](bool up) { upDown.UserClicks(up); }, [&upDown] { upDown.UserReleases(); });
  Mirror<UpDown, UpDownView>(upDown, widget, [](const UpDown& from, UpDownView& to) {
    to.Names(QString::fromStdString(from.name), QString::fromStdString(from.accessibleName));
  });
  return widget;
}

QWidget* Build(PictureArea& area, QWidget* parent) {
  auto* widget = new PictureView(parent, area);
  Mirror<PictureArea, PictureView>(area, widget, [](const PictureArea& from, PictureView& to) {
    to.setCursor(from.Pointer() == PointerShape::Drag ? Qt::ClosedHandCursor : Qt::ArrowCursor);
    to.ShowNotes();
  });
  return widget;
}

QWidget* Build(ItemList& list, QWidget* parent) {
  auto* widget = new ItemListView(parent, list);
  Mirror<ItemList, ItemListView>(list, widget,
                                 [](const ItemList& from, ItemListView& to) { to.Show(from); });
  return widget;
}

QWidget* Build(FileList& list, QWidget* parent) {
  auto* widget = new FileListView(parent, list);
  Mirror<FileList, FileListView>(list, widget,
                                 [](const FileList& from, FileListView& to) { to.Show(from); });
  return widget;
}

// Calls Build for the first of the kinds that `control` is.
template <class First, class... Others>
QWidget* BuildAs(Control& control, QWidget* parent) {
  if (auto* kind = dynamic_cast<First*>(&control)) return Build(*kind, parent);
  if constexpr (sizeof...(Others) > 0) return BuildAs<Others...>(control, parent);
  throw std::invalid_argument("No widget for the control " + control.name);
}

}  // namespace

QWidget* BuildWidget(Control& control, QWidget* parent) {
  return BuildAs<Label, Frame, Button, CheckBox, TextBox, DropDown, ::ScrollBar, UpDown,
                 PictureArea, ItemList, FileList>(control, parent);
}

}  // namespace qt
