// A flat, light drawing style; what it does not draw itself looks the same on every desktop.
#pragma once

#include <QProxyStyle>

namespace qt {

class FlatStyle : public QProxyStyle {
 public:
  FlatStyle();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override;
};

/// A small arrow head in the middle of `area`, pointing up or down.
void DrawChevron(QPainter& painter, const QRectF& area, bool up, bool enabled);

/// A rounded box in the colours of its state: pressed, under the mouse, with the focus, disabled.
void DrawButtonBox(QPainter& painter, const QRectF& area, QStyle::State state);

}  // namespace qt
