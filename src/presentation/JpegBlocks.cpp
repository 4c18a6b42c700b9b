#include "presentation/JpegBlocks.h"

#include <algorithm>

namespace kv {
namespace {

constexpr int kBlock = 8;           // pixels
constexpr int kMaxUnitBlocks = 10;  // that a scan of several colours may bring at a time
constexpr int kMaxSampling = 4;

int Share(int whole, int part) {
  return (whole + part - 1) / part;
}

bool Known(const JpegComponent& c) {
  return c.across >= 1 && c.across <= kMaxSampling && c.down >= 1 && c.down <= kMaxSampling;
}

}  // namespace

int JpegByte(std::span<const std::byte> bytes, std::size_t place) {
  return place < bytes.size() ? std::to_integer<int>(bytes[place]) : 0;
}

int JpegPair(std::span<const std::byte> bytes, std::size_t place) {
  return JpegByte(bytes, place) << 8 | JpegByte(bytes, place + 1);
}

bool JpegBlocks::Set(std::span<const std::byte> frame, std::size_t most) {
  constexpr std::size_t kHeader = 6;  // precision, height, width, and how many components
  constexpr std::size_t kEach = 3;
  const int count = JpegByte(frame, kHeader - 1);
  if (count != 1 && count != 3 && count != 4) return false;
  if (JpegByte(frame, 0) != 8 || frame.size() != kHeader + kEach * static_cast<std::size_t>(count)) {
    return false;
  }
  for (std::size_t at = kHeader; at < frame.size(); at += kEach) {
    const int sampling = JpegByte(frame, at + 1);
    components_.push_back({.id = JpegByte(frame, at), .across = sampling >> 4, .down = sampling & 0xF});
  }
  return std::ranges::all_of(components_, Known) && Place(JpegPair(frame, 3), JpegPair(frame, 1), most);
}

bool JpegBlocks::Place(int width, int height, std::size_t most) {
  int widest = 0;
  int tallest = 0;
  int blocks = 0;
  for (const JpegComponent& c : components_) {
    widest = std::max(widest, c.across);
    tallest = std::max(tallest, c.down);
    blocks += c.across * c.down;
  }
  if (width < 1 || height < 1 || (components_.size() > 1 && blocks > kMaxUnitBlocks)) return false;
  unitsAcross_ = Share(width, kBlock * widest);
  unitsDown_ = Share(height, kBlock * tallest);
  const auto units = static_cast<std::size_t>(unitsAcross_) * static_cast<std::size_t>(unitsDown_);
  if (units * static_cast<std::size_t>(blocks) > most) return false;
  for (JpegComponent& c : components_) {
    c.columns = Share(Share(width * c.across, widest), kBlock);
    c.rows = Share(Share(height * c.down, tallest), kBlock);
    c.stride = static_cast<std::size_t>(unitsAcross_) * static_cast<std::size_t>(c.across);
    c.means.resize(units * static_cast<std::size_t>(c.across * c.down));
  }
  return true;
}

}  // namespace kv
