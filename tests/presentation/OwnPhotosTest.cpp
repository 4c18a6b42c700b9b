// Photos as a telephone or a camera makes them: they become portraits, or the player is told why not.
#include <gmock/gmock.h>

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>

#include "presentation/BmpBands.h"
#include "presentation/JpegMeans.h"
#include "presentation/PictureDecoder.h"
#include "presentation/Portraits.h"
#include "support/Rows.h"
#include "support/TempFolder.h"

namespace kv::test {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

/// A slope of colours, the same at every size, with a bright upper left quarter.
QImage Scene(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  QPainter painter(&image);
  QLinearGradient slope(0, 0, width, height);
  slope.setColorAt(0, QColor(200, 40, 30));
  slope.setColorAt(1, QColor(20, 60, 220));
  painter.fillRect(image.rect(), slope);
  painter.fillRect(0, 0, width / 2, height / 2, QColor(230, 220, 120));
  return image;
}

std::string Written(const QImage& image, const char* format, bool progressive = false, int quality = 90,
                    QImageIOHandler::Transformations turn = QImageIOHandler::TransformationNone) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QImageWriter writer(&buffer, format);
  writer.setProgressiveScanWrite(progressive);
  writer.setQuality(quality);
  writer.setTransformation(turn);
  EXPECT_TRUE(writer.write(image));
  return bytes.toStdString();
}

std::span<const std::byte> BytesOf(const std::string& text) {
  return std::as_bytes(std::span(text));
}

/// The greatest difference of any colour of any pixel.
int Difference(const QImage& a, const QImage& b) {
  int most = a.size() == b.size() ? 0 : 1000;
  for (int y = 0; y < a.height() && most < 1000; ++y) {
    for (int x = 0; x < a.width(); ++x) {
      const QColor left = a.pixelColor(x, y);
      const QColor right = b.pixelColor(x, y);
      most = std::max({most, std::abs(left.red() - right.red()), std::abs(left.green() - right.green()),
                       std::abs(left.blue() - right.blue())});
    }
  }
  return most;
}

QImage Read(const std::string& jpeg, QSize size = {}) {
  QByteArray bytes = QByteArray::fromStdString(jpeg);
  QBuffer buffer(&bytes);
  QImageReader reader(&buffer, "jpeg");
  reader.setScaledSize(size);
  return reader.read();
}

