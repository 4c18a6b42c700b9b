#include "presentation/JpegMeans.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "presentation/JpegBits.h"
#include "presentation/JpegBlocks.h"
#include "presentation/JpegMarkers.h"

namespace kv {
namespace {

using Bytes = std::span<const std::byte>;

constexpr int kMaxSize = 11;  // bits of a difference
constexpr int kMaxMean = 2047;

void PutSegment(std::string& out, int marker, Bytes segment) {
  const std::size_t length = segment.size() + 2;
  out += '\xFF';
  for (const std::size_t byte : {static_cast<std::size_t>(marker), length >> 8, length}) {
    out.push_back(static_cast<char>(byte & 0xFFU));
  }
  out.append(reinterpret_cast<const char*>(segment.data()), segment.size());
}

class Means {
 public:
  /// Takes one segment in; `place` is where its scan's bits begin, and is moved behind them. False to stop.
  [[nodiscard]] bool Take(int marker, Bytes segment, Bytes file, std::size_t& place);
  [[nodiscard]] bool complete(int mostMissing) const;
  [[nodiscard]] std::string Write() const;

 private:
  [[nodiscard]] bool TakeCodes(Bytes segment);
  [[nodiscard]] bool TakeScan(Bytes segment, Bytes file, std::size_t& place);
  [[nodiscard]] bool FirstMeans(std::span<JpegComponent* const> scan, std::span<const int> codes, int missing,
                                JpegBitReader& bits) const;
  [[nodiscard]] bool FinerMeans(std::span<JpegComponent* const> scan, int missing, JpegBitReader& bits) const;

