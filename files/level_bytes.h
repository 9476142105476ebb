// Little-endian fields without padding: the alphabet of level files.
#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

#include "platform/numbers.h"

/// A level file holds something that cannot be read; what() says what, at which byte offset.
class LevelFormatError : public std::runtime_error {
 public:
  LevelFormatError(const std::string& field, const std::string& reason, size_t offset);
  const std::string& field() const { return field_; }
  size_t offset() const { return offset_; }

 private:
  std::string field_;
  size_t offset_;
};

/// Reads fields one after another; every operation throws LevelFormatError at the end of the bytes.
class LevelBytesReader {
 public:
  explicit LevelBytesReader(std::string_view bytes) : bytes_(bytes) {}

  uint8_t Byte(const char* field);
  int16_t Integer(const char* field);
  uint16_t UnsignedInteger(const char* field);
  int32_t Long(const char* field);
  uint32_t Bits32(const char* field);
  /// Refuses NaN and infinity.
  float Single(const char* field);
  /// A Single that a whole-number property takes; refuses one that does not fit T.
  template <typename T>
  float SingleFor(const char* field) {
    const size_t offset = at_;
    const float value = Single(field);
    try {
      ToWhole<T>(value);
    } catch (const std::overflow_error&) {
      Refuse(field, "the number is out of range", offset);
    }
    return value;
  }
  /// 16-bit type code, then the value in that type's width, as a whole number.
  int16_t TaggedInteger(const char* field);
  std::string_view FixedText(const char* field, size_t length);
  std::string_view CountedText(const char* field);
  /// Index of the last of a run of records; refused when the bytes left cannot hold them.
  int32_t Count(const char* field, size_t recordSize, int32_t least);

  size_t Offset() const { return at_; }
  size_t Left() const { return bytes_.size() - at_; }
  [[noreturn]] void Refuse(const char* field, const std::string& reason, size_t offset) const;

 private:
  std::string_view Take(const char* field, size_t length);
  template <typename T>
  T Read(const char* field);
  double TaggedValue(const char* field);

  std::string_view bytes_;
  size_t at_ = 0;
};

/// Appends fields.
class LevelBytesWriter {
 public:
  void Byte(uint8_t value) { Put(&value, 1); }
  void Integer(int16_t value) { Put(&value, sizeof value); }
  void Long(int32_t value) { Put(&value, sizeof value); }
  void Bits32(uint32_t value) { Put(&value, sizeof value); }
  void Single(float value) { Put(&value, sizeof value); }
  void Text(std::string_view bytes) { bytes_.append(bytes); }
  /// Throws std::overflow_error for text of more than 65535 bytes.
  void CountedText(std::string_view bytes);

  std::string Take() { return std::move(bytes_); }

 private:
  void Put(const void* value, size_t size) { bytes_.append(static_cast<const char*>(value), size); }

  std::string bytes_;
};
