#include <gtest/gtest.h>

#include <QImage>
#include <cstdlib>
#include <map>
#include <string>

#include "packing/Catalogue.h"
#include "portraits/Table.h"
#include "presentation/PictureSizes.h"
#include "presentation/Pictures.h"

namespace kv {
namespace {

constexpr int kTileSide = 50;  // of the portrait picker

std::map<int, QImage> Tiles() {
  Pictures pictures;
  std::map<int, QImage> tiles;
  if (!pictures.OpenDataFile(std::string(std::getenv("KV_ASSETS")) + "/" + kDataFileName)) return tiles;
  for (const int number : datafile::AllNumbers()) {
    if (number < kPortraitBase || number >= kPortraitBase + 100) continue;
    tiles[number] = pictures.getPic(number)
                        .image()
                        ->scaled(kTileSide, kTileSide, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                        .convertToFormat(QImage::Format_Grayscale8);
  }
  return tiles;
}

double MeanDifference(const QImage& a, const QImage& b) {
  long sum = 0;
  for (int y = 0; y < kTileSide; ++y)
    for (int x = 0; x < kTileSide; ++x) sum += std::abs(a.constScanLine(y)[x] - b.constScanLine(y)[x]);
  return static_cast<double>(sum) / (kTileSide * kTileSide);
}

TEST(PortraitPictures, NobodyIsTakenForAnotherInThePickerEvenWithoutColours) {
  const std::map<int, QImage> tiles = Tiles();
  ASSERT_EQ(tiles.size(), 62U);
  constexpr double kLeast = 10;  // mean grey levels
  for (const auto& [number, tile] : tiles) {
    for (auto other = tiles.upper_bound(number); other != tiles.end(); ++other)
      EXPECT_GT(MeanDifference(tile, other->second), kLeast) << number << " and " << other->first;
  }
}

TEST(PortraitPictures, AreTheSameInEveryRun) {
  const datafile::Catalogue catalogue(datafile::ReadBusts().rows);
  for (const int number : {301, 345}) EXPECT_EQ(catalogue.Paint(number), catalogue.Paint(number)) << number;
}

}  // namespace
}  // namespace kv
