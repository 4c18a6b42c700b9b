#include "packing/Catalogue.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <cstdio>

#include "boards/Boards.h"
#include "cards/Faces.h"
#include "cards/Lights.h"
#include "packing/Encode.h"
#include "packing/Stored.h"
#include "portraits/Bust.h"
#include "presentation/PictureSizes.h"
#include "scenes/Scenes.h"
#include "title/StartPictures.h"

namespace kv::datafile {
namespace {

constexpr int kBackgroundQuality = 85;
constexpr int kPortraitQuality = 93;
constexpr int kCoarser = 5;       // a step down, for pictures of the art folder that need too much room
constexpr int kMostCoarser = 50;  // and how far it goes

/// What fills a screen, from number 101 on.
constexpr int kFirstScreen = 101;
constexpr std::array kScreens = {PaintMenu,       PaintCircuit,   PaintLobby,     PaintSlateDeck,
                                 PaintSlateMatch, PaintEmberDeck, PaintEmberMatch};

bool IsPortrait(int number) {
  return number > kPortraitBase && number < 400;
}

/// `coarser`: how much less than its usual quality a JPEG gets.
void Store(Groups& groups, int number, const QImage& image, int coarser) {
  const int quality = (IsPortrait(number) ? kPortraitQuality : kBackgroundQuality) - coarser;
  Bytes bytes = IsGif(number) ? EncodeGif(image) : EncodeJpeg(image, quality);
  if (bytes.empty()) std::fprintf(stderr, "build-vntdata: picture %d cannot be encoded\n", number);
  groups[IsGif(number) ? "GIF" : "JPG"][static_cast<std::uint16_t>(number)] = std::move(bytes);
}

}  // namespace

std::vector<int> AllNumbers() {
  std::vector<int> numbers;
  for (const PictureSizeBand& band : kPictureSizes) {
    for (int number = band.first; number <= band.last; ++number) numbers.push_back(number);
  }
  return numbers;
}

Catalogue::Catalogue(std::vector<BustSpec> portraits, std::map<int, QImage> art)
    : portraits_(std::move(portraits)), art_(std::move(art)) {}

std::string Catalogue::Fault() const {
  for (const BustSpec& portrait : portraits_) {
    if (LayoutSizeOf(kPortraitBase + portrait.number) != LayoutSize{}) continue;
    return "portrait " + std::to_string(portrait.number) +
           " has a row in portraits.json, but no picture number in src/presentation/PictureSizes.h";
  }
  for (const int number : AllNumbers()) {
    if (!IsPortrait(number)) continue;
    if (std::ranges::find(portraits_, number - kPortraitBase, &BustSpec::number) != portraits_.end())
      continue;
    return "portrait " + std::to_string(number - kPortraitBase) +
           " has a picture number, but no row in portraits.json";
  }
  return "";
}

QImage Catalogue::Paint(int number) const {
  if (const auto own = art_.find(number); own != art_.end()) return own->second;
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

void Catalogue::PaintNumber(QPainter& painter, int number) const {
  if (number < 110) return kScreens.at(static_cast<std::size_t>(number - kFirstScreen))(painter);
  if (number < 300) return PaintFace(painter, number);
  if (number < 400) {
    const auto row = std::ranges::find(portraits_, number - kPortraitBase, &BustSpec::number);
    return row == portraits_.end() ? void() : PaintPortrait(painter, *row);
  }
  if (number < 450) return PaintStartPicture(painter, number);
  PaintLight(painter, number);
}

Groups Catalogue::PaintAll(std::size_t limit) const {
  Groups groups;
  for (const int number : AllNumbers()) Store(groups, number, Paint(number), 0);
  int coarser = 0;
  while (!art_.empty() && SmallestSize(groups) > limit && coarser < kMostCoarser) {
    coarser += kCoarser;
    for (const auto& [number, image] : art_) Store(groups, number, image, coarser);
  }
  if (coarser > 0)
    std::fprintf(stderr,
                 "build-vntdata: the pictures of the art folder are stored %d %% coarser to make them fit\n",
                 coarser);
  return groups;
}

}  // namespace kv::datafile
