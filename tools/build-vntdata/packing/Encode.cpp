#include "packing/Encode.h"

#include <gif_lib.h>
#include <libimagequant.h>

#include <QBuffer>
#include <QImageWriter>
#include <memory>

namespace kv::datafile {
namespace {

constexpr int kPaletteColours = 255;  // one of the 256 is left for the clear pixels
constexpr int kOpaque = 128;          // alpha from which a pixel is drawn; GIF knows no half-way
constexpr float kDither = 0.5F;

struct Indexed {
  std::vector<std::uint8_t> pixels;
  std::vector<GifColorType> colours;  // a power of two of them
  int transparent = NO_TRANSPARENT_COLOR;
};

/// Hands each thing back to the palette library.
struct Release {
  void operator()(liq_attr* attr) const { liq_attr_destroy(attr); }
  void operator()(liq_image* image) const { liq_image_destroy(image); }
  void operator()(liq_result* result) const { liq_result_destroy(result); }
};

/// RGBA bytes with alpha forced to all or nothing.
std::vector<std::uint8_t> HardEdged(const QImage& image) {
  const QImage rgba = image.convertToFormat(QImage::Format_RGBA8888);
  std::vector<std::uint8_t> bytes;
  bytes.reserve(static_cast<std::size_t>(rgba.width()) * rgba.height() * 4);
  for (int y = 0; y < rgba.height(); ++y) {
    const uchar* line = rgba.constScanLine(y);
    for (int x = 0; x < rgba.width(); ++x, line += 4) {
      const bool drawn = line[3] >= kOpaque;
      for (int c = 0; c < 3; ++c) bytes.push_back(drawn ? line[c] : 0);
      bytes.push_back(drawn ? 255 : 0);
    }
  }
  return bytes;
}

bool Quantize(const QImage& image, Indexed& out) {
  const std::vector<std::uint8_t> rgba = HardEdged(image);
  const std::unique_ptr<liq_attr, Release> attr(liq_attr_create());
  liq_set_speed(attr.get(), 2);
  liq_set_max_colors(attr.get(), kPaletteColours);
  const std::unique_ptr<liq_image, Release> source(
      liq_image_create_rgba(attr.get(), rgba.data(), image.width(), image.height(), 0));
  liq_result* raw = nullptr;
  if (source == nullptr || liq_image_quantize(source.get(), attr.get(), &raw) != LIQ_OK) return false;
  const std::unique_ptr<liq_result, Release> result(raw);
  liq_set_dithering_level(result.get(), kDither);
  out.pixels.resize(rgba.size() / 4);
  if (liq_write_remapped_image(result.get(), source.get(), out.pixels.data(), out.pixels.size()) != LIQ_OK) {
    return false;
  }
  const liq_palette* palette = liq_get_palette(result.get());
  for (unsigned i = 0; i < palette->count; ++i) {
    const liq_color& colour = palette->entries[i];
    out.colours.push_back({colour.r, colour.g, colour.b});
  }
  // The palette may hold several clear entries; a GIF has one, so every clear pixel takes the one added here.
  for (std::size_t i = 0; i < out.pixels.size(); ++i) {
    if (rgba[i * 4 + 3] != 0) continue;
    if (out.transparent == NO_TRANSPARENT_COLOR) {
      out.transparent = static_cast<int>(out.colours.size());
      out.colours.push_back({0, 0, 0});
    }
    out.pixels[i] = static_cast<GifByteType>(out.transparent);
  }
  while (out.colours.size() < 2 || (out.colours.size() & (out.colours.size() - 1)) != 0) {
    out.colours.push_back({0, 0, 0});
  }
  return true;
}

int Append(GifFileType* gif, const GifByteType* bytes, int count) {
  auto& out = *static_cast<Bytes*>(gif->UserData);
  out.insert(out.end(), bytes, bytes + count);
  return count;
}

}  // namespace

Bytes EncodeGif(const QImage& image) {
  Indexed indexed;
  if (!Quantize(image, indexed)) return {};
  const int colours = static_cast<int>(indexed.colours.size());
  const std::unique_ptr<ColorMapObject, decltype(&GifFreeMapObject)> map(
      GifMakeMapObject(colours, indexed.colours.data()), GifFreeMapObject);
  Bytes bytes;
  int error = 0;
  GifFileType* gif = EGifOpen(&bytes, Append, &error);
  if (gif == nullptr) return {};
  EGifSetGifVersion(gif, true);
  bool good = EGifPutScreenDesc(gif, image.width(), image.height(), 8, 0, map.get()) == GIF_OK;
  if (good && indexed.transparent != NO_TRANSPARENT_COLOR) {
    const GraphicsControlBlock block{DISPOSAL_UNSPECIFIED, false, 0, indexed.transparent};
    GifByteType extension[4];
    EGifGCBToExtension(&block, extension);
    good = EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, 4, extension) == GIF_OK;
  }
  good = good && EGifPutImageDesc(gif, 0, 0, image.width(), image.height(), false, nullptr) == GIF_OK;
  for (int y = 0; good && y < image.height(); ++y) {
    good = EGifPutLine(gif, indexed.pixels.data() + static_cast<std::size_t>(y) * image.width(),
                       image.width()) == GIF_OK;
  }
  good = EGifCloseFile(gif, &error) == GIF_OK && good;
  return good ? bytes : Bytes{};
}

Bytes EncodeJpeg(const QImage& image, int quality) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QImageWriter writer(&buffer, "jpg");
  writer.setQuality(quality);
  writer.setOptimizedWrite(true);
  if (!writer.write(image.convertToFormat(QImage::Format_RGB32))) return {};
  return {buffer.data().begin(), buffer.data().end()};
}

}  // namespace kv::datafile
