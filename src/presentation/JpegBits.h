// The bits of a JPEG's scans: reading them, their Huffman codes, and writing them. Behind the last bit come
// zeros; nothing here ever reads or writes outside its bytes.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace kv {

class JpegBitReader {
 public:
  /// From `place` on up to the next marker. `bytes` must outlive it.
  JpegBitReader(std::span<const std::byte> bytes, std::size_t place) : bytes_(bytes), place_(place) {}

  [[nodiscard]] int Bit();
  /// `count` of them, 0 to 16, the highest first.
  [[nodiscard]] int Bits(int count);
  /// Drops what is left of a byte and goes behind the restart marker that has to follow; false without one.
  [[nodiscard]] bool Restart();

  /// More bits were asked for than there are.
  [[nodiscard]] bool ended() const { return ended_; }
  /// Not behind the marker that ends the scan.
  [[nodiscard]] std::size_t place() const { return place_; }

 private:
  [[nodiscard]] unsigned ByteAt(std::size_t place) const {
    return place < bytes_.size() ? std::to_integer<unsigned>(bytes_[place]) : 0U;
  }

  std::span<const std::byte> bytes_;
  std::size_t place_;
  unsigned byte_ = 0;
  int left_ = 0;  // bits of byte_
  bool ended_ = false;
};

class JpegHuffman {
 public:
  static constexpr int kLengths = 16;

  /// How many codes there are of each length, and what they stand for. False when that is no code.
  [[nodiscard]] bool Set(std::span<const std::byte> counts, std::span<const std::byte> symbols);
  /// -1 for bits that are no code.
  [[nodiscard]] int Symbol(JpegBitReader& bits) const;

 private:
  std::array<int, kLengths + 1> counts_{};
  std::array<std::uint8_t, 256> symbols_{};
};

class JpegBitWriter {
 public:
  explicit JpegBitWriter(std::string& bytes) : bytes_(bytes) {}

  /// The lowest `count` bits, 0 to 16, of `bits`.
  void Put(unsigned bits, int count);
  /// Fills up the last byte, with ones.
  void Finish() { Put(0x7F, (8 - used_) % 8); }

 private:
  std::string& bytes_;
  unsigned byte_ = 0;
  int used_ = 0;
};

}  // namespace kv
