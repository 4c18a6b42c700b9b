#include "presentation/BmpBands.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace kv {
namespace {

// The header: of the file, then of the picture. Numbers are stored lowest byte first.
constexpr std::size_t kRowsBeginAt = 10;
constexpr std::size_t kWidthAt = 18;
constexpr std::size_t kHeightAt = 22;
constexpr std::size_t kBitsAt = 28;
constexpr std::size_t kPackingAt = 30;
constexpr std::size_t kHeaderEnd = 54;
constexpr std::size_t kMostBeforeRows = 4096;  // headers and a palette
constexpr int kMostSide = 1 << 15;

enum Packing : std::uint32_t { kPlain = 0, kMasks = 3 };

std::uint32_t Number(std::span<const std::byte> bytes, std::size_t at, std::size_t count) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < count; ++i) {
    number |= std::to_integer<std::uint32_t>(bytes[at + i]) << 8 * i;
  }
  return number;
}

struct Rows {
  std::size_t begin = 0;
  std::size_t length = 0;  // bytes of one
  int width = 0;
  int height = 0;
  bool downwards = false;  // the first is the top one
};

/// No length for what is not plain rows, all of them there.
Rows RowsOf(std::span<const std::byte> bytes) {
  if (bytes.size() < kHeaderEnd) return {};
  const auto signedNumber = [&](std::size_t at) { return static_cast<std::int32_t>(Number(bytes, at, 4)); };
  const int height = signedNumber(kHeightAt);
  Rows rows{
      .begin = Number(bytes, kRowsBeginAt, 4), .width = signedNumber(kWidthAt), .downwards = height < 0};
  if (rows.width < 1 || rows.width > kMostSide || height < -kMostSide || height > kMostSide) return {};
  rows.height = std::abs(height);
  const std::uint32_t packing = Number(bytes, kPackingAt, 4);
  if (packing != kPlain && packing != kMasks) return {};
  const std::size_t bits = static_cast<std::size_t>(rows.width) * Number(bytes, kBitsAt, 2);
  rows.length = (bits + 31) / 32 * 4;
  const bool whole = rows.begin >= kHeaderEnd && rows.begin <= kMostBeforeRows &&
                     rows.begin + rows.length * static_cast<std::size_t>(rows.height) <= bytes.size();
  return whole ? rows : Rows{};
}

/// Means of squares of the band's height, into one row.
void Reduce(const QImage& band, QRgb* out, int width) {
  const int times = band.height();
  const int count = times * times;
  for (int x = 0; x < width; ++x) {
    std::array<int, 3> sum{};
    for (int i = 0; i < count; ++i) {
      const QRgb pixel = reinterpret_cast<const QRgb*>(band.constScanLine(i / times))[x * times + i % times];
      sum[0] += qRed(pixel);
      sum[1] += qGreen(pixel);
      sum[2] += qBlue(pixel);
    }
    out[x] = qRgb(sum[0] / count, sum[1] / count, sum[2] / count);
  }
}

}  // namespace

QImage ReduceBmp(std::span<const std::byte> bytes, int times) {
  const Rows rows = RowsOf(bytes);
  if (rows.length == 0 || times < 1 || rows.width < times || rows.height < times) return {};
  QImage reduced(rows.width / times, rows.height / times, QImage::Format_RGB32);
  // Each band is a BMP of its own: the same header, telling fewer rows.
  const std::size_t bandLength = rows.length * static_cast<std::size_t>(times);
  QByteArray band(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(rows.begin));
  for (std::size_t i = 0; i < 4; ++i) {
    band[static_cast<qsizetype>(kHeightAt) + static_cast<qsizetype>(i)] =
        static_cast<char>(static_cast<unsigned>(times) >> 8 * i);
  }
  const std::size_t bandEnd = rows.begin + bandLength;
  band.resize(static_cast<qsizetype>(bandEnd));
  for (int i = 0; i < reduced.height(); ++i) {
    std::memcpy(band.data() + rows.begin,
                bytes.data() + rows.begin + bandLength * static_cast<std::size_t>(i), bandLength);
    const QImage image = QImage::fromData(band, "bmp").convertToFormat(QImage::Format_RGB32);
    if (image.width() != rows.width || image.height() != times) return {};
    const int row = rows.downwards ? i : reduced.height() - 1 - i;
    Reduce(image, reinterpret_cast<QRgb*>(reduced.scanLine(row)), reduced.width());
  }
  return reduced;
}

}  // namespace kv
