#include "presentation/JpegBits.h"

#include <numeric>

#include "presentation/JpegMarkers.h"

namespace kv {
int JpegBitReader::Bit() {
  if (left_ == 0) {
    const bool marker = ByteAt(place_) == jpeg::kMarker;
    if (place_ >= bytes_.size() || (marker && ByteAt(place_ + 1) != 0)) {
      ended_ = true;
      return 0;
    }
    byte_ = ByteAt(place_);
    place_ += marker ? 2 : 1;
    left_ = 8;
  }
  --left_;
  return static_cast<int>(byte_ >> left_ & 1U);
}

int JpegBitReader::Bits(int count) {
  int bits = 0;
  for (int i = 0; i < count; ++i) bits = bits << 1 | Bit();
  return bits;
}

bool JpegBitReader::Restart() {
  left_ = 0;
  while (ByteAt(place_) == jpeg::kMarker && ByteAt(place_ + 1) == jpeg::kMarker) ++place_;
  const unsigned code = ByteAt(place_ + 1);
  if (ByteAt(place_) != jpeg::kMarker || code < jpeg::kFirstRestart || code > jpeg::kLastRestart)
    return false;
  place_ += 2;
  return true;
}

bool JpegHuffman::Set(std::span<const std::byte> counts, std::span<const std::byte> symbols) {
  if (counts.size() != kLengths || symbols.size() > symbols_.size()) return false;
  int code = 0;
  for (int length = 1; length <= kLengths; ++length) {
    const auto at = static_cast<std::size_t>(length);
    counts_.at(at) = std::to_integer<int>(counts[at - 1]);
    code = (code << 1) + counts_.at(at);
    if (code > 1 << length) return false;
  }
  if (std::accumulate(counts_.begin(), counts_.end(), 0) != static_cast<int>(symbols.size())) return false;
  for (std::size_t i = 0; i < symbols.size(); ++i) symbols_.at(i) = std::to_integer<std::uint8_t>(symbols[i]);
  return true;
}

// Codes of one length follow one another, and the first is twice what follows the last of the length before.
int JpegHuffman::Symbol(JpegBitReader& bits) const {
  int code = 0;
  int first = 0;
  int place = 0;
  for (int length = 1; length <= kLengths; ++length) {
    code = code << 1 | bits.Bit();
    const int count = counts_.at(static_cast<std::size_t>(length));
    if (code - first < count) return symbols_.at(static_cast<std::size_t>(place + code - first));
    place += count;
    first = (first + count) << 1;
  }
  return -1;
}

void JpegBitWriter::Put(unsigned bits, int count) {
  for (int i = count - 1; i >= 0; --i) {
    byte_ = (byte_ << 1 | (bits >> i & 1U)) & 0xFFU;
    if (++used_ < 8) continue;
    bytes_.push_back(static_cast<char>(byte_));
    if (byte_ == jpeg::kMarker) bytes_.push_back('\0');
    used_ = 0;
  }
}

}  // namespace kv
