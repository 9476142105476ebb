// Text of exactly N characters, padded with blanks on the right.
#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "platform/text.h"

/// Held as the single bytes that level files hold, so that every byte survives a round trip.
template <size_t N>
class FixedText {
 public:
  FixedText() { bytes_.fill(' '); }
  /// From UTF-8; longer text is cut.
  FixedText(std::string_view utf8) : FixedText() {  // NOLINT: texts are assigned from literals
    const std::string ansi = text::ToAnsi(utf8);
    std::copy_n(ansi.begin(), std::min(ansi.size(), N), bytes_.begin());
  }
  FixedText(const char* utf8) : FixedText(std::string_view(utf8)) {}  // NOLINT

  static FixedText FromBytes(std::string_view bytes) {
    FixedText result;
    std::copy_n(bytes.begin(), std::min(bytes.size(), N), result.bytes_.begin());
    return result;
  }
  std::string_view Bytes() const { return {bytes_.data(), N}; }
  /// UTF-8, without trailing blanks.
  std::string Trimmed() const {
    const size_t end = Bytes().find_last_not_of(' ');
    return end == std::string_view::npos ? std::string()
                                         : text::FromAnsi(Bytes().substr(0, end + 1));
  }
  bool operator==(const FixedText&) const = default;

 private:
  std::array<char, N> bytes_{};
};
