// Text at the program's borders: UTF-8 inside, single-byte Windows-1252 in the player file and on the wire.
#pragma once

#include <string>
#include <string_view>

namespace kv {

/// UTF-8 to Windows-1252; what does not fit (and broken UTF-8) becomes "?".
[[nodiscard]] std::string ToWindows1252(std::string_view utf8);
/// Windows-1252 to UTF-8; the five unassigned bytes map to the control characters of the same number, so
/// that every byte string survives the way there and back.
[[nodiscard]] std::string FromWindows1252(std::string_view bytes);

/// ASCII letters lowered; every other byte stays.
[[nodiscard]] std::string LowerAscii(std::string_view text);

}  // namespace kv
