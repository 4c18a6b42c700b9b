// Picture files from memory into images, with a limit on everything a file can ask for. Never throws and
// never complains: bytes that are no picture give nothing.
#pragma once

#include <QImage>
#include <QSize>
#include <cstddef>
#include <cstdint>
#include <span>

namespace kv {

inline constexpr int kMaxPictureSide = 4096;  // stored pixels

/// Stored pixels of a picture that has to be decoded whole: 32 bits each, so 16 MB.
inline constexpr std::int64_t kMaxWholePixels = std::int64_t{4} << 20;
/// A JPEG or BMP that is reduced while it is decoded, as a photo of one's own is: it costs time, but no
/// memory.
inline constexpr int kMaxReducedSide = 8192;
inline constexpr std::int64_t kMaxReducedPixels = std::int64_t{48} << 20;
/// Coefficients of a JPEG that comes in several scans (progressive, mostly) and of which more is needed than
/// the means of its blocks, so that it has to be held whole: one for each pixel and colour, 2 bytes each.
inline constexpr std::int64_t kMaxCoefficients = std::int64_t{24} << 20;
/// Scans of one JPEG. Real files have about ten; a forged one can have thousands, each as dear as a picture.
inline constexpr int kMaxScans = 64;
/// Coefficients times scans: what a JPEG of several scans may cost, some tenths of a second at most.
inline constexpr std::int64_t kMaxScanWork = 12 * kMaxCoefficients;

enum class PictureFault { None, NoPicture, TooLarge, TooMuchWork, Damaged };

struct SquarePicture {
  QImage image;  // null unless there is no fault
  PictureFault fault = PictureFault::None;
  QSize stored;  // as the file tells it; empty when it tells none
};

/// The decoded image in its stored size, or reduced to `limit` when that is smaller and not empty. A null
/// image for bytes that are broken or ask for more than the limits above. No alpha channel unless it is used.
[[nodiscard]] QImage DecodePicture(std::span<const std::byte> bytes, QSize limit = {});

/// The image, smoothly reduced to `limit` when that is narrower and not empty.
[[nodiscard]] QImage Reduced(QImage image, QSize limit);

/// The middle square of a JPEG, GIF or BMP, of `side` pixels or, when the picture is smaller, of as many as
/// it has; a photo stands upright whatever way the camera was held. Within the same limits, and without a
/// second image of the stored size.
[[nodiscard]] SquarePicture DecodeSquare(std::span<const std::byte> bytes, int side);

}  // namespace kv
