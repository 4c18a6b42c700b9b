#include "presentation/PictureDecoder.h"

#include <QBuffer>
#include <QByteArray>
#include <QImageReader>
#include <algorithm>
#include <array>
#include <functional>

#include "presentation/JpegScans.h"

namespace kv {
namespace {

/// Plain raster formats only: others of the toolkit's decoders can be asked for far more work than they look.
constexpr std::array kFormats = {"jpeg", "gif", "png", "bmp", "tiff"};
/// What a portrait may be, whatever its file's name says.
constexpr std::array kPortraitFormats = {"jpeg", "gif", "bmp"};

std::int64_t PixelsOf(QSize size) {
  return std::int64_t{size.width()} * size.height();
}

/// Whether a JPEG of this size can be decoded at a bounded cost.
bool Affordable(const JpegScans& scans, QSize stored) {
  const std::int64_t coefficients = PixelsOf(stored) * scans.components;
  return scans.count <= kMaxScans &&
         (!scans.several || (coefficients <= kMaxCoefficients && coefficients * scans.count <= kMaxScanWork));
}

/// The screen that a GIF announces, on which its images are laid: the decoder makes one of that size.
QSize GifScreen(std::span<const std::byte> bytes) {
  constexpr std::size_t kWidthAt = 6;
  if (bytes.size() < kWidthAt + 4) return {};
  const auto number = [&](std::size_t at) {
    return std::to_integer<int>(bytes[at]) | std::to_integer<int>(bytes[at + 1]) << 8;
  };
  return {number(kWidthAt), number(kWidthAt + 2)};
}

/// A picture file that is open, and how large it says it is. Nothing is decoded yet.
class PictureFile {
 public:
  /// `bytes` must outlive it.
  explicit PictureFile(std::span<const std::byte> bytes)
      : bytes_(bytes),
        raw_(QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()),
                                     static_cast<qsizetype>(bytes.size()))),
        buffer_(&raw_) {
    buffer_.open(QIODevice::ReadOnly);
    reader_.setDevice(&buffer_);
  }

  /// False for what is no picture of these formats and for what asks for too much. `reducedSize` tells the
  /// size that will do.
  [[nodiscard]] bool Accept(std::span<const char* const> formats,
                            const std::function<QSize(QSize stored)>& reducedSize) {
    if (bytes_.empty()) return false;
    const QByteArray format = reader_.format();
    if (std::ranges::none_of(formats, [&](const char* known) { return format == known; })) return false;
    const QSize stored = reader_.size();
    const QSize reduced = reducedSize(stored);
    const bool smaller = reduced.width() < stored.width();
    if (format == "jpeg") {
      if (!WithinSide(stored, kMaxReducedSide) || !Affordable(ScansOf(bytes_), stored)) return false;
      if (!smaller) return MayBeWhole(stored);
      // JPEG reduces while it decodes, so the large image never exists.
      reader_.setScaledSize(reduced);
      return PixelsOf(stored) <= kMaxReducedPixels;
    }
    return MayBeWhole(format == "gif" ? GifScreen(bytes_) : stored) && MayBeWhole(stored);
  }

  [[nodiscard]] QImage Read() {
    QImage image = reader_.read();
    if (image.isNull()) return {};
    return std::move(image).convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                                    : QImage::Format_RGB32);
  }

 private:
  static bool WithinSide(QSize size, int most) {
    return !size.isEmpty() && std::max(size.width(), size.height()) <= most;
  }

  static bool MayBeWhole(QSize size) {
    return WithinSide(size, kMaxPictureSide) && PixelsOf(size) <= kMaxWholePixels;
  }

  std::span<const std::byte> bytes_;
  QByteArray raw_;
  QBuffer buffer_;
  QImageReader reader_;
};

}  // namespace

QImage DecodePicture(std::span<const std::byte> bytes, QSize limit) {
  PictureFile file(bytes);
  bool reduce = false;
  const auto reduced = [&](QSize stored) {
    reduce = !limit.isEmpty() && limit.width() < stored.width();
    return reduce ? limit : stored;
  };
  if (!file.Accept(kFormats, reduced)) return {};
  QImage image = file.Read();
  if (reduce && !image.isNull() && image.size() != limit) {
    image = image.scaled(limit, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  }
  return image;
}

QImage DecodeSquare(std::span<const std::byte> bytes, int side) {
  PictureFile file(bytes);
  const auto reduced = [&](QSize stored) {
    const bool reduce = std::min(stored.width(), stored.height()) > side;
    return reduce ? stored.scaled(side, side, Qt::KeepAspectRatioByExpanding) : stored;
  };
  if (!file.Accept(kPortraitFormats, reduced)) return {};
  const QImage image = file.Read();
  if (image.isNull()) return {};
  const int edge = std::min(image.width(), image.height());
  // A view of the middle, not a copy: only what is made of it is a new image.
  const qsizetype left = (image.width() - edge) / 2 * (image.depth() / 8);
  const QImage middle(image.constScanLine((image.height() - edge) / 2) + left, edge, edge,
                      image.bytesPerLine(), image.format());
  return edge > side ? middle.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                     : middle.copy();
}

}  // namespace kv
