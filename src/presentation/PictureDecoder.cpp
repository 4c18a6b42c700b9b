#include "presentation/PictureDecoder.h"

#include <QBuffer>
#include <QByteArray>
#include <QImageReader>
#include <algorithm>
#include <array>

namespace kv {
namespace {

/// Plain raster formats only: others of the toolkit's decoders can be asked for far more work than they look.
constexpr std::array kFormats = {"jpeg", "gif", "png", "bmp", "tiff"};

}  // namespace

QImage DecodePicture(std::span<const std::byte> bytes, QSize limit) {
  const auto size = static_cast<qsizetype>(bytes.size());
  if (size == 0) return {};
  QByteArray raw = QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()), size);
  QBuffer buffer(&raw);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer);
  const QByteArray format = reader.format();
  if (std::ranges::none_of(kFormats, [&](const char* known) { return format == known; })) return {};
  const QSize stored = reader.size();
  if (stored.isEmpty() || stored.width() > kMaxPictureSide || stored.height() > kMaxPictureSide) return {};
  const bool reduce = !limit.isEmpty() && limit.width() < stored.width();
  // JPEG reduces while it decodes, so the large image never exists.
  if (reduce && format == "jpeg") reader.setScaledSize(limit);
  QImage image = reader.read();
  if (image.isNull()) return {};
  image = std::move(image).convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                                   : QImage::Format_RGB32);
  if (reduce && image.size() != limit) {
    image = image.scaled(limit, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  }
  return image;
}

}  // namespace kv
