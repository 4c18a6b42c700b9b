// The codes of a JPEG file's markers: a byte 0xFF and one of these (ITU-T T.81, table B.1).
#pragma once

#include <cstdint>

namespace kv::jpeg {

inline constexpr unsigned kMarker = 0xFF;  // in the bits of a scan stuffed with a zero where it is none

enum Code : std::uint8_t {
  kTemporary = 0x01,
  kBaseline = 0xC0,
  kExtended = 0xC1,
  kProgressive = 0xC2,
  kHuffman = 0xC4,
  kReserved = 0xC8,
  kArithmetic = 0xC9,
  kConditioning = 0xCC,
  kLastFrame = 0xCF,
  kFirstRestart = 0xD0,
  kLastRestart = 0xD7,
  kStart = 0xD8,
  kEnd = 0xD9,
  kScan = 0xDA,
  kQuantizers = 0xDB,
  kRestarts = 0xDD,
  kFirstApplication = 0xE0,
  kLastApplication = 0xEF,
};

}  // namespace kv::jpeg
