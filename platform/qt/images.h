// Picture files by the toolkit's decoders; needs no window and no display.
#pragma once

#include <string>

#include "platform/image.h"

namespace qt {

/// The longest side of a picture in pixels: what every device's textures hold.
inline constexpr int kGreatestSide = 8192;

/// Decodes the picture file at `path` (UTF-8). BMP pictures are opaque. Throws PlatformError with
/// the file's name when it is missing, damaged, cut or longer than kGreatestSide.
Image LoadImageFile(const std::string& path);

/// Encodes by the path's extension (bmp, jpg at quality 92, png). Throws PlatformError.
void SaveImageFile(const Image& image, const std::string& path);

}  // namespace qt
