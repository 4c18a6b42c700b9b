#include "presentation/JpegScans.h"

#include <cstdint>

#include "presentation/JpegMarkers.h"

namespace kv {
namespace {

/// Components of a frame stand behind its length, precision, height and width; those of a scan behind its
/// length.
constexpr std::size_t kFrameComponentsAt = 7;
constexpr std::size_t kScanComponentsAt = 2;

class Markers {
 public:
  explicit Markers(std::span<const std::byte> bytes) : bytes_(bytes) {}

  [[nodiscard]] std::uint8_t at(std::size_t place) const {
    return place < bytes_.size() ? std::to_integer<std::uint8_t>(bytes_[place]) : 0;
  }
  /// The place behind the next marker's code from `place` on; 0 at the end.
  [[nodiscard]] std::size_t Next(std::size_t place) const {
    for (; place + 1 < bytes_.size(); ++place) {
      if (at(place) == jpeg::kMarker && at(place + 1) != 0 && at(place + 1) != jpeg::kMarker)
        return place + 2;
    }
    return 0;
  }
  /// The place behind the segment whose length stands at `place`.
  [[nodiscard]] std::size_t Behind(std::size_t place) const {
    return place + static_cast<std::size_t>(at(place) << 8 | at(place + 1));
  }

 private:
  std::span<const std::byte> bytes_;
};

/// One whose scans follow one another block by block.
bool SequentialFrame(std::uint8_t code) {
  return code == jpeg::kBaseline || code == jpeg::kExtended || code == jpeg::kArithmetic;
}

bool AnyFrame(std::uint8_t code) {
  return code >= jpeg::kBaseline && code <= jpeg::kLastFrame && code != jpeg::kHuffman &&
         code != jpeg::kReserved && code != jpeg::kConditioning;
}

/// Restarts, the start and the end of the picture, and a private code.
bool HasNoSegment(std::uint8_t code) {
  return code == jpeg::kTemporary || (code >= jpeg::kFirstRestart && code <= jpeg::kEnd);
}

/// Reads up to the first scan. So far every segment is as long as it says, for a decoder just as here.
void ReadFrame(const Markers& markers, JpegScans& scans) {
  bool sequential = false;
  std::size_t place = markers.Next(0);
  while (place != 0) {
    const std::uint8_t code = markers.at(place - 1);
    if (code == jpeg::kScan) {
      scans.several = !sequential || markers.at(place + kScanComponentsAt) < scans.components;
      return;
    }
    if (AnyFrame(code)) {
      sequential = SequentialFrame(code);
      scans.components = markers.at(place + kFrameComponentsAt);
    }
    place = markers.Next(HasNoSegment(code) ? place : markers.Behind(place));
  }
}

}  // namespace

JpegScans ScansOf(std::span<const std::byte> bytes) {
  const Markers markers(bytes);
  JpegScans scans;
  for (std::size_t i = 0; i + 1 < bytes.size(); ++i) {
    if (markers.at(i) == jpeg::kMarker && markers.at(i + 1) == jpeg::kScan) ++scans.count;
  }
  ReadFrame(markers, scans);
  return scans;
}

}  // namespace kv
