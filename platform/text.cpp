#include "platform/text.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace text {
namespace {

/// Code points of the bytes 0x80 to 0x9F; all other bytes are their own code point.
constexpr std::array<uint16_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void AppendUtf8(std::string& utf8, uint32_t codePoint) {
  const auto put = [&utf8](uint32_t byte) { utf8.push_back(static_cast<char>(byte)); };
  if (codePoint < 0x80) {
    put(codePoint);
  } else if (codePoint < 0x800) {
    put(0xC0 | (codePoint >> 6));
    put(0x80 | (codePoint & 0x3F));
  } else {
    put(0xE0 | (codePoint >> 12));
    put(0x80 | ((codePoint >> 6) & 0x3F));
    put(0x80 | (codePoint & 0x3F));
  }
}

char ToByte(uint32_t codePoint) {
  if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) {
    return static_cast<char>(codePoint);
  }
  const auto* const found = std::ranges::find(kHighControls, codePoint);
  return found == kHighControls.end() ? '?'
                                      : static_cast<char>(0x80 + (found - kHighControls.begin()));
}

/// Reads one character of `utf8` at `at` and steps past it; 0xFFFD for a broken sequence.
uint32_t NextCodePoint(std::string_view utf8, size_t& at) {
  const auto lead = static_cast<unsigned char>(utf8[at++]);
  if (lead < 0x80) return lead;
  const int following = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
  if (following == 0) return 0xFFFD;
  uint32_t codePoint = lead & (0x3FU >> following);
  for (int i = 0; i < following; ++i) {
    if (at >= utf8.size() || (static_cast<unsigned char>(utf8[at]) & 0xC0U) != 0x80) return 0xFFFD;
    codePoint = (codePoint << 6) | (static_cast<unsigned char>(utf8[at++]) & 0x3FU);
  }
  return codePoint;
}

}  // namespace

std::string FromAnsi(std::string_view bytes) {
  std::string utf8;
  utf8.reserve(bytes.size());
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    AppendUtf8(utf8, byte >= 0x80 && byte < 0xA0 ? kHighControls[byte - 0x80U] : byte);
  }
  return utf8;
}

std::string ToAnsi(std::string_view utf8) {
  std::string bytes;
  for (size_t at = 0; at < utf8.size();) bytes.push_back(ToByte(NextCodePoint(utf8, at)));
  return bytes;
}

}  // namespace text
