#include "packing/Catalogue.h"

#include <QPainter>
#include <array>
#include <cstdio>

#include "boards/Boards.h"
#include "cards/Faces.h"
#include "cards/Lights.h"
#include "packing/Encode.h"
#include "portraits/Bust.h"
#include "presentation/PictureSizes.h"
#include "scenes/Scenes.h"
#include "title/StartPictures.h"

namespace kv::datafile {
namespace {

constexpr int kBackgroundQuality = 85;
constexpr int kPortraitQuality = 93;

bool InGifGroup(int number) {
  return (number > 110 && number <= 250) || number >= 400;
}

/// What fills a screen, from number 101 on.
constexpr int kFirstScreen = 101;
constexpr std::array kScreens = {PaintMenu,       PaintCircuit,   PaintLobby,     PaintSlateDeck,
                                 PaintSlateMatch, PaintEmberDeck, PaintEmberMatch};

void PaintNumber(QPainter& painter, int number) {
  if (number < 110) return kScreens.at(static_cast<std::size_t>(number - kFirstScreen))(painter);
  if (number < 300) return PaintFace(painter, number);
  if (number < 400) return PaintPortrait(painter, number - kPortraitBase);
  if (number < 450) return PaintStartPicture(painter, number);
  PaintLight(painter, number);
}

}  // namespace

std::vector<int> AllNumbers() {
  std::vector<int> numbers;
  for (const PictureSizeBand& band : kPictureSizes) {
    for (int number = band.first; number <= band.last; ++number) numbers.push_back(number);
  }
  return numbers;
}

QImage Paint(int number) {
  const LayoutSize size = LayoutSizeOf(number);
  QImage image(size.width * kStoredRatio, size.height * kStoredRatio, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  painter.scale(kStoredRatio, kStoredRatio);
  PaintNumber(painter, number);
  painter.end();
  return image;
}

Groups PaintAll() {
  Groups groups;
  for (const int number : AllNumbers()) {
    const QImage image = Paint(number);
    const bool gif = InGifGroup(number);
    const int quality = number < 110 ? kBackgroundQuality : kPortraitQuality;
    Bytes bytes = gif ? EncodeGif(image) : EncodeJpeg(image, quality);
    if (bytes.empty()) std::fprintf(stderr, "build-vntdata: picture %d cannot be encoded\n", number);
    groups[gif ? "GIF" : "JPG"][static_cast<std::uint16_t>(number)] = std::move(bytes);
  }
  return groups;
}

}  // namespace kv::datafile
