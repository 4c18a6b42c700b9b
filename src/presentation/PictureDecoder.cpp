#include "presentation/PictureDecoder.h"

#include <QBuffer>
#include <QByteArray>
#include <QImageReader>
#include <algorithm>
#include <array>
#include <functional>
#include <string>

#include "presentation/BmpBands.h"
#include "presentation/JpegMeans.h"
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

bool WithinSide(QSize size, int most) {
  return !size.isEmpty() && std::max(size.width(), size.height()) <= most;
}

bool MayBeWhole(QSize size) {
  return WithinSide(size, kMaxPictureSide) && PixelsOf(size) <= kMaxWholePixels;
}

bool MayBeReduced(QSize size) {
  return WithinSide(size, kMaxReducedSide) && PixelsOf(size) <= kMaxReducedPixels;
}

PictureFault Unless(bool fine, PictureFault fault) {
  return fine ? PictureFault::None : fault;
}

/// A picture file that is open, and how large it says it is. Nothing is decoded yet.
class PictureFile {
 public:
  /// `bytes` must outlive it.
  explicit PictureFile(std::span<const std::byte> bytes) : bytes_(bytes) { Open(bytes); }

  [[nodiscard]] QSize stored() const { return stored_; }

  /// A fault for what is no picture of these formats and for what asks for too much. `reducedSize` tells the
  /// size that will do.
  [[nodiscard]] PictureFault Accept(std::span<const char* const> formats,
                                    const std::function<QSize(QSize stored)>& reducedSize) {
    const QByteArray format = bytes_.empty() ? QByteArray() : reader_.format();
    if (std::ranges::none_of(formats, [&](const char* known) { return format == known; })) {
      return PictureFault::NoPicture;
    }
    stored_ = reader_.size();
    if (stored_.isEmpty()) return PictureFault::Damaged;
    const QSize reduced = reducedSize(stored_);
    if (format == "jpeg") return AcceptJpeg(reduced);
    const bool whole = MayBeWhole(format == "gif" ? GifScreen(bytes_) : stored_) && MayBeWhole(stored_);
    if (whole || format != "bmp") return Unless(whole, PictureFault::TooLarge);
    bmpTimes_ = std::min(stored_.width() / reduced.width(), stored_.height() / reduced.height());
    return Unless(bmpTimes_ > 1 && MayBeReduced(stored_), PictureFault::TooLarge);
  }

  void TurnUpright() { reader_.setAutoTransform(true); }

  [[nodiscard]] QImage Read() {
    QImage image = bmpTimes_ > 1 ? ReduceBmp(bytes_, bmpTimes_) : reader_.read();
    if (image.isNull()) return {};
    return std::move(image).convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                                    : QImage::Format_RGB32);
  }

 private:
  void Open(std::span<const std::byte> bytes) {
    buffer_.close();
    buffer_.setData(QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()),
                                            static_cast<qsizetype>(bytes.size())));
    buffer_.open(QIODevice::ReadOnly);
    reader_.setDevice(&buffer_);
  }

  /// JPEG reduces while it decodes, so the large image never exists.
  PictureFault AcceptJpeg(QSize reduced) {
    const bool smaller = reduced.width() < stored_.width();
    if (!(smaller ? MayBeReduced(stored_) : MayBeWhole(stored_))) return PictureFault::TooLarge;
    const JpegScans scans = ScansOf(bytes_);
    const bool affordable = Affordable(scans, stored_);
    if (smaller && scans.several && (!affordable || AnEighth(reduced))) means_ = MeansOf(bytes_);
    if (!means_.empty()) Open(std::as_bytes(std::span(means_)));
    if (smaller) reader_.setScaledSize(reduced);
    return Unless(affordable || !means_.empty(), PictureFault::TooMuchWork);
  }

  [[nodiscard]] bool AnEighth(QSize reduced) const {
    return 8 * reduced.width() <= stored_.width() && 8 * reduced.height() <= stored_.height();
  }

  std::span<const std::byte> bytes_;
  std::string means_;  // what is read instead of a progressive JPEG
  QSize stored_;
  int bmpTimes_ = 1;
  QBuffer buffer_;
  QImageReader reader_;
};

}  // namespace

QImage Reduced(QImage image, QSize limit) {
  if (limit.isEmpty() || limit.width() >= image.width()) return image;
  return image.scaled(limit, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage DecodePicture(std::span<const std::byte> bytes, QSize limit) {
  PictureFile file(bytes);
  const auto reduced = [&](QSize stored) {
    return !limit.isEmpty() && limit.width() < stored.width() ? limit : stored;
  };
  if (file.Accept(kFormats, reduced) != PictureFault::None) return {};
  return Reduced(file.Read(), limit);
}

SquarePicture DecodeSquare(std::span<const std::byte> bytes, int side) {
  PictureFile file(bytes);
  const auto reduced = [&](QSize stored) {
    const bool reduce = std::min(stored.width(), stored.height()) > side;
    return reduce ? stored.scaled(side, side, Qt::KeepAspectRatioByExpanding) : stored;
  };
  const PictureFault fault = file.Accept(kPortraitFormats, reduced);
  if (fault != PictureFault::None) return {{}, fault, file.stored()};
  file.TurnUpright();
  const QImage image = file.Read();
  if (image.isNull()) return {{}, PictureFault::Damaged, file.stored()};
  const int edge = std::min(image.width(), image.height());
  // A view of the middle, not a copy: only what is made of it is a new image.
  const qsizetype left = (image.width() - edge) / 2 * (image.depth() / 8);
  const QImage middle(image.constScanLine((image.height() - edge) / 2) + left, edge, edge,
                      image.bytesPerLine(), image.format());
  return {edge > side ? middle.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                      : middle.copy(),
          PictureFault::None, file.stored()};
}

}  // namespace kv
