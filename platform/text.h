// Level files hold single-byte Windows-1252 text; in memory text is UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace text {

/// Every byte becomes one character (the five unassigned ones U+0081, U+008D, ...), so that
/// ToAnsi(FromAnsi(bytes)) == bytes.
std::string FromAnsi(std::string_view bytes);

/// A character outside the code page, or a broken sequence, becomes '?'.
std::string ToAnsi(std::string_view utf8);

}  // namespace text
