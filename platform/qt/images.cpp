#include "platform/qt/images.h"

#include <QCoreApplication>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>
#include <cstring>

#include "platform/error.h"

namespace qt {
namespace {

constexpr int kMegabytesAllowed = 256;

}  // namespace

Image LoadImageFile(const std::string& path) {
  const QString file = QString::fromStdString(path);
  QImageReader::setAllocationLimit(kMegabytesAllowed);
  QImageReader reader(file);
  // The content decides, not the name: tracks come with textures of many sources.
  reader.setDecideFormatFromContent(true);
  QImage decoded = reader.read();
  if (decoded.isNull()) throw PlatformError(path + ": " + reader.errorString().toStdString());
  const bool opaque = reader.format() == "bmp";
  decoded = decoded.convertToFormat(opaque ? QImage::Format_RGB32 : QImage::Format_ARGB32);

  Image image(decoded.width(), decoded.height());
  for (int y = 0; y < image.height; ++y) {
    std::memcpy(&image.At(0, y), decoded.constScanLine(y),
                static_cast<size_t>(image.width) * sizeof(uint32_t));
  }
  if (opaque) {
    for (uint32_t& pixel : image.pixels) pixel |= 0xFF000000U;
  }
  return image;
}

void SaveImageFile(const Image& image, const std::string& path) {
  QImage encoded(image.width, image.height, QImage::Format_ARGB32);
  for (int y = 0; y < image.height; ++y) {
    std::memcpy(encoded.scanLine(y),
                image.pixels.data() + static_cast<size_t>(y) * static_cast<size_t>(image.width),
                static_cast<size_t>(image.width) * sizeof(uint32_t));
  }
  const QString file = QString::fromStdString(path);
  // Both keep no alpha; without this the encoder would write a 32-bit BMP.
  if (!file.endsWith(".png")) encoded = encoded.convertToFormat(QImage::Format_RGB888);
  QImageWriter writer(file);
  if (file.endsWith(".jpg")) writer.setQuality(92);
  if (!writer.write(encoded)) {
    throw PlatformError(path + ": " + writer.errorString().toStdString());
  }
}

}  // namespace qt
