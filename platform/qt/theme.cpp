#include "platform/qt/theme.h"

#include <QPalette>
#include <QToolTip>

#include "platform/qt/colours.h"
#include "platform/qt/flat_style.h"

namespace qt {
namespace {

// In pixels at 96 dots per inch; the toolkit scales them.
constexpr int kControlPixels = 11;
constexpr int kMenuPixels = 12;

QFont Font(int pixels) {
  QFont font;
  font.setFamilies({"Liberation Sans", "Arial", "Helvetica", "DejaVu Sans"});
  font.setPixelSize(pixels);
  return font;
}

QPalette Palette() {
  QPalette palette(QColor::fromRgb(colours::kWindow));
  palette.setColor(QPalette::Window, colours::kWindow);
  palette.setColor(QPalette::Base, colours::kSurface);
  palette.setColor(QPalette::AlternateBase, colours::kDisabled);
  palette.setColor(QPalette::Button, colours::kSurface);
  palette.setColor(QPalette::ToolTipBase, colours::kSurface);
  palette.setColor(QPalette::Highlight, colours::kAccent);
  palette.setColor(QPalette::HighlightedText, colours::kSurface);
  palette.setColor(QPalette::Link, colours::kAccent);
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    palette.setColor(role, colours::kText);
    palette.setColor(QPalette::Disabled, role, colours::kFaint);
  }
  palette.setColor(QPalette::PlaceholderText, colours::kFaint);
  palette.setColor(QPalette::Disabled, QPalette::Base, colours::kDisabled);
  palette.setColor(QPalette::Disabled, QPalette::Highlight, colours::kSoftLine);
  palette.setColor(QPalette::Disabled, QPalette::HighlightedText, colours::kFaint);
  return palette;
}

}  // namespace

void ApplyTheme(QApplication& application) {
  // The application owns its style. The linter may see it lost only in the call after.
  // NOLINTBEGIN(clang-analyzer-cplusplus.NewDeleteLeaks)
  application.setStyle(new FlatStyle);
  application.setPalette(Palette());
  // NOLINTEND(clang-analyzer-cplusplus.NewDeleteLeaks)
  application.setFont(Font(kMenuPixels));
  QToolTip::setFont(Font(kControlPixels));
}

QFont ControlFont(bool bold) {
  QFont font = Font(kControlPixels);
  font.setBold(bold);
  return font;
}

}  // namespace qt
