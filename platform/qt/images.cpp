#include "platform/qt/images.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include "platform/error.h"
#include "platform/error_text.h"
#include "platform/qt/picture_source.h"
#include "platform/whole_file.h"

namespace qt {
namespace {

/// What a picture of the greatest sides takes.
constexpr int kMegabytesAllowed = 256;

/// The bytes of run-length rows may end early without a pixel missing.
bool LacksRuns(std::string_view bytes) {
  if (bytes.size() < 38) return false;
  const auto number = [bytes](size_t at) {
    uint32_t value = 0;
    std::memcpy(&value, bytes.data() + at, sizeof value);
    return uint64_t{value};
  };
  const uint64_t compression = number(30);
  const bool runs = number(14) >= 40 && (compression == 1 || compression == 2);
  return runs && number(10) + number(34) > bytes.size();
}

/// The decoders show a cut picture as far as it goes. BMP is read in exact pieces; JPEG in pieces
/// of any length, but what lies behind its end is never asked for; the end of a PNG is not read at
/// all.
bool WasCut(std::string_view bytes, const PictureSource& source, const QByteArray& format) {
  if (format == "jpeg") return source.FoundNothing();
  if (format == "png") return bytes.find("IEND\xAE\x42\x60\x82") == std::string_view::npos;
  return format == "bmp" && (source.CameShort() || LacksRuns(bytes));
}

QImage Decode(std::string_view bytes, QByteArray& format) {
  PictureSource source(bytes);
  QImageReader::setAllocationLimit(kMegabytesAllowed);
  QImageReader reader(&source);
  // The content decides, not the name: tracks come with textures of many sources.
  reader.setDecideFormatFromContent(true);
  format = reader.format();
  source.Forget();
  const QSize size = reader.size();
  if (size.width() > kGreatestSide || size.height() > kGreatestSide) {
    throw PlatformError("a side of the picture is longer than " + std::to_string(kGreatestSide) +
                        " pixels");
  }
  // Runs may leave pixels out; those are of the first colour.
  QImage decoded(size, reader.imageFormat());
  decoded.fill(0);
  if (!reader.read(&decoded)) throw PlatformError(reader.errorString().toStdString());
  if (WasCut(bytes, source, format)) throw PlatformError("the file ends too early");
  return decoded;
}

/// The toolkit's own writing takes a full disk for an unknown error.
void WriteFile(const std::string& path, const QByteArray& bytes) {
  std::FILE* const file = std::fopen(path.c_str(), "wbe");
  const auto size = static_cast<size_t>(bytes.size());
  bool complete = file != nullptr && std::fwrite(bytes.constData(), 1, size, file) == size;
  if (file != nullptr && std::fclose(file) != 0) complete = false;
  if (!complete) throw PlatformError(path + ": " + ErrorText(errno));
}

}  // namespace

Image LoadImageFile(const std::string& path) {
  std::string bytes;
  const std::string unreadable = ReadWholeFile(path, bytes);
  if (!unreadable.empty()) throw PlatformError(path + ": " + unreadable);
  QByteArray format;
  QImage decoded;
  try {
    decoded = Decode(bytes, format);
  } catch (const PlatformError& failure) {
    throw PlatformError(path + ": " + failure.what());
  }
  const bool opaque = format == "bmp";
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
  QBuffer bytes;
  QImageWriter writer(&bytes, QFileInfo(file).suffix().toLatin1());
  // Both keep no alpha; without this the encoder would write a 32-bit BMP.
  if (!file.endsWith(".png")) encoded = encoded.convertToFormat(QImage::Format_RGB888);
  if (file.endsWith(".jpg")) writer.setQuality(92);
  if (!writer.write(encoded)) {
    throw PlatformError(path + ": " + writer.errorString().toStdString());
  }
  WriteFile(path, bytes.data());
}

}  // namespace qt
