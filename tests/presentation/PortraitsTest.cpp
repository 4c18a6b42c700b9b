// The portraits of the game and the players' own.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QBuffer>
#include <QImage>
#include <array>
#include <map>

#include "packing/Catalogue.h"
#include "portraits/Table.h"
#include "presentation/PictureSizes.h"
#include "presentation/Pictures.h"
#include "presentation/Portraits.h"
#include "support/Rows.h"
#include "support/TempFolder.h"

namespace kv::test {
namespace {

class PortraitsTest : public testing::Test {
 protected:
  PortraitsTest() {
    EXPECT_TRUE(pictures.OpenDataFile(std::string(std::getenv("KV_ASSETS")) + "/" + kDataFileName));
  }

  void PutPicture(const std::string& name, const char* format, int width = 40, int height = 20) const {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(QString::fromStdString(folder / name), format));
  }
  bool Found(int number, const std::string& name) {
    bool found = false;
    EXPECT_FALSE(portraits.GetPortrait(number, name, found).empty());
    return found;
  }

  TempFolder folder;
  Pictures pictures{1};
  PortraitOwner owner{"Player1.vnt", 12};
  Portraits portraits{pictures, folder.path(), [this] { return owner; }};
};

TEST_F(PortraitsTest, WithoutAnOwnPictureTheBuiltInOneIsShown) {
  bool found = true;
  EXPECT_EQ(portraits.GetPortrait(-1, "", found), pictures.getPic(312));
  EXPECT_FALSE(found);
  EXPECT_EQ(portraits.GetPortrait(45, "0", found), pictures.getPic(345));
  EXPECT_TRUE(portraits.GetPortrait(6, "0", found).empty());  // nobody has that number
}

TEST_F(PortraitsTest, AnOwnPictureOverridesWhateverNumberIsChosen) {
  PutPicture("PLAYER1.Jpg", "jpg");
  bool found = false;
  const Picture own = portraits.GetPortrait(20, "", found);
  EXPECT_TRUE(found);
  EXPECT_EQ(own.image()->width(), own.image()->height());
  EXPECT_EQ(own.image()->deviceIndependentSize(), QSizeF(kPortraitSide, kPortraitSide));
  EXPECT_TRUE(Found(20, "player1"));
  EXPECT_FALSE(Found(20, "0"));
  std::filesystem::rename(folder / "PLAYER1.Jpg", folder / "PLAYER1.png");
  EXPECT_FALSE(Found(20, ""));
}

TEST_F(PortraitsTest, OnlyTheFirstFileOfTheNameCounts) {
  PutPicture("Player1.gif.png", "png");
  PutPicture("Player1.jpeg", "jpg");
  EXPECT_FALSE(Found(-1, ""));
  std::filesystem::remove(folder / "Player1.gif.png");
  EXPECT_TRUE(Found(-1, ""));
}

std::string Jpeg(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(Qt::red);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  EXPECT_TRUE(image.save(&buffer, "jpg"));
  return bytes.toStdString();
}

/// A number as bytes, the lowest first or, for a negative count, last.
std::string Little(std::uint32_t number, int count) {
  std::string bytes;
  for (int i = 0; i < std::abs(count); ++i) bytes.push_back(static_cast<char>(number >> 8 * i));
  return count > 0 ? bytes : std::string(bytes.rbegin(), bytes.rend());
}

/// The same JPEG claiming another kind of frame, another size, and `scans` scans.
std::string Forged(std::string jpeg, char frame, int side, int scans) {
  const std::size_t at = jpeg.find("\xFF\xC0");
  jpeg[at + 1] = frame;
  if (side > 0)
    jpeg.replace(at + 5, 4,
                 Little(static_cast<std::uint32_t>(side), -2) + Little(static_cast<std::uint32_t>(side), -2));
  const std::size_t scan = jpeg.find("\xFF\xDA");
  const std::string once = jpeg.substr(scan, jpeg.size() - 2 - scan);
  for (int i = 1; i < scans; ++i) jpeg.insert(scan, once);
  return jpeg;
}

std::string Bmp(std::uint32_t width, std::uint32_t height, std::uint32_t bits, std::uint32_t packing = 0) {
  return "BM" + Little(154, 4) + Little(0, 4) + Little(54, 4) + Little(40, 4) + Little(width, 4) +
         Little(height, 4) + Little(1, 2) + Little(bits, 2) + Little(packing, 4) + std::string(120, '\0');
}

std::string Gif(std::uint32_t screen, std::uint32_t frame) {
  return "GIF89a" + Little(screen, 2) + Little(screen, 2) + std::string("\x80\0\0\xFF\0\0\0\0\xFF", 9) + "," +
         Little(0, 4) + Little(frame, 2) + Little(frame, 2) + std::string("\0\x02\x02\x44\x01\0;", 7);
}

TEST_F(PortraitsTest, HostileFilesFallBackToTheBuiltInPortrait) {
  const std::string small = Jpeg(40, 20);
  const std::string large = Jpeg(4000, 3000);
  for (const auto& [name, bytes, found] : Rows<const char*, std::string, bool>{
           {"a.jpg", small, true},
           {"b.jpg", large, true},
           {"photo.jpg", Jpeg(4800, 300), true},
           {"beyond.jpg", Forged(small, '\xC0', 8190, 1), false},
           {"empty.jpg", "", false},
           {"text.bmp", "BM no picture", false},
           {"script.gif", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>", false},
           {"cut.jpg", small.substr(0, small.size() / 3), false},
           {"side.jpg", Forged(small, '\xC0', 30000, 1), false},
           {"several.jpg", Forged(large, '\xC2', 0, 1), false},
           {"scans.jpg", Forged(small, '\xC2', 0, 5000), false},
           {"work.jpg", Forged(small, '\xC2', 2800, 60), false},
           {"wide.bmp", Bmp(30000, 30000, 1), false},
           {"packed.bmp", Bmp(4000, 4000, 8, 1), false},
           {"negative.bmp", Bmp(0x80000000U, 0x80000000U, 24), false},
           {"overflow.bmp", Bmp(0x10001, 0x10001, 32), false},
           {"screen.gif", Gif(65535, 1), false},
           {"frame.gif", Gif(1, 65535), true},  // cut to its screen
           {"unset.gif", Gif(0, 65535), false},
           {"fine.gif", Gif(1, 1), true},
           {"fat.bmp", std::string(41 << 20, 'B'), false}}) {
    folder.Put(name, bytes);
    EXPECT_EQ(Found(7, std::filesystem::path(name).stem().string()), found) << name;
  }
}

TEST_F(PortraitsTest, WhatIsNoPlainFileIsPassedOver) {
  const auto at = [this](const char* name) { return folder / name; };
  std::filesystem::create_directory(at("folder.jpg"));
  std::filesystem::create_symlink("loop.jpg", at("loop.jpg"));
  std::filesystem::create_symlink("/dev/zero", at("device.jpg"));
  ASSERT_EQ(::mkfifo(at("pipe.jpg").c_str(), 0600), 0);
  PutPicture("locked.jpg", "jpg");
  std::filesystem::permissions(at("locked.jpg"), std::filesystem::perms::none);
  for (const char* name : {"folder", "loop", "device", "pipe"}) EXPECT_FALSE(Found(7, name)) << name;
  EXPECT_EQ(Found(7, "locked"), ::geteuid() == 0);
  PutPicture("other.jpg", "png");
  EXPECT_FALSE(Found(7, "other"));
}

TEST_F(PortraitsTest, ASheetOfPortraitsIsReducedAndNotKept) {
  constexpr std::array kNumbers = {7, 65, 6};
  const std::vector<Picture> sheet = portraits.GetReduced(kNumbers, "0", 50);
  ASSERT_EQ(sheet.size(), 3U);
  EXPECT_EQ(sheet[1].image()->size(), QSize(50, 50));
  EXPECT_TRUE(sheet[2].empty());
  EXPECT_NE(portraits.GetReduced(kNumbers, "0", 50)[0], sheet[0]);
  PutPicture("0.gif.bmp", "bmp");
  for (const Picture& picture : portraits.GetReduced(kNumbers, "0", 50)) {
    EXPECT_EQ(picture.image()->deviceIndependentSize(), QSizeF(50, 50));
    EXPECT_EQ(QColor(picture.image()->pixel(3, 3)), QColor(Qt::red));
  }
}

TEST_F(PortraitsTest, APeersNameCannotLeaveTheFolderOrMatchAnything) {
  PutPicture("Player1.jpg", "jpg");
  const std::string inside = folder.path().substr(folder.path().rfind('/') + 1);
  for (const std::string& name :
       {std::string("*"), std::string("Player?"), "../" + inside + "/Player1", std::string("..\\x")}) {
    EXPECT_FALSE(Found(10, name)) << name;
  }
  PutPicture("abc.jpg", "jpg");
  owner = {"abc", 7};
  EXPECT_FALSE(Found(-1, "")) << "a file's name too short for an extension";
}

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
}  // namespace kv::test
