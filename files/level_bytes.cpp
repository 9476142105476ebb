#include "files/level_bytes.h"

#include <bit>
#include <cmath>
#include <cstring>

#include "level/globals.h"

static_assert(std::endian::native == std::endian::little,
              "fields are copied as they lie in memory");

LevelFormatError::LevelFormatError(const std::string& field, const std::string& reason,
                                   size_t offset)
    : std::runtime_error(field + ": " + reason + " (byte offset " + std::to_string(offset) + ")"),
      field_(field),
      offset_(offset) {}

void LevelBytesReader::Refuse(const char* field, const std::string& reason, size_t offset) const {
  throw LevelFormatError(field, reason, offset);
}

std::string_view LevelBytesReader::Take(const char* field, size_t length) {
  if (length > Left()) Refuse(field, "the file ends too early", at_);
  const std::string_view taken = bytes_.substr(at_, length);
  at_ += length;
  return taken;
}

template <typename T>
T LevelBytesReader::Read(const char* field) {
  T value;
  std::memcpy(&value, Take(field, sizeof value).data(), sizeof value);
  return value;
}

uint8_t LevelBytesReader::Byte(const char* field) { return Read<uint8_t>(field); }
int16_t LevelBytesReader::Integer(const char* field) { return Read<int16_t>(field); }
uint16_t LevelBytesReader::UnsignedInteger(const char* field) { return Read<uint16_t>(field); }
int32_t LevelBytesReader::Long(const char* field) { return Read<int32_t>(field); }
uint32_t LevelBytesReader::Bits32(const char* field) { return Read<uint32_t>(field); }

float LevelBytesReader::Single(const char* field) {
  const size_t offset = at_;
  const auto value = Read<float>(field);
  if (!std::isfinite(value)) Refuse(field, "not a number", offset);
  return value;
}

double LevelBytesReader::TaggedValue(const char* field) {
  const size_t offset = at_;
  switch (const uint16_t type = UnsignedInteger(field)) {
    case 2:
      return Integer(field);
    case 3:
      return Long(field);
    case 4:
      return Read<float>(field);
    case 5:
      return Read<double>(field);
    case 6:
      return static_cast<double>(Read<int64_t>(field)) / 10000.0;
    case 11:
      return Integer(field);
    case 17:
      return Byte(field);
    default:
      Refuse(field, "unknown number type " + std::to_string(type), offset);
  }
}

int16_t LevelBytesReader::TaggedInteger(const char* field) {
  const size_t offset = at_;
  const double value = TaggedValue(field);
  try {
    return ToInteger(value);
  } catch (const std::overflow_error&) {
    Refuse(field, "the number is out of range", offset);
  }
}

std::string_view LevelBytesReader::FixedText(const char* field, size_t length) {
  return Take(field, length);
}

std::string_view LevelBytesReader::CountedText(const char* field) {
  return Take(field, UnsignedInteger(field));
}

int32_t LevelBytesReader::Count(const char* field, size_t recordSize, int32_t least) {
  const size_t offset = at_;
  const int32_t count = Long(field);
  if (count < least || count > kGreatestIndex) {
    Refuse(field, "the count " + std::to_string(count) + " is out of range", offset);
  }
  if (static_cast<size_t>(count + 1) * recordSize > Left()) {
    Refuse(field, "the file ends before its " + std::to_string(count + 1) + " records", offset);
  }
  return count;
}

void LevelBytesWriter::CountedText(std::string_view bytes) {
  const uint16_t length = ToWhole<uint16_t>(static_cast<double>(bytes.size()));
  Put(&length, sizeof length);
  Text(bytes);
}
