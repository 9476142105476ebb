// Level files made field by field, independent of the program's own writer.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace level_files {

template <typename T>
std::string Raw(T value) {
  std::string bytes(sizeof value, '\0');
  std::memcpy(bytes.data(), &value, sizeof value);
  return bytes;
}
inline std::string Integer(int value) { return Raw(static_cast<int16_t>(value)); }
inline std::string Long(int32_t value) { return Raw(value); }
inline std::string Single(float value) { return Raw(value); }
inline std::string Byte(int value) { return {static_cast<char>(value)}; }
inline std::string Padded(std::string text, size_t length) {
  text.resize(length, ' ');
  return text;
}
inline std::string Counted(const std::string& text) {
  return Integer(static_cast<int>(text.size())) + text;
}
inline std::string Singles(const std::vector<float>& values) {
  std::string bytes;
  for (const float value : values) bytes += Single(value);
  return bytes;
}

/// The records block: three names, then values that count up from `first`.
inline std::string Records(const std::string& name, uint32_t first) {
  std::string bytes = Padded(name, 15) + Padded(name, 15) + Padded(name, 15);
  for (uint32_t i = 0; i < 6; ++i) bytes += Raw(first + i);
  return bytes;
}

/// A file of any version, in pieces that a test may change before it asks for the bytes.
struct File {
  int version = 4;
  std::string records = Records("No Record", 11);
  std::string reserved = Integer(0);
  std::string textureCount = Integer(2) + Integer(0);
  std::string names = Counted("_default.bmp");
  std::string background = Padded("_default.jpg", 50);
  std::string blocks = Long(0) + Singles({0, 0, 0, 2, 1, 2}) + std::string(11, '\0');
  std::string platforms = Long(-1);
  std::string ramps = Long(-1);
  std::string stars = Long(-1);
  std::string settings = Single(10) + Counted("") + std::string(16, '\0');

  std::string Bytes() const {
    std::string bytes = Byte(version);
    if (version >= 3) bytes += records;
    if (version >= 4) bytes += reserved;
    bytes += textureCount + names + background + blocks + platforms + ramps + stars + settings;
    if (version == 2) bytes += records;
    return bytes;
  }
};

/// Every kind of object, two textures, text in the settings.
inline File AllKinds() {
  File file;
  file.textureCount = Integer(2) + Integer(1);
  file.names = Counted("_default.bmp") + Counted("a.bmp");
  file.background = Padded("_bk002.jpg", 50);
  file.blocks = Long(1) + Singles({-1, 0.5F, 4, 2, 1.25F, 3}) + Integer(0) + Integer(0) +
                Integer(0) + Integer(1) + Byte(1) + Byte(5) + Byte(10) +
                Singles({3, 0, 8, 1, 1, 0.9F}) + Integer(1) + Integer(1) + Integer(0) + Integer(0) +
                Byte(0) + Byte(2) + Byte(3);
  file.platforms = Long(0) + Singles({-2, 1, 6.5F, 2, 1, 2}) + std::string(8, '\0') + Byte(0) +
                   Byte(1) + Byte(0) + Byte(5) + Byte(3) + Byte(7) + Byte(255);
  file.ramps = Long(0) + Singles({-7, 1, 12, 3, 2, 4}) + Integer(1) + Integer(0) + Byte(3);
  file.stars = Long(1) + Singles({0, 1, 3}) + Singles({-4, 2, 30});
  file.settings = Single(5) + Counted("a text") + Raw<uint32_t>(1) + Raw<uint32_t>(2) +
                  Raw<uint32_t>(0xFFFFFFFF) + Raw<uint32_t>(4);
  return file;
}

}  // namespace level_files
