#include "platform/qt/flat_style.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>

#include "platform/qt/colours.h"

namespace qt {
namespace {

constexpr double kRadius = 3.0;
constexpr QRgb kClear = 0;

bool Enabled(const QStyleOption& option) { return option.state.testFlag(QStyle::State_Enabled); }
bool Focused(const QStyleOption& option) { return option.state.testFlag(QStyle::State_HasFocus); }

// A second outline would only add noise.
bool ShowsFocusItself(const QWidget* widget) {
  return qobject_cast<const QAbstractItemView*>(widget) != nullptr ||
         qobject_cast<const QPushButton*>(widget) != nullptr;
}

void DrawBox(QPainter& painter, const QRectF& area, QRgb fill, QRgb line) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor::fromRgb(line), 1.0));
  painter.setBrush(QColor::fromRgba(fill));
  painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
  painter.restore();
}

void DrawField(QPainter& painter, const QStyleOption& option) {
  if (option.state.testFlag(QStyle::State_ReadOnly)) {
    return DrawBox(painter, option.rect, colours::kDisabled, colours::kDisabled);
  }
  DrawBox(painter, option.rect, Enabled(option) ? colours::kSurface : colours::kDisabled,
          Focused(option) ? colours::kAccent : colours::kLine);
}

void DrawCheckMark(QPainter& painter, const QRectF& box, const QColor& colour) {
  const auto at = [&box](double x, double y) {
    return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
  };
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour, 1.7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const QPointF points[] = {at(0.25, 0.52), at(0.43, 0.7), at(0.76, 0.3)};
  painter.drawPolyline(points, 3);
  painter.restore();
}

void DrawCheckBox(QPainter& painter, const QStyleOption& option) {
  const bool on = option.state.testFlag(QStyle::State_On);
  const bool enabled = Enabled(option);
  const QRgb fill = on && enabled ? colours::kAccent
                    : enabled     ? colours::kSurface
                                  : colours::kDisabled;
  const bool marked = enabled && (on || option.state.testFlag(QStyle::State_MouseOver));
  DrawBox(painter, option.rect, fill, marked ? colours::kAccent : colours::kLine);
  if (on) {
    DrawCheckMark(painter, option.rect,
                  QColor::fromRgb(enabled ? colours::kSurface : colours::kFaint));
  }
}

void DrawScrollBar(const QProxyStyle& style, const QStyleOptionSlider& option, QPainter& painter,
                   const QWidget* widget) {
  const auto part = [&](QStyle::SubControl control) {
    return QRectF(style.subControlRect(QStyle::CC_ScrollBar, &option, control, widget));
  };
  const bool vertical = option.orientation == Qt::Vertical;
  painter.fillRect(option.rect, QColor::fromRgb(colours::kDisabled));
  if (vertical) {
    DrawChevron(painter, part(QStyle::SC_ScrollBarSubLine), true,
                option.sliderValue > option.minimum);
    DrawChevron(painter, part(QStyle::SC_ScrollBarAddLine), false,
                option.sliderValue < option.maximum);
  }
  if (option.maximum <= option.minimum) return;
  const bool active = option.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider);
  const double across = vertical ? 4.0 : 1.0, along = vertical ? 1.0 : 4.0;
  const QRectF thumb = part(QStyle::SC_ScrollBarSlider).adjusted(across, along, -across, -along);
  const bool held = active && option.state.testFlag(QStyle::State_Sunken);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor::fromRgb(held     ? colours::kAccent
                                   : active ? colours::kFaint
                                            : colours::kThumb));
  const double round = std::min(thumb.width(), thumb.height()) / 2.0;
  painter.drawRoundedRect(thumb, round, round);
  painter.restore();
}

}  // namespace

void DrawChevron(QPainter& painter, const QRectF& area, bool up, bool enabled) {
  constexpr double kHalfWidth = 3.0, kHalfHeight = 1.5;
  const QPointF middle = area.center();
  const double tip = up ? -kHalfHeight : kHalfHeight;
  const QPointF points[] = {middle + QPointF(-kHalfWidth, -tip), middle + QPointF(0.0, tip),
                            middle + QPointF(kHalfWidth, -tip)};
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor::fromRgb(enabled ? colours::kText : colours::kThumb), 1.3,
                      Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(points, 3);
  painter.restore();
}

