#include "platform/Text.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace kv {
namespace {

// Code points of the bytes 0x80 to 0x9F (Windows-1252 as in the WHATWG encoding standard).
constexpr std::array<std::uint16_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char ByteOf(std::uint32_t codePoint) {
  if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) return static_cast<char>(codePoint);
  const auto* found = std::find(kHigh.begin(), kHigh.end(), codePoint);
  return found == kHigh.end() ? '?' : static_cast<char>(0x80 + (found - kHigh.begin()));
}

bool IsContinuation(std::string_view text, std::size_t at) {
  return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80;
}

}  // namespace

std::string ToWindows1252(std::string_view utf8) {
  std::string bytes;
  bytes.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size();) {
    const auto lead = static_cast<unsigned char>(utf8[i]);
    const std::size_t length = lead < 0x80 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC2 ? 2 : 0;
    std::size_t have = 1;
    while (have < length && IsContinuation(utf8, i + have)) ++have;
    if (length == 0 || have < length) {
      bytes.push_back('?');
      i += have;
      continue;
    }
    std::uint32_t codePoint = length == 1 ? lead : lead & (0x7FU >> length);
    for (std::size_t k = 1; k < length; ++k) {
      codePoint = (codePoint << 6U) | (static_cast<unsigned char>(utf8[i + k]) & 0x3FU);
    }
    bytes.push_back(ByteOf(codePoint));
    i += length;
  }
  return bytes;
}

std::string FromWindows1252(std::string_view bytes) {
  std::string utf8;
  utf8.reserve(bytes.size() * 2);
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    const std::uint32_t codePoint = byte >= 0x80 && byte < 0xA0 ? kHigh[byte - 0x80] : byte;
    if (codePoint < 0x80) {
      utf8.push_back(static_cast<char>(codePoint));
    } else if (codePoint < 0x800) {
      utf8.push_back(static_cast<char>(0xC0U | (codePoint >> 6U)));
      utf8.push_back(static_cast<char>(0x80U | (codePoint & 0x3FU)));
    } else {
      utf8.push_back(static_cast<char>(0xE0U | (codePoint >> 12U)));
      utf8.push_back(static_cast<char>(0x80U | ((codePoint >> 6U) & 0x3FU)));
      utf8.push_back(static_cast<char>(0x80U | (codePoint & 0x3FU)));
    }
  }
  return utf8;
}

std::string LowerAscii(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return lower;
}

}  // namespace kv
