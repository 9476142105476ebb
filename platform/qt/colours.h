// The few colours that every window is drawn with.
#pragma once

#include <QRgb>

namespace qt::colours {
inline constexpr QRgb kWindow = 0xFFEEF1F5, kSurface = 0xFFFFFFFF, kText = 0xFF1F2A37;
inline constexpr QRgb kFaint = 0xFF98A2B0, kLine = 0xFFC5CDD8, kSoftLine = 0xFFDCE2EA;
inline constexpr QRgb kAccent = 0xFF2468D6, kAccentSoft = 0xFFE3ECFB, kPressed = 0xFFD0DFF8;
inline constexpr QRgb kDisabled = 0xFFF3F5F8, kThumb = 0xFFB4BECB, kEmptyPicture = 0xFF20262E;
inline constexpr QRgb kPlate = 0xCC12171F, kPlateText = 0xFFFFFFFF;
}  // namespace qt::colours