void DrawButtonBox(QPainter& painter, const QRectF& area, QStyle::State state) {
  const bool enabled = state.testFlag(QStyle::State_Enabled);
  const bool pressed = enabled && state.testAnyFlags(QStyle::State_Sunken | QStyle::State_On);
  const bool near = enabled && state.testFlag(QStyle::State_MouseOver);
  const QRgb fill = pressed   ? colours::kPressed
                    : near    ? colours::kAccentSoft
                    : enabled ? colours::kSurface
                              : colours::kDisabled;
  const bool marked = pressed || (enabled && state.testFlag(QStyle::State_HasFocus));
  DrawBox(painter, area, fill, marked ? colours::kAccent : colours::kLine);
}

FlatStyle::FlatStyle() : QProxyStyle("Fusion") {}

void FlatStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const {
  switch (element) {
    case PE_FrameLineEdit:
    case PE_PanelLineEdit:
      return DrawField(*painter, *option);
    case PE_PanelButtonCommand:
      return DrawButtonBox(*painter, option->rect, option->state);
    case PE_IndicatorCheckBox:
      return DrawCheckBox(*painter, *option);
    case PE_FrameFocusRect:
      if (ShowsFocusItself(widget)) return;
      return DrawBox(*painter, option->rect, kClear, colours::kAccent);
    case PE_Frame:
      return DrawBox(*painter, option->rect, kClear,
                     Focused(*option) ? colours::kAccent : colours::kLine);
    default:
      QProxyStyle::drawPrimitive(element, option, painter, widget);
  }
}

void FlatStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
  if (element == CE_MenuBarEmptyArea || element == CE_MenuBarItem) {
    painter->fillRect(option->rect, QColor::fromRgb(colours::kSurface));
  }
  if (element == CE_MenuBarEmptyArea) return;
  if (element != CE_MenuBarItem) {
    return QProxyStyle::drawControl(element, option, painter, widget);
  }
  const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
  if (item == nullptr) return;
  if (item->state.testFlag(State_Selected)) {
    painter->fillRect(item->rect, QColor::fromRgb(colours::kAccentSoft));
  }
  const int underline = styleHint(SH_UnderlineShortcut, item, widget, nullptr) != 0
                            ? Qt::TextShowMnemonic
                            : Qt::TextHideMnemonic;
  drawItemText(painter, item->rect, Qt::AlignCenter | Qt::TextSingleLine | underline, item->palette,
               Enabled(*item), item->text, QPalette::WindowText);
}

void FlatStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const {
  if (control == CC_ComboBox) {
    DrawButtonBox(*painter, option->rect, option->state & ~State_On);
    const QRect arrow = subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget);
    return DrawChevron(*painter, arrow, false, Enabled(*option));
  }
  if (control == CC_ScrollBar) {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (bar != nullptr) return DrawScrollBar(*this, *bar, *painter, widget);
  }
  QProxyStyle::drawComplexControl(control, option, painter, widget);
}

int FlatStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                           const QWidget* widget) const {
  switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
      return 14;
    case PM_CheckBoxLabelSpacing:
      return 6;
    case PM_MenuBarVMargin:
      return 2;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

QSize FlatStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                  const QSize& contents, const QWidget* widget) const {
  constexpr int kRowHeight = 20;
  const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  return type == CT_ItemViewItem ? size.expandedTo(QSize(0, kRowHeight)) : size;
}

int FlatStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* data) const {
  switch (hint) {
    case SH_MenuBar_AltKeyNavigation:
      return 1;
    case SH_ComboBox_Popup:                // a plain list below the box shows the whole list
    case SH_ComboBox_AllowWheelScrolling:  // a wheel over the panel must not change the object
    case SH_DialogButtonBox_ButtonsHaveIcons:
      return 0;
    default:
      return QProxyStyle::styleHint(hint, option, widget, data);
  }
}

}  // namespace qt