  std::string copied_;  // segments that hold for the result, too
  std::string frame_;
  JpegBlocks blocks_;
  int interval_ = 0;  // units between two restarts; 0 for none
  std::array<JpegHuffman, 4> codes_;
};

bool Means::Take(int marker, Bytes segment, Bytes file, std::size_t& place) {
  if (marker == jpeg::kProgressive) {
    if (!blocks_.empty() || !blocks_.Set(segment, kMaxMeans)) return false;
    PutSegment(frame_, jpeg::kBaseline, segment);
    return true;
  }
  if (marker == jpeg::kHuffman) return TakeCodes(segment);
  if (marker >= jpeg::kBaseline && marker <= jpeg::kLastFrame) return false;
  if (marker == jpeg::kRestarts) interval_ = JpegPair(segment, 0);
  if (marker == jpeg::kScan) return TakeScan(segment, file, place);
  const bool application = marker >= jpeg::kFirstApplication && marker <= jpeg::kLastApplication;
  if (application || marker == jpeg::kQuantizers) PutSegment(copied_, marker, segment);
  return true;
}

bool Means::TakeCodes(Bytes segment) {
  constexpr std::size_t kLengths = JpegHuffman::kLengths;
  while (segment.size() > kLengths) {
    std::size_t symbols = 0;
    for (std::size_t i = 1; i <= kLengths; ++i) symbols += static_cast<std::size_t>(JpegByte(segment, i));
    if (segment.size() < 1 + kLengths + symbols) return false;
    const auto table = static_cast<std::size_t>(JpegByte(segment, 0));
    // Others are for the finer scans.
    if (table < codes_.size() &&
        !codes_.at(table).Set(segment.subspan(1, kLengths), segment.subspan(1 + kLengths, symbols))) {
      return false;
    }
    segment = segment.subspan(1 + kLengths + symbols);
  }
  return segment.empty();
}

bool Means::TakeScan(Bytes segment, Bytes file, std::size_t& place) {
  const auto count = static_cast<std::size_t>(JpegByte(segment, 0));
  if (blocks_.empty() || segment.size() != 4 + 2 * count) return false;
  if (JpegByte(segment, 1 + 2 * count) != 0) return true;  // no means in it
  const int before = JpegByte(segment, 3 + 2 * count) >> 4;
  const int missing = JpegByte(segment, 3 + 2 * count) & 0xF;
  if (JpegByte(segment, 2 + 2 * count) != 0) return false;
  std::vector<JpegComponent*> scan;
  std::vector<int> codes;
  for (std::size_t i = 0; i < count; ++i) {
    const auto found =
        std::ranges::find(blocks_.components(), JpegByte(segment, 1 + 2 * i), &JpegComponent::id);
    if (found == blocks_.components().end() || std::ranges::find(scan, &*found) != scan.end()) return false;
    // Each bit comes once, so that a forged file cannot ask for the same work again and again.
    if (before == 0 ? found->missing >= 0 : found->missing != before || missing != before - 1) return false;
    scan.push_back(&*found);
    codes.push_back(JpegByte(segment, 2 + 2 * i) >> 4);
  }
  JpegBitReader bits(file, place);
  const bool whole = before == 0 ? FirstMeans(scan, codes, missing, bits) : FinerMeans(scan, missing, bits);
  place = bits.place();
  if (whole) std::ranges::for_each(scan, [&](JpegComponent* c) { c->missing = missing; });
  return whole;
}

bool Means::FirstMeans(std::span<JpegComponent* const> scan, std::span<const int> codes, int missing,
                       JpegBitReader& bits) const {
  std::array<int, 4> last{};
  const auto block = [&](std::size_t number, std::int16_t& mean) {
    const auto table = static_cast<std::size_t>(codes[number]);
    const int size = table < codes_.size() ? codes_.at(table).Symbol(bits) : -1;
    if (size < 0 || size > kMaxSize) return false;
    // A difference whose first bit is 0 is negative.
    const int difference = bits.Bits(size);
    const bool negative = size > 0 && difference >> (size - 1) == 0;
    int& value = last.at(number);
    value = std::clamp(value + difference - (negative ? (1 << size) - 1 : 0), -kMaxMean, kMaxMean);
    mean = static_cast<std::int16_t>(std::clamp(value * (1 << missing), -kMaxMean, kMaxMean));
    return !bits.ended();
  };
  return blocks_.Visit(scan, interval_, block, [&] {
    last = {};
    return bits.Restart();
  });
}

bool Means::FinerMeans(std::span<JpegComponent* const> scan, int missing, JpegBitReader& bits) const {
  const auto block = [&](std::size_t, std::int16_t& mean) {
    if (bits.Bit() != 0) mean = static_cast<std::int16_t>(mean | 1 << missing);
    return !bits.ended();
  };
  return blocks_.Visit(scan, interval_, block, [&] { return bits.Restart(); });
}

bool Means::complete(int mostMissing) const {
  return !blocks_.empty() && std::ranges::all_of(blocks_.components(), [&](const JpegComponent& c) {
    return c.missing >= 0 && c.missing <= mostMissing;
  });
}

/// Codes of our own: the 13 sizes of a difference in 4 bits each, and one bit for "nothing more in this
/// block".
std::string OwnCodes() {
  constexpr int kSizes = 13;
  std::string means(1 + JpegHuffman::kLengths, '\0');
  std::string nothing = means;
  means[4] = kSizes;
  for (int size = 0; size < kSizes; ++size) means.push_back(static_cast<char>(size));
  nothing[0] = 0x10;
  nothing[1] = 1;
  nothing.push_back('\0');
  std::string out;
  for (const std::string& table : {means, nothing})
    PutSegment(out, jpeg::kHuffman, std::as_bytes(std::span(table)));
  return out;
}

std::string Means::Write() const {
  std::string scan(1, static_cast<char>(blocks_.components().size()));
  std::vector<const JpegComponent*> all;
  for (const JpegComponent& c : blocks_.components()) {
    all.push_back(&c);
    scan.append({static_cast<char>(c.id), '\0'});
  }
  scan.append({'\0', 63, '\0'});
  std::string out = "\xFF\xD8" + copied_ + frame_ + OwnCodes();
  PutSegment(out, jpeg::kScan, std::as_bytes(std::span(scan)));
  JpegBitWriter bits(out);
  std::array<int, 4> last{};
  const auto block = [&](std::size_t number, std::int16_t mean) {
    const int difference = mean - last.at(number);
    const int size = std::bit_width(static_cast<unsigned>(std::abs(difference)));
    last.at(number) = mean;
    bits.Put(static_cast<unsigned>(size), 4);
    bits.Put(static_cast<unsigned>(difference - (difference < 0 ? 1 : 0)), size);
    bits.Put(0, 1);
    return true;
  };
  (void)blocks_.Visit(std::span<const JpegComponent* const>(all), 0, block, [] { return true; });
  bits.Finish();
  return out + "\xFF\xD9";
}

/// Behind the next marker's code; restarts and stuffed bytes are parts of a scan.
std::size_t NextMarker(Bytes file, std::size_t place) {
  for (; place + 1 < file.size(); ++place) {
    const int code = JpegByte(file, place + 1);
    const bool restart = code >= jpeg::kFirstRestart && code < jpeg::kStart;
    if (JpegByte(file, place) == 0xFF && code != 0 && code != 0xFF && !restart) return place + 2;
  }
  return 0;
}

}  // namespace

std::string MeansOf(std::span<const std::byte> jpeg) {
  if (JpegPair(jpeg, 0) != (0xFF00 | jpeg::kStart)) return {};
  Means means;
  std::size_t place = 2;
  while (!means.complete(0)) {
    place = NextMarker(jpeg, place);
    const int marker = place == 0 ? jpeg::kEnd : JpegByte(jpeg, place - 1);
    if (marker == jpeg::kEnd) break;
    const auto length = static_cast<std::size_t>(JpegPair(jpeg, place));
    if (length < 2 || place + length > jpeg.size()) break;
    const Bytes segment = jpeg.subspan(place + 2, length - 2);
    place += length;
    if (!means.Take(marker, segment, jpeg, place)) break;
  }
  // What a cut file lacks of the lowest bits is hardly seen.
  return means.complete(2) ? means.Write() : std::string();
}

}  // namespace kv
