// Picture files by the toolkit's decoders; needs no window and no display.
#pragma once

#include <string>

#include "platform/image.h"

namespace qt {

/// Decodes the picture file at `path` (UTF-8). BMP pictures are opaque.
/// Throws PlatformError with the file's name when it is missing or damaged.
Image LoadImageFile(const std::string& path);

/// Encodes by the path's extension (bmp, jpg at quality 92, png). Throws PlatformError.
void SaveImageFile(const Image& image, const std::string& path);

}  // namespace qt