TEST(OwnPhotosTest, TheMeansOfAProgressiveJpegShowTheSameAtAnEighth) {
  for (const QSize size : {QSize(640, 480), QSize(333, 217), QSize(8, 8), QSize(16, 130)}) {
    for (const int quality : {60, 97}) {
      const QSize eighth = QSize(size.width() / 8, size.height() / 8);
      const QImage scene = Scene(size.width(), size.height());
      const std::string grey =
          Written(scene.convertToFormat(QImage::Format_Grayscale8), "jpg", true, quality);
      EXPECT_EQ(Difference(Read(MeansOf(BytesOf(grey)), eighth), Read(grey, eighth)), 0) << size.width();
      // Of the colours a decoder would show a little more than the mean: they are compared from farther away.
      const std::string jpeg = Written(scene, "jpg", true, quality);
      const std::string means = MeansOf(BytesOf(jpeg));
      EXPECT_EQ(Read(means).size(), size);
      const auto shown = [](const QImage& image) {
        return image.scaled(2, 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
      };
      if (size.width() < 64) continue;
      EXPECT_LE(Difference(shown(Read(means, eighth)), shown(Read(jpeg, eighth))), 6) << size.width();
    }
  }
}

TEST(OwnPhotosTest, OnlyWholeMeansAreTaken) {
  EXPECT_TRUE(MeansOf(BytesOf(Written(Scene(64, 48), "jpg"))).empty()) << "one scan is read as it is";
  const std::string jpeg = Written(Scene(64, 48), "jpg", true);
  const std::size_t scan = jpeg.find("\xFF\xDA");
  EXPECT_TRUE(MeansOf(BytesOf(jpeg.substr(0, scan + 20))).empty());
  const std::size_t second = jpeg.find("\xFF\xDA", scan + 2);
  EXPECT_FALSE(MeansOf(BytesOf(jpeg.substr(0, second))).empty()) << "finer scans may be lost";
  for (std::size_t i = 0; i < jpeg.size(); ++i) {
    std::string bad = jpeg;
    bad[i] = static_cast<char>(bad[i] ^ 0x55);
    (void)MeansOf(BytesOf(bad));  // whatever it gives, it ends
    (void)MeansOf(BytesOf(jpeg.substr(0, i)));
  }
}

TEST(OwnPhotosTest, LargePicturesBecomePortraits) {
  for (const auto& [name, bytes, stored] : Rows<const char*, std::string, QSize>{
           {"48 million pixels", Written(Scene(8000, 6000), "jpg"), {8000, 6000}},
           {"12 million pixels, progressive", Written(Scene(4000, 3000), "jpg", true, 98), {4000, 3000}},
           {"a long one, progressive", Written(Scene(8000, 1200), "jpg", true), {8000, 1200}},
           {"BMP", Written(Scene(3840, 2160), "bmp"), {3840, 2160}},
           {"BMP with a palette",
            Written(Scene(3840, 2160).convertToFormat(QImage::Format_Indexed8), "bmp"),
            {3840, 2160}}}) {
    constexpr int kSide = 224;
    const SquarePicture square = DecodeSquare(BytesOf(bytes), kSide);
    ASSERT_EQ(square.fault, PictureFault::None) << name;
    EXPECT_EQ(square.stored, stored) << name;
    const QSize small = stored / 8;
    const int edge = small.height();
    const QImage middle = Scene(small.width(), edge).copy((small.width() - edge) / 2, 0, edge, edge);
    // Small pictures of both: a hard border may lie a pixel off.
    EXPECT_LE(Difference(square.image.scaled(7, 7, Qt::IgnoreAspectRatio, Qt::SmoothTransformation),
                         middle.scaled(7, 7, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)),
              24)
        << name;
  }
}

TEST(OwnPhotosTest, ABmpIsReducedRowByRowWhicheverWayItIsStored) {
  const QImage scene = Scene(23, 14);
  std::string bmp = Written(scene, "bmp");
  const QImage half = ReduceBmp(BytesOf(bmp), 2);
  EXPECT_LE(
      Difference(half,
                 scene.copy(0, 0, 22, 14).scaled(11, 7, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)),
      2);
  constexpr std::size_t kHeightAt = 22;
  for (std::size_t i = 0; i < 4; ++i) bmp[kHeightAt + i] = static_cast<char>(-14 >> 8 * i);
  EXPECT_EQ(Difference(ReduceBmp(BytesOf(bmp), 2), half.mirrored()), 0);
  for (const std::size_t cut : {std::size_t{0}, std::size_t{53}, bmp.size() - 1}) {
    EXPECT_TRUE(ReduceBmp(BytesOf(bmp.substr(0, cut)), 2).isNull()) << cut;
  }
}

TEST(OwnPhotosTest, APhotoStandsUpright) {
  for (const bool progressive : {false, true}) {
    const std::string turned =
        Written(Scene(2000, 2000), "jpg", progressive, 90, QImageIOHandler::TransformationRotate90);
    const QImage image = DecodeSquare(BytesOf(turned), 224).image;
    EXPECT_GT(image.pixelColor(180, 40).green(), 150) << "the bright quarter is on the right now";
    EXPECT_LT(image.pixelColor(40, 40).green(), 150);
  }
}

TEST(OwnPhotosTest, WhatIsRefusedIsTold) {
  TempFolder folder;
  Pictures pictures{1};
  Portraits portraits(pictures, folder.path(), [] { return PortraitOwner{"Bob.vnt", 7}; });
  const auto told = [&](const std::string& name, const std::string& bytes) {
    folder.Put(name, bytes);
    const std::string refusal = portraits.LookUp("").refusal;
    std::filesystem::remove(folder / name);
    return refusal;
  };
  EXPECT_EQ(portraits.LookUp("").refusal, "") << "nobody is told that there is no picture";
  const std::string photo = Written(Scene(400, 300), "jpg");
  EXPECT_EQ(told("Bob.jpg", photo), "");
  EXPECT_EQ(told("Bob.png", photo),
            "Bob.png cannot be shown: its name does not end in .jpg, .jpeg, .gif or .bmp.");
  EXPECT_THAT(told("bob.JPG", "text"), EndsWith(": it is no JPEG, GIF or BMP picture."));
  EXPECT_THAT(told("Bob.jpg", photo.substr(0, 200)), EndsWith(": it is damaged."));
  EXPECT_THAT(told("Bob.bmp", std::string(41 << 20, 'B')), HasSubstr("file too large"));
  std::string huge = photo;
  huge.replace(huge.find("\xFF\xC0") + 5, 4, "\x2E\xE0\x3E\x80");
  EXPECT_THAT(told("Bob.jpg", huge), HasSubstr("its 16000 x 12000 pixels are too many"));
}

}  // namespace
}  // namespace kv::test
