// Own pictures made of anything: what is accepted is a square no larger than a portrait is shown. An input
// that is too short becomes a whole picture of each kind, so that the search starts behind their headers.
#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <QLoggingCategory>
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>

#include "presentation/BmpBands.h"
#include "presentation/PictureDecoder.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace {

constexpr int kSide = 32;
constexpr std::size_t kShortest = 24;  // bytes; less than any picture

std::string Written(const char* format, bool progressive, QImage::Format pixels) {
  QImage image(40, 24, QImage::Format_RGB32);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) image.setPixel(x, y, qRgb(x * 6, y * 10, x * y));
  }
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QImageWriter writer(&buffer, format);
  writer.setProgressiveScanWrite(progressive);
  if (!writer.write(image.convertToFormat(pixels))) std::abort();
  return bytes.toStdString();
}

std::string Gif() {
  using std::string_literals::operator""s;
  return "GIF89a\4\0\4\0\x80\0\0\xFF\0\0\0\0\xFF,\0\0\0\0\4\0\4\0\0\2\4\x84\x8F\x09\5\0;"s;
}

std::string WholePicture(unsigned which) {
  switch (which % 5) {
    case 0:
      return Written("jpg", false, QImage::Format_RGB32);
    case 1:
      return Written("jpg", true, QImage::Format_RGB32);
    case 2:
      return Written("bmp", false, QImage::Format_RGB888);
    case 3:
      return Written("bmp", false, QImage::Format_Mono);
    default:
      return Gif();
  }
}

void Check(const kv::SquarePicture& square, int side) {
  const QImage& image = square.image;
  if (image.isNull() != (square.fault != kv::PictureFault::None)) std::abort();
  if (image.isNull()) return;
  const bool known =
      image.format() == QImage::Format_RGB32 || image.format() == QImage::Format_ARGB32_Premultiplied;
  if (!known || image.width() != image.height() || image.width() > side) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  QLoggingCategory::setFilterRules(
      QStringLiteral("qt.gui.imageio*=false"));  // every broken picture has a word to say
  return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned seed) {
  if (size >= kShortest && seed % 64 != 0) return LLVMFuzzerMutate(data, size, maxSize);
  const std::string picture = WholePicture(seed / 64);
  if (picture.size() > maxSize) return LLVMFuzzerMutate(data, size, maxSize);
  std::ranges::copy(picture, data);
  return picture.size();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr int kPhotoSide = 3;  // makes a large photo of these pictures: reduced to an eighth
  const auto bytes = std::as_bytes(std::span(data, size));
  Check(kv::DecodeSquare(bytes, kSide), kSide);
  Check(kv::DecodeSquare(bytes, kPhotoSide), kPhotoSide);
  (void)kv::ReduceBmp(bytes, 2);  // such an input is never large enough for it
  return 0;
}
